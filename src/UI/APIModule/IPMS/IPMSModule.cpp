#include "IPMSModule.h"

namespace APIModule {

CIPMSModule& CIPMSModule::operator=(const CIPMSModule& other) = default;
CIPMSModule& CIPMSModule::operator=(CIPMSModule&& other) noexcept = default;

}  // namespace APIModule
