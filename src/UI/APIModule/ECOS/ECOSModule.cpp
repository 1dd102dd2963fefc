#include "ECOSModule.h"

namespace APIModule {

CECOSModule& CECOSModule::operator=(const CECOSModule&) = default;
CECOSModule& CECOSModule::operator=(CECOSModule&&) noexcept = default;

}  // namespace APIModule
