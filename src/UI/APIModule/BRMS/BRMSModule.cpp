#include "BRMSModule.h"

namespace APIModule {

CBRMSModule& CBRMSModule::operator=(const CBRMSModule& other) = default;
CBRMSModule& CBRMSModule::operator=(CBRMSModule&& other) noexcept = default;

}  // namespace APIModule
