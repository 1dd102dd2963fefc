#pragma once

#include "../APIModuleGlobal.h"

#include <QCborArray>
#include <QCborMap>
#include <QCborValue>
#include <QJsonObject>
#include <QLatin1String>

#include <string>
#include <utility>
#include <vector>

/// Reading of typed records. A reader returns 0, or -1 at the first key that cannot be read, with the log line of
/// CCommonFunc::GetJsonValue; what was read before that key stays filled.
///
/// A record that is read with one list of keys has a `ReadRecord(const JsonObject&, Record&)` beside it, and a list of
/// such records is then read by its key alone.
namespace APIModule::detail {

/// A JSON object as the readers see it. Qt 5.15 keeps a QJsonObject in the containers of its CBOR classes; seen through
/// these nothing is copied, and a value is found and read in about half the time.
class JsonObject : public QCborMap {
public:
    JsonObject() = default;
    JsonObject(const QJsonObject& object) : QCborMap(QCborMap::fromJsonObject(object)) {}
    /// One that was found inside of another value.
    explicit JsonObject(const QCborValue& value) : QCborMap(value.toMap()), m_bInner(true) {}

    QCborValue value(QLatin1String key) const;

private:
    bool m_bInner = false;
};

using JsonArray = QCborArray;

/// One value by its key, converted as QVariant converts it.
int ReadValue(const JsonObject& object, QLatin1String key, int& value);
int ReadValue(const JsonObject& object, QLatin1String key, double& value);
int ReadValue(const JsonObject& object, QLatin1String key, JsonObject& value);
int ReadValue(const JsonObject& object, QLatin1String key, std::string& value);
int ReadValue(const JsonObject& object, QLatin1String key, JsonArray& value);
int ReadValue(const JsonObject& object, QLatin1String key, int64& value);
int ReadValue(const JsonObject& object, QLatin1String key, bool& value);

/// Appends each element of @p array that @p readElement reads whole; the first that it does not ends the reading.
template <typename Element, typename ReadElement>
int ReadElements(const JsonArray& array, std::vector<Element>& list, ReadElement readElement)
{
    list.reserve(list.size() + std::size_t(array.size()));
    for (const auto& value : array) {
        if (readElement(JsonObject(value), list.emplace_back()) != 0) {
            list.pop_back();
            return -1;
        }
    }
    return 0;
}

/// The array under @p key, element by element.
template <typename Element, typename ReadElement>
int ReadList(const JsonObject& object, QLatin1String key, std::vector<Element>& list, ReadElement readElement)
{
    JsonArray array;
    return ReadValue(object, key, array) == 0 ? ReadElements(array, list, readElement) : -1;
}

/// The array of records under @p key.
template <typename Record>
int ReadValue(const JsonObject& object, QLatin1String key, std::vector<Record>& list)
{
    return ReadList(object, key, list,
                    [](const JsonObject& element, Record& record) { return ReadRecord(element, record); });
}

/// Nothing more to read.
inline int ReadFields(const JsonObject&)
{
    return 0;
}

/// Keys and the fields that they fill, in the order in which they are read.
template <std::size_t N, typename Field, typename... Rest>
int ReadFields(const JsonObject& object, const char (&key)[N], Field& field, Rest&&... rest)
{
    return ReadValue(object, QLatin1String(key, int(N) - 1), field) == 0
               ? ReadFields(object, std::forward<Rest>(rest)...)
               : -1;
}

/// A page of a longer list: "totalCount", stored only after "pageData" was found, and the records of "pageData".
template <typename Record>
int ReadPage(const JsonObject& object, int& totalCount, std::vector<Record>& pageData)
{
    int nTotalCount = 0;
    JsonArray array;
    if (ReadFields(object, "totalCount", nTotalCount, "pageData", array) != 0) {
        return -1;
    }
    totalCount = nTotalCount;
    return ReadElements(array, pageData,
                        [](const JsonObject& element, Record& record) { return ReadRecord(element, record); });
}

/// Appends the texts of @p array; an element that is no text counts as an empty one.
void AppendTexts(const JsonArray& array, std::vector<std::string>& texts);

/// Appends the numbers whose decimal texts @p array holds; an element that is no such text counts as 0.
void AppendNumbersOfTexts(const JsonArray& array, std::vector<int>& numbers);

/// The array of decimal texts under @p key, as numbers.
int ReadNumbersOfTexts(const JsonObject& object, QLatin1String key, std::vector<int>& numbers);

}  // namespace APIModule::detail
