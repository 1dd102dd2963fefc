#include "APIModule_p.h"

#include "Envelope_p.h"
#include "http/AccessManager.h"
#include "http/Reply.h"
#include "http/Trust.h"
#include "Log_p.h"
#include "Mask_p.h"
#include "RunHosted_p.h"
#include "TlsRange_p.h"
#include "Wait_p.h"

#include <QEventLoop>
#include <QSslConfiguration>
#include <QThread>
#include <QTimer>
#include <QTimeZone>
#include <QUrl>
#include <QVariant>

#include <algorithm>
#include <limits>

namespace APIModule {

using namespace detail;

namespace {

constexpr const char* kExecuteFuncs = "APIModule::CAPIModule::ExecuteFuncs";

constexpr int kInvalidRequest = -4;
constexpr int kNetworkError = -18;
constexpr int kTimedOut = -101;
constexpr int kAuthenticationRequired = 7000;

constexpr int kStatusOk = 200;
constexpr int kCodeSuccess = 1000;

constexpr auto kMethodAttribute = QNetworkRequest::Attribute(QNetworkRequest::User + 100);
constexpr auto kBodyAttribute = QNetworkRequest::Attribute(QNetworkRequest::User + 101);
constexpr auto kTimeoutAttribute = QNetworkRequest::Attribute(QNetworkRequest::User + 102);
constexpr auto kExcludeUserInputAttribute = QNetworkRequest::Attribute(QNetworkRequest::User + 103);

QString MaskedUrl(const QNetworkRequest& request)
{
    return MaskToken(request.url().toString());
}

/// Whether the value stays within its header.
bool IsHeaderValue(const std::string& value)
{
    return value.find_first_of(std::string("\r\n\0", 3)) == std::string::npos;
}

QByteArray Bytes(const std::string& text)
{
    return QByteArray::fromStdString(text);
}

/// Takes what a finished reply brought. @return 0, -18 or 7000
int TakeReply(http::Reply& finished, const QNetworkRequest& request, ReplyInfo& reply, const char* pFunction)
{
    if (const std::optional<http::UnknownServer>& unknown = finished.GetUnknownServer()) {
        LogFailure(
            {kModuleFile, pFunction},
            QStringLiteral("Request failed, the server is not known, host: %1, port: %2, reason: %3, SHA-256 of its "
                           "certificate: %4")
                .arg(request.url().host(), QString::number(request.url().port()), unknown->reason,
                     QString::fromLatin1(unknown->digest.toHex(':'))));
        return kNetworkError;
    }
    const QVariant status = finished.attribute(QNetworkRequest::HttpStatusCodeAttribute);
    const bool bUnauthorized = finished.error() == QNetworkReply::AuthenticationRequiredError;
    if (bUnauthorized || !status.isValid()) {
        LogFailure({kModuleFile, pFunction},
                   QStringLiteral("Request failed, an internal network error occurred, qt network error code: %1, "
                                  "network error info: %2")
                       .arg(QString::number(finished.error()), MaskToken(finished.errorString())));
        return bUnauthorized ? kAuthenticationRequired : kNetworkError;
    }

    const int nStatus = status.toInt();
    if (nStatus == kStatusOk) {
        reply.byteBody = finished.TakeBody();
        Unpack(reply);
        reply.rawHeaders = finished.Headers();
        LogInfo({kModuleFile, pFunction}, "Request success.");
    } else {
        LogFailure({kModuleFile, pFunction}, QStringLiteral("Request failed, http status Code: %1, request url: %2")
                                                 .arg(QString::number(nStatus), MaskedUrl(request)));
    }
    reply.nHttpStatus = nStatus;
    return 0;
}

/// The time-out of a timer, which holds no more than an int of milliseconds.
int Milliseconds(int nSeconds)
{
    constexpr int kPerSecond = 1000;
    constexpr int kMostSeconds = std::numeric_limits<int>::max() / kPerSecond;
    return nSeconds > kMostSeconds ? std::numeric_limits<int>::max() : std::max(nSeconds, 0) * kPerSecond;
}

}  // namespace

CAPIModulePrivate::CAPIModulePrivate(CAPIModule* q) : q_ptr(q)
{
    // The façade belongs to the application object's thread. Made before there is one, it belongs to no thread until
    // it is first used; made on another thread, it moves.
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
    // No socket may outlive the application object.
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
    m_networkManagers.removeAll(nullptr);
    if (m_pNetworkManager->HasReplies()) {
        m_pNetworkManager->CloseIdleConnections();
    } else {
        delete m_pNetworkManager;
    }
    MakeNetworkManager();
}

void CAPIModulePrivate::DetachFromApplication()
{
    for (const QPointer<http::AccessManager>& pManager : qAsConst(m_networkManagers)) {
        delete pManager;
    }
    m_networkManagers.clear();
    MoveTo(nullptr);
}

int CAPIModulePrivate::Describe(const boost::function<int(void*)>& packetFunc, RequestParam& param)
{
    return RunHosted({kModuleFile, kExecuteFuncs}, QStringLiteral("packetFunc"), [&] { return packetFunc(&param); });
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
    // A path that changes the address would carry the token to another server.
    if (!url.isValid() || url.port() != param.nPort || !url.userInfo().isEmpty()) {
        LogInfo(site, QStringLiteral("Invalid url, request url: %1").arg(MaskToken(urlText)));
        return kInvalidRequest;
    }
    request.setUrl(url);

    if (m_strTimeZoneId.empty()) {
        m_strTimeZoneId = QTimeZone::systemTimeZoneId().toStdString();
    }
    // The value below replaces this one. The interface has both, in this order, and what it lists is set.
    request.setRawHeader("Content-Type", "keep-alive");
    request.setRawHeader("Accept-Language", Bytes(m_strLanguage));
    request.setRawHeader("Time-Zone", Bytes(m_strTimeZoneId));
    request.setRawHeader("Content-Type", "application/json;charset=UTF-8");
    request.setRawHeader("X-Subject-Token", Bytes(param.strToken));
    if (param.bCompress) {
        request.setRawHeader("Compress-Type", "1");
    }
    if (!param.strSequence.empty()) {
        request.setRawHeader("X-Subject-Sequence", Bytes(param.strSequence));
    }

    request.setAttribute(kBodyAttribute, Bytes(param.strBody));
    request.setAttribute(kMethodAttribute, QVariant::fromValue(param.eMethod));
    request.setAttribute(kTimeoutAttribute, param.nTimeout);
    request.setAttribute(kExcludeUserInputAttribute, param.bExcludeUserInput);
    return 0;
}

int CAPIModulePrivate::ExecuteRequestWithWaitDlg(const QNetworkRequest& request, QWidget* pParent, ReplyInfo& reply)
{
    Wait wait(*pParent);
    return Execute(request, reply, wait, "APIModule::CAPIModulePrivate::ExecuteRequestWithWaitDlg");
}

int CAPIModulePrivate::ExecuteRequestWithoutWaitDlg(const QNetworkRequest& request, ReplyInfo& reply)
{
    Wait wait(request.attribute(kExcludeUserInputAttribute).toBool() ? QEventLoop::ExcludeUserInputEvents
                                                                     : QEventLoop::AllEvents);
    return Execute(request, reply, wait, "APIModule::CAPIModulePrivate::ExecuteRequestWithoutWaitDlg");
}

int CAPIModulePrivate::Execute(const QNetworkRequest& request, ReplyInfo& reply, Wait& wait, const char* pFunction)
{
    const QVariant timeout = request.attribute(kTimeoutAttribute);
    if (!m_pNetworkManager || !timeout.isValid() || !request.attribute(kMethodAttribute).isValid()) {
        return kInvalidRequest;
    }

    QTimer timer;
    timer.setTimerType(Qt::PreciseTimer);
    timer.setSingleShot(true);
    connect(&timer, &QTimer::timeout, wait.Context(), [&wait] { wait.End(); });
    timer.start(Milliseconds(timeout.toInt()));

    std::optional<int> result;
    const QPointer<http::AccessManager> pManager = m_pNetworkManager;
    const QPointer<http::Reply> pReply = Send(request);
    connect(pReply, &QNetworkReply::finished, wait.Context(), [&] {
        timer.stop();
        if (wait.IsOrphaned()) {
            return;
        }
        result = TakeReply(*pReply, request, reply, pFunction);
        wait.End();
    });
    connect(pReply, &QObject::destroyed, wait.Context(), [&wait] { wait.End(); });
    wait.Run();

    // No signal of the reply is under way any more, and none is to come. Deleted now, a reply that timed out closes its
    // connection even when the host makes further calls without a return to its event loop.
    delete pReply;
    if (pManager && pManager != m_pNetworkManager && !pManager->HasReplies()) {
        delete pManager;
    }
    if (!result) {
        LogFailure({kModuleFile, pFunction},
                   QStringLiteral("Request time out, request url: %1").arg(MaskedUrl(request)));
    }
    return result.value_or(kTimedOut);
}

http::Reply* CAPIModulePrivate::Send(const QNetworkRequest& request)
{
    const auto send = [&](const QByteArray& body) -> QNetworkReply* {
        switch (request.attribute(kMethodAttribute).value<Method>()) {
        case Method_Put:
            return m_pNetworkManager->put(request, body);
        case Method_Post:
            return m_pNetworkManager->post(request, body);
        case Method_Delete:
            return m_pNetworkManager->sendCustomRequest(request, "DELETE", body);
        case Method_Get:
            break;
        }
        return m_pNetworkManager->get(request);
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

int CAPIModulePrivate::Deliver(const boost::function<int(QJsonObject const&)>& parseFunc, const ReplyInfo& reply)
{
    if (!parseFunc) {
        return 0;
    }
    return RunHosted({kModuleFile, kExecuteFuncs}, QStringLiteral("parseFunc"),
                     [&] { return parseFunc(reply.jsonData); });
}

}  // namespace APIModule
