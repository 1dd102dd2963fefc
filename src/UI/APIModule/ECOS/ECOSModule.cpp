#include "ECOSModule.h"

namespace APIModule {

CECOSModule& CECOSModule::operator=(const CECOSModule& other) = default;
CECOSModule& CECOSModule::operator=(CECOSModule&& other) noexcept = default;

}  // namespace APIModule
