#pragma once

#include "../APIModuleGlobal.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

#include <string>

namespace APIModule {

/// Typed readers of JSON values, and a text helper for hosts.
///
/// GetJsonValue() reads the value under @p key of @p jsonObject into @p value, whose type selects the overload. It
/// returns 0. When the object has no keys, lacks the key, or the value is of undefined type, it returns -1 with one log
/// line that says why, and @p value is untouched. It accepts every other value and converts it as QVariant does: a text
/// of digits gives its number, null gives 0, "" or false, a text of letters read as a number gives 0.
class APIMODULE_EXPORT CCommonFunc {
public:
    /// Reads an `int`.
    static int GetJsonValue(const QJsonObject& jsonObject, const QString& key, int& value);
    /// Reads a `double`.
    static int GetJsonValue(const QJsonObject& jsonObject, const QString& key, double& value);
    /// Reads an object; a value of another type gives an empty one.
    static int GetJsonValue(const QJsonObject& jsonObject, const QString& key, QJsonObject& value);
    /// Reads a text as UTF-8; a number gives its text.
    static int GetJsonValue(const QJsonObject& jsonObject, const QString& key, std::string& value);
    /// Reads an array; a value of another type gives an empty one.
    static int GetJsonValue(const QJsonObject& jsonObject, const QString& key, QJsonArray& value);
    /// Reads a 64-bit integer; beyond 2^53 a double in between limits its precision.
    static int GetJsonValue(const QJsonObject& jsonObject, const QString& key, int64& value);
    /// Reads a `bool`; the texts "", "0" and "false" and the number 0 give false.
    static int GetJsonValue(const QJsonObject& jsonObject, const QString& key, bool& value);

    /// Whether the object has no keys, which is logged.
    /// @param jsonObject the object
    /// @return true without keys
    static bool IsEmpty(const QJsonObject& jsonObject);

    /// Whether the object contains the key; a missing one is logged.
    /// @param jsonObject the object
    /// @param key the key
    /// @return true when it is there
    static bool IsKeyValid(const QJsonObject& jsonObject, const QString& key);

    /// Puts one backslash before every double quote; nothing else is escaped.
    /// @param text the text
    /// @return the text with its backslashes
    static std::string TransformToEscaped(const std::string& text);
};

}  // namespace APIModule
