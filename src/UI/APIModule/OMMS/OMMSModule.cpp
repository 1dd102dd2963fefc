#include "OMMSModule.h"

namespace APIModule {

COMMSModule& COMMSModule::operator=(const COMMSModule&) = default;
COMMSModule& COMMSModule::operator=(COMMSModule&&) noexcept = default;

}  // namespace APIModule
