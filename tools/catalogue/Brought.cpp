#include "Brought.h"

#include "Value.h"

#include <nlohmann/json.hpp>

#include <QJsonDocument>
#include <QJsonObject>

namespace catalogue {
namespace {

using nlohmann::json;

/// Parses no more than the first elements of each list: what a Parse reads from one element it reads from all.
class FirstElements {
public:
    bool operator()(int /*depth*/, json::parse_event_t event, json& /*parsed*/)
    {
        switch (event) {
        case json::parse_event_t::object_start:
            m_around.push_back(kObject);
            return true;
        case json::parse_event_t::array_start:
            m_around.push_back(0);
            return true;
        case json::parse_event_t::object_end:
        case json::parse_event_t::array_end:
            m_around.pop_back();
            return IsKept();
        case json::parse_event_t::value:
            return IsKept();
        default:
            return true;
        }
    }

private:
    static constexpr int kObject = -1;
    static constexpr int kMost = 20;

    bool IsKept() { return m_around.empty() || m_around.back() == kObject || ++m_around.back() <= kMost; }

    std::vector<int> m_around;  // elements of each open list
};

/// The same structure with each value replaced by one that reads as 0, empty or false, or as 1, "1" or true.
json Uniform(const json& value, bool set)
{
    switch (value.type()) {
    case json::value_t::object:
    case json::value_t::array: {
        json structure = value;
        for (json& inner : structure) {
            inner = Uniform(inner, set);
        }
        return structure;
    }
    case json::value_t::boolean:
        return set;
    case json::value_t::string:
        return set ? "1" : "0";
    default:
        return set ? 1 : 0;
    }
}

json Parsed(const Call& call, const json& data)
{
    const QByteArray text = QByteArray::fromStdString(data.dump());
    const Value record(*call.result);
    call.parse(QJsonDocument::fromJson(text).object(), record.Data());
    return record.ToJson();
}

/// The fields that two records have alike: no value of the reply had an influence on them.
void AddEqual(const Type& type, const json& left, const json& right, const std::string& path, MissingFields& missing,
              MissingFields& brought)
{
    switch (type.kind) {
    case Kind::Record:
        for (const Field& field : type.fields) {
            const std::string name(field.name);
            AddEqual(*field.type, left.at(name), right.at(name), std::string(path).append("/").append(name), missing,
                     brought);
        }
        break;
    case Kind::List:
        for (std::size_t index = 0; index < left.size(); ++index) {
            AddEqual(*type.element, left[index], right[index], path + "/-", missing, brought);
        }
        break;
    default:
        (left == right ? missing : brought).insert(path);
    }
}

/// Where the Parse stopped, the fields without a key of their name, and those that did not get its value.
MissingFields FieldsNotReached(const Call& call, const json& data, const json& record)
{
    MissingFields missing;
    const json fresh = Value(*call.result).ToJson();
    for (const Field& field : call.result->fields) {
        const std::string name(field.name);
        const auto key = data.find(name);
        const bool isFresh = record.at(name) == fresh.at(name);
        if (isFresh && (key == data.end() || *key != fresh.at(name))) {
            missing.insert('/' + name);
        }
    }
    return missing;
}

}  // namespace

MissingFields FieldsNotBrought(const Call& call, std::string_view body, const json& record, bool complete)
{
    if (call.result == nullptr || record.is_null()) {
        return {};
    }
    const json reply = json::parse(body.begin(), body.end(), FirstElements(), false);
    const json data = reply.is_object() ? reply.value("data", json::object()) : json::object();
    if (!data.is_object()) {
        return {};
    }
    if (!complete) {
        return FieldsNotReached(call, data, record);
    }
    MissingFields missing;
    MissingFields brought;
    AddEqual(*call.result, Parsed(call, Uniform(data, false)), Parsed(call, Uniform(data, true)), {}, missing, brought);
    for (const std::string& path : brought) {
        missing.erase(path);
    }
    return missing;
}

}  // namespace catalogue
