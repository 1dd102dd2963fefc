#pragma once

#include "../Handlers.h"

/// What the platform does for each call of a family: one table a family, beside its seed file.
namespace emulator::families
{

HandlerTable Brms();

}  // namespace emulator::families
