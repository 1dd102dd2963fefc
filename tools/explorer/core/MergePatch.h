#pragma once

#include <nlohmann/json.hpp>

#include <optional>

namespace explorer {

/// The JSON merge patch (RFC 7396) that turns one value into the other.
/// @return nothing if no patch does, because a member becomes null
std::optional<nlohmann::json> MergePatch(const nlohmann::json& from, const nlohmann::json& to);

}  // namespace explorer
