#pragma once

#include <nlohmann/json.hpp>

#include <QJsonObject>
#include <QJsonValue>
#include <QString>

#include <memory>

/// Converts between the JSON of Qt, for widgets and settings, and that of the catalogue. Integers keep all 64 bits,
/// which QJsonDocument does not print.
namespace explorer {

/// A record that several views share, because a large one takes many times the size of its reply.
using SharedRecord = std::shared_ptr<const nlohmann::json>;

nlohmann::json FromQt(const QJsonValue& value);
QJsonObject ToQt(const nlohmann::json& object);

/// Indented text; bytes that are not UTF-8 become replacement characters.
QString JsonText(const nlohmann::json& value);
/// On one line.
QString CompactJsonText(const nlohmann::json& value);

/// The JSON as indented text; any other text unchanged.
QString PrettyJson(const QByteArray& text);

}  // namespace explorer
