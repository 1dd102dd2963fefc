#pragma once

#include <QJsonObject>

#include <string>

namespace family_testing {

/// Parses a JSON object from a constant text.
QJsonObject JsonObject(const std::string& text);

}  // namespace family_testing
