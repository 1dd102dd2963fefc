#pragma once

#include "support/Recorders.h"

#include <APIModuleGlobal.h>

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>
#include <QVariant>

#include <string>
#include <type_traits>

/// A slow but simple reader of single values, used as a reference for the library.
namespace family_testing {

/// The log lines of failed reads.
testing_support::LogLine EmptyObject();
testing_support::LogLine MissingKey(const std::string& key);

enum class Target {
    Integer,
    Number,
    Flag,
    Text,
    Container
};

/// The variant of a value. With Qt 6, one that converts to the target with the result of Qt 5.
QVariant VariantFor(Target target, const QJsonValue& value);

/// The result of QJsonValue::toVariant() followed by the variant's conversion with Qt 5, for the types that
/// GetJsonValue reads.
/// - Fractions are rounded and integers truncated to the low bits of an int, as QVariant does.
/// - Values in an object or an array pass through a map or a list of variants, from which Qt returns every number as a
///   double: integers beyond 2^53 lose digits, and numbers that are not finite become null.
/// - A double beyond 64 bits has no integer value; the result is whatever Qt's conversion returns.
template <typename T>
T Converted(const QJsonValue& value)
{
    if constexpr (std::is_same_v<T, int>) {
        return VariantFor(Target::Integer, value).toInt();
    } else if constexpr (std::is_same_v<T, APIModule::int64>) {
        return VariantFor(Target::Integer, value).toLongLong();
    } else if constexpr (std::is_same_v<T, double>) {
        return VariantFor(Target::Number, value).toDouble();
    } else if constexpr (std::is_same_v<T, bool>) {
        return VariantFor(Target::Flag, value).toBool();
    } else if constexpr (std::is_same_v<T, std::string>) {
        return VariantFor(Target::Text, value).toString().toUtf8().toStdString();
    } else if constexpr (std::is_same_v<T, QJsonObject>) {
        return VariantFor(Target::Container, value).toJsonObject();
    } else {
        static_assert(std::is_same_v<T, QJsonArray>);
        return VariantFor(Target::Container, value).toJsonArray();
    }
}

/// Reads a decimal text like QString::toInt() of Qt 5. @return 0 for any other text
int NumberOfText(const QString& text);

/// Looks up the key. @return whether a value exists; if not, adds a log line
bool FindSlowly(const QJsonObject& object, const QString& key, QJsonValue& value, testing_support::LogLines& lines);

/// @return 0; or -1 with a log line and unchanged output
template <typename T>
int ReadSlowly(const QJsonObject& object, const QString& key, T& output, testing_support::LogLines& lines)
{
    QJsonValue value;
    if (!FindSlowly(object, key, value, lines)) {
        return -1;
    }
    output = Converted<T>(value);
    return 0;
}

}  // namespace family_testing
