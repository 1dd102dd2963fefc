#include "Read.h"

#include "../Conversions_p.h"
#include "../JsonAccess_p.h"

namespace APIModule::detail {

QCborValue JsonObject::value(QLatin1String key) const
{
    QCborValue found = QCborMap::value(key);
    if (m_bInner && (found.isInteger() || found.isDouble())) {
        found = NumberFromVariant(found);
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
        numbers.push_back(IntOf(value.toString()));
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
