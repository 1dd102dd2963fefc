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

/// Reading of one value just as the rules tell it, whatever it costs, to hold the library against.
namespace family_testing {

/// The lines of a failed read.
testing_support::LogLine EmptyObject();
testing_support::LogLine MissingKey(const std::string& key);

/// What QJsonValue::toVariant and then the variant's own conversion give, for the types that GetJsonValue reads.
/// - A fraction is rounded and an integer cut to the lower bits of an int, as QVariant does it.
/// - What is in an object or an array goes through a map or a list of variants. Qt makes a double of every number that
///   comes back from there: integers beyond 2^53 lose digits, and what is no finite number becomes null.
/// - A double beyond 64 bits has no integer value of its own; what Qt makes of it is taken all the same.
template <typename T>
T Converted(const QJsonValue& value)
{
    const QVariant variant = value.toVariant();
    if constexpr (std::is_same_v<T, int>) {
        return variant.toInt();
    } else if constexpr (std::is_same_v<T, APIModule::int64>) {
        return variant.toLongLong();
    } else if constexpr (std::is_same_v<T, double>) {
        return variant.toDouble();
    } else if constexpr (std::is_same_v<T, bool>) {
        return variant.toBool();
    } else if constexpr (std::is_same_v<T, std::string>) {
        return variant.toString().toUtf8().toStdString();
    } else if constexpr (std::is_same_v<T, QJsonObject>) {
        return variant.toJsonObject();
    } else {
        static_assert(std::is_same_v<T, QJsonArray>);
        return variant.toJsonArray();
    }
}

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
