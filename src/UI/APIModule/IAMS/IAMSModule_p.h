#pragma once

#include "../detail/Pack.h"
#include "IAMSModule.h"

namespace APIModule {

using namespace detail;

inline constexpr Family kIams{"src/UI/APIModule/IAMS/IAMSModule", "APIModule::CIAMSModule::"};

}  // namespace APIModule
