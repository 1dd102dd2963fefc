#include "IAMSModule.h"

namespace APIModule {

CIAMSModule& CIAMSModule::operator=(const CIAMSModule& other) = default;
CIAMSModule& CIAMSModule::operator=(CIAMSModule&& other) noexcept = default;

}  // namespace APIModule
