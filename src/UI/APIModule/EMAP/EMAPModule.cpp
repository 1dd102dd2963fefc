#include "EMAPModule.h"

namespace APIModule {

CEMAPModule& CEMAPModule::operator=(const CEMAPModule&) = default;
CEMAPModule& CEMAPModule::operator=(CEMAPModule&&) noexcept = default;

}  // namespace APIModule
