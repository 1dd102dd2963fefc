#pragma once

#include "../APIModuleGlobal.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

#include <string>

namespace APIModule {

/// Typed readers of JSON values for the Parses that a host writes, and a string helper.
///
/// GetJsonValue() reads the value of @p key in @p jsonObject into @p value, whose type selects the overload, and
/// returns 0. When the object has no keys, lacks the key, or the value is undefined, it returns -1, writes one log line
/// with the reason and leaves @p value untouched. It converts every other value as QVariant does: a string of digits to
/// its number, null to 0, "" or false, a string of letters read as a number to 0. It reports no other type mismatch:
/// @code
/// int Parse(const QJsonObject& data, int& interval)
/// {
///     return APIModule::CCommonFunc::GetJsonValue(data, QStringLiteral("interval"), interval);
/// }
/// @endcode
class APIMODULE_EXPORT CCommonFunc {
public:
    /// Reads an `int`.
    static int GetJsonValue(const QJsonObject& jsonObject, const QString& key, int& value);
    /// Reads a `double`.
    static int GetJsonValue(const QJsonObject& jsonObject, const QString& key, double& value);
    /// Reads an object; a value of another type is read as an empty one.
    static int GetJsonValue(const QJsonObject& jsonObject, const QString& key, QJsonObject& value);
    /// Reads a string as UTF-8; a number is converted to a string.
    static int GetJsonValue(const QJsonObject& jsonObject, const QString& key, std::string& value);
    /// Reads an array; a value of another type is read as an empty one.
    static int GetJsonValue(const QJsonObject& jsonObject, const QString& key, QJsonArray& value);
    /// Reads a 64-bit integer; beyond 2^53 its precision is that of a double.
    static int GetJsonValue(const QJsonObject& jsonObject, const QString& key, int64& value);
    /// Reads a `bool`; the strings "", "0" and "false" and the number 0 are false.
    static int GetJsonValue(const QJsonObject& jsonObject, const QString& key, bool& value);

    /// Tests whether the object has no keys, and logs that.
    /// @param jsonObject the object
    /// @return true without keys
    static bool IsEmpty(const QJsonObject& jsonObject);

    /// Tests whether the object contains the key, and logs a missing one.
    /// @param jsonObject the object
    /// @param key the key
    /// @return true if it is present
    static bool IsKeyValid(const QJsonObject& jsonObject, const QString& key);

    /// Puts one backslash before every double quote; nothing else is escaped.
    /// @param text the text
    /// @return the text with its backslashes
    static std::string TransformToEscaped(const std::string& text);
};

}  // namespace APIModule
