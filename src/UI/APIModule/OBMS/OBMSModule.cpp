#include "OBMSModule.h"

namespace APIModule {

COBMSModule& COBMSModule::operator=(const COBMSModule&) = default;
COBMSModule& COBMSModule::operator=(COBMSModule&&) noexcept = default;

}  // namespace APIModule
