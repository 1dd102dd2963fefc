#pragma once

#include "../APIModuleGlobal.h"

#include <boost/describe/members.hpp>
#include <boost/describe/modifiers.hpp>

#include <QCborArray>
#include <QCborMap>
#include <QCborValue>
#include <QJsonObject>
#include <QLatin1String>

#include <initializer_list>
#include <string>
#include <vector>

/// Reading of typed records. A reader returns 0, or -1 at the first key that cannot be read, with the log line of
/// CCommonFunc::GetJsonValue; fields read before that key keep their new values. Unknown keys are ignored, and values
/// of another type are converted, not reported.
///
/// A record is read by its description. Where its keys or their order differ, a list of pairs is used instead; for such
/// a record in lists there is a `ReadRecord(const JsonObject&, Record&)`.
namespace APIModule::detail {

/// A JSON object for the readers. Qt stores a QJsonObject in the containers of its CBOR classes; accessed through
/// these, nothing is copied, and finding and reading a value takes about half the time.
class JsonObject {
public:
    JsonObject() = default;
    JsonObject(const QJsonObject& object) : m_members(QCborMap::fromJsonObject(object)) {}
    /// An object inside another value.
    explicit JsonObject(const QCborValue& value) : m_members(value.toMap()), m_bInner(true) {}

    [[nodiscard]] bool isEmpty() const { return m_members.isEmpty(); }
    [[nodiscard]] bool contains(const QString& key) const { return m_members.contains(key); }
    [[nodiscard]] QCborValue value(QLatin1String key) const;

private:
    QCborMap m_members;
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

/// The array of @p key, whose numbers are decimal texts; any other element is read as 0.
int ReadValue(const JsonObject& object, QLatin1String key, std::vector<int>& numbers);

/// The array of records of @p key.
template <typename Record>
int ReadValue(const JsonObject& object, QLatin1String key, std::vector<Record>& list);

template <typename Record, template <typename...> class List, typename... Fields>
int ReadDescribed(const JsonObject& object, Record& record, List<Fields...> /*description*/)
{
    const bool bRead = (... && (ReadValue(object, QLatin1String(Fields::name), record.*Fields::pointer) == 0));
    return bRead ? 0 : -1;
}

/// A record whose keys are its fields, in the order of their declaration.
template <typename Record>
int ReadRecord(const JsonObject& object, Record& record)
{
    return ReadDescribed(object, record, boost::describe::describe_members<Record, boost::describe::mod_public>());
}

/// Appends the elements of @p array; stops at the first that @p readElement reads incompletely.
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

/// Appends the records of @p array.
template <typename Record>
int ReadRecords(const JsonArray& array, std::vector<Record>& list)
{
    return ReadElements(array, list,
                        [](const JsonObject& element, Record& record) { return ReadRecord(element, record); });
}

/// The array of @p key, element by element.
template <typename Element, typename ReadElement>
int ReadList(const JsonObject& object, QLatin1String key, std::vector<Element>& list, ReadElement readElement)
{
    JsonArray array;
    return ReadValue(object, key, array) == 0 ? ReadElements(array, list, readElement) : -1;
}

template <typename Record>
int ReadValue(const JsonObject& object, QLatin1String key, std::vector<Record>& list)
{
    JsonArray array;
    return ReadValue(object, key, array) == 0 ? ReadRecords(array, list) : -1;
}

/// A key and the field that it fills.
class Pair {
public:
    template <std::size_t N, typename Field>
    Pair(const char (&key)[N], Field& field)
        : m_key(key, int(N) - 1), m_pField(&field),
          m_read([](const JsonObject& object, QLatin1String name, void* pField) {
              return ReadValue(object, name, *static_cast<Field*>(pField));
          })
    {}

    /// @return 0 or -1
    [[nodiscard]] int Read(const JsonObject& object) const { return m_read(object, m_key, m_pField); }

private:
    QLatin1String m_key;
    void* m_pField;
    int (*m_read)(const JsonObject&, QLatin1String, void*);
};

/// Keys and the fields that they fill, in reading order. A comma after the last pair keeps one pair a line.
int ReadFields(const JsonObject& object, std::initializer_list<Pair> pairs);

/// A page of a longer list: "totalCount", stored only after "pageData" was found, and the records of "pageData".
template <typename Record>
int ReadPage(const JsonObject& object, int& totalCount, std::vector<Record>& pageData)
{
    int nTotalCount = 0;
    JsonArray array;
    if (ReadFields(object, {{"totalCount", nTotalCount}, {"pageData", array}}) != 0) {
        return -1;
    }
    totalCount = nTotalCount;
    return ReadRecords(array, pageData);
}

/// Appends the texts of @p array; any other element is read as an empty text.
void AppendTexts(const JsonArray& array, std::vector<std::string>& texts);

}  // namespace APIModule::detail
