#include "Json.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QVariant>

namespace explorer {
namespace {

using nlohmann::json;

json NumberFromQt(const QJsonValue& value)
{
    const QVariant number = value.toVariant();
    return number.userType() == QMetaType::LongLong ? json(number.toLongLong()) : json(number.toDouble());
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
        for (const QJsonValue& element : array) {
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

QJsonObject ToQt(const json& object)
{
    // Its parser keeps integers exact; a value that is inserted into an object becomes a double.
    return QJsonDocument::fromJson(
               QByteArray::fromStdString(object.dump(-1, ' ', false, json::error_handler_t::replace)))
        .object();
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

QString PrettyJson(const QByteArray& text)
{
    const json parsed = json::parse(text.cbegin(), text.cend(), nullptr, false);
    return parsed.is_discarded() ? QString::fromUtf8(text) : JsonText(parsed);
}

}  // namespace explorer
