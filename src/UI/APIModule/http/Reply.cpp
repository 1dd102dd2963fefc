#include "Reply.h"

#include "AccessManager.h"
#include "QtText.h"
#include "ReplyReader.h"

#include <QHostAddress>
#include <QNetworkProxy>

#include <algorithm>
#include <cstring>

namespace APIModule::http {

namespace {

QByteArray VerbOf(QNetworkAccessManager::Operation operation, const QNetworkRequest& request)
{
    switch (operation) {
    case QNetworkAccessManager::PutOperation:
        return QByteArrayLiteral("PUT");
    case QNetworkAccessManager::PostOperation:
        return QByteArrayLiteral("POST");
    case QNetworkAccessManager::CustomOperation:
        return request.attribute(QNetworkRequest::CustomVerbAttribute).toByteArray();
    default:
        return QByteArrayLiteral("GET");
    }
}

QByteArray HostOf(const QUrl& url)
{
    QHostAddress address;
    if (!address.setAddress(url.host())) {
        return QUrl::toAce(url.host());
    }
    QByteArray text = url.host().toLatin1();
    if (address.protocol() == QAbstractSocket::IPv6Protocol) {
        return '[' + text + ']';
    }
    return text;
}

}  // namespace

Reply::Reply(AccessManager& manager, QNetworkAccessManager::Operation operation, const QNetworkRequest& request,
             QIODevice* pBody)
    : QNetworkReply(&manager), m_pManager(&manager), m_verb(VerbOf(operation, request)),
      m_sentBody(pBody ? pBody->readAll() : QByteArray()), m_bHasBody(pBody != nullptr),
      m_bWrite(operation != QNetworkAccessManager::GetOperation)
{
    setRequest(request);
    setUrl(request.url());
    setOperation(operation);
    open(ReadOnly | Unbuffered);
}

Reply::~Reply()
{
    m_pManager->Forget(*this);
}

QByteArray Reply::Bytes(const QNetworkProxy* pProxy) const
{
    const QNetworkRequest request = this->request();
    QUrl url = request.url();
    QUrl::FormattingOptions format(QUrl::RemoveFragment | QUrl::RemoveUserInfo | QUrl::FullyEncoded);
    if (!pProxy) {
        format |= QUrl::RemoveScheme | QUrl::RemoveAuthority;
    }
    if (url.path().isEmpty()) {
        url.setPath(QStringLiteral("/"));
    } else {
        format |= QUrl::NormalizePathSegments;
    }

    QByteArray bytes;
    constexpr int kHeadSize = 1024;
    bytes.reserve(kHeadSize + m_sentBody.size());
    const auto add = [&bytes](const char* pName, const QByteArray& value) {
        bytes.append(pName).append(": ").append(value).append("\r\n");
    };
    bytes.append(m_verb).append(' ').append(url.toEncoded(format)).append(" HTTP/1.1\r\n");
    add("Host", HostOf(url) + ':' + QByteArray::number(url.port()));
    const auto headers = request.attribute(kHeadersAttribute).value<HeaderList>();
    for (const auto& [name, value] : headers) {
        add(name.constData(), value);
    }
    if (m_bHasBody) {
        add("Content-Length", QByteArray::number(m_sentBody.size()));
    }
    if (pProxy && !pProxy->user().isEmpty()) {
        add("Proxy-Authorization",
            "Basic " + (pProxy->user() + QLatin1Char(':') + pProxy->password()).toUtf8().toBase64());
    }
    add(pProxy ? "Proxy-Connection" : "Connection", QByteArrayLiteral("Keep-Alive"));
    add("Accept-Encoding", QByteArrayLiteral("gzip, deflate"));
    add("User-Agent", QByteArrayLiteral("Mozilla/5.0"));
    return bytes.append("\r\n").append(m_sentBody);
}

void Reply::abort()
{
    m_pManager->Forget(*this);
    if (!isFinished()) {
        setError(OperationCanceledError, QtText("Operation canceled", "QNetworkReply"));
        Finish();
    }
}

void Reply::Complete(ReplyReader& reader)
{
    const int nStatus = reader.Status();
    setAttribute(QNetworkRequest::HttpStatusCodeAttribute, nStatus);
    setAttribute(QNetworkRequest::HttpReasonPhraseAttribute, reader.Reason());
    m_headers = reader.Headers();
    m_body = reader.TakeBody();
    constexpr int kUnauthorized = 401;
    if (nStatus == kUnauthorized) {
        setError(AuthenticationRequiredError, QtText("Host requires authentication"));
    }
    FinishLater();
}

void Reply::Fail(NetworkError error, const QString& text)
{
    setError(error, text);
    FinishLater();
}

void Reply::Refuse(const UnknownServer& server)
{
    m_unknownServer = server;
    Fail(SslHandshakeFailedError, server.reason);
}

void Reply::FailTooLarge()
{
    m_bTooLarge = true;
    Fail(UnknownContentError, QStringLiteral("The reply is larger than %1 bytes").arg(m_pManager->MaximumReplySize()));
}

void Reply::NoteFirstByte()
{
    if (m_bObserved && !m_firstByte) {
        m_firstByte = std::chrono::steady_clock::now();
    }
}

void Reply::FinishLater()
{
    QMetaObject::invokeMethod(
        this, [this] { Finish(); }, Qt::QueuedConnection);
}

void Reply::Finish()
{
    if (!isFinished()) {
        setFinished(true);
        emit finished();
    }
}

qint64 Reply::bytesAvailable() const
{
    return QNetworkReply::bytesAvailable() + m_body.size() - m_nRead;
}

qint64 Reply::readData(char* pData, qint64 size)
{
    const qint64 nTaken = std::min(size, m_body.size() - m_nRead);
    if (nTaken <= 0) {
        return isFinished() ? -1 : 0;
    }
    std::memcpy(pData, m_body.constData() + m_nRead, size_t(nTaken));
    m_nRead += nTaken;
    return nTaken;
}

}  // namespace APIModule::http
