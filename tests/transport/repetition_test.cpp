// How often a request reaches a server that ends the connection without a reply, or that closes idle connections.
#include "support/Rows.h"
#include "TransportHost.h"

#include <QEventLoop>

#include <map>
#include <memory>
#include <random>

using namespace testing_support;

namespace {

constexpr int kNetworkError = -18;

struct Request {
    const char* name;
    APIModule::Method method;
    int bodySize;
};

const std::vector<Request> kWrites = {
    {"post_0", APIModule::Method_Post, 0},
    {"post_2", APIModule::Method_Post, 2},
    {"post_300000", APIModule::Method_Post, 300000},
    {"put_0", APIModule::Method_Put, 0},
    {"put_2", APIModule::Method_Put, 2},
    {"put_300000", APIModule::Method_Put, 300000},
    {"delete_0", APIModule::Method_Delete, 0},
    {"delete_2", APIModule::Method_Delete, 2},
    {"delete_300000", APIModule::Method_Delete, 300000},
};

/// What a server does with a request after reading it completely.
struct End {
    const char* name;
    RawReply reply;
};

const std::vector<End> kEnds = {
    {"closed", {"", 0, RawReply::Close}},
    {"closed_later", {"", 0, RawReply::CloseLater}},
    {"reset", {"", 0, RawReply::Reset}},
    {"half_closed", {"", 0, RawReply::HalfClose}},
    {"closed_in_the_status", {"HTTP/1.1 2", 0, RawReply::Close}},
    {"reset_in_the_head", {"HTTP/1.1 200 OK\r\nContent-", 0, RawReply::Reset}},
    {"closed_after_100", {"HTTP/1.1 100 Continue\r\n\r\n", 0, RawReply::Close}},
};

/// Whether a request is sent on a connection that carried another one before.
enum class Connection {
    New,
    Kept
};

std::string NameOf(Connection connection)
{
    return connection == Connection::New ? "new" : "kept";
}

using testing_support::operator<<;

class RepetitionTest : public TransportHost,
                       public testing::WithParamInterface<std::tuple<Request, End, RawServer::Scheme, Connection>> {
protected:
    /// Makes the row's request. @return how often it reached the server
    int Arrivals()
    {
        const auto& [request, end, scheme, connection] = GetParam();
        RawServer& server =
            Serve([reply = end.reply](
                      const RawRequest& received) { return received.target == "/ok" ? SuccessReply() : reply; },
                  scheme);
        if (connection == Connection::Kept) {
            EXPECT_EQ(Get(QStringLiteral("/ok")).code, 0);
        }
        const QString body(request.bodySize, QLatin1Char('1'));
        EXPECT_EQ(Run(request.method, QStringLiteral("/path"), body).code, kNetworkError);
        int nArrivals = 0;
        for (const RawRequest& received : server.TakeRequests()) {
            if (received.target == "/path") {
                EXPECT_EQ(received.body.size(), request.bodySize);
                ++nArrivals;
            }
        }
        EXPECT_EQ(Get(QStringLiteral("/ok")).code, 0) << "the next call must succeed";
        return nArrivals;
    }
};

auto EndsOf(const std::vector<Request>& requests)
{
    return testing::Combine(testing::ValuesIn(requests), testing::ValuesIn(kEnds),
                            testing::Values(RawServer::Http, RawServer::Https),
                            testing::Values(Connection::New, Connection::Kept));
}

class WriteTest : public RepetitionTest {};

TEST_P(WriteTest, ReachesTheServerOnce)
{
    EXPECT_EQ(Arrivals(), 1);
}

INSTANTIATE_TEST_SUITE_P(Writes, WriteTest, EndsOf(kWrites), RowName());

class ReadTest : public RepetitionTest {};

/// A kept connection may have ended before the request.
TEST_P(ReadTest, IsRepeatedOnceWhenAKeptConnectionClosesBeforeAReply)
{
    const auto& [request, end, scheme, connection] = GetParam();
    EXPECT_EQ(Arrivals(), connection == Connection::Kept && end.reply.bytes.isEmpty() ? 2 : 1);
}

INSTANTIATE_TEST_SUITE_P(Reads, ReadTest, EndsOf({{"get", APIModule::Method_Get, 0}}), RowName());

/// A kept connection that has ended. The host's event loop may or may not have had time to notice it.
class EndedConnectionTest : public TransportHost,
                            public testing::WithParamInterface<std::tuple<End, RawServer::Scheme, Request, Pause>> {};

TEST_P(EndedConnectionTest, NeitherLosesNorRepeatsCalls)
{
    const auto& [end, scheme, request, pause] = GetParam();
    std::atomic<int> ended{0};
    RawServer server(
        [&, then = end.reply.then](const RawRequest& received) {
            RawReply reply = TaggedReply(TagOf(received.target));
            if (received.target == "/first") {
                reply.then = then;
                reply.thenMilliseconds = 2;
                reply.done = CountedIn(ended);
            }
            return reply;
        },
        scheme);
    Use(server, scheme);
    constexpr int kCalls = 20;
    for (int i = 1; i <= kCalls; ++i) {
        ASSERT_EQ(Get(QStringLiteral("/first")).code, 0);
        AwaitCount(ended, i, pause);
        const CallResult second = Run(request.method, QStringLiteral("/second/%1").arg(i), QStringLiteral("{}"));
        EXPECT_EQ(second.code, 0);
        EXPECT_EQ(second.tag, i);
    }
    EXPECT_EQ(server.TakeRequests().size(), 2U * kCalls);
}

INSTANTIATE_TEST_SUITE_P(EndedConnections, EndedConnectionTest,
                         testing::Combine(testing::Values(kEnds[0], kEnds[2], kEnds[3]),
                                          testing::Values(RawServer::Http, RawServer::Https),
                                          testing::Values(Request{"read", APIModule::Method_Get, 2},
                                                          Request{"write", APIModule::Method_Post, 2}),
                                          testing::Values(Pause::Loop, Pause::Sleep)),
                         RowName());

/// Earlier replies on a connection do not matter when its end marks the end of a body.
TEST_F(TransportHost, ReadsABodyUntilTheEndOfAKeptConnection)
{
    for (const RawServer::Scheme scheme : {RawServer::Http, RawServer::Https}) {
        RawServer& server = Serve(
            [](const RawRequest& request) {
                return request.target == "/ok" ? SuccessReply()
                                               : RawReply{"HTTP/1.1 200 OK\r\n\r\n{\"code\":1000,\"data\":{\"n\":7}}",
                                                          0, RawReply::CloseLater};
            },
            scheme);
        for (int i = 0; i < 3; ++i) {
            ASSERT_EQ(Get(QStringLiteral("/ok")).code, 0);
        }
        const CallResult ended = Get(QStringLiteral("/path"));
        EXPECT_EQ(ended.code, 0);
        EXPECT_EQ(ended.tag, 7);
        EXPECT_EQ(server.ConnectionCount(), 1);
    }
}

/// Writes to servers that close idle connections, with pauses about as long as the servers' idle time.
struct PauseRow {
    const char* name;
    int idleMilliseconds;
    int servers;
    int writesPerServer;
};

class PauseTest : public TransportHost, public testing::WithParamInterface<std::tuple<PauseRow, RawServer::Scheme>> {};

TEST_P(PauseTest, NeitherLosesNorRepeatsWrites)
{
    const PauseRow& pause = std::get<0>(GetParam());
    const RawServer::Scheme scheme = std::get<1>(GetParam());
    const int nWritesPerServer = pause.writesPerServer * Times();
    std::vector<std::unique_ptr<RawServer>> servers;
    for (int i = 0; i < pause.servers; ++i) {
        servers.push_back(std::make_unique<RawServer>(
            [](const RawRequest& request) { return TaggedReply(TagOf(request.target)); }, scheme));
        servers.back()->CloseIdleAfter(pause.idleMilliseconds);
    }
    Use(*servers.front(), scheme);

    QEventLoop loop;
    QObject context;
    std::mt19937 random(1);  // NOLINT(cert-msc51-cpp): the same pauses in every run
    int nFailures = 0;
    int nRunning = pause.servers;
    // Calls to the same server follow one another; calls to other servers run meanwhile.
    std::function<void(int, int)> write = [&](int nServer, int nWrite) {
        if (nWrite == nWritesPerServer) {
            if (--nRunning == 0) {
                loop.quit();
            }
            return;
        }
        users.servers[1].port = servers[std::size_t(nServer)]->Port();
        const CallResult ended = Run(nWrite % 2 == 0 ? APIModule::Method_Post : APIModule::Method_Put,
                                     QStringLiteral("/write/%1").arg(nWrite), QStringLiteral("{}"));
        nFailures += ended.code != 0 || ended.tag != nWrite ? 1 : 0;
        const int nPause = pause.idleMilliseconds + std::uniform_int_distribution<int>(-20, 20)(random);
        QTimer::singleShot(nPause, Qt::PreciseTimer, &context,
                           [&write, nServer, nWrite] { write(nServer, nWrite + 1); });
    };
    for (int i = 0; i < pause.servers; ++i) {
        QTimer::singleShot(i * pause.idleMilliseconds / pause.servers, &context, [&write, i] { write(i, 0); });
    }
    loop.exec();

    EXPECT_EQ(nFailures, 0);
    int nArrivals = 0;
    for (const auto& pServer : servers) {
        std::map<QByteArray, int> arrivals;
        for (const RawRequest& request : pServer->TakeRequests()) {
            ++nArrivals;
            EXPECT_EQ(++arrivals[request.target], 1) << request.target.constData();
        }
    }
    EXPECT_EQ(nArrivals, pause.servers * nWritesPerServer);
}

INSTANTIATE_TEST_SUITE_P(Pauses, PauseTest,
                         testing::Combine(testing::Values(PauseRow{"1s", 1000, 15, 5}, PauseRow{"5s", 5000, 15, 3}),
                                          testing::Values(RawServer::Http, RawServer::Https)),
                         RowName());

}  // namespace
