#pragma once

#include "../CallOutcome.h"

#include <nlohmann/json.hpp>

#include <vector>

namespace explorer {

/// The exchanges of runs as an HTTP archive (HAR 1.2); runs that made no request are left out, and so are replies that
/// bring tokens.
nlohmann::json Har(const std::vector<const RunSummary*>& runs);

}  // namespace explorer
