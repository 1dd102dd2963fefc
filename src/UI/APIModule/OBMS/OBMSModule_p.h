#pragma once

#include "../detail/Pack.h"
#include "../detail/Read.h"
#include "OBMSModule.h"

namespace APIModule {

using namespace detail;

inline constexpr Family kObms{"src/UI/APIModule/OBMS/OBMSModule", "APIModule::COBMSModule::"};

}  // namespace APIModule
