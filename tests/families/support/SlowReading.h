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

/// Reading of one value by the rules, regardless of cost, as a reference for the library.
namespace family_testing {

/// The lines of a failed read.
testing_support::LogLine EmptyObject();
testing_support::LogLine MissingKey(const std::string& key);

enum class Target {
    Integer,
    Number,
    Flag,
    Text,
    Container
};

/// The variant of a value. With Qt 6, a variant that Qt 6 converts to the target as Qt 5 converts the original.
QVariant VariantFor(Target target, const QJsonValue& value);

/// What QJsonValue::toVariant and then the variant's own conversion give with Qt 5, for the types that GetJsonValue
/// reads.
/// - A fraction is rounded and an integer cut to the lower bits of an int, as QVariant does it.
/// - Values in an object or an array pass through a map or a list of variants, from which Qt returns every number as a
///   double: integers beyond 2^53 lose digits, and numbers that are not finite become null.
/// - A double beyond 64 bits has no integer value; the result of Qt's conversion is used nevertheless.
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

/// A decimal text as QString::toInt of Qt 5 reads it. @return 0 for any other text
int NumberOfText(const QString& text);

/// Looks the key up. @return whether there is a value to convert; otherwise with a line
bool FindSlowly(const QJsonObject& object, const QString& key, QJsonValue& value, testing_support::LogLines& lines);

/// @return 0, or -1 with a line and the output untouched
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
