#include "APIModule_p.h"

#include "Envelope_p.h"
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

/// Whether the error is one by which Qt tells of a status of 400 and above.
bool IsErrorOfStatus(QNetworkReply::NetworkError error)
{
    switch (error) {
    case QNetworkReply::AuthenticationRequiredError:
    case QNetworkReply::ProxyAuthenticationRequiredError:
    case QNetworkReply::ContentAccessDenied:
    case QNetworkReply::ContentOperationNotPermittedError:
    case QNetworkReply::ContentNotFoundError:
    case QNetworkReply::ContentConflictError:
    case QNetworkReply::ContentGoneError:
    case QNetworkReply::UnknownContentError:
    case QNetworkReply::ProtocolInvalidOperationError:
    case QNetworkReply::InternalServerError:
    case QNetworkReply::OperationNotImplementedError:
    case QNetworkReply::ServiceUnavailableError:
    case QNetworkReply::UnknownServerError:
        return true;
    default:
        return false;
    }
}

/// Whether the body has the length that its answer tells. Qt does not always take a shorter one for an error.
bool IsBodyWhole(const QNetworkReply& finished, int nStatus)
{
    constexpr int kNoContent = 204;
    constexpr int kNotModified = 304;
    return nStatus == kNoContent || nStatus == kNotModified ||
           finished.rawHeader("Transfer-Encoding").toLower().contains("chunked") ||  // which overrides a length
           finished.bytesAvailable() >= finished.header(QNetworkRequest::ContentLengthHeader).toLongLong();
}

/// Whether a whole HTTP answer came, of whatever status.
bool HasAnswer(const QNetworkReply& finished)
{
    const QVariant status = finished.attribute(QNetworkRequest::HttpStatusCodeAttribute);
    const bool bRead =
        finished.error() == QNetworkReply::NoError || (status.isValid() && IsErrorOfStatus(finished.error()));
    return bRead && IsBodyWhole(finished, status.toInt());
}

/// Takes what a finished reply brought. @return 0, -18 or 7000
int TakeReply(QNetworkReply& finished, const QNetworkRequest& request, ReplyInfo& reply, const LogSite& site)
{
    const QNetworkReply::NetworkError error = finished.error();
    const bool bUnauthorized = error == QNetworkReply::AuthenticationRequiredError;
    if (bUnauthorized || !HasAnswer(finished)) {
        LogFailure(site, QStringLiteral("Request failed, an internal network error occurred, qt network error code: "
                                        "%1, network error info: %2")
                             .arg(QString::number(error), MaskToken(finished.errorString())));
        return bUnauthorized ? kAuthenticationRequired : kNetworkError;
    }

    const QVariant status = finished.attribute(QNetworkRequest::HttpStatusCodeAttribute);
    const int nStatus = status.isValid() ? status.toInt() : -1;
    if (nStatus == kStatusOk) {
        reply.byteBody = finished.readAll();
        Unpack(reply);
        reply.rawHeaders = finished.rawHeaderPairs();
        LogInfo(site, "Request success.");
    } else {
        LogFailure(site, QStringLiteral("Request failed, http status Code: %1, request url: %2")
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
    m_pNetworkManager = new QNetworkAccessManager;
    // The network manager has a thread of its own, which must not outlive the application object.
    qAddPostRoutine([] { CAPIModule::GetInstance().d_func()->DetachFromApplication(); });
}

void CAPIModulePrivate::DetachFromApplication()
{
    delete m_pNetworkManager;
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
    ++m_nUnderWay;
    const QPointer<QNetworkReply> pReply = Send(request);
    connect(pReply, &QNetworkReply::finished, wait.Context(), [&] {
        timer.stop();
        if (wait.IsOrphaned()) {
            return;
        }
        result = TakeReply(*pReply, request, reply, {kModuleFile, pFunction});
        wait.End();
    });
    connect(pReply, &QObject::destroyed, wait.Context(), [&wait] { wait.End(); });
    wait.Run();

    // No signal of the reply is under way any more, and none is to come. Deleted now, a reply that timed out gives its
    // connection to the requests after it even when the host makes them without a return to its event loop.
    delete pReply;
    --m_nUnderWay;
    if (!result) {
        LogFailure({kModuleFile, pFunction},
                   QStringLiteral("Request time out, request url: %1").arg(MaskedUrl(request)));
    }
    const int nResult = result.value_or(kTimedOut);
    DropConnectionsAfter(nResult);
    return nResult;
}

// Qt goes on connecting for a request that is no longer there, and keeps the sockets of attempts that failed.
void CAPIModulePrivate::DropConnectionsAfter(int nResult)
{
    m_bConnectionsSuspect = m_bConnectionsSuspect || nResult == kTimedOut || nResult == kNetworkError;
    if (m_bConnectionsSuspect && m_nUnderWay == 0 && m_pNetworkManager) {
        m_pNetworkManager->clearConnectionCache();
        m_bConnectionsSuspect = false;
    }
}

QNetworkReply* CAPIModulePrivate::Send(const QNetworkRequest& request)
{
    const QByteArray body = request.attribute(kBodyAttribute).toByteArray();
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
