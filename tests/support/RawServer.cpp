#include "RawServer.h"

#include <QEventLoop>
#include <QSslSocket>
#include <QTcpServer>
#include <QTimer>

#include <gtest/gtest.h>

#include <future>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>
#include <unistd.h>
#include <utility>

namespace testing_support {

QList<QByteArray> RawRequest::Values(const QByteArray& name) const
{
    QList<QByteArray> values;
    for (const auto& header : headers) {
        if (header.first.compare(name, Qt::CaseInsensitive) == 0) {
            values.append(header.second);
        }
    }
    return values;
}

QByteArray RawRequest::Value(const QByteArray& name) const
{
    const QList<QByteArray> values = Values(name);
    EXPECT_EQ(values.size(), 1) << name.constData();
    return values.isEmpty() ? QByteArray() : values.first();
}

bool CanVanish()
{
    static const bool bCan = [] {
        const int nSocket = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
        const int nOn = 1;
        const bool bSet = setsockopt(nSocket, IPPROTO_TCP, TCP_REPAIR, &nOn, sizeof(nOn)) == 0;
        close(nSocket);
        return bSet;
    }();
    return bCan;
}

RawReply HttpReply(int status, const QByteArray& body, const QByteArray& moreHeaders)
{
    return {"HTTP/1.1 " + QByteArray::number(status) + " Reason\r\nContent-Type: application/json\r\n" + moreHeaders +
            "Content-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body};
}

RawReply Delayed(RawReply reply, int milliseconds)
{
    reply.delayMilliseconds = milliseconds;
    return reply;
}

QSslConfiguration ServerConfiguration(const Certificate& certificate)
{
    QSslConfiguration configuration;
    configuration.setLocalCertificate(certificate.certificate);
    configuration.setPrivateKey(certificate.key);
    configuration.setPeerVerifyMode(QSslSocket::VerifyNone);
    return configuration;
}

namespace {

std::optional<QSslConfiguration> ConfigurationOf(RawServer::Scheme scheme)
{
    if (scheme == RawServer::Http) {
        return std::nullopt;
    }
    static const QSslConfiguration configuration = ServerConfiguration(MakeCertificate());
    return configuration;
}

/// Acknowledges received data at once. A client that sends head and body separately waits for that.
void Acknowledge(const QAbstractSocket& socket)
{
    const int nOn = 1;
    setsockopt(int(socket.socketDescriptor()), IPPROTO_TCP, TCP_QUICKACK, &nOn, sizeof(nOn));
}

/// Resets a connection, which the peer sees as an error.
void Reset(QAbstractSocket& socket)
{
    socket.flush();
    const linger hard{1, 0};
    setsockopt(int(socket.socketDescriptor()), SOL_SOCKET, SO_LINGER, &hard, sizeof(hard));
    socket.abort();
}

/// Ends a connection without a packet, so that the peer does not notice.
void Vanish(QAbstractSocket& socket)
{
    socket.flush();
    const int nOn = 1;
    // Fails if the other side has already ended the connection.
    setsockopt(int(socket.socketDescriptor()), IPPROTO_TCP, TCP_REPAIR, &nOn, sizeof(nOn));
    socket.abort();
}

void Finish(QAbstractSocket& socket, const RawReply& reply)
{
    constexpr int kLaterMs = 20;
    switch (reply.then) {
    case RawReply::KeepOpen:
        break;
    case RawReply::Close:
        // Closing continues in the event loop; the socket is deleted, with its slots, once it is closed.
        QObject::connect(&socket, &QAbstractSocket::disconnected, [done = reply.done] {});
        socket.disconnectFromHost();
        break;
    case RawReply::CloseLater:
        QTimer::singleShot(kLaterMs, &socket, [&socket] { socket.disconnectFromHost(); });
        break;
    case RawReply::Reset:
        Reset(socket);
        break;
    case RawReply::HalfClose:
        socket.flush();
        shutdown(int(socket.socketDescriptor()), SHUT_WR);
        break;
    case RawReply::Vanish:
        Vanish(socket);
        break;
    }
}

/// Continues at once, or after a delay unless the connection is closed by then.
void After(int milliseconds, QAbstractSocket& socket, const std::function<void()>& act)
{
    if (milliseconds > 0) {
        QTimer::singleShot(milliseconds, Qt::PreciseTimer, &socket, act);
    } else {
        act();
    }
}

/// Sends the bytes repeatedly at a given rate, but no more than the peer accepts.
void SendEndlessly(QAbstractSocket& socket, const QByteArray& bytes, int nPerSecond)
{
    constexpr int kTickMs = 10;
    constexpr int kTicksPerSecond = 1000 / kTickMs;
    QByteArray ofTick;
    while (ofTick.size() < nPerSecond / kTicksPerSecond) {
        ofTick += bytes;
    }
    auto* const pTicks = new QTimer(&socket);
    QObject::connect(pTicks, &QTimer::timeout, &socket, [&socket, ofTick] {
        if (socket.bytesToWrite() < ofTick.size()) {
            socket.write(ofTick);
        }
    });
    pTicks->start(kTickMs);
}

void SendMore(QAbstractSocket& socket, const RawReply& reply)
{
    if (reply.endlessPerSecond > 0) {
        SendEndlessly(socket, reply.moreBytes, reply.endlessPerSecond);
        return;
    }
    if (!reply.moreBytes.isEmpty()) {
        socket.write(reply.moreBytes);
        socket.flush();
    }
    After(reply.thenMilliseconds, socket, [&socket, reply] { Finish(socket, reply); });
}

void Send(QAbstractSocket& socket, const RawReply& reply)
{
    if (reply.trickleMilliseconds == 0 || reply.bytes.isEmpty()) {
        socket.write(reply.bytes);
        if (reply.done) {
            socket.flush();
        }
        After(reply.moreMilliseconds, socket, [&socket, reply] { SendMore(socket, reply); });
        return;
    }
    socket.write(reply.bytes.left(1));
    RawReply rest = reply;
    rest.bytes.remove(0, 1);
    QTimer::singleShot(reply.trickleMilliseconds, &socket, [&socket, rest] { Send(socket, rest); });
}

}  // namespace

/// Lives in the server's thread.
class RawServer::Listener : public QTcpServer {
public:
    Listener(RawServer& server, const Responder& responder, const std::optional<QSslConfiguration>& configuration)
        : m_server(server), m_responder(responder), m_configuration(configuration)
    {
        EXPECT_TRUE(listen(QHostAddress::LocalHost));
    }

protected:
    void incomingConnection(qintptr descriptor) override
    {
        auto* pSocket = new QSslSocket(this);
        pSocket->setSocketDescriptor(descriptor);
        // Otherwise a reply waits until the client has acknowledged earlier data, and a reset discards it.
        pSocket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
        const int nConnection = ++m_server.m_connections;
        ++m_server.m_openConnections;
        connect(pSocket, &QSslSocket::disconnected, this, [this, pSocket] {
            --m_server.m_openConnections;
            pSocket->deleteLater();
        });
        connect(pSocket, &QSslSocket::readyRead, this, [this, pSocket, nConnection] { Read(*pSocket, nConnection); });
        CloseWhenIdle(*pSocket);
        if (m_configuration) {
            pSocket->setSslConfiguration(*m_configuration);
            pSocket->startServerEncryption();
        }
    }

private:
    void CloseWhenIdle(QSslSocket& socket)
    {
        if (m_server.m_idleMilliseconds == 0) {
            return;
        }
        auto* const pIdle = new QTimer(&socket);
        pIdle->setTimerType(Qt::PreciseTimer);
        pIdle->start(m_server.m_idleMilliseconds);
        connect(pIdle, &QTimer::timeout, &socket, [&socket] { socket.disconnectFromHost(); });
        const auto restart = [pIdle] { pIdle->start(); };
        connect(&socket, &QSslSocket::readyRead, pIdle, restart);
        connect(&socket, &QSslSocket::bytesWritten, pIdle, restart);
    }

    void Read(QSslSocket& socket, int nConnection)
    {
        Acknowledge(socket);
        QByteArray received = socket.property("received").toByteArray() + socket.readAll();
        if (m_server.m_bRepliesToAnything) {
            received += "\r\n\r\n";
        }
        for (int nEnd = received.indexOf("\r\n\r\n"); nEnd >= 0; nEnd = received.indexOf("\r\n\r\n")) {
            RawRequest request = Parse(received.left(nEnd));
            const QList<QByteArray> lengths = request.Values("Content-Length");
            const int nLength = lengths.isEmpty() ? 0 : lengths.first().toInt();
            const int nBody = nEnd + 4;
            if (received.size() < nBody + nLength) {
                break;
            }
            request.body = received.mid(nBody, nLength);
            request.connection = nConnection;
            received.remove(0, nBody + nLength);
            ReplyTo(socket, request);
        }
        socket.setProperty("received", received);
    }

    static RawRequest Parse(const QByteArray& head)
    {
        RawRequest request;
        request.head = head;
        const QList<QByteArray> lines = head.split('\n');
        const QList<QByteArray> words = lines.first().trimmed().split(' ');
        request.method = words.value(0);
        request.target = words.value(1);
        for (int i = 1; i < lines.size(); ++i) {
            const QByteArray line = lines.at(i).trimmed();
            const int nColon = line.indexOf(':');
            request.headers.append({line.left(nColon), line.mid(nColon + 1).trimmed()});
        }
        return request;
    }

    void ReplyTo(QSslSocket& socket, const RawRequest& request)
    {
        {
            const std::lock_guard<std::mutex> lock(m_server.m_mutex);
            m_server.m_requests.push_back(request);
        }
        const RawReply reply = m_responder(request);
        QTimer::singleShot(reply.delayMilliseconds, &socket, [&socket, reply] { Send(socket, reply); });
    }

    RawServer& m_server;
    Responder m_responder;
    std::optional<QSslConfiguration> m_configuration;
};

RawServer::RawServer(const Responder& responder, Scheme scheme) : RawServer(responder, ConfigurationOf(scheme)) {}

RawServer::RawServer(const Responder& responder, const QSslConfiguration& configuration)
    : RawServer(responder, std::optional<QSslConfiguration>(configuration))
{}

RawServer::RawServer(const Responder& responder, const std::optional<QSslConfiguration>& configuration)
{
    std::promise<QEventLoop*> listening;
    std::future<QEventLoop*> running = listening.get_future();
    m_thread = std::thread([this, responder, configuration, listening = std::move(listening)]() mutable {
        QEventLoop loop;
        const Listener listener(*this, responder, configuration);
        m_port = listener.serverPort();
        listening.set_value(&loop);
        loop.exec();
    });
    m_pLoop = running.get();
}

RawServer::~RawServer()
{
    QMetaObject::invokeMethod(m_pLoop, &QEventLoop::quit, Qt::QueuedConnection);
    m_thread.join();
}

std::vector<RawRequest> RawServer::TakeRequests()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return std::exchange(m_requests, {});
}

}  // namespace testing_support
