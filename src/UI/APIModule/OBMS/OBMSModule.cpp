#include "OBMSModule.h"

namespace APIModule {

COBMSModule& COBMSModule::operator=(const COBMSModule& other) = default;
COBMSModule& COBMSModule::operator=(COBMSModule&& other) noexcept = default;

}  // namespace APIModule
