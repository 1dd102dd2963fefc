#include "DMSModule.h"

namespace APIModule {

CDMSModule& CDMSModule::operator=(const CDMSModule&) = default;
CDMSModule& CDMSModule::operator=(CDMSModule&&) noexcept = default;

}  // namespace APIModule
