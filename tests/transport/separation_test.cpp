// Calls between Init and UnInit share connections, and nothing else.
#include "support/Rows.h"
#include "TransportHost.h"

#include <QTimer>

#include <utility>

using namespace testing_support;
using APIModule::CAPIModule;

namespace {

class Separation : public TransportHost, public testing::WithParamInterface<RawServer::Scheme> {};

RawReply WithCookie(const RawRequest&)
{
    return HttpReply(200, R"({"code":1000,"data":{"n":1}})",
                     "Set-Cookie: session=secret; Path=/\r\nSet-Cookie: all=1; Domain=127.0.0.1\r\n");
}

TEST_P(Separation, CookiesAreNotSentBack)
{
    RawServer server(WithCookie, GetParam());
    RawServer otherPort(WithCookie, GetParam());
    for (RawServer* const pServer : {&server, &server, &otherPort, &server}) {
        Use(*pServer, GetParam());
        for (const APIModule::Method method : {APIModule::Method_Get, APIModule::Method_Post}) {
            ASSERT_EQ(Run(method, QStringLiteral("/path"), QStringLiteral("{}")).code, 0);
            for (const RawRequest& request : pServer->TakeRequests()) {
                EXPECT_TRUE(request.Values("Cookie").isEmpty()) << request.head.constData();
            }
        }
    }
}

TEST_P(Separation, CredentialsAreNotSent)
{
    RawServer& server = Serve(HttpReply(401, "{}", "WWW-Authenticate: Basic realm=\"x\"\r\n"), GetParam());
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(Get(QStringLiteral("/path")).code, 7000);
    }
    const std::vector<RawRequest> requests = server.TakeRequests();
    EXPECT_EQ(requests.size(), 2U);
    for (const RawRequest& request : requests) {
        EXPECT_TRUE(request.Values("Authorization").isEmpty());
    }
}

TEST_P(Separation, ConnectionsAreKeptUntilUnInit)
{
    RawServer& server = Serve(SuccessReply(), GetParam());
    for (int nUse = 1; nUse <= 3; ++nUse) {
        for (int i = 0; i < 4; ++i) {
            ASSERT_EQ(Get(QStringLiteral("/path")).code, 0);
        }
        for (const RawRequest& request : server.TakeRequests()) {
            EXPECT_EQ(request.connection, nUse);
        }
        CAPIModule::GetInstance().UnInit();
        EXPECT_TRUE(Await([&server] { return server.OpenConnectionCount() == 0; })) << "after UnInit";
        CAPIModule::GetInstance().Init(&users);
    }
    EXPECT_EQ(server.ConnectionCount(), 3);
}

TEST_P(Separation, ConnectionIsNotUsedAgainAfterRepliesThatEndIt)
{
    RawServer server(
        [](const RawRequest& request) {
            return RawReply{request.target == "/chunks"
                                ? "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\nnone\r\n"
                                : "HTTP/1.0 200 OK\r\nContent-Length: 13\r\n\r\n{\"code\":1000}"};
        },
        GetParam());
    Use(server, GetParam());
    int nConnection = 0;
    for (const auto& [path, code] : {std::pair("/chunks", -1), std::pair("/old", 0), std::pair("/chunks", -1)}) {
        EXPECT_EQ(Get(QString::fromLatin1(path)).code, code);
        EXPECT_EQ(server.TakeRequests().at(0).connection, ++nConnection) << path;
    }
}

/// A call that waits during UnInit returns its result, on a connection that no later call uses.
TEST_P(Separation, WaitingCallDoesNotShareItsConnection)
{
    RawServer& server =
        Serve([](const RawRequest& request) { return Delayed(SuccessReply(), request.target == "/waits" ? 200 : 0); },
              GetParam());
    ASSERT_EQ(Get(QStringLiteral("/path")).code, 0);
    QObject context;
    QTimer::singleShot(50, &context, [this] {
        CAPIModule::GetInstance().UnInit();
        CAPIModule::GetInstance().Init(&users);
        EXPECT_EQ(Get(QStringLiteral("/meanwhile")).code, 0);
    });
    EXPECT_EQ(Get(QStringLiteral("/waits")).code, 0);
    EXPECT_EQ(Get(QStringLiteral("/path")).code, 0);
    const std::vector<RawRequest> requests = server.TakeRequests();
    ASSERT_EQ(requests.size(), 4U);
    EXPECT_EQ(requests[0].connection, 1);
    EXPECT_EQ(requests[1].connection, 1) << "the waiting call";
    EXPECT_EQ(requests[2].connection, 2) << "the call made meanwhile";
    EXPECT_EQ(requests[3].connection, 2) << "after both calls";
    EXPECT_TRUE(Await([&server] { return server.OpenConnectionCount() == 1; }));
}

INSTANTIATE_TEST_SUITE_P(Schemes, Separation, testing::Values(RawServer::Http, RawServer::Https), RowName());

}  // namespace
