#pragma once

#include "../CallOutcome.h"

#include <nlohmann/json.hpp>

#include <vector>

namespace explorer {

/// The exchanges of runs as an HTTP archive (HAR 1.2), without runs that sent no request and without replies that
/// contain tokens.
nlohmann::json Har(const std::vector<const RunSummary*>& runs);

}  // namespace explorer
