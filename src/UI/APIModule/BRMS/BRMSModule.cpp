#include "BRMSModule.h"

namespace APIModule {

CBRMSModule& CBRMSModule::operator=(const CBRMSModule&) = default;
CBRMSModule& CBRMSModule::operator=(CBRMSModule&&) noexcept = default;

}  // namespace APIModule
