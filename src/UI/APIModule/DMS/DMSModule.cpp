#include "DMSModule.h"

namespace APIModule {

CDMSModule& CDMSModule::operator=(const CDMSModule& other) = default;
CDMSModule& CDMSModule::operator=(CDMSModule&& other) noexcept = default;

}  // namespace APIModule
