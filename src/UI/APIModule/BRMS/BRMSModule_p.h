#pragma once

#include "../detail/Pack.h"
#include "../detail/Read.h"
#include "BRMSModule.h"

namespace APIModule {

using namespace detail;

inline constexpr Family kBrms{"src/UI/APIModule/BRMS/BRMSModule", "APIModule::CBRMSModule::"};

}  // namespace APIModule
