#pragma once

#include <nlohmann/json.hpp>

#include <QString>

#include <vector>

namespace explorer {

/// A place where two values differ.
struct Difference {
    QString path;  ///< JSON pointer; empty for the whole
    QString left;  ///< compact JSON; empty when it is not there
    QString right;
};

std::vector<Difference> Differences(const nlohmann::json& left, const nlohmann::json& right);

}  // namespace explorer
