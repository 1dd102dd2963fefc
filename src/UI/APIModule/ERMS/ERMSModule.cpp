#include "ERMSModule.h"

namespace APIModule {

CERMSModule& CERMSModule::operator=(const CERMSModule&) = default;
CERMSModule& CERMSModule::operator=(CERMSModule&&) noexcept = default;

}  // namespace APIModule
