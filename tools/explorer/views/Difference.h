#pragma once

#include <nlohmann/json.hpp>

#include <QString>

#include <vector>

namespace explorer {

/// A path at which two values differ.
struct Difference {
    QString path;  ///< JSON pointer; empty for the root
    QString left;  ///< compact JSON; empty if missing
    QString right;
};

std::vector<Difference> Differences(const nlohmann::json& left, const nlohmann::json& right);

}  // namespace explorer
