#pragma once

#include <nlohmann/json.hpp>

#include <optional>

namespace explorer {

/// The JSON merge patch (RFC 7396) that makes one value into another.
/// @return nothing when none does, because a member is to become null
std::optional<nlohmann::json> MergePatch(const nlohmann::json& from, const nlohmann::json& to);

}  // namespace explorer
