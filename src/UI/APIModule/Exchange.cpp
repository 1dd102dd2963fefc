#include "Exchange_p.h"

#include "APIModule_p.h"
#include "Envelope_p.h"
#include "http/Reply.h"
#include "http/Trust.h"
#include "Mask_p.h"
#include "RunHosted_p.h"

#include <QRunnable>
#include <QThreadPool>

#include <mutex>

namespace APIModule {

using namespace detail;

namespace {

/// A smaller reply is parsed faster than a thread starts.
constexpr int kLargeReply = 256 * 1024;

/// Handles an end without a reply. @return Success for a reply
CallEnd TakeEnd(const http::Reply& finished, const QNetworkRequest& request, const char* pFunction)
{
    if (const std::optional<http::UnknownServer>& unknown = finished.GetUnknownServer()) {
        LogFailure(
            {kModuleFile, pFunction},
            QStringLiteral("Request failed, the server is not known, host: %1, port: %2, reason: %3, SHA-256 of its "
                           "certificate: %4")
                .arg(request.url().host(), QString::number(request.url().port()), unknown->reason,
                     QString::fromLatin1(unknown->digest.toHex(':'))));
        return CallEnd::ServerNotTrusted;
    }
    const bool bUnauthorized = finished.error() == QNetworkReply::AuthenticationRequiredError;
    if (bUnauthorized || !finished.attribute(QNetworkRequest::HttpStatusCodeAttribute).isValid()) {
        LogFailure({kModuleFile, pFunction},
                   QStringLiteral("Request failed, an internal network error occurred, qt network error code: %1, "
                                  "network error info: %2")
                       .arg(QString::number(finished.error()), MaskToken(finished.errorString())));
        return bUnauthorized           ? CallEnd::NotAuthenticated
               : finished.IsTooLarge() ? CallEnd::ReplyTooLarge
                                       : CallEnd::NoConnection;
    }
    return CallEnd::Success;
}

}  // namespace

QString MaskedUrl(const QNetworkRequest& request)
{
    return MaskToken(request.url().toString());
}

ObservedExchange::Headers MaskedHeaders(const QByteArray& head)
{
    ObservedExchange::Headers headers;
    const QList<QByteArray> lines = head.split('\n');
    for (int i = 1; i < lines.size(); ++i) {
        const QByteArray line = lines.at(i).trimmed();
        const int nColon = line.indexOf(':');
        if (nColon > 0) {
            const QByteArray name = line.left(nColon);
            const bool bSecret = name == "X-Subject-Token" || name == "Proxy-Authorization";
            headers.append({name, bSecret ? QByteArrayLiteral("******") : line.mid(nColon + 2)});
        }
    }
    return headers;
}

void RunInPool(const std::function<void()>& work)
{
    if (QCoreApplication::instance()) {
        QThreadPool::globalInstance()->start(QRunnable::create(work));
    } else {
        work();
    }
}

/// Shared by the exchange and the thread that reads. The exchange may be destroyed first.
struct Exchange::Reading {
    std::mutex mutex;
    Exchange* pExchange = nullptr;
    ReplyInfo reply;
    ReadData read;
    LogCapture::Lines lines;

    void Run()
    {
        Unpack(reply);
        reply.byteBody.clear();
        if (!CAPIModulePrivate::Judge(reply) && !reply.jsonData.isEmpty() && read) {
            const LogCapture capture(lines);
            CAPIModulePrivate::Deliver(read, reply);
        }
        read = nullptr;
        const std::lock_guard<std::mutex> lock(mutex);
        if (pExchange) {
            QMetaObject::invokeMethod(pExchange, &Exchange::OnRead, Qt::QueuedConnection);
        }
    }
};

Exchange::Exchange(const QNetworkRequest& request, const char* pFunction) : m_request(request), m_pFunction(pFunction)
{}

Exchange::~Exchange()
{
    Close(CallEnd::Cancelled);
    delete m_pReply;
}

void Exchange::ReadInBackground(const ReadData& read)
{
    m_bBackground = true;
    m_read = read;
}

void Exchange::AddObserver(const ExchangeObserver& observer)
{
    if (!observer) {
        return;
    }
    m_observers.push_back(observer);
    if (!m_pObserved) {
        m_begun = std::chrono::steady_clock::now();
        m_pObserved = std::make_unique<ObservedExchange>();
        m_pObserved->begun = std::chrono::system_clock::now();
        m_pObserved->url = MaskedUrl(m_request);
    }
}

void Exchange::Begin(http::Reply* pReply)
{
    m_pReply = pReply;
    if (m_pObserved) {
        m_pObserved->method = pReply->Verb();
        m_pObserved->sentAfter = std::chrono::steady_clock::now() - m_begun;
        pReply->Observe();
    }
    connect(pReply, &QNetworkReply::finished, this, &Exchange::OnFinished);
    connect(pReply, &QObject::destroyed, this, &Exchange::Ended);
}

void Exchange::OnFinished()
{
    const QPointer<Exchange> self(this);
    http::Reply& finished = *m_pReply;
    emit ReplyArrived();
    m_reply.eEnd = TakeEnd(finished, m_request, m_pFunction);
    if (m_reply.eEnd == CallEnd::Success || m_reply.eEnd == CallEnd::NotAuthenticated) {
        m_reply.nHttpStatus = finished.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
        m_reply.byteBody = finished.TakeBody();
        m_reply.rawHeaders = finished.Headers();
        Report({});
    } else {
        Report(MaskToken(finished.errorString()));
    }
    if (!self || m_bClosed) {
        return;  // an observer closed it
    }
    if (m_reply.nHttpStatus != kStatusOk) {
        m_reply.byteBody.clear();
        m_reply.rawHeaders.clear();
        if (m_reply.eEnd == CallEnd::Success) {
            LogFailure({kModuleFile, m_pFunction},
                       QStringLiteral("Request failed, http status Code: %1, request url: %2")
                           .arg(QString::number(m_reply.nHttpStatus), MaskedUrl(m_request)));
        }
        m_bTaken = true;
        emit Ended();
    } else if (m_bBackground && m_reply.byteBody.size() > kLargeReply) {
        m_pReading = std::make_shared<Reading>();
        m_pReading->pExchange = this;
        m_pReading->reply = std::move(m_reply);
        m_pReading->reply.bLarge = true;
        m_pReading->read = std::move(m_read);
        m_read = nullptr;
        RunInPool([pReading = m_pReading] { pReading->Run(); });
    } else {
        Unpack(m_reply);
        Succeed();
    }
}

void Exchange::OnRead()
{
    if (!m_pReading) {
        return;  // closed meanwhile
    }
    const std::shared_ptr<Reading> pReading = std::exchange(m_pReading, nullptr);
    m_reply = std::move(pReading->reply);
    m_lines = std::move(pReading->lines);
    Succeed();
}

void Exchange::Succeed()
{
    LogInfo({kModuleFile, m_pFunction}, "Request success.");
    LogCapture::Write(m_lines);
    m_bTaken = true;
    emit Ended();
}

void Exchange::Close(CallEnd eEnd)
{
    m_bClosed = true;
    if (m_pReading) {
        const std::lock_guard<std::mutex> lock(m_pReading->mutex);
        m_pReading->pExchange = nullptr;
    }
    m_pReading.reset();
    if (!m_bTaken) {
        m_reply.eEnd = eEnd;
    }
    const QPointer<http::Reply> pReply = m_pReply;
    if (pReply) {
        pReply->disconnect(this);
        Report(eEnd == CallEnd::TimedOut ? QStringLiteral("Request time out") : QStringLiteral("Request cancelled"));
    }
    if (pReply) {
        pReply->abort();  // and closes its connection; not deleted, because it may just be emitting its signal
    }
}

void Exchange::Report(const QString& error)
{
    if (!m_pObserved) {
        return;
    }
    const std::unique_ptr<ObservedExchange> pObserved = std::exchange(m_pObserved, nullptr);
    pObserved->requestHeaders = MaskedHeaders(m_pReply->SentHead());
    pObserved->requestBody = m_pReply->SentBody();
    pObserved->nStatus = m_reply.nHttpStatus;
    pObserved->responseHeaders = m_reply.rawHeaders;
    pObserved->responseBody = m_reply.byteBody;
    pObserved->error = error;
    pObserved->finishedAfter = std::chrono::steady_clock::now() - m_begun;
    if (m_pReply->FirstByte()) {
        pObserved->firstByte = *m_pReply->FirstByte() - m_begun;
    }
    const std::vector<ExchangeObserver> observers = std::exchange(m_observers, {});
    for (const ExchangeObserver& observer : observers) {
        RunHosted({kModuleFile, m_pFunction}, QStringLiteral("observer"), [&] {
            observer(*pObserved);
            return 0;
        });
    }
}

void Exchange::LogTimeOut() const
{
    LogFailure({kModuleFile, m_pFunction},
               QStringLiteral("Request time out, request url: %1").arg(MaskedUrl(m_request)));
}

}  // namespace APIModule
