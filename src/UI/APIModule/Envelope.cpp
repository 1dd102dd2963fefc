#include "Envelope_p.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace APIModule::detail {

void Unpack(ReplyInfo& reply)
{
    if (reply.byteBody.isEmpty()) {
        return;
    }
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(reply.byteBody, &error);
    if (error.error != QJsonParseError::NoError) {
        return;
    }
    reply.bJson = true;
    const QJsonObject envelope = document.object();
    const QJsonValue code = envelope.value(QLatin1String("code"));
    reply.nCode = code.isNull() ? -1 : code.toInt(0);
    reply.strDesc = envelope.value(QLatin1String("desc")).toString();
    reply.jsonData = envelope.value(QLatin1String("data")).toObject();
}

}  // namespace APIModule::detail
