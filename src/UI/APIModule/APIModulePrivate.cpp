#include "APIModule_p.h"

#include "Exchange_p.h"
#include "http/AccessManager.h"
#include "http/Reply.h"
#include "http/Trust.h"
#include "JsonAccess_p.h"
#include "Log_p.h"
#include "Mask_p.h"
#include "RunHosted_p.h"
#include "StartedCall_p.h"
#include "TlsRange_p.h"
#include "Wait_p.h"

#include <QEventLoop>
#include <QSslConfiguration>
#include <QThread>
#include <QTimer>
#include <QTimeZone>
#include <QUrl>
#include <QVariant>
#include <QWidget>

#include <algorithm>
#include <limits>
#include <utility>
#include <vector>

namespace APIModule {

using namespace detail;

namespace {

constexpr const char* kExecuteFuncs = "APIModule::CAPIModule::ExecuteFuncs";

constexpr int kInvalidRequest = -4;
constexpr int kParseFailed = 3101;

constexpr int kCodeSuccess = 1000;

/// How many of the six connections to a server started calls may use; one stays free for a call that waits.
constexpr int kMostOnTheirWay = 5;

/// Whether the value cannot start another header.
bool IsHeaderValue(const std::string& value)
{
    return value.find_first_of(std::string("\r\n\0", 3)) == std::string::npos;
}

QByteArray Bytes(const std::string& text)
{
    return QByteArray::fromStdString(text);
}

/// The time-out of a timer, limited to what an int of milliseconds can hold.
std::chrono::milliseconds Limited(std::chrono::milliseconds timeout)
{
    constexpr std::chrono::milliseconds kMost(std::numeric_limits<int>::max());
    return std::clamp(timeout, std::chrono::milliseconds(0), kMost);
}

/// Whether the application is between quit and aboutToQuit, when Qt runs no event loop. Otherwise this runs one pass.
bool IsApplicationQuitting()
{
    QEventLoop loop;
    QTimer::singleShot(0, &loop, &QEventLoop::quit);
    return loop.exec(QEventLoop::ExcludeUserInputEvents) == -1;
}

}  // namespace

CAPIModulePrivate::CAPIModulePrivate(CAPIModule* q) : q_ptr(q)
{
    // The façade belongs to the application object's thread. If it was created earlier, it belongs to no thread until
    // its first use; if it was created on another thread, it moves.
    QCoreApplication* pApplication = QCoreApplication::instance();
    if (pApplication && pApplication->thread() == QThread::currentThread()) {
        AttachTo(*pApplication);
    } else {
        MoveTo(pApplication ? pApplication->thread() : nullptr);
    }
}

CAPIModulePrivate::~CAPIModulePrivate()
{
    if (m_pNetworkManager) {
        m_pNetworkManager->deleteLater();
    }
}

bool CAPIModulePrivate::AttachToApplication()
{
    QCoreApplication* pApplication = QCoreApplication::instance();
    if (!pApplication || pApplication->thread() != QThread::currentThread()) {
        return false;
    }
    if (m_pApplication != pApplication) {
        AttachTo(*pApplication);
    }
    return true;
}

void CAPIModulePrivate::MoveTo(QThread* pThread)
{
    moveToThread(pThread);
    q_ptr->moveToThread(pThread);
}

void CAPIModulePrivate::AttachTo(QCoreApplication& application)
{
    MoveTo(application.thread());
    m_pApplication = &application;
    MakeNetworkManager();
    connect(&application, &QCoreApplication::aboutToQuit, this,
            [this] { EndStarted(&StartedCall::DeliverAsApplicationEnding); });
    // Sockets must not outlive the application object.
    qAddPostRoutine([] { CAPIModule::GetInstance().d_func()->DetachFromApplication(); });
}

void CAPIModulePrivate::MakeNetworkManager()
{
    m_pNetworkManager = new http::AccessManager;
    m_pNetworkManager->SetMaximumReplySize(m_nMaximumReplySize);
    m_pNetworkManager->SetServerTrust(m_pServerTrust);
    m_networkManagers.append(m_pNetworkManager);
}

void CAPIModulePrivate::SetMaximumReplySize(qint64 nBytes)
{
    constexpr qint64 kMost = 2000000000;  // a QByteArray holds little more
    m_nMaximumReplySize = std::clamp<qint64>(nBytes, 1, kMost);
    if (m_pNetworkManager) {
        m_pNetworkManager->SetMaximumReplySize(m_nMaximumReplySize);
    }
}

void CAPIModulePrivate::SetServerTrust(const ServerTrust& trust)
{
    m_pServerTrust.reset();
    if (http::IsRestricted(trust)) {
        auto pTrust = std::make_shared<ServerTrust>(trust);
        if (trust.decide) {
            pTrust->decide = [decide = trust.decide](const PresentedServer& server) {
                return RunHosted({kModuleFile, kExecuteFuncs}, QStringLiteral("decide"),
                                 [&] { return decide(server) ? 0 : 1; }) == 0;
            };
        }
        m_pServerTrust = pTrust;
    }
    ForgetConnections();
}

void CAPIModulePrivate::ForgetConnections()
{
    if (!m_pNetworkManager) {
        return;
    }
    if (QThread::currentThread() != thread()) {
        QMetaObject::invokeMethod(this, &CAPIModulePrivate::ForgetConnections, Qt::QueuedConnection);
        return;
    }
    m_pNetworkManager->CloseIdleConnections();
    MakeNetworkManager();
    RetireManagers();
}

void CAPIModulePrivate::RetireManagers()
{
    for (const QPointer<http::AccessManager>& pManager : std::as_const(m_networkManagers)) {
        if (pManager != m_pNetworkManager && !pManager->HasReplies()) {
            delete pManager;
        }
    }
    m_networkManagers.removeAll(nullptr);
}

void CAPIModulePrivate::DetachFromApplication()
{
    // A function may start another call, but the managers are deleted here.
    m_bEndingStarted = true;
    EndStarted(&StartedCall::DeliverAsApplicationEnding);
    EndStarted(&StartedCall::Drop);
    m_lines.clear();
    for (const QPointer<http::AccessManager>& pManager : std::as_const(m_networkManagers)) {
        delete pManager;
    }
    m_networkManagers.clear();
    m_bEndingStarted = false;
    MoveTo(nullptr);
}

bool CAPIModulePrivate::Prepare(const CallSteps& steps, QNetworkRequest& request, CallResult& result)
{
    RequestParam param;
    const auto pack = [&] { return steps.pack(&param); };
    if (RunHosted({kModuleFile, kExecuteFuncs}, QStringLiteral("packetFunc"), pack) != 0) {
        return false;
    }
    if (const int nResult = q_ptr->BuildRequest(param, request)) {
        result.eEnd = CallEnd::InvalidRequest;
        result.nCode = nResult;
        return false;
    }
    LogInfo({kModuleFile, kExecuteFuncs}, QStringLiteral("ExecuteRequest url=%1").arg(MaskedUrl(request)));
    return true;
}

CallResult CAPIModulePrivate::Perform(const CallSteps& steps, const QPointer<QWidget>& parent)
{
    CallResult result;
    QNetworkRequest request;
    if (!AttachToApplication()) {
        LogFailure({kModuleFile, kExecuteFuncs},
                   QStringLiteral("%1 failed! wrong thread or no application.").arg(QLatin1String(steps.pEntry)));
        return result;
    }
    if (!steps.pack) {
        LogFailure({kModuleFile, kExecuteFuncs}, "Call packetFunc failed! packetFunc can not be null.");
        return result;
    }
    if (!Prepare(steps, request, result)) {
        return result;
    }
    result.reply.pSteps = &steps;
    q_ptr->ExecuteRequest(request, parent, result.reply);
    result.reply.pSteps = nullptr;
    Conclude(steps.read, result);
    return result;
}

void CAPIModulePrivate::Conclude(const ReadData& read, CallResult& result)
{
    ReplyInfo& reply = result.reply;
    result.eEnd = reply.eEnd;
    if (reply.eEnd != CallEnd::Success) {
        result.nCode = CodeOf(reply.eEnd);
        return;
    }
    const std::optional<int> failure = Judge(reply);
    reply.byteBody.clear();  // a large one is not kept beside the host's records
    if (failure) {
        result.nCode = *failure;
        result.eEnd = reply.nHttpStatus != kStatusOk ? CallEnd::HttpStatus
                      : reply.bJson                  ? CallEnd::Refused
                                                     : CallEnd::UnreadableReply;
        return;
    }
    if (read && !reply.jsonData.isEmpty() && !reply.parsed) {
        Deliver(read, reply);
    }
    result.nCode = 0;
    if (reply.parsed.value_or(0) != 0) {
        result.eEnd = CallEnd::UnreadableReply;
        result.nCode = kParseFailed;
    }
}

void CAPIModulePrivate::Deliver(const ReadData& read, ReplyInfo& reply)
{
    const UnreadableKey key(reply.strUnreadableKey);
    reply.parsed =
        RunHosted({kModuleFile, kExecuteFuncs}, QStringLiteral("parseFunc"), [&] { return read(reply.jsonData); });
    if (*reply.parsed == 0) {
        reply.strUnreadableKey.clear();
    }
}

std::optional<ObservedExchange> CAPIModulePrivate::Preview(const CallSteps& steps)
{
    if (!AttachToApplication()) {
        LogFailure({kModuleFile, kExecuteFuncs}, "Preview failed! wrong thread or no application.");
        return std::nullopt;
    }
    CallResult result;
    QNetworkRequest request;
    LogCapture::Lines lines;
    std::optional<LogCapture> capture(std::in_place, lines);
    const bool bPrepared = Prepare(steps, request, result);
    capture.reset();
    if (!bPrepared) {
        LogCapture::Write(lines);
        return std::nullopt;
    }
    http::AccessManager manager(0);
    const http::Reply* const pReply = Send(manager, request);
    ObservedExchange preview;
    preview.method = pReply->Verb();
    preview.url = MaskedUrl(request);
    preview.requestHeaders = MaskedHeaders(pReply->Head());
    preview.requestBody = pReply->SentBody();
    return preview;
}

CallHandle CAPIModulePrivate::Start(const CallSteps& steps, QObject* pContext, const Finished& finished)
{
    if (!AttachToApplication() || !pContext || pContext->thread() != thread()) {
        LogFailure({kModuleFile, kExecuteFuncs}, "Start failed! wrong thread, no application or no context.");
        return {};
    }
    auto* const pCall = new StartedCall(*this, steps, pContext, finished);
    CallHandle handle(pCall);
    pCall->Prepare();
    if (handle.IsRunning() && pCall->GetState() == StartedCall::State::InLine) {
        const QString origin = pCall->Origin();
        m_lines[origin].waiting.enqueue(pCall);
        BeginNext(origin);
    }
    return handle;
}

void CAPIModulePrivate::BeginNext(const QString& origin)
{
    while (!m_bEndingStarted) {
        Line& line = m_lines[origin];
        if (line.nOnTheirWay >= kMostOnTheirWay || line.waiting.isEmpty()) {
            if (line.nOnTheirWay == 0) {
                m_lines.remove(origin);
            }
            return;
        }
        const QPointer<StartedCall> pCall = line.waiting.dequeue();
        if (pCall && pCall->GetState() == StartedCall::State::InLine) {
            ++line.nOnTheirWay;
            pCall->Begin();
        }
    }
}

void CAPIModulePrivate::OnLeft(const QString& origin)
{
    --m_lines[origin].nOnTheirWay;
    BeginNext(origin);
}

void CAPIModulePrivate::EndStarted(void (StartedCall::*pEnd)())
{
    if (!m_pNetworkManager) {
        return;
    }
    if (QThread::currentThread() != thread()) {
        QMetaObject::invokeMethod(
            this, [this, pEnd] { EndStarted(pEnd); }, Qt::QueuedConnection);
        return;
    }
    const bool bOuter = std::exchange(m_bEndingStarted, true);
    const QList<StartedCall*> children = findChildren<StartedCall*>(QString(), Qt::FindDirectChildrenOnly);
    const std::vector<QPointer<StartedCall>> calls(children.begin(), children.end());
    for (const QPointer<StartedCall>& pCall : calls) {
        if (pCall) {
            (pCall->*pEnd)();
        }
    }
    m_bEndingStarted = bOuter;
    const QStringList origins = m_lines.keys();
    for (const QString& origin : origins) {
        BeginNext(origin);
    }
}

void CAPIModulePrivate::SetUp(Exchange& exchange, const CallSteps& steps) const
{
    exchange.AddObserver(m_observer);
    if (steps.bTyped) {
        exchange.ReadInBackground(steps.read);
        exchange.AddObserver(steps.observer);
    }
}

std::chrono::milliseconds CAPIModulePrivate::TimeoutOf(const QNetworkRequest& request, const CallSteps& steps) const
{
    std::optional<std::chrono::milliseconds> timeout;
    if (steps.bTyped) {
        timeout = steps.timeout ? steps.timeout : m_callTimeout;
    }
    return Limited(timeout.value_or(std::chrono::seconds(request.attribute(kTimeoutAttribute).toInt())));
}

int CAPIModulePrivate::BuildRequest(const RequestParam& param, QNetworkRequest& request)
{
    const LogSite site{kModuleFile, "APIModule::CAPIModulePrivate::BuildRequest"};
    if (!IsHeaderValue(m_strLanguage) || !IsHeaderValue(param.strToken) || !IsHeaderValue(param.strSequence)) {
        LogFailure(site, "Invalid request header, a value holds a line break or a zero byte.");
        return kInvalidRequest;
    }

    if (param.bHttps) {
        QSslConfiguration configuration = request.sslConfiguration();
        configuration.setPeerVerifyMode(QSslSocket::VerifyNone);
        configuration.setProtocol(kWidestTlsRange);
        request.setSslConfiguration(configuration);
    }

    const QString urlText = (param.bHttps ? QStringLiteral("https://") : QStringLiteral("http://")) +
                            QString::fromStdString(param.strIp) + QLatin1Char(':') + QString::number(param.nPort) +
                            QString::fromStdString(param.strUrl);
    const QUrl url(urlText, QUrl::TolerantMode);
    // A path that changes the address would send the token to another server.
    if (!url.isValid() || url.port() != param.nPort || !url.userInfo().isEmpty()) {
        LogInfo(site, QStringLiteral("Invalid url, request url: %1").arg(MaskToken(urlText)));
        return kInvalidRequest;
    }
    request.setUrl(url);

    if (m_strTimeZoneId.empty()) {
        m_strTimeZoneId = QTimeZone::systemTimeZoneId().toStdString();
    }
    // The interface prescribes raw headers. The transport sends the list, which Qt does not change.
    http::HeaderList headers;
    const auto setHeader = [&request, &headers](const QByteArray& name, const QByteArray& value) {
        request.setRawHeader(name, value);
        headers.erase(std::remove_if(headers.begin(), headers.end(),
                                     [&name](const auto& header) { return header.first == name; }),
                      headers.end());
        headers.append({name, value});
    };
    // The value below replaces this one. The interface lists both in this order, so both are set.
    setHeader("Content-Type", "keep-alive");
    setHeader("Accept-Language", Bytes(m_strLanguage));
    setHeader("Time-Zone", Bytes(m_strTimeZoneId));
    setHeader("Content-Type", "application/json;charset=UTF-8");
    setHeader("X-Subject-Token", Bytes(param.strToken));
    if (param.bCompress) {
        setHeader("Compress-Type", "1");
    }
    if (!param.strSequence.empty()) {
        setHeader("X-Subject-Sequence", Bytes(param.strSequence));
    }

    request.setAttribute(http::kHeadersAttribute, QVariant::fromValue(headers));
    request.setAttribute(kBodyAttribute, Bytes(param.strBody));
    request.setAttribute(kMethodAttribute, QVariant::fromValue(param.eMethod));
    request.setAttribute(kTimeoutAttribute, param.nTimeout);
    request.setAttribute(kExcludeUserInputAttribute, param.bExcludeUserInput);
    return 0;
}

int CAPIModulePrivate::ExecuteRequestWithWaitDlg(const QNetworkRequest& request, QWidget* pParent, ReplyInfo& reply)
{
    const bool bTyped = reply.pSteps->bTyped;
    Wait wait(*pParent, bTyped ? Limited(m_waitDialogDelay) : std::chrono::milliseconds(0));
    const int nResult =
        Execute(request, pParent, reply, wait, "APIModule::CAPIModulePrivate::ExecuteRequestWithWaitDlg");
    if (bTyped && reply.eEnd == CallEnd::Cancelled && IsApplicationQuitting()) {
        reply.eEnd = CallEnd::ApplicationEnding;  // which ended the dialog
    }
    return nResult;
}

int CAPIModulePrivate::ExecuteRequestWithoutWaitDlg(const QNetworkRequest& request, ReplyInfo& reply)
{
    Wait wait(request.attribute(kExcludeUserInputAttribute).toBool() ? QEventLoop::ExcludeUserInputEvents
                                                                     : QEventLoop::AllEvents);
    return Execute(request, nullptr, reply, wait, "APIModule::CAPIModulePrivate::ExecuteRequestWithoutWaitDlg");
}

int CAPIModulePrivate::Execute(const QNetworkRequest& request, QWidget* pParent, ReplyInfo& reply, Wait& wait,
                               const char* pFunction)
{
    if (!m_pNetworkManager || !request.attribute(kTimeoutAttribute).isValid() ||
        !request.attribute(kMethodAttribute).isValid()) {
        reply.eEnd = CallEnd::InvalidRequest;
        return kInvalidRequest;
    }

    auto pExchange = std::make_unique<Exchange>(request, pFunction);
    Exchange& exchange = *pExchange;
    SetUp(exchange, *reply.pSteps);
    if (pParent) {
        // A reply that arrives after the parent was destroyed is ignored.
        connect(pParent, &QObject::destroyed, &exchange, [&exchange] { exchange.Close(CallEnd::Cancelled); });
    }
    connect(&exchange, &Exchange::Ended, wait.Context(), [&wait] { wait.End(); });

    QTimer timer;
    timer.setTimerType(Qt::PreciseTimer);
    timer.setSingleShot(true);
    CallEnd eBroken = CallEnd::ApplicationEnding;
    connect(&timer, &QTimer::timeout, wait.Context(), [&] {
        eBroken = CallEnd::TimedOut;
        wait.End();
    });
    connect(&exchange, &Exchange::ReplyArrived, &timer, &QTimer::stop);
    timer.start(TimeoutOf(request, *reply.pSteps));

    exchange.Begin(Send(request));
    wait.Run();

    // Close the connection now: the host may make further calls before it returns to its event loop.
    if (!exchange.HasReply()) {
        exchange.Close(wait.IsBroken() ? CallEnd::Cancelled : eBroken);
        exchange.LogTimeOut();
    }
    reply = std::move(exchange.Reply());
    pExchange.reset();
    RetireManagers();
    return CodeOf(reply.eEnd);
}

http::Reply* CAPIModulePrivate::Send(http::AccessManager& manager, const QNetworkRequest& request)
{
    const auto send = [&](const QByteArray& body) -> QNetworkReply* {
        switch (request.attribute(kMethodAttribute).value<Method>()) {
        case Method_Put:
            return manager.put(request, body);
        case Method_Post:
            return manager.post(request, body);
        case Method_Delete:
            return manager.sendCustomRequest(request, "DELETE", body);
        case Method_Get:
            break;
        }
        return manager.get(request);
    };
    return qobject_cast<http::Reply*>(send(request.attribute(kBodyAttribute).toByteArray()));
}

std::optional<int> CAPIModulePrivate::Judge(const ReplyInfo& reply)
{
    if (reply.nHttpStatus != kStatusOk) {
        return reply.nHttpStatus;
    }
    if (reply.nCode != kCodeSuccess) {
        return reply.nCode;
    }
    return std::nullopt;
}

}  // namespace APIModule
