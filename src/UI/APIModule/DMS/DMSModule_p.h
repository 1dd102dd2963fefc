#pragma once

#include "../detail/Pack.h"
#include "../detail/Read.h"
#include "DMSModule.h"

namespace APIModule {

using namespace detail;

inline constexpr Family kDms{"src/UI/APIModule/DMS/DMSModule", "APIModule::CDMSModule::"};

}  // namespace APIModule
