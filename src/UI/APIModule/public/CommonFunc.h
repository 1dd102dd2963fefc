#pragma once

#include "../APIModuleGlobal.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

#include <string>

namespace APIModule {

/// Typed readers of JSON values, and a text helper for hosts.
///
/// A read fails, with -1 and one log line that says why, when the object has no keys, when it lacks the key, or when
/// the value is of undefined type; the output is then untouched. Every other value is accepted and converted as
/// QVariant converts it: a text of digits gives its number, null gives 0, "" or false, a text of letters read as a
/// number gives 0.
class APIMODULE_EXPORT CCommonFunc {
public:
    /// Reads an `int`. @return 0 or -1
    static int GetJsonValue(const QJsonObject& jsonObject, const QString& key, int& value);
    /// Reads a `double`. @return 0 or -1
    static int GetJsonValue(const QJsonObject& jsonObject, const QString& key, double& value);
    /// Reads an object; a value of another type gives an empty one. @return 0 or -1
    static int GetJsonValue(const QJsonObject& jsonObject, const QString& key, QJsonObject& value);
    /// Reads a text as UTF-8; a number gives its text. @return 0 or -1
    static int GetJsonValue(const QJsonObject& jsonObject, const QString& key, std::string& value);
    /// Reads an array; a value of another type gives an empty one. @return 0 or -1
    static int GetJsonValue(const QJsonObject& jsonObject, const QString& key, QJsonArray& value);
    /// Reads a 64-bit integer; beyond 2^53 a double in between limits its precision. @return 0 or -1
    static int GetJsonValue(const QJsonObject& jsonObject, const QString& key, int64& value);
    /// Reads a `bool`; the texts "", "0" and "false" and the number 0 give false. @return 0 or -1
    static int GetJsonValue(const QJsonObject& jsonObject, const QString& key, bool& value);

    /// True, with a log line, when the object has no keys.
    static bool IsEmpty(const QJsonObject& jsonObject);

    /// True when the object contains the key; false, with a log line, when it does not.
    static bool IsKeyValid(const QJsonObject& jsonObject, const QString& key);

    /// The text with one backslash put before every double quote; nothing else is escaped.
    static std::string TransformToEscaped(const std::string& text);
};

}  // namespace APIModule
