#pragma once

#include "Conversions_p.h"

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

/// The value, if it is an integer of usual size.
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

/// Keeps all digits of an integer, unlike Qt 5's QCborValue::fromJsonValue.
inline QCborValue Generic(const QJsonValue& value)
{
    return QCborValue::fromVariant(value.toVariant());
}

inline const QCborValue& Generic(const QCborValue& value)
{
    return value;
}

// Each conversion returns what the value's variant returns with Qt 5; common cases take a shorter path.

template <typename Value>
void Convert(const Value& value, int& result)
{
    const std::optional<long long> number = WholeNumber(value);
    result = int(number ? *number : IntegerOf(Generic(value)));
}

template <typename Value>
void Convert(const Value& value, double& result)
{
    result = value.isDouble() ? value.toDouble() : DoubleOf(Generic(value));
}

template <typename Value>
void Convert(const Value& value, long long& result)
{
    const std::optional<long long> number = WholeNumber(value);
    result = number ? *number : IntegerOf(Generic(value));
}

template <typename Value>
void Convert(const Value& value, bool& result)
{
    result = value.isBool() ? value.toBool() : FlagOf(Generic(value));
}

template <typename Value>
void Convert(const Value& value, std::string& result)
{
    StoreUtf8(value.isString() ? value.toString() : TextOf(Generic(value)), result);
}

/// A number in an object or array, as converted by the variant of that container. A variant converts it to a double: an
/// integer beyond 2^53 loses digits, and a number that is not finite becomes null.
QCborValue NumberFromVariant(const QCborValue& number);

void Convert(const QJsonValue& value, QJsonObject& result);
void Convert(const QJsonValue& value, QJsonArray& result);

// The readers of records convert each nested number as the variant does.

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

/// Logs why an object has no value for the key.
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

/// Records the last key without a value on its thread during its lifetime.
class UnreadableKey {
public:
    explicit UnreadableKey(QString& key);
    ~UnreadableKey();
    UnreadableKey(const UnreadableKey&) = delete;
    UnreadableKey& operator=(const UnreadableKey&) = delete;

    static void Note(const QString& key);

private:
    QString* const m_pOuter;
};

/// One value by its key. @return 0, or -1 with a log line
template <typename Object, typename Key, typename Result>
int ReadConverted(const Object& object, const Key& key, Result& result)
{
    const auto value = object.value(key);
    if (value.isUndefined()) {
        LogNoValue(object, key);
        UnreadableKey::Note(key);
        return -1;
    }
    Convert(value, result);
    return 0;
}

}  // namespace APIModule::detail
