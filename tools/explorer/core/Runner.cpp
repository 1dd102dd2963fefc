#include "Runner.h"

#include <APIModule.h>

#include <QElapsedTimer>
#include <QJsonDocument>

#include <chrono>
#include <utility>

namespace explorer {
namespace {

using APIModule::CAPIModule;
using APIModule::ObservedExchange;

constexpr const char* kTokenHeader = "X-Subject-Token";
constexpr int kCancelled = -101;

/// Masks every token, including those that the library has masked in part.
QString Masked(QString text, const QString& token)
{
    const QString mask = QString::fromLatin1(kTokenMask);
    if (token.size() > mask.size()) {
        text.replace(mask + token.mid(mask.size()), mask);
    }
    return token.isEmpty() ? text : text.replace(token, mask);
}

Headers Masked(const ObservedExchange::Headers& headers, const QString& token)
{
    Headers masked;
    for (const auto& [name, value] : headers) {
        const bool isToken = name.compare(kTokenHeader, Qt::CaseInsensitive) == 0;
        masked.append({QString::fromUtf8(name),
                       isToken ? QString::fromLatin1(kTokenMask) : Masked(QString::fromUtf8(value), token)});
    }
    return masked;
}

double Milliseconds(std::chrono::nanoseconds time)
{
    return std::chrono::duration<double, std::milli>(time).count();
}

SentRequest RequestOf(const ObservedExchange& exchange, const QString& token)
{
    return {QString::fromLatin1(exchange.method), Masked(exchange.url, token), Masked(exchange.requestHeaders, token),
            exchange.requestBody};
}

/// Replaces port 0.
void NameUnknownPort(SentRequest& request, const Server& server)
{
    const int path = request.url.indexOf(QLatin1Char('/'), request.url.indexOf(QLatin1String("://")) + 3);
    request.url.replace(0, path, server.Address());
    for (Header& header : request.headers) {
        if (header.name.compare(QLatin1String("Host"), Qt::CaseInsensitive) == 0) {
            header.value = server.host + QLatin1Char(':') + QLatin1String(kUnknownPort);
        }
    }
}

void Take(CallOutcome& outcome, const ObservedExchange& exchange, const QString& token)
{
    outcome.request = RequestOf(exchange, token);
    if (exchange.nStatus >= 0) {
        outcome.reply = RawReply{exchange.nStatus, Masked(exchange.responseHeaders, token), exchange.responseBody};
    }
    outcome.connectionError = exchange.error;
    outcome.times = ExchangeTimes{Milliseconds(exchange.sentAfter), std::nullopt, Milliseconds(exchange.finishedAfter)};
    if (exchange.firstByte) {
        outcome.times->firstByte = Milliseconds(*exchange.firstByte);
    }
}

nlohmann::json ToJson(const QJsonObject& object)
{
    return nlohmann::json::parse(QJsonDocument(object).toJson(QJsonDocument::Compact).toStdString());
}

}  // namespace

/// A run of a call in progress.
struct Runner::ActiveRun {
    explicit ActiveRun(const RunOrder& order)
    {
        outcome.call = order.call;
        outcome.arguments = order.arguments;
        outcome.server = order.server.name;
        outcome.started = QDateTime::currentDateTime();
        outcome.waitMode = order.waitMode;
        clock.start();
    }

    CallOutcome outcome;
    QElapsedTimer clock;
    QString token;

    static catalogue::RunSettings Settings(const std::shared_ptr<ActiveRun>& pRun, const RunOrder& order)
    {
        catalogue::RunSettings settings;
        if (order.timeoutSeconds) {
            settings.timeout = std::chrono::seconds(*order.timeoutSeconds);
        }
        settings.onPacked = [pRun, timeout = order.timeoutSeconds](APIModule::RequestParam& request) {
            request.bExcludeUserInput = false;
            pRun->outcome.timeoutSeconds = timeout.value_or(request.nTimeout);
            pRun->token = QString::fromStdString(request.strToken);
        };
        settings.observer = [pRun](const ObservedExchange& exchange) { Take(pRun->outcome, exchange, pRun->token); };
        return settings;
    }

    CallOutcome Concluded(catalogue::Outcome ended)
    {
        const QString name = QString::fromStdString(outcome.call->name);
        const QString caption = Runner::tr("%1 failed").arg(name);
        outcome.result = ended.Code();
        outcome.succeeded = bool(ended);
        outcome.record = ended.Data().isEmpty() ? nlohmann::json() : std::move(ended.record);
        outcome.missing = FindMissingFields(*outcome.call, ended.Data(), outcome.record, outcome.succeeded);
        outcome.resultText =
            outcome.succeeded ? Runner::tr("Success") : CAPIModule::GetErroCodeInfor(caption, outcome.result, true);
        CAPIModule::GetInstance().NotifyOutcome(ended, caption, Runner::tr("%1 succeeded").arg(name));
        return Concluded();
    }

    CallOutcome Cancelled()
    {
        outcome.result = kCancelled;
        outcome.resultText = Runner::tr("Cancelled");
        return Concluded();
    }

    CallOutcome Refused(const catalogue::Mismatch& mismatch)
    {
        outcome.resultText = QString::fromUtf8(mismatch.what());
        return Concluded();
    }

private:
    CallOutcome Concluded()
    {
        outcome.elapsedMilliseconds = outcome.times ? outcome.times->finished : Milliseconds(Elapsed());
        return std::move(outcome);
    }

    [[nodiscard]] std::chrono::nanoseconds Elapsed() const { return std::chrono::nanoseconds(clock.nsecsElapsed()); }
};

Runner::Runner(QObject* parent) : QObject(parent) {}

Runner::~Runner() = default;

void Runner::Order(const RunOrder& order)
{
    ++m_pending;
    Post([this, order] {
        emit Started(order.call);
        if (order.waitMode == WaitMode::WithoutWaiting) {
            Begin(order);
        } else {
            Wait(order);
        }
    });
}

void Runner::Wait(const RunOrder& order)
{
    const CallOutcome outcome = Run(order);
    --m_pending;
    Announce(order, outcome);
}

void Runner::Announce(const RunOrder& order, const CallOutcome& outcome)
{
    emit Finished(outcome);
    if (order.finished) {
        order.finished(outcome);
    }
}

void Runner::Begin(const RunOrder& order)
{
    const int number = ++m_lastNumber;
    const auto pRun = std::make_shared<ActiveRun>(order);
    m_running[number] = {order, pRun, {}};
    try {
        const auto arguments = catalogue::ReadArguments(*order.call, ToJson(order.arguments));
        m_running[number].handle = catalogue::Start(*order.call, arguments, ActiveRun::Settings(pRun, order), this,
                                                    [this, number](const catalogue::Outcome& ended) {
                                                        End(number, [this, &ended](ActiveRun& run) {
                                                            emit Notifying(bool(ended));
                                                            return run.Concluded(ended);
                                                        });
                                                    });
        emit WithoutWaitingChanged();
    } catch (const catalogue::Mismatch& mismatch) {
        End(number, [&mismatch](ActiveRun& run) { return run.Refused(mismatch); });
    }
}

RequestDraft Runner::Draft(const RunOrder& order)
{
    const Server& server = order.server;
    RequestDraft draft{order.call, order.arguments, {}, {QStringLiteral("--server"), server.Address()}};
    if (server.language != Server().language) {
        draft.apicallOptions << QStringLiteral("--language") << server.language;
    }
    if (!server.pin.isEmpty()) {
        draft.apicallOptions << QStringLiteral("--pin") << QString::fromLatin1(server.pin.toHex());
    }
    const auto pRun = std::make_shared<ActiveRun>(order);
    const auto arguments = catalogue::ReadArguments(*order.call, ToJson(order.arguments));
    if (const auto preview = catalogue::Preview(*order.call, arguments, ActiveRun::Settings(pRun, order))) {
        draft.request = RequestOf(*preview, pRun->token);
        if (server.port == 0) {
            NameUnknownPort(draft.request, server);
        }
    }
    return draft;
}

void Runner::Cancel(int number)
{
    const auto found = m_running.find(number);
    if (found != m_running.end()) {
        found->second.handle.Cancel();
        End(number, [](ActiveRun& run) { return run.Cancelled(); });
    }
}

void Runner::End(int number, const std::function<CallOutcome(ActiveRun&)>& conclude)
{
    const Running running = m_running.at(number);
    m_running.erase(number);
    --m_pending;
    emit WithoutWaitingChanged();
    const CallOutcome outcome = conclude(*running.pRun);
    Check(running.order, outcome, running.pRun->token);
    Announce(running.order, outcome);
}

std::map<int, RunOrder> Runner::WithoutWaiting() const
{
    std::map<int, RunOrder> orders;
    for (const auto& [number, running] : m_running) {
        orders.emplace(number, running.order);
    }
    return orders;
}

void Runner::Check(const RunOrder& order, const RunSummary& run, const QString& token)
{
    constexpr int kNotAuthenticated = 7000;
    if (run.result == kNotAuthenticated) {
        emit TokenRefused(order.server.id, token);
    }
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
    const auto pRun = std::make_shared<ActiveRun>(order);
    try {
        const auto arguments = catalogue::ReadArguments(*order.call, ToJson(order.arguments));
        catalogue::Outcome ended =
            catalogue::Run(*order.call, arguments, ActiveRun::Settings(pRun, order), order.parent);
        emit Notifying(bool(ended));
        CallOutcome outcome = pRun->Concluded(std::move(ended));
        Check(order, outcome, pRun->token);
        return outcome;
    } catch (const catalogue::Mismatch& mismatch) {
        return pRun->Refused(mismatch);
    }
}

}  // namespace explorer
