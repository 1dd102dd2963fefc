#pragma once

#include "support/Recorders.h"

#include <QJsonObject>
#include <QString>

#include <string>

namespace family_testing {

/// Reads one value with each overload of GetJsonValue and with the reference.
/// @return the differences of results, outputs and log lines, or empty
std::string ReadingDifference(const QJsonObject& object, const QString& key, testing_support::LogRecorder& logs);

}  // namespace family_testing
