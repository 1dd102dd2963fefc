#pragma once

#include "support/Recorders.h"

#include <QJsonObject>
#include <QString>

#include <string>

namespace family_testing {

/// Reads one value with each overload of GetJsonValue and by the reference rules.
/// @return how results, outputs or log lines differ; empty where they do not
std::string ReadingDifference(const QJsonObject& object, const QString& key, testing_support::LogRecorder& logs);

}  // namespace family_testing
