#include "MissingFields.h"

#include "Value.h"

#include <nlohmann/json.hpp>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace catalogue {
namespace {

using nlohmann::json;

/// The value with no more than the first elements of each list: what a Parse reads from one element it reads from all.
json FirstElements(const QJsonValue& value)
{
    switch (value.type()) {
    case QJsonValue::Object: {
        const QJsonObject object = value.toObject();
        json members = json::object();
        for (auto member = object.begin(); member != object.end(); ++member) {
            members[member.key().toStdString()] = FirstElements(member.value());
        }
        return members;
    }
    case QJsonValue::Array: {
        constexpr int kMost = 20;
        const QJsonArray array = value.toArray();
        json elements = json::array();
        for (int index = 0; index < std::min(kMost, int(array.size())); ++index) {
            elements.push_back(FirstElements(array.at(index)));
        }
        return elements;
    }
    case QJsonValue::Bool:
        return value.toBool();
    case QJsonValue::Double:
        return value.toDouble();
    case QJsonValue::String:
        return value.toString().toStdString();
    default:
        return nullptr;
    }
}

/// The same structure with each value replaced by one that converts to 0 or false, or if @p set to 1 or true.
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

/// Sorts the fields of two records: those that are equal in both do not depend on the reply, so they are missing.
void Classify(const Type& type, const json& left, const json& right, const std::string& path, MissingFields& missing,
              MissingFields& present)
{
    switch (type.kind) {
    case Kind::Record:
        for (const Field& field : type.fields) {
            const std::string name(field.name);
            Classify(*field.type, left.at(name), right.at(name), std::string(path).append("/").append(name), missing,
                     present);
        }
        break;
    case Kind::List:
        for (std::size_t index = 0; index < left.size(); ++index) {
            Classify(*type.element, left[index], right[index], path + "/-", missing, present);
        }
        break;
    default:
        (left == right ? missing : present).insert(path);
    }
}

/// After an incomplete Parse: the fields with their default value whose key is missing or has another value.
MissingFields FieldsNotRead(const Call& call, const json& data, const json& record)
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

MissingFields FindMissingFields(const Call& call, const QJsonObject& data, const json& record, bool complete)
{
    if (call.result == nullptr || record.is_null()) {
        return {};
    }
    const json first = FirstElements(data);
    if (!complete) {
        return FieldsNotRead(call, first, record);
    }
    MissingFields missing;
    MissingFields present;
    Classify(*call.result, Parsed(call, Uniform(first, false)), Parsed(call, Uniform(first, true)), {}, missing,
             present);
    for (const std::string& path : present) {
        missing.erase(path);
    }
    return missing;
}

}  // namespace catalogue
