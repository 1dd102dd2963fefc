#pragma once

#include "../detail/Pack.h"
#include "../detail/Read.h"
#include "IPMSModule.h"

namespace APIModule {

using namespace detail;

inline constexpr Family kIpms{"src/UI/APIModule/IPMS/IPMSModule", "APIModule::CIPMSModule::"};

}  // namespace APIModule
