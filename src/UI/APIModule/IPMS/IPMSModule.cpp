#include "IPMSModule.h"

namespace APIModule {

CIPMSModule& CIPMSModule::operator=(const CIPMSModule&) = default;
CIPMSModule& CIPMSModule::operator=(CIPMSModule&&) noexcept = default;

}  // namespace APIModule
