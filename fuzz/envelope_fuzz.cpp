// Unpacking of the envelope in a reply's body.
#include "Fuzz.h"

#include <Envelope_p.h>

#include <QJsonDocument>
#include <QVariant>

#include <cmath>

namespace {

using APIModule::ReplyInfo;

/// The code of an envelope: an integer in the range of int, else 0.
int CodeOf(const QVariant& value)
{
    const bool bNumber = value.type() == QVariant::LongLong || value.type() == QVariant::Double;
    const double number = value.toDouble();
    const bool bWhole = number == std::floor(number) && std::abs(number) <= 2147483648.0 && number != 2147483648.0;
    return bNumber && bWhole ? int(number) : 0;
}

/// The reference: reads the body through variants.
ReplyInfo UnpackedByVariants(const QByteArray& body)
{
    ReplyInfo reply;
    reply.byteBody = body;
    QJsonParseError error{};
    const QJsonDocument document = fuzz::Parsed(body, &error);
    if (body.isEmpty() || error.error != QJsonParseError::NoError) {
        return reply;
    }
    const QVariant top = document.toVariant();
    const QVariantMap envelope = top.toMap();
    const bool bNull = envelope.contains(QStringLiteral("code")) && envelope[QStringLiteral("code")].isNull();
    reply.nCode = bNull ? -1 : CodeOf(envelope[QStringLiteral("code")]);
    const QVariant desc = envelope[QStringLiteral("desc")];
    reply.strDesc = desc.type() == QVariant::String ? desc.toString() : QString();
    reply.jsonData = document.object()[QLatin1String("data")].toObject();
    return reply;
}

std::string Shown(const ReplyInfo& reply)
{
    return std::to_string(reply.nCode) + " \"" + reply.strDesc.toStdString() + "\" " +
           QJsonDocument(reply.jsonData).toJson(QJsonDocument::Compact).toStdString();
}

QByteArray RandomEnvelope(FuzzedDataProvider& data)
{
    testing_support::RandomJson random(fuzz::ChoiceOf(data));
    const QJsonObject envelope = random.Document([&] {
        QJsonObject object;
        for (const char* pKey : {"code", "desc", "data"}) {
            if (!random.OneIn(8)) {
                object.insert(QLatin1String(pKey), random.Value());
            }
        }
        return object;
    });
    return QJsonDocument(envelope).toJson(QJsonDocument::Compact);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    FuzzedDataProvider data(bytes, size);
    ReplyInfo reply;
    reply.byteBody =
        data.ConsumeBool() ? RandomEnvelope(data) : QByteArray::fromStdString(data.ConsumeRemainingBytesAsString());
    const ReplyInfo expected = UnpackedByVariants(reply.byteBody);
    {
        const fuzz::ForgivenLeaks forgiven;
        APIModule::detail::Unpack(reply);
    }
    fuzz::Require(reply.byteBody == expected.byteBody && reply.nHttpStatus == -1 && reply.rawHeaders.isEmpty(),
                  "unpacking changed more than the fields of the envelope");
    fuzz::Require(reply.nCode == expected.nCode && reply.strDesc == expected.strDesc &&
                      reply.strDesc.isNull() == expected.strDesc.isNull() && reply.jsonData == expected.jsonData,
                  reply.byteBody.toStdString() + "\ngives\n" + Shown(reply) + "\ninstead of\n" + Shown(expected));
    return 0;
}
