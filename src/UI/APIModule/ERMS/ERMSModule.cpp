#include "ERMSModule.h"

namespace APIModule {

CERMSModule& CERMSModule::operator=(const CERMSModule& other) = default;
CERMSModule& CERMSModule::operator=(CERMSModule&& other) noexcept = default;

}  // namespace APIModule
