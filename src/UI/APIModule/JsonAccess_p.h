#pragma once

#include <QCborArray>
#include <QCborMap>
#include <QCborValue>
#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>
#include <QVariant>

#include <limits>
#include <optional>
#include <string>

/// Access to JSON values by key. Results and log lines are those of CCommonFunc.
namespace APIModule::detail {

/// Stores the text as UTF-8.
void StoreUtf8(const QString& text, std::string& result);

/// The value when it is a whole number of usual size.
inline std::optional<long long> WholeNumber(const QJsonValue& value)
{
    constexpr int kOther = std::numeric_limits<int>::min();
    const int number = value.toInt(kOther);
    return number != kOther ? std::optional<long long>(number) : std::nullopt;
}

inline std::optional<long long> WholeNumber(const QCborValue& value)
{
    return value.isInteger() ? std::optional<long long>(value.toInteger()) : std::nullopt;
}

// Each conversion gives what the value's variant gives; what is usual goes without the variant.

template <typename Value>
void Convert(const Value& value, int& result)
{
    const std::optional<long long> number = WholeNumber(value);
    result = number ? int(*number) : value.toVariant().toInt();
}

template <typename Value>
void Convert(const Value& value, double& result)
{
    const std::optional<long long> number = WholeNumber(value);
    result = number ? double(*number) : value.toVariant().toDouble();
}

template <typename Value>
void Convert(const Value& value, long long& result)
{
    const std::optional<long long> number = WholeNumber(value);
    result = number ? *number : value.toVariant().toLongLong();
}

template <typename Value>
void Convert(const Value& value, bool& result)
{
    result = value.isBool() ? value.toBool() : value.toVariant().toBool();
}

template <typename Value>
void Convert(const Value& value, std::string& result)
{
    StoreUtf8(value.isString() ? value.toString() : value.toVariant().toString(), result);
}

/// Whether a variant gives the value back as it is. It makes doubles of the numbers in objects and arrays: integers
/// beyond 2^53 lose digits there, and what is no finite number becomes null.
bool IsKeptByVariant(const QCborValue& value);

void Convert(const QJsonValue& value, QJsonObject& result);
void Convert(const QJsonValue& value, QJsonArray& result);

// The readers of records do to each number inside what the variant would.

inline void Convert(const QCborValue& value, QCborMap& result)
{
    result = value.toMap();
}

inline void Convert(const QCborValue& value, QCborArray& result)
{
    result = value.toArray();
}

void LogEmptyObject();
void LogMissingKey(const QString& key);
void LogUndefinedValue(const QString& key);

/// Logs why an object gives no value for the key.
template <typename Object>
void LogNoValue(const Object& object, const QString& key)
{
    if (object.isEmpty()) {
        LogEmptyObject();
    } else if (!object.contains(key)) {
        LogMissingKey(key);
    } else {
        LogUndefinedValue(key);
    }
}

/// One value by its key. @return 0, or -1 with a log line
template <typename Object, typename Key, typename Result>
int ReadConverted(const Object& object, const Key& key, Result& result)
{
    const auto value = object.value(key);
    if (value.isUndefined()) {
        LogNoValue(object, key);
        return -1;
    }
    Convert(value, result);
    return 0;
}

}  // namespace APIModule::detail
