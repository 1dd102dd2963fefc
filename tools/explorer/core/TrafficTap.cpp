#include "TrafficTap.h"

#include "TapCertificate.h"

#include <QCryptographicHash>
#include <QHostAddress>
#include <QNetworkProxy>
#include <QSignalBlocker>
#include <QSslConfiguration>
#include <QSslSocket>
#include <QTcpServer>
#include <QUuid>

#include <algorithm>

namespace explorer {
namespace {

constexpr const char* kUser = "explorer";

// SOCKS 5: RFC 1928, and RFC 1929 for the password.
constexpr char kVersion = 5;
constexpr char kPasswordVersion = 1;
constexpr char kByPassword = 2;
constexpr char kConnect = 1;
constexpr char kIpv4 = 1;
constexpr char kName = 3;
constexpr char kIpv6 = 4;
enum SocksReply : char {
    Succeeded = 0,
    GeneralFailure = 1,
    NetworkUnreachable = 3,
    HostUnreachable = 4,
    Refused = 5,
    NotSupported = 7
};

constexpr char kTlsHandshake = 0x16;  // first byte of a TLS connection

SocksReply ReplyFor(QAbstractSocket::SocketError error)
{
    switch (error) {
    case QAbstractSocket::ConnectionRefusedError:
        return Refused;
    case QAbstractSocket::HostNotFoundError:
        return HostUnreachable;
    case QAbstractSocket::NetworkError:
        return NetworkUnreachable;
    default:
        return GeneralFailure;
    }
}

int Byte(const QByteArray& bytes, int index)
{
    return static_cast<unsigned char>(bytes.at(index));
}

/// An IPv6 address stands in brackets where a port may follow.
QString WithoutBrackets(QString host)
{
    return host.remove(QLatin1Char('[')).remove(QLatin1Char(']'));
}

const TapCertificate& OwnCertificate()
{
    static const TapCertificate own = TapCertificate::Make();
    return own;
}

QByteArray DigestOf(const QSslCertificate& certificate)
{
    return certificate.digest(QCryptographicHash::Sha256);
}

QString TargetOf(const QUrl& url)
{
    return url.toString(QUrl::FullyEncoded | QUrl::RemoveScheme | QUrl::RemoveAuthority | QUrl::RemoveFragment);
}

}  // namespace

/// One connection of the library and the one to the server behind it.
class TrafficTap::Connection : public QObject {
public:
    Connection(TrafficTap& tap, qintptr descriptor) : QObject(&tap), m_tap(tap)
    {
        m_server.setProxy(QNetworkProxy::NoProxy);
        connect(&m_client, &QSslSocket::readyRead, this, &Connection::ReadClient);
        connect(&m_client, &QSslSocket::disconnected, this, &Connection::ClientLeft);
        connect(&m_server, &QSslSocket::readyRead, this, &Connection::ReadServer);
        connect(&m_server, &QSslSocket::connected, this, &Connection::ServerConnected);
        connect(&m_server, &QSslSocket::encrypted, this, &Connection::LookAtServer);
        connect(&m_server, &QSslSocket::errorOccurred, this, &Connection::ServerFailed);
        connect(&m_server, &QSslSocket::disconnected, this, &Connection::ServerLeft);
        m_client.setSocketDescriptor(descriptor);
    }

    ~Connection() override
    {
        m_client.disconnect(this);
        m_server.disconnect(this);
    }

    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;
    Connection(Connection&&) = delete;
    Connection& operator=(Connection&&) = delete;

private:
    enum Stage {
        Greeting,
        Password,
        Request,
        Connecting,
        Opening,
        Looking,  // at the server's certificate
        Relaying,
        Passing,  // what the library and the server encrypt for each other
        Closed
    };

    void ReadClient()
    {
        if (m_stage == Opening) {
            Open();
        }
        if (m_stage == Looking) {
            return;  // the bytes stay for who opens them
        }
        if (m_stage == Relaying) {
            RelayRequest(m_client.readAll());
            return;
        }
        if (m_stage == Passing) {
            if (m_server.state() == QAbstractSocket::ConnectedState) {
                m_server.write(m_client.readAll());
            }
            return;
        }
        m_socks += m_client.readAll();
        while (ReadSocks()) {
        }
    }

    /// One step of the way to the server; false when it needs more bytes.
    bool ReadSocks()
    {
        switch (m_stage) {
        case Greeting:
            return ReadGreeting();
        case Password:
            return ReadPassword();
        case Request:
            return ReadSocksRequest();
        default:
            return false;
        }
    }

    bool ReadGreeting()
    {
        constexpr int kHead = 2;
        if (m_socks.size() < kHead || m_socks.size() < kHead + Byte(m_socks, 1)) {
            return false;
        }
        const QByteArray ways = m_socks.mid(kHead, Byte(m_socks, 1));
        m_socks.remove(0, kHead + ways.size());
        if (!ways.contains(kByPassword)) {
            return Refuse();
        }
        m_client.write(QByteArray().append(kVersion).append(kByPassword));
        m_stage = Password;
        return true;
    }

    bool ReadPassword()
    {
        const QByteArray right = QByteArray()
                                     .append(kPasswordVersion)
                                     .append(static_cast<char>(qstrlen(kUser)))
                                     .append(kUser)
                                     .append(static_cast<char>(m_tap.m_password.size()))
                                     .append(m_tap.m_password.toLatin1());
        if (m_socks.size() < right.size()) {
            return !right.startsWith(m_socks) && Refuse();
        }
        if (!m_socks.startsWith(right)) {
            return Refuse();
        }
        m_socks.remove(0, right.size());
        m_client.write(QByteArray().append(kPasswordVersion).append(char(0)));
        m_stage = Request;
        return true;
    }

    bool ReadSocksRequest()
    {
        constexpr int kHead = 4;
        constexpr int kPortSize = 2;
        if (m_socks.size() < kHead + 1) {
            return false;
        }
        const char kind = m_socks.at(kHead - 1);
        int start = kHead;
        int size = 0;
        if (kind == kIpv4) {
            size = 4;
        } else if (kind == kIpv6) {
            size = 16;
        } else if (kind == kName) {
            size = Byte(m_socks, start++);
        }
        if (m_socks.at(1) != kConnect || size == 0) {
            AnswerSocks(NotSupported, Closed);
            m_client.disconnectFromHost();
            return false;
        }
        if (m_socks.size() < start + size + kPortSize) {
            return false;
        }
        const QByteArray address = m_socks.mid(start, size);
        m_port = Byte(m_socks, start + size) << 8 | Byte(m_socks, start + size + 1);
        m_socks.remove(0, start + size + kPortSize);
        if (kind == kName) {
            m_name = QString::fromLatin1(address);
        } else if (kind == kIpv4) {
            m_name = QHostAddress(static_cast<quint32>(Byte(address, 0)) << 24 |
                                  static_cast<quint32>(Byte(address, 1)) << 16 |
                                  static_cast<quint32>(Byte(address, 2)) << 8 | static_cast<quint32>(Byte(address, 3)))
                         .toString();
        } else {
            m_name = QHostAddress(reinterpret_cast<const quint8*>(address.constData())).toString();
        }
        m_host = m_tap.m_hosts.value(m_name, m_name);
        m_stage = Connecting;
        ConnectServer();
        return false;
    }

    void ConnectServer() { m_server.connectToHost(WithoutBrackets(m_host), static_cast<quint16>(m_port)); }

    void ServerConnected()
    {
        if (m_stage == Passing) {
            ReadClient();  // it waits with the first bytes of its handshake
        } else {
            AnswerSocks(Succeeded, Opening);
        }
    }

    bool Refuse()
    {
        m_stage = Closed;
        m_client.abort();
        return false;
    }

    void AnswerSocks(SocksReply reply, Stage next)
    {
        if (m_stage != Closed) {
            m_stage = next;
            const QByteArray boundAddress(6, '\0');
            m_client.write(QByteArray().append(kVersion).append(reply).append('\0').append(kIpv4).append(boundAddress));
        }
    }

    /// The first bytes tell whether the library speaks TLS.
    void Open()
    {
        if (m_client.peek(1) != QByteArray(1, kTlsHandshake)) {
            m_stage = Relaying;
            return;
        }
        m_stage = Looking;
        m_server.setPeerVerifyMode(QSslSocket::VerifyNone);
        m_server.startClientEncryption();
    }

    void LookAtServer()
    {
        if (m_stage != Looking) {
            return;
        }
        if (m_tap.Trusts(WithoutBrackets(m_host), m_port, m_server.peerCertificate())) {
            m_stage = Relaying;
            m_client.setLocalCertificate(OwnCertificate().certificate);
            m_client.setPrivateKey(OwnCertificate().key);
            m_client.startServerEncryption();
            return;
        }
        // Not inside a signal of the socket that is used again.
        QMetaObject::invokeMethod(
            this, [this] { ConnectAgain(); }, Qt::QueuedConnection);
    }

    void ConnectAgain()
    {
        if (m_stage != Looking) {
            return;
        }
        {
            const QSignalBlocker blocker(m_server);
            m_server.abort();
        }
        m_stage = Passing;
        ConnectServer();
    }

    void RelayRequest(const QByteArray& bytes)
    {
        m_unsent += bytes;
        const bool isNew = !m_headWent;
        if (isNew) {
            const int end = m_unsent.indexOf("\r\n\r\n");
            if (end < 0) {
                return;
            }
            QByteArray head = m_unsent.left(end);
            head.replace("\r\nHost: " + m_name.toLatin1() + ':', "\r\nHost: " + m_host.toLatin1() + ':');
            m_unsent.replace(0, end, head);
            m_headWent = true;
        }
        m_server.write(m_unsent);
        m_requests.Feed(m_unsent);
        m_unsent.clear();
        if (isNew) {
            m_tap.Seen(WithoutBrackets(m_host), m_port, m_requests.Current(), m_replies.Current());
        }
    }

    void ReadServer()
    {
        if (m_stage == Looking) {
            return;  // nobody has asked for anything
        }
        const QByteArray bytes = m_server.readAll();
        if (m_stage == Passing) {
            m_client.write(bytes);
            return;
        }
        m_replies.Feed(bytes);
        if (m_replies.IsComplete()) {  // the next request begins with a fresh pair
            m_requests.Next();
            m_replies.Next();
            m_headWent = false;
        }
        m_client.write(bytes);
    }

    void ServerFailed(QAbstractSocket::SocketError error)
    {
        if (m_stage == Connecting) {
            AnswerSocks(ReplyFor(error), Closed);
            m_client.disconnectFromHost();
        } else if (error != QAbstractSocket::RemoteHostClosedError) {
            m_client.abort();
        }
    }

    void ServerLeft()
    {
        m_replies.End();
        m_client.disconnectFromHost();
    }

    void ClientLeft()
    {
        m_stage = Closed;
        m_server.abort();
        deleteLater();
    }

    TrafficTap& m_tap;
    QSslSocket m_client;
    QSslSocket m_server;
    Stage m_stage = Greeting;
    QByteArray m_socks;
    QString m_name;  // what the library calls the host
    QString m_host;
    int m_port = 0;
    HttpReader m_requests{HttpReader::Requests};
    HttpReader m_replies{HttpReader::Replies};
    QByteArray m_unsent;
    bool m_headWent = false;  // of the current request
};

class TrafficTap::Listener : public QTcpServer {
public:
    explicit Listener(TrafficTap& tap) : m_tap(tap) { setProxy(QNetworkProxy::NoProxy); }

protected:
    void incomingConnection(qintptr descriptor) override { new Connection(m_tap, descriptor); }

private:
    TrafficTap& m_tap;
};

TrafficTap::TrafficTap(QObject* parent)
    : QObject(parent), m_listener(std::make_unique<Listener>(*this)),
      m_password(QUuid::createUuid().toString(QUuid::Id128))
{}

TrafficTap::~TrafficTap()
{
    SetOn(false);
    qDeleteAll(findChildren<QObject*>(QString(), Qt::FindDirectChildrenOnly));  // they use the tap when they end
}

bool TrafficTap::IsOn() const
{
    return m_listener->isListening();
}

void TrafficTap::SetOn(bool on)
{
    if (on == IsOn()) {
        return;
    }
    if (on && m_listener->listen(QHostAddress::LocalHost)) {
        QNetworkProxy::setApplicationProxy(QNetworkProxy(QNetworkProxy::Socks5Proxy,
                                                         m_listener->serverAddress().toString(),
                                                         m_listener->serverPort(), QLatin1String(kUser), m_password));
    } else if (!on) {
        m_listener->close();
        QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy);
    }
}

QString TrafficTap::NameFor(const QString& host)
{
    const QString bare = WithoutBrackets(host).toLower();
    const bool isLoopback = QHostAddress(bare).isLoopback() || bare == QLatin1String("localhost");
    if (!IsOn() || !isLoopback) {
        return host;
    }
    QString name = QStringLiteral("recorded-") + QString(bare).replace(QLatin1Char(':'), QLatin1Char('-'));
    m_hosts.insert(name, host);
    return name;
}

QByteArray TrafficTap::OwnDigest()
{
    return DigestOf(OwnCertificate().certificate);
}

void TrafficTap::Pin(const QString& host, int port, const QByteArray& digest)
{
    const QPair<QString, int> server(WithoutBrackets(host).toLower(), port);
    if (digest.isEmpty()) {
        m_pins.remove(server);
    } else {
        m_pins.insert(server, digest);
    }
}

bool TrafficTap::Trusts(const QString& host, int port, const QSslCertificate& certificate) const
{
    const QByteArray pin = m_pins.value({host.toLower(), port});
    return pin.isEmpty() || pin == DigestOf(certificate);
}

int TrafficTap::Expect(const QByteArray& method, const QUrl& url)
{
    m_expected.append({++m_lastNumber, method, url});
    return m_lastNumber;
}

std::optional<Exchange> TrafficTap::Take(int number)
{
    const auto found = std::find_if(m_expected.begin(), m_expected.end(),
                                    [number](const Expected& expected) { return expected.number == number; });
    if (found == m_expected.end()) {
        return std::nullopt;
    }
    const Expected expected = *found;
    m_expected.erase(found);
    if (!expected.request) {
        return std::nullopt;
    }
    return Exchange{*expected.request, *expected.reply};
}

void TrafficTap::Seen(const QString& host, int port, const std::shared_ptr<const HttpMessage>& request,
                      const std::shared_ptr<const HttpMessage>& reply)
{
    const QByteArray method = request->startLine.split(' ').first();
    const QString target = QString::fromLatin1(request->SecondWord());
    const auto found = std::find_if(m_expected.begin(), m_expected.end(), [&](const Expected& expected) {
        return !expected.request && expected.method == method && expected.url.port() == port &&
               expected.url.host().compare(host, Qt::CaseInsensitive) == 0 && TargetOf(expected.url) == target;
    });
    if (found != m_expected.end()) {
        found->request = request;
        found->reply = reply;
    }
}

}  // namespace explorer
