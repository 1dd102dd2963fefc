// Calls through a proxy that the host set for Qt's network classes.
#include "support/Rows.h"
#include "TransportHost.h"

#include <ObservedExchange.h>

#include <QNetworkProxy>
#include <QTcpServer>
#include <QTcpSocket>

#include <string>
#include <vector>

using namespace testing_support;
using APIModule::CAPIModule;
using APIModule::ObservedExchange;

namespace {

constexpr const char* kHost = "platform.example";  // not a public name: only the proxy resolves it
constexpr int kPort = 8443;

/// A proxy that replies to CONNECT and, after a success, forwards all bytes to a server on loopback.
class Tunnel : public QObject {
public:
    /// @param reply sent for each CONNECT; empty closes the connection
    Tunnel(QByteArray reply, int nServerPort) : m_reply(std::move(reply)), m_nServerPort(nServerPort)
    {
        EXPECT_TRUE(m_listener.listen(QHostAddress::LocalHost));
        connect(&m_listener, &QTcpServer::newConnection, this, [this] { Accept(*m_listener.nextPendingConnection()); });
    }
    int Port() const { return m_listener.serverPort(); }
    const QList<QByteArray>& Heads() const { return m_heads; }

private:
    void Accept(QTcpSocket& client)
    {
        connect(&client, &QTcpSocket::readyRead, this, [this, &client, head = QByteArray()]() mutable {
            head += client.readAll();
            if (!head.endsWith("\r\n\r\n")) {
                return;
            }
            m_heads.append(head);
            disconnect(&client, &QTcpSocket::readyRead, this, nullptr);
            client.write(m_reply);
            if (m_reply.startsWith("HTTP/1.1 200 ")) {
                Forward(client);
            } else {
                client.disconnectFromHost();
            }
        });
    }

    void Forward(QTcpSocket& client)
    {
        auto* const pServer = new QTcpSocket(&client);
        const auto forward = [](QTcpSocket& from, QTcpSocket& to) {
            connect(&from, &QTcpSocket::readyRead, &to, [&from, &to] { to.write(from.readAll()); });
        };
        forward(client, *pServer);
        forward(*pServer, client);
        pServer->connectToHost(QHostAddress(QHostAddress::LocalHost), quint16(m_nServerPort));
        EXPECT_TRUE(pServer->waitForConnected());
    }

    const QByteArray m_reply;
    const int m_nServerPort;
    QTcpServer m_listener;
    QList<QByteArray> m_heads;
};

const QByteArray kEstablished = "HTTP/1.1 200 Connection established\r\n\r\n";

class ProxyTest : public TransportHost {
protected:
    ProxyTest()
    {
        users.servers[1].host = kHost;
        users.servers[1].port = kPort;
    }
    ~ProxyTest() override { QNetworkProxy::setApplicationProxy(QNetworkProxy(QNetworkProxy::NoProxy)); }

    static void Set(int nProxyPort, const QString& user = {}, const QString& password = {})
    {
        QNetworkProxy::setApplicationProxy(
            QNetworkProxy(QNetworkProxy::HttpProxy, QStringLiteral("127.0.0.1"), quint16(nProxyPort), user, password));
    }
};

TEST_F(ProxyTest, ReceivesPlainHttpWithTheCompleteUrl)
{
    RawServer proxy([](const RawRequest&) { return SuccessReply(); });
    Set(proxy.Port());
    CAPIModule::GetInstance().SetHttpsMode(0);
    EXPECT_EQ(Get(QStringLiteral("/path?a=1")).code, 0);
    EXPECT_EQ(Get(QStringLiteral("/again")).code, 0);
    const std::vector<RawRequest> requests = proxy.TakeRequests();
    ASSERT_EQ(requests.size(), 2U);
    EXPECT_EQ(requests[0].target, "http://platform.example:8443/path?a=1");
    EXPECT_EQ(requests[0].Value("Host"), "platform.example:8443");
    EXPECT_EQ(requests[0].Value("Proxy-Connection"), "Keep-Alive");
    EXPECT_TRUE(requests[0].Values("Connection").isEmpty());
    EXPECT_TRUE(requests[0].Values("Proxy-Authorization").isEmpty());
    EXPECT_EQ(requests[1].connection, requests[0].connection);
}

TEST_F(ProxyTest, ReceivesIpv6AddressesInBrackets)
{
    RawServer proxy([](const RawRequest&) { return SuccessReply(); });
    Set(proxy.Port());
    CAPIModule::GetInstance().SetHttpsMode(0);
    users.servers[1].host = "[2001:db8::1]";
    EXPECT_EQ(Get(QStringLiteral("/path")).code, 0);
    const std::vector<RawRequest> requests = proxy.TakeRequests();
    ASSERT_EQ(requests.size(), 1U);
    EXPECT_EQ(requests[0].target, "http://[2001:db8::1]:8443/path");
    EXPECT_EQ(requests[0].Value("Host"), "[2001:db8::1]:8443");
}

TEST_F(ProxyTest, ReceivesCredentialsThatObserversDoNotSee)
{
    RawServer proxy([](const RawRequest&) { return SuccessReply(); });
    Set(proxy.Port(), QStringLiteral("user"), QStringLiteral("secret"));
    CAPIModule::GetInstance().SetHttpsMode(0);
    QByteArray observed;
    CAPIModule::GetInstance().SetExchangeObserver([&observed](const ObservedExchange& exchange) {
        for (const auto& [name, value] : exchange.requestHeaders) {
            observed += name + ": " + value + '\n';
        }
    });
    EXPECT_EQ(Get(QStringLiteral("/path")).code, 0);
    CAPIModule::GetInstance().SetExchangeObserver(nullptr);
    const std::vector<RawRequest> requests = proxy.TakeRequests();
    ASSERT_EQ(requests.size(), 1U);
    const QByteArray credentials = QByteArrayLiteral("user:secret").toBase64();
    EXPECT_EQ(requests[0].Value("Proxy-Authorization"), "Basic " + credentials);
    EXPECT_TRUE(observed.contains("Proxy-Authorization: ")) << observed.constData();
    EXPECT_FALSE(observed.contains(credentials)) << observed.constData();
}

TEST_F(ProxyTest, TunnelsHttps)
{
    RawServer server([](const RawRequest&) { return SuccessReply(); }, RawServer::Https);
    const Tunnel tunnel(kEstablished, server.Port());
    Set(tunnel.Port());
    CAPIModule::GetInstance().SetHttpsMode(1);
    EXPECT_EQ(Get(QStringLiteral("/path")).code, 0);
    EXPECT_EQ(Run(APIModule::Method_Post, QStringLiteral("/write"), QStringLiteral("{}")).code, 0);
    ASSERT_EQ(tunnel.Heads().size(), 1);
    EXPECT_TRUE(tunnel.Heads()[0].startsWith("CONNECT platform.example:8443 HTTP/1.1\r\n"));
    EXPECT_FALSE(tunnel.Heads()[0].contains("token-of-the-session"));
    const std::vector<RawRequest> requests = server.TakeRequests();
    ASSERT_EQ(requests.size(), 2U);
    EXPECT_EQ(requests[0].target, "/path");
    EXPECT_EQ(requests[0].Value("Connection"), "Keep-Alive");
    EXPECT_EQ(requests[1].target, "/write");
}

struct Refusal {
    const char* name;
    QByteArray reply;
    const char* qtCode;
};

using testing_support::operator<<;

/// A tunnel that cannot be established ends the call as a network error with Qt's error number.
class RefusalTest : public ProxyTest, public testing::WithParamInterface<Refusal> {};

TEST_P(RefusalTest, EndsTheCallAsANetworkError)
{
    const Tunnel tunnel(GetParam().reply, 0);
    Set(tunnel.Port());
    CAPIModule::GetInstance().SetHttpsMode(1);
    logs.Take();
    EXPECT_EQ(Get(QStringLiteral("/path")).code, -18);
    const LogLines lines = logs.Take();
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[1].message.rfind("Request failed, an internal network error occurred, qt network error code: " +
                                         std::string(GetParam().qtCode) + ", ",
                                     0),
              0U)
        << lines[1].message;
    EXPECT_EQ(tunnel.Heads().size(), 1);
}

const Refusal kRefusals[] = {
    {"authentication", "HTTP/1.1 407 Reason\r\nProxy-Authenticate: Basic realm=\"x\"\r\nContent-Length: 0\r\n\r\n",
     "105"},
    {"unknown_host", "HTTP/1.1 404 Reason\r\nContent-Length: 0\r\n\r\n", "3"},
    {"unreachable_host", "HTTP/1.1 503 Reason\r\nContent-Length: 0\r\n\r\n", "1"},
    {"forbidden", "HTTP/1.1 403 Reason\r\nContent-Length: 0\r\n\r\n", "99"},
    {"closed", "", "102"},
};

INSTANTIATE_TEST_SUITE_P(Tunnels, RefusalTest, testing::ValuesIn(kRefusals), RowName());

TEST_F(ProxyTest, CallFailsWhenProxyIsUnreachable)
{
    {
        const Tunnel closed(kEstablished, 0);
        Set(closed.Port());
    }
    for (const int nHttpsMode : {0, 1}) {
        CAPIModule::GetInstance().SetHttpsMode(nHttpsMode);
        EXPECT_EQ(Get(QStringLiteral("/path")).code, -18);
    }
}

TEST_F(ProxyTest, CallFailsWhenProxyNameIsUnknown)
{
    QNetworkProxy::setApplicationProxy(
        QNetworkProxy(QNetworkProxy::HttpProxy, QStringLiteral("no-such-proxy.invalid"), kPort));
    for (const int nHttpsMode : {0, 1}) {
        CAPIModule::GetInstance().SetHttpsMode(nHttpsMode);
        EXPECT_EQ(Get(QStringLiteral("/path")).code, -18);
    }
}

}  // namespace
