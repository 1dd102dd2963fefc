#include "Connection.h"

#include "AccessManager.h"
#include "QtText.h"
#include "Reply.h"
#include "Trust.h"

#include <QHostAddress>
#include <QHostInfo>
#include <QNetworkProxyFactory>
#include <QNetworkProxyQuery>
#include <QPointer>
#include <QSslCertificate>
#include <QSslError>
#include <QSslSocket>

#include <algorithm>
#include <array>
#include <chrono>

namespace APIModule::http {

namespace {

using namespace std::chrono_literals;

constexpr auto kSecondAttempt = 250ms;
constexpr auto kLongestIdle = 2min;
/// After a longer idle time the server may close the connection just when a write is sent, and then it is unknown
/// whether it received the write.
constexpr std::chrono::milliseconds kLongestIdleForWrite = 100ms;
constexpr qint64 kReadBufferSize = 256LL * 1024;

/// The error that Qt's HTTP engine reports for an error of a socket.
std::pair<QNetworkReply::NetworkError, QString> Reported(QAbstractSocket::SocketError error, const QString& host,
                                                         const QString& detail)
{
    switch (error) {
    case QAbstractSocket::HostNotFoundError:
        return {QNetworkReply::HostNotFoundError, QtText("Host %1 not found").arg(host)};
    case QAbstractSocket::ConnectionRefusedError:
        return {QNetworkReply::ConnectionRefusedError, QtText("Connection refused")};
    case QAbstractSocket::RemoteHostClosedError:
        return {QNetworkReply::RemoteHostClosedError, QtText("Connection closed")};
    case QAbstractSocket::SocketTimeoutError:
        return {QNetworkReply::TimeoutError, QtText("Socket operation timed out", "QAbstractSocket")};
    case QAbstractSocket::ProxyAuthenticationRequiredError:
        return {QNetworkReply::ProxyAuthenticationRequiredError, QtText("Proxy requires authentication")};
    case QAbstractSocket::SslHandshakeFailedError:
        return {QNetworkReply::SslHandshakeFailedError, QtText("SSL handshake failed") + QLatin1String(": ") + detail};
    case QAbstractSocket::ProxyConnectionRefusedError:
        return {QNetworkReply::ProxyConnectionRefusedError, detail};
    case QAbstractSocket::ProxyConnectionClosedError:
        return {QNetworkReply::ProxyConnectionClosedError, detail};
    case QAbstractSocket::ProxyConnectionTimeoutError:
        return {QNetworkReply::ProxyTimeoutError, detail};
    case QAbstractSocket::ProxyNotFoundError:
        return {QNetworkReply::ProxyNotFoundError, detail};
    default:
        return {QNetworkReply::UnknownNetworkError, detail};
    }
}

}  // namespace

Origin Origin::Of(const QUrl& url)
{
    return {url.scheme() == QLatin1String("https"), url.host(), url.port()};
}

Connection::Connection(AccessManager& manager, const QUrl& url, const QSslConfiguration& configuration)
    : m_manager(manager), m_origin(Origin::Of(url)), m_url(url), m_configuration(configuration)
{
    m_timer.setSingleShot(true);
}

Connection::~Connection()
{
    disconnect();
    Close();
}

void Connection::Open()
{
    const QList<QNetworkProxy> proxies = QNetworkProxyFactory::proxyForQuery(QNetworkProxyQuery(m_url));
    for (const QNetworkProxy& proxy : proxies) {
        const bool bHttp = proxy.type() == QNetworkProxy::HttpProxy || proxy.type() == QNetworkProxy::HttpCachingProxy;
        m_bThroughCache =
            bHttp && !m_origin.bEncrypted && proxy.capabilities().testFlag(QNetworkProxy::CachingCapability);
        if (m_bThroughCache || proxy.type() == QNetworkProxy::NoProxy ||
            proxy.capabilities().testFlag(QNetworkProxy::TunnelingCapability)) {
            m_proxy = proxy;
            break;
        }
    }

    QHostAddress address;
    if (m_proxy.type() != QNetworkProxy::NoProxy || address.setAddress(m_origin.host)) {
        Dial(QAbstractSocket::AnyIPProtocol);
    } else {
        QHostInfo::lookupHost(m_origin.host, this, &Connection::OnHostFound);
    }
}

void Connection::OnHostFound(const QHostInfo& info)
{
    if (m_bClosed) {
        return;
    }
    const QList<QHostAddress> addresses = info.addresses();
    if (addresses.isEmpty()) {
        const auto [error, text] = Reported(QAbstractSocket::HostNotFoundError, m_origin.host, QString());
        Fail(error, text);
        return;
    }
    // A host with addresses of both families may be reachable through only one of them.
    const QAbstractSocket::NetworkLayerProtocol first = addresses.constFirst().protocol();
    for (const QHostAddress& address : addresses) {
        if (address.protocol() != first) {
            m_second = address.protocol();
            connect(&m_timer, &QTimer::timeout, this, [this] { Dial(*std::exchange(m_second, std::nullopt)); });
            m_timer.start(kSecondAttempt);
            Dial(first);
            return;
        }
    }
    Dial(QAbstractSocket::AnyIPProtocol);
}

void Connection::Dial(QAbstractSocket::NetworkLayerProtocol protocol)
{
    std::unique_ptr<QTcpSocket> pSocket;
    if (m_origin.bEncrypted) {
        auto pTls = std::make_unique<QSslSocket>();
        QSslConfiguration configuration = m_configuration;
        if (const std::shared_ptr<const ServerTrust>& pTrust = m_manager.GetServerTrust()) {
            configuration = Verifying(*pTrust, m_configuration);
        }
        pTls->setSslConfiguration(configuration);
        connect(pTls.get(), &QSslSocket::encrypted, this, &Connection::OnEncrypted);
        pSocket = std::move(pTls);
    } else {
        pSocket = std::make_unique<QTcpSocket>();
    }
    QTcpSocket& socket = *m_dialled.emplace_back(std::move(pSocket));
    QNetworkProxy proxy = m_proxy;
    QString host = m_origin.host;
    auto nPort = quint16(m_origin.nPort);
    if (m_bThroughCache) {  // connect to the proxy itself
        proxy = QNetworkProxy::NoProxy;
        host = m_proxy.hostName();
        nPort = m_proxy.port();
    }
    socket.setProxy(proxy);
    socket.setReadBufferSize(kReadBufferSize);
    connect(&socket, &QTcpSocket::connected, this, [this, &socket] { OnConnected(socket); });
    connect(&socket, &QTcpSocket::readyRead, this, &Connection::OnReadyRead);
    connect(&socket, &QTcpSocket::errorOccurred, this,
            [this, &socket](QAbstractSocket::SocketError error) { OnSocketError(socket, error); });

    if (m_origin.bEncrypted) {
        static_cast<QSslSocket&>(socket).connectToHostEncrypted(host, nPort, QIODevice::ReadWrite, protocol);
    } else {
        socket.connectToHost(host, nPort, QIODevice::ReadWrite, protocol);
    }
}

void Connection::OnConnected(QTcpSocket& socket)
{
    m_second.reset();
    m_timer.stop();
    m_timer.disconnect(this);
    for (std::unique_ptr<QTcpSocket>& pDialled : m_dialled) {
        if (pDialled.get() == &socket) {
            m_pSocket = std::move(pDialled);
        } else {
            pDialled->disconnect(this);
            pDialled->abort();
        }
    }
    socket.setSocketOption(QAbstractSocket::LowDelayOption, 1);
    socket.setSocketOption(QAbstractSocket::KeepAliveOption, 1);
    if (!m_origin.bEncrypted) {
        OnReady();
    }
}

void Connection::OnEncrypted()
{
    if (m_manager.GetServerTrust()) {
        // The host may be asked, and its code must not run inside a signal of a socket.
        QMetaObject::invokeMethod(this, &Connection::VerifyServer, Qt::QueuedConnection);
    } else {
        OnReady();
    }
}

void Connection::VerifyServer()
{
    if (m_bClosed) {
        return;
    }
    const PresentedServer server = Presented(static_cast<const QSslSocket&>(*m_pSocket), m_origin.host, m_origin.nPort);
    const std::shared_ptr<const ServerTrust> pTrust = m_manager.GetServerTrust();
    const QPointer<Connection> self(this);
    const std::optional<UnknownServer> unknown = Judge(*pTrust, server);
    if (!self || m_bClosed) {
        return;  // ended by the host meanwhile
    }
    if (!unknown) {
        OnReady();
        return;
    }
    Reply* const pReply = m_pReply;
    Close();
    if (pReply) {
        pReply->Refuse(*unknown);
    }
}

void Connection::OnReady()
{
    m_bReady = true;
    connect(&m_timer, &QTimer::timeout, this, &Connection::Close);
    if (m_pReply) {
        Send();
    }
}

bool Connection::IsFitFor(const Reply& reply)
{
    if (!IsFree()) {
        return false;
    }
    const bool bStale = reply.IsRepeated() || (reply.IsWrite() && m_idleSince.hasExpired(kLongestIdleForWrite.count()));
    if (bStale) {
        Close();
        return false;
    }
    // Pending bytes are read now, and close the connection.
    m_bProbing = true;
    m_pSocket->waitForReadyRead(0);
    m_bProbing = false;
    return !m_bClosed && m_pSocket->state() == QAbstractSocket::ConnectedState;
}

void Connection::Carry(Reply& reply)
{
    m_pReply = &reply;
    m_timer.stop();
    if (m_bReady) {
        Send();
    } else if (m_dialled.empty()) {
        Open();
    }
}

void Connection::Send()
{
    m_reader.emplace(m_manager.MaximumReplySize());
    const QByteArray bytes = m_pReply->Bytes(m_bThroughCache ? &m_proxy : nullptr);
    m_pReply->NoteSent(bytes);
    m_pSocket->write(bytes);
    m_pSocket->flush();
}

void Connection::OnReadyRead()
{
    if (m_reader) {
        Receive();
    } else {
        Fail(QNetworkReply::RemoteHostClosedError, QtText("Connection closed"));  // it belongs to no request
    }
}

void Connection::Receive()
{
    std::array<char, 32UL * 1024> buffer;  // NOLINT(cppcoreguidelines-pro-type-member-init): filled by read()
    while (m_reader && m_reader->GetState() == ReplyReader::State::Reading) {
        const qint64 nRead = m_pSocket->read(buffer.data(), buffer.size());
        if (nRead <= 0) {
            return;
        }
        m_pReply->NoteFirstByte();
        const qint64 nTaken = m_reader->Feed(buffer.data(), nRead);
        if (m_reader->GetState() != ReplyReader::State::Reading) {
            const bool bReusable = nTaken == nRead && m_pSocket->bytesAvailable() == 0 &&
                                   m_pSocket->bytesToWrite() == 0 && m_reader->KeepsConnection();
            if (!bReusable) {
                m_pSocket->disconnect(this);
                m_bReady = false;
            }
            EndReply();
        }
    }
}

void Connection::EndReply()
{
    ReplyReader reader = std::move(*m_reader);
    Reply& reply = *m_pReply;
    switch (reader.GetState()) {
    case ReplyReader::State::Complete:
        m_reader.reset();
        m_pReply = nullptr;
        m_bUsed = true;
        if (m_bReady) {
            m_idleSince.start();
            m_timer.start(kLongestIdle);
            emit Freed();
        } else {
            Close();
        }
        reply.Complete(reader);
        break;
    case ReplyReader::State::Corrupt:
        Fail(QNetworkReply::ProtocolFailure, QtText("Data corrupted"));
        break;
    case ReplyReader::State::TooLarge:
        Close();
        reply.FailTooLarge();
        break;
    case ReplyReader::State::Closed:
    case ReplyReader::State::Reading:
        Fail(QNetworkReply::RemoteHostClosedError, QtText("Connection closed"));
        break;
    }
}

void Connection::OnSocketError(QTcpSocket& socket, QAbstractSocket::SocketError error)
{
    if (m_bProbing && error == QAbstractSocket::SocketTimeoutError) {
        return;  // no bytes arrived
    }
    if (!m_pSocket && m_dialled.size() == 1 && m_second) {
        m_timer.start(0);
        return;
    }
    const bool bOther = std::any_of(m_dialled.begin(), m_dialled.end(), [&](const std::unique_ptr<QTcpSocket>& pOther) {
        return pOther && pOther.get() != &socket && pOther->state() != QAbstractSocket::UnconnectedState;
    });
    if (!m_pSocket && bOther) {
        return;
    }

    if (m_reader && error == QAbstractSocket::RemoteHostClosedError) {
        Receive();  // the bytes that arrived before the end
        if (m_bClosed || !m_reader) {
            Close();
            return;
        }
        m_reader->End();
        if (m_reader->GetState() == ReplyReader::State::Complete) {
            m_bReady = false;
            EndReply();
            return;
        }
    }
    const auto [reported, text] = Reported(error, m_origin.host, socket.errorString());
    Fail(reported, text);
}

void Connection::Fail(NetworkError error, const QString& text)
{
    Reply* const pReply = std::exchange(m_pReply, nullptr);
    const bool bRepeat = pReply && m_bUsed && (!m_reader || m_reader->IsUntouched()) && !pReply->IsWrite();
    Close();
    if (bRepeat && !pReply->IsRepeated()) {
        m_manager.Repeat(*pReply);
    } else if (pReply) {
        pReply->Fail(error, text);
    }
}

void Connection::Close()
{
    if (m_bClosed) {
        return;
    }
    m_bClosed = true;
    m_pReply = nullptr;
    m_reader.reset();
    m_timer.stop();
    for (const std::unique_ptr<QTcpSocket>& pSocket : m_dialled) {
        if (pSocket) {
            pSocket->disconnect(this);
            pSocket->abort();
        }
    }
    if (m_pSocket) {
        m_pSocket->disconnect(this);
        m_pSocket->abort();
    }
    emit Closed();
}

}  // namespace APIModule::http
