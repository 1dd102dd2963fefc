#include "Values.h"

#include <QJsonDocument>

namespace APIModule::detail {

QJsonArray TextList(const std::vector<std::string>& texts)
{
    return List(texts, Text);
}

QString JoinedTexts(const std::vector<std::string>& texts)
{
    QString joined;
    for (const std::string& text : texts) {
        if (&text != &texts.front()) {
            joined += QLatin1Char(',');
        }
        joined += Text(text);
    }
    return joined;
}

QJsonObject Object(std::initializer_list<Member> members)
{
    QJsonObject object;
    for (const Member& member : members) {
        object.insert(member.key, member.value);
    }
    return object;
}

QString Body(std::initializer_list<Member> members)
{
    return QString::fromUtf8(QJsonDocument(Object(members)).toJson(QJsonDocument::Compact));
}

}  // namespace APIModule::detail
