#pragma once

#include <nlohmann/json.hpp>

namespace emulator {

/// The JSON values of the emulator.
using Json = nlohmann::json;

}  // namespace emulator
