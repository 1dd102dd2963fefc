#include "Read.h"

#include "JsonAccess.h"

#include <QtNumeric>

namespace APIModule::detail {

namespace {

/// Numbers inside of objects and arrays come back from a variant as doubles: beyond 2^53 integers lose digits, and what
/// is no finite number is null.
QCborValue AsFromVariant(const QCborValue& value)
{
    constexpr qint64 kExact = qint64(1) << 53;
    constexpr double kBeyondIntegers = 9223372036854775808.0;
    if (value.isDouble()) {
        return qIsFinite(value.toDouble()) ? value : QCborValue(nullptr);
    }
    const qint64 integer = value.toInteger();
    if (integer >= -kExact && integer <= kExact) {
        return value;
    }
    const auto number = double(integer);
    return number < kBeyondIntegers ? QCborValue(qint64(number)) : QCborValue(number);
}

}  // namespace

QCborValue JsonObject::value(QLatin1String key) const
{
    QCborValue found = QCborMap::value(key);
    if (m_bInner && (found.isInteger() || found.isDouble())) {
        found = AsFromVariant(found);
    }
    return found;
}

int ReadValue(const JsonObject& object, QLatin1String key, int& value)
{
    return ReadConverted(object, key, value);
}

int ReadValue(const JsonObject& object, QLatin1String key, double& value)
{
    return ReadConverted(object, key, value);
}

int ReadValue(const JsonObject& object, QLatin1String key, JsonObject& value)
{
    QCborMap inner;
    if (ReadConverted(object, key, inner) != 0) {
        return -1;
    }
    value = JsonObject(inner);
    return 0;
}

int ReadValue(const JsonObject& object, QLatin1String key, std::string& value)
{
    return ReadConverted(object, key, value);
}

int ReadValue(const JsonObject& object, QLatin1String key, JsonArray& value)
{
    return ReadConverted(object, key, value);
}

int ReadValue(const JsonObject& object, QLatin1String key, int64& value)
{
    return ReadConverted(object, key, value);
}

int ReadValue(const JsonObject& object, QLatin1String key, bool& value)
{
    return ReadConverted(object, key, value);
}

void AppendTexts(const JsonArray& array, std::vector<std::string>& texts)
{
    texts.reserve(texts.size() + std::size_t(array.size()));
    for (const auto& value : array) {
        StoreUtf8(value.toString(), texts.emplace_back());
    }
}

void AppendNumbersOfTexts(const JsonArray& array, std::vector<int>& numbers)
{
    numbers.reserve(numbers.size() + std::size_t(array.size()));
    for (const auto& value : array) {
        numbers.push_back(value.toString().toInt(nullptr, 10));
    }
}

int ReadNumbersOfTexts(const JsonObject& object, QLatin1String key, std::vector<int>& numbers)
{
    JsonArray array;
    if (ReadValue(object, key, array) != 0) {
        return -1;
    }
    AppendNumbersOfTexts(array, numbers);
    return 0;
}

}  // namespace APIModule::detail
