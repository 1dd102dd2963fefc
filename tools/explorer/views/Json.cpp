#include "Json.h"

#include <QJsonArray>
#include <QVariant>

namespace explorer {
namespace {

using nlohmann::json;

json NumberFromQt(const QJsonValue& value)
{
    const QVariant number = value.toVariant();
    return number.type() == QVariant::LongLong ? json(number.toLongLong()) : json(number.toDouble());
}

QString Dumped(const json& value, int indent)
{
    return QString::fromStdString(value.dump(indent, ' ', false, json::error_handler_t::replace));
}

}  // namespace

json FromQt(const QJsonValue& value)
{
    switch (value.type()) {
    case QJsonValue::Bool:
        return value.toBool();
    case QJsonValue::Double:
        return NumberFromQt(value);
    case QJsonValue::String:
        return value.toString().toStdString();
    case QJsonValue::Array: {
        json list = json::array();
        const QJsonArray array = value.toArray();
        for (const QJsonValue element : array) {
            list.push_back(FromQt(element));
        }
        return list;
    }
    case QJsonValue::Object: {
        json members = json::object();
        const QJsonObject object = value.toObject();
        for (auto member = object.begin(); member != object.end(); ++member) {
            members[member.key().toStdString()] = FromQt(member.value());
        }
        return members;
    }
    default:
        return nullptr;
    }
}

QJsonValue ToQt(const json& value)
{
    switch (value.type()) {
    case json::value_t::boolean:
        return value.get<bool>();
    case json::value_t::number_integer:
    case json::value_t::number_unsigned:
        return QJsonValue(value.get<qint64>());
    case json::value_t::number_float:
        return value.get<double>();
    case json::value_t::string:
        return QString::fromStdString(value.get_ref<const std::string&>());
    case json::value_t::array: {
        QJsonArray array;
        for (const json& element : value) {
            array.append(ToQt(element));
        }
        return array;
    }
    case json::value_t::object: {
        QJsonObject object;
        for (const auto& [name, member] : value.items()) {
            object.insert(QString::fromStdString(name), ToQt(member));
        }
        return object;
    }
    default:
        return QJsonValue::Null;
    }
}

QString JsonText(const json& value)
{
    constexpr int kIndent = 4;
    return Dumped(value, kIndent);
}

QString CompactJsonText(const json& value)
{
    constexpr int kOneLine = -1;
    return Dumped(value, kOneLine);
}

}  // namespace explorer
