#include "IAMSModule.h"

namespace APIModule {

CIAMSModule& CIAMSModule::operator=(const CIAMSModule&) = default;
CIAMSModule& CIAMSModule::operator=(CIAMSModule&&) noexcept = default;

}  // namespace APIModule
