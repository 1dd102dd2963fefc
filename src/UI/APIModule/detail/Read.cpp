#include "Read.h"

#include "../Conversions_p.h"
#include "../JsonAccess_p.h"

#include <algorithm>

namespace APIModule::detail {

QCborValue JsonObject::value(QLatin1String key) const
{
    const QCborValue found = m_members.value(key);
    return m_bInner && (found.isInteger() || found.isDouble()) ? NumberFromVariant(found) : found;
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

int ReadValue(const JsonObject& object, QLatin1String key, std::vector<int>& numbers)
{
    JsonArray array;
    if (ReadValue(object, key, array) != 0) {
        return -1;
    }
    numbers.reserve(numbers.size() + std::size_t(array.size()));
    for (const auto& value : array) {
        numbers.push_back(IntOf(value.toString()));
    }
    return 0;
}

int ReadFields(const JsonObject& object, std::initializer_list<Pair> pairs)
{
    const bool bRead =
        std::all_of(pairs.begin(), pairs.end(), [&object](const Pair& pair) { return pair.Read(object) == 0; });
    return bRead ? 0 : -1;
}

}  // namespace APIModule::detail
