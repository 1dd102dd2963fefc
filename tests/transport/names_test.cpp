// Calls to servers by name: names with addresses of one family, of both, of none, and names that resolve late.
#include "faults/SilentListener.h"
#include "TransportHost.h"

#include <QTcpServer>
#include <QTcpSocket>

#include <dlfcn.h>
#include <netdb.h>

#include <atomic>
#include <chrono>
#include <map>
#include <memory>
#include <string>
#include <thread>
#include <vector>

using namespace testing_support;
using APIModule::CAPIModule;

namespace {

constexpr const char* kIpv4 = "127.0.0.1";
constexpr const char* kIpv6 = "::1";
/// Longer than the time-out of the call.
constexpr std::chrono::milliseconds kSlowLookup{1500};
std::atomic<int> slowLookups{0};

const std::map<std::string, std::vector<const char*>> kNames = {
    {"only4.example", {kIpv4}},          {"refused6.example", {kIpv6, kIpv4}}, {"refused4.example", {kIpv4, kIpv6}},
    {"silent4.example", {kIpv4, kIpv6}}, {"tls.example", {kIpv6, kIpv4}},      {"neither.example", {kIpv6, kIpv4}},
    {"slow.example", {kIpv4}},           {"twice.example", {kIpv4, kIpv6}},
};

template <typename Function>
Function* Next(const char* pName)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, pName));
}

}  // namespace

/// Replaces the resolver of the C library for the names above, so that the test needs no name server.
// NOLINTNEXTLINE(readability-inconsistent-declaration-parameter-name): those of the C library are reserved names
extern "C" Q_DECL_EXPORT int getaddrinfo(const char* pNode, const char* pService, const addrinfo* pHints,
                                         addrinfo** ppResult)
{
    static auto* const pNext = Next<decltype(getaddrinfo)>("getaddrinfo");
    const auto name = kNames.find(pNode ? pNode : "");
    if (name == kNames.end()) {
        return pNext(pNode, pService, pHints, ppResult);
    }
    if (name->first == "slow.example") {
        std::this_thread::sleep_for(kSlowLookup);
        ++slowLookups;
    }
    addrinfo hints = pHints ? *pHints : addrinfo{};
    hints.ai_flags |= AI_NUMERICHOST;
    *ppResult = nullptr;
    for (const char* const pAddress : name->second) {
        const int nError = pNext(pAddress, pService, &hints, ppResult);
        if (nError != 0) {
            return nError;
        }
        while (*ppResult) {
            ppResult = &(*ppResult)->ai_next;
        }
    }
    return 0;
}

namespace {

/// A server that replies to each request with success.
class Server : public QTcpServer {
public:
    explicit Server(const QHostAddress& address, int nPort = 0)
    {
        EXPECT_TRUE(listen(address, quint16(nPort))) << errorString().toStdString();
        connect(this, &QTcpServer::newConnection, this, [this] {
            QTcpSocket* const pClient = nextPendingConnection();
            ++connections;
            connect(pClient, &QTcpSocket::readyRead, pClient, [this, pClient] {
                if (pClient->readAll().endsWith("\r\n\r\n")) {
                    ++requests;
                    pClient->write(SuccessReply().bytes);
                }
            });
        });
    }

    int connections = 0;
    int requests = 0;
};

class NamesTest : public TransportHost {
protected:
    NamesTest() { CAPIModule::GetInstance().SetHttpsMode(0); }

    void Use(const char* pName, int nPort)
    {
        users.servers[1].host = pName;
        users.servers[1].port = nPort;
    }
};

TEST_F(NamesTest, ReachesTheOnlyAddress)
{
    const Server server(QHostAddress::LocalHost);
    Use("only4.example", server.serverPort());
    EXPECT_EQ(Get(QStringLiteral("/path")).code, 0);
    EXPECT_EQ(server.requests, 1);
}

TEST_F(NamesTest, UsesTheSecondFamilyAtOnceWhenTheFirstRefuses)
{
    const Server server4(QHostAddress::LocalHost);
    Use("refused6.example", server4.serverPort());
    EXPECT_EQ(Get(QStringLiteral("/path")).code, 0);
    EXPECT_EQ(server4.requests, 1);

    const Server server6(QHostAddress::LocalHostIPv6);
    Use("refused4.example", server6.serverPort());
    EXPECT_EQ(Get(QStringLiteral("/path")).code, 0);
    EXPECT_EQ(server6.requests, 1);
}

TEST_F(NamesTest, UsesTheSecondFamilyWhenTheFirstDoesNotReply)
{
    const SilentListener silent;
    const Server server(QHostAddress::LocalHostIPv6, silent.Port());
    Use("silent4.example", silent.Port());
    EXPECT_EQ(Get(QStringLiteral("/path")).code, 0);
    EXPECT_EQ(Get(QStringLiteral("/again")).code, 0);
    EXPECT_EQ(server.requests, 2);
    EXPECT_EQ(server.connections, 1);
}

TEST_F(NamesTest, KeepsWaitingForTheFirstFamilyWhenTheSecondRefuses)
{
    const SilentListener silent;
    Use("silent4.example", silent.Port());
    EXPECT_EQ(Run(APIModule::Method_Get, QStringLiteral("/path"), {}, 1).code, kTimedOut);
}

TEST_F(NamesTest, EncryptsOnTheSecondFamily)
{
    RawServer server([](const RawRequest&) { return SuccessReply(); }, RawServer::Https);
    CAPIModule::GetInstance().SetHttpsMode(1);
    Use("tls.example", server.Port());
    EXPECT_EQ(Get(QStringLiteral("/path")).code, 0);
    EXPECT_EQ(server.TakeRequests().size(), 1U);
}

TEST_F(NamesTest, SendsTheRequestToOneFamilyWhenBothConnect)
{
    const Server server4(QHostAddress::LocalHost);
    const Server server6(QHostAddress::LocalHostIPv6, server4.serverPort());
    Use("twice.example", server4.serverPort());
    EXPECT_EQ(Run(APIModule::Method_Delete, QStringLiteral("/path")).code, 0);
    EXPECT_EQ(server4.requests + server6.requests, 1);
}

TEST_F(NamesTest, ReportsTheRefusalWhenBothFamiliesRefuse)
{
    int nPort = 0;
    {
        const Server closed(QHostAddress::LocalHost);
        nPort = closed.serverPort();
    }
    Use("neither.example", nPort);
    logs.Take();
    EXPECT_EQ(Get(QStringLiteral("/path")).code, -18);
    const LogLines lines = logs.Take();
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[1].message, "Request failed, an internal network error occurred, qt network error code: 1, "
                                "network error info: Connection refused");
}

TEST_F(NamesTest, OpensNoConnectionWhenTheLookupEndsAfterTheCall)
{
    const Server server(QHostAddress::LocalHost);
    Use("slow.example", server.serverPort());
    EXPECT_EQ(Run(APIModule::Method_Get, QStringLiteral("/path"), {}, 1).code, kTimedOut);
    EXPECT_TRUE(Await([] { return slowLookups == 1; }));
    Use("only4.example", server.serverPort());
    EXPECT_EQ(Get(QStringLiteral("/path")).code, 0);
    EXPECT_EQ(server.connections, 1);
}

}  // namespace
