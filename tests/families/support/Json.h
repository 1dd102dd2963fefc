#pragma once

#include <QJsonObject>

#include <string>

namespace family_testing {

/// The object that a constant text of a test holds.
QJsonObject JsonObject(const std::string& text);

}  // namespace family_testing
