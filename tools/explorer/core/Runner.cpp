#include "Runner.h"

#include <APIModule.h>
#include <OrnGui/OrnMessageNotify.h>

#include <QElapsedTimer>
#include <QJsonDocument>
#include <QTimeZone>

namespace explorer {
namespace {

using APIModule::RequestParam;

constexpr const char* kTokenHeader = "X-Subject-Token";

QString MethodName(APIModule::Method method)
{
    switch (method) {
    case APIModule::Method_Get:
        return QStringLiteral("GET");
    case APIModule::Method_Put:
        return QStringLiteral("PUT");
    case APIModule::Method_Post:
        return QStringLiteral("POST");
    case APIModule::Method_Delete:
        return QStringLiteral("DELETE");
    }
    return {};
}

QString UrlOf(const RequestParam& request)
{
    return QStringLiteral("%1://%2:%3")
               .arg(request.bHttps ? QStringLiteral("https") : QStringLiteral("http"),
                    QString::fromStdString(request.strIp))
               .arg(request.nPort) +
           QString::fromStdString(request.strUrl);
}

/// Puts the mask in the place of every token.
QString Masked(QString text, const QString& token)
{
    return token.isEmpty() ? text : text.replace(token, QLatin1String(kTokenMask));
}

Headers Masked(Headers headers, const QString& token)
{
    for (Header& header : headers) {
        header.value = header.name.compare(QLatin1String(kTokenHeader), Qt::CaseInsensitive) == 0
                           ? QString::fromLatin1(kTokenMask)
                           : Masked(header.value, token);
    }
    return headers;
}

/// What the library sets; the network client adds more.
Headers OwnHeaders(const RequestParam& request, const QString& language)
{
    Headers headers{{QStringLiteral("Accept-Language"), language},
                    {QStringLiteral("Time-Zone"), QString::fromLatin1(QTimeZone::systemTimeZoneId())},
                    {QStringLiteral("Content-Type"), QStringLiteral("application/json;charset=UTF-8")},
                    {QLatin1String(kTokenHeader), QLatin1String(kTokenMask)}};
    if (request.bCompress) {
        headers.append({QStringLiteral("Compress-Type"), QStringLiteral("1")});
    }
    if (!request.strSequence.empty()) {
        headers.append({QStringLiteral("X-Subject-Sequence"), QString::fromStdString(request.strSequence)});
    }
    return headers;
}

SentRequest Describe(const RequestParam& request, const QString& language)
{
    const QString token = QString::fromStdString(request.strToken);
    return {MethodName(request.eMethod), Masked(UrlOf(request), token), OwnHeaders(request, language),
            QByteArray::fromStdString(request.strBody), false};
}

RawReply ReplyOf(const HttpMessage& message)
{
    bool isNumber = false;
    const int status = message.SecondWord().toInt(&isNumber);
    return {message.startLine, isNumber ? status : -1, message.headers, message.DecodedBody(), message.complete};
}

nlohmann::json ToJson(const QJsonObject& object)
{
    return nlohmann::json::parse(QJsonDocument(object).toJson(QJsonDocument::Compact).toStdString());
}

}  // namespace

Runner::Runner(TrafficTap& tap, QObject* parent) : QObject(parent), m_tap(tap) {}

void Runner::Order(const RunOrder& order)
{
    ++m_pending;
    Post([this, order] {
        emit Started(order.call);
        const CallOutcome outcome = Run(order);
        --m_pending;
        emit Finished(outcome);
    });
}

void Runner::Repeat(const RunOrder& order, int count)
{
    if (IsRepeating() || count <= 0) {
        return;
    }
    m_bRepeats = true;
    m_repeats = count;
    ++m_pending;
    Post([this, order] { RepeatFrom(order, 0); });
}

void Runner::RepeatFrom(const RunOrder& order, int done)
{
    if (m_repeats > done) {
        emit Started(order.call);
        emit Finished(Run(order));
        ++done;
        emit RepeatProgress(done, qMax(done, m_repeats));
    }
    if (m_repeats > done) {
        Post([this, order, done] { RepeatFrom(order, done); });
    } else {
        m_bRepeats = false;
        m_repeats = 0;
        --m_pending;
        emit RepeatEnded();
    }
}

void Runner::CancelRepeat()
{
    m_repeats = 0;
}

void Runner::Post(std::function<void()> step)
{
    QMetaObject::invokeMethod(this, std::move(step), Qt::QueuedConnection);
}

CallOutcome Runner::Run(const RunOrder& order)
{
    CallOutcome outcome;
    outcome.call = order.call;
    outcome.arguments = order.arguments;
    outcome.server = order.server.name;
    outcome.started = QDateTime::currentDateTime();
    outcome.waitDialog = !order.parent.isNull();

    const QString name = QString::fromStdString(order.call->name);
    QString token;
    int expected = 0;
    catalogue::RunSettings settings;
    settings.timeoutSeconds = order.timeoutSeconds;
    settings.parent = order.parent;
    settings.excludeUserInput = false;
    settings.caption = tr("%1 failed").arg(name);
    settings.successTip = tr("%1 succeeded").arg(name);
    settings.onPacked = [&](RequestParam& request) {
        outcome.request = Describe(request, order.server.language);
        outcome.timeoutSeconds = request.nTimeout;
        token = QString::fromStdString(request.strToken);
        if (m_tap.IsOn()) {
            expected = m_tap.Expect(outcome.request.method.toLatin1(), QUrl(UrlOf(request), QUrl::TolerantMode));
            request.strIp = m_tap.NameFor(QString::fromStdString(request.strIp)).toStdString();
        }
    };
    bool hasData = false;
    settings.onData = [&outcome, &hasData](const QJsonObject& data) {
        outcome.data = data;
        hasData = true;
    };

    QElapsedTimer clock;
    clock.start();
    try {
        const auto arguments = catalogue::ReadArguments(*order.call, ToJson(order.arguments));
        clock.restart();
        const catalogue::Outcome ran = catalogue::Run(*order.call, arguments, settings);
        outcome.elapsedMilliseconds = static_cast<double>(clock.nsecsElapsed()) / 1e6;
        outcome.result = ran.result;
        outcome.succeeded = ran.Succeeded();
        outcome.record = hasData ? ran.record : nlohmann::json();
        outcome.resultText = Judge(ran, settings.caption);
    } catch (const catalogue::Mismatch& mismatch) {
        outcome.resultText = QString::fromUtf8(mismatch.what());
    }

    if (const auto exchange = m_tap.Take(expected)) {
        outcome.request.headers = Masked(exchange->request.headers, token);
        outcome.request.body = exchange->request.body;
        outcome.request.recorded = true;
        if (!exchange->reply.startLine.isEmpty()) {
            outcome.reply = ReplyOf(exchange->reply);
        }
    }
    return outcome;
}

QString Runner::Judge(const catalogue::Outcome& ran, const QString& caption)
{
    if (ran.Succeeded()) {
        return tr("Success");
    }
    if (ran.result == 0) {
        return tr("The reply was not confirmed");
    }
    if (!ran.notification.empty()) {
        return QString::fromStdString(ran.notification);
    }
    // The library hands statuses and envelope codes over without a word to the user: that is left to the host.
    QString text = APIModule::CAPIModule::GetErroCodeInfor(caption, ran.result, true);
    ORNGUI::OrnSingleton<ORNGUI::OrnMessageNotify>::Instance().AddTextNotification(text, false, {}, {}, false);
    return text;
}

}  // namespace explorer
