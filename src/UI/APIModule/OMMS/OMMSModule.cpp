#include "OMMSModule.h"

namespace APIModule {

COMMSModule& COMMSModule::operator=(const COMMSModule& other) = default;
COMMSModule& COMMSModule::operator=(COMMSModule&& other) noexcept = default;

}  // namespace APIModule
