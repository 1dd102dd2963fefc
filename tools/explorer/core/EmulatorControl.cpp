#include "EmulatorControl.h"

#include "EmulatorProcess.h"

#include <QLocale>
#include <QNetworkProxy>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTimer>

namespace explorer {
namespace {

constexpr const char* kTooLarge = "tooLarge";       // property of a reply that holds its size
constexpr qint64 kLargestReply = qint64(32) << 20;  // a parsed state takes many times the size of its text

nlohmann::json Parsed(const QByteArray& text)
{
    nlohmann::json json = nlohmann::json::parse(text.cbegin(), text.cend(), nullptr, false);
    return json.is_discarded() ? nlohmann::json() : json;
}

QString ErrorOf(const QNetworkReply& reply, const nlohmann::json& body)
{
    if (reply.error() == QNetworkReply::NoError) {
        return {};
    }
    if (const QVariant size = reply.property(kTooLarge); size.isValid()) {
        return EmulatorControl::tr("%1 is too much to show here.").arg(QLocale().formattedDataSize(size.toLongLong()));
    }
    return body.is_object() && body.contains("error") && body.at("error").is_string()
               ? QString::fromStdString(body.at("error").get<std::string>())
               : reply.errorString();
}

}  // namespace

EmulatorControl::EmulatorControl(const EmulatorProcess& emulator, QObject* pParent)
    : QObject(pParent), m_emulator(emulator)
{
    m_network.setProxy(QNetworkProxy::NoProxy);
}

void EmulatorControl::Ask(const char* method, const QString& path, const nlohmann::json& body, QObject* pContext,
                          const Done& done)
{
    if (m_emulator.GetState() != EmulatorProcess::Running) {
        QTimer::singleShot(0, pContext, [done] { done({tr("The emulator is not running."), {}}); });
        return;
    }
    QNetworkRequest request(
        QUrl(QStringLiteral("http://127.0.0.1:%1/emulator/v1/%2").arg(m_emulator.HttpPort()).arg(path)));
    request.setRawHeader("X-Subject-Token", m_emulator.Token().toLatin1());
    request.setHeader(QNetworkRequest::ContentTypeHeader, QStringLiteral("application/json"));
    const QByteArray text = body.is_null() ? QByteArray() : QByteArray::fromStdString(body.dump());
    QNetworkReply* const pReply = m_network.sendCustomRequest(request, method, text);
    connect(pReply, &QNetworkReply::downloadProgress, pReply, [pReply](qint64 received, qint64 total) {
        if (const qint64 size = qMax(received, total); size > kLargestReply && !pReply->property(kTooLarge).isValid()) {
            pReply->setProperty(kTooLarge, size);
            pReply->abort();
        }
    });
    connect(pReply, &QNetworkReply::finished, pReply, &QObject::deleteLater);
    connect(pReply, &QNetworkReply::finished, pContext, [pReply, done] {
        nlohmann::json received = Parsed(pReply->readAll());
        const QString error = ErrorOf(*pReply, received);
        done({error, std::move(received)});
    });
}

}  // namespace explorer
