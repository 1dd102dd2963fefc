#pragma once

#include "../detail/Pack.h"
#include "../detail/Read.h"
#include "OMMSModule.h"

namespace APIModule {

using namespace detail;

inline constexpr Family kOmms{"src/UI/APIModule/OMMS/OMMSModule", "APIModule::COMMSModule::"};

}  // namespace APIModule
