#pragma once

#include <nlohmann/json.hpp>

#include <QJsonObject>
#include <QJsonValue>
#include <QString>

#include <memory>

/// Between the JSON of Qt, which widgets and settings speak, and that of the catalogue. Whole numbers keep all their
/// 64 bits, which QJsonDocument does not print.
namespace explorer {

/// A record that several views show; a large one takes many times the bytes of its reply.
using SharedRecord = std::shared_ptr<const nlohmann::json>;

nlohmann::json FromQt(const QJsonValue& value);
QJsonObject ToQt(const nlohmann::json& object);

/// Indented; bytes of a text that are not UTF-8 are shown as replacement characters.
QString JsonText(const nlohmann::json& value);
/// On one line.
QString CompactJsonText(const nlohmann::json& value);

}  // namespace explorer
