#include "EMAPModule.h"

namespace APIModule {

CEMAPModule& CEMAPModule::operator=(const CEMAPModule& other) = default;
CEMAPModule& CEMAPModule::operator=(CEMAPModule&& other) noexcept = default;

}  // namespace APIModule
