// How often a request reaches a server that ends the connection without a reply, or that closes idle connections.
#include "support/Rows.h"
#include "TransportHost.h"

#include <QEventLoop>
#include <QThread>

#include <map>
#include <memory>
#include <mutex>
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

struct Row {
    std::string name;
    Request request;
    End end;
    RawServer::Scheme scheme;
    bool kept;  ///< whether the request is sent on a connection that carried another one before
};

void PrintTo(const Row& row, std::ostream* pStream)
{
    *pStream << row.name;
}

std::vector<Row> Rows(const std::vector<Request>& requests)
{
    std::vector<Row> rows;
    for (const Request& request : requests) {
        for (const End& end : kEnds) {
            for (const RawServer::Scheme scheme : {RawServer::Http, RawServer::Https}) {
                for (const bool bKept : {false, true}) {
                    rows.push_back({std::string(request.name) + '_' + end.name +
                                        (scheme == RawServer::Http ? "_http" : "_https") + (bKept ? "_kept" : "_new"),
                                    request, end, scheme, bKept});
                }
            }
        }
    }
    return rows;
}

class RepetitionTest : public TransportHost, public testing::WithParamInterface<Row> {
protected:
    /// Makes the row's request. @return how often it reached the server
    int Arrivals()
    {
        const auto& [name, request, end, scheme, bKept] = GetParam();
        RawServer server([reply = end.reply](
                             const RawRequest& received) { return received.target == "/ok" ? SuccessReply() : reply; },
                         scheme);
        Use(server, scheme);
        if (bKept) {
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

class WriteTest : public RepetitionTest {};

TEST_P(WriteTest, ReachesTheServerOnce)
{
    EXPECT_EQ(Arrivals(), 1);
}

INSTANTIATE_TEST_SUITE_P(Writes, WriteTest, testing::ValuesIn(Rows(kWrites)), RowName());

class ReadTest : public RepetitionTest {};

/// A kept connection may have ended before the request.
TEST_P(ReadTest, IsRepeatedOnceWhenAKeptConnectionClosesBeforeAReply)
{
    EXPECT_EQ(Arrivals(), GetParam().kept && GetParam().end.reply.bytes.isEmpty() ? 2 : 1);
}

INSTANTIATE_TEST_SUITE_P(Reads, ReadTest, testing::ValuesIn(Rows({{"get", APIModule::Method_Get, 0}})), RowName());

/// A kept connection that has ended. The host's event loop may or may not have had time to notice it.
struct EndedConnection {
    std::string name;
    RawServer::Scheme scheme;
    RawReply::Then then;
    APIModule::Method method;
    bool inEventLoop;
};

void PrintTo(const EndedConnection& row, std::ostream* pStream)
{
    *pStream << row.name;
}

std::vector<EndedConnection> EndedConnections()
{
    std::vector<EndedConnection> rows;
    for (const auto& [name, then] : {std::pair("closed", RawReply::Close), std::pair("reset", RawReply::Reset),
                                     std::pair("half_closed", RawReply::HalfClose)}) {
        for (const RawServer::Scheme scheme : {RawServer::Http, RawServer::Https}) {
            for (const APIModule::Method method : {APIModule::Method_Get, APIModule::Method_Post}) {
                for (const bool bInEventLoop : {false, true}) {
                    rows.push_back({std::string(name) + (scheme == RawServer::Http ? "_http" : "_https") +
                                        (method == APIModule::Method_Get ? "_read" : "_write") +
                                        (bInEventLoop ? "_loop" : "_sleep"),
                                    scheme, then, method, bInEventLoop});
                }
            }
        }
    }
    return rows;
}

class EndedConnectionTest : public TransportHost, public testing::WithParamInterface<EndedConnection> {};

TEST_P(EndedConnectionTest, NeitherLosesNorRepeatsCalls)
{
    const EndedConnection& row = GetParam();
    std::mutex mutex;
    std::shared_ptr<void> handle;
    RawServer server(
        [&](const RawRequest& request) {
            RawReply reply = TaggedReply(TagOf(request.target));
            if (request.target == "/first") {
                reply.then = row.then;
                reply.thenMilliseconds = 2;
                const std::lock_guard<std::mutex> lock(mutex);
                reply.done = std::move(handle);
            }
            return reply;
        },
        row.scheme);
    Use(server, row.scheme);
    constexpr int kCalls = 20;
    for (int i = 1; i <= kCalls; ++i) {
        const Signal ended;
        {
            const std::lock_guard<std::mutex> lock(mutex);
            handle = ended.Handle();
        }
        ASSERT_EQ(Get(QStringLiteral("/first")).code, 0);
        if (row.inEventLoop) {
            ASSERT_TRUE(Await([&ended] { return ended.WasRaised(); }));
        }
        while (!ended.WasRaised()) {
            QThread::usleep(100);
        }
        const CallResult second = Run(row.method, QStringLiteral("/second/%1").arg(i), QStringLiteral("{}"));
        EXPECT_EQ(second.code, 0);
        EXPECT_EQ(second.tag, i);
    }
    EXPECT_EQ(server.TakeRequests().size(), 2U * kCalls);
}

INSTANTIATE_TEST_SUITE_P(EndedConnections, EndedConnectionTest, testing::ValuesIn(EndedConnections()), RowName());

/// Earlier replies on a connection do not matter when its end marks the end of a body.
TEST_F(TransportHost, ReadsABodyUntilTheEndOfAKeptConnection)
{
    for (const RawServer::Scheme scheme : {RawServer::Http, RawServer::Https}) {
        RawServer server(
            [](const RawRequest& request) {
                return request.target == "/ok" ? SuccessReply()
                                               : RawReply{"HTTP/1.1 200 OK\r\n\r\n{\"code\":1000,\"data\":{\"n\":7}}",
                                                          0, RawReply::CloseLater};
            },
            scheme);
        Use(server, scheme);
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
    std::string name;
    RawServer::Scheme scheme;
    int idleMilliseconds;
    int servers;
    int writesPerServer;
};

void PrintTo(const PauseRow& row, std::ostream* pStream)
{
    *pStream << row.name;
}

class PauseTest : public TransportHost, public testing::WithParamInterface<PauseRow> {};

TEST_P(PauseTest, NeitherLosesNorRepeatsWrites)
{
    const PauseRow& row = GetParam();
    const int nWritesPerServer = row.writesPerServer * Times();
    std::vector<std::unique_ptr<RawServer>> servers;
    for (int i = 0; i < row.servers; ++i) {
        servers.push_back(std::make_unique<RawServer>(
            [](const RawRequest& request) { return TaggedReply(TagOf(request.target)); }, row.scheme));
        servers.back()->CloseIdleAfter(row.idleMilliseconds);
    }
    Use(*servers.front(), row.scheme);

    QEventLoop loop;
    QObject context;
    std::mt19937 random(1);  // NOLINT(cert-msc51-cpp): the same pauses in every run
    int nFailures = 0;
    int nRunning = row.servers;
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
        const int nPause = row.idleMilliseconds + std::uniform_int_distribution<int>(-20, 20)(random);
        QTimer::singleShot(nPause, Qt::PreciseTimer, &context,
                           [&write, nServer, nWrite] { write(nServer, nWrite + 1); });
    };
    for (int i = 0; i < row.servers; ++i) {
        QTimer::singleShot(i * row.idleMilliseconds / row.servers, &context, [&write, i] { write(i, 0); });
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
    EXPECT_EQ(nArrivals, row.servers * nWritesPerServer);
}

INSTANTIATE_TEST_SUITE_P(Pauses, PauseTest,
                         testing::Values(PauseRow{"1s_http", RawServer::Http, 1000, 15, 5},
                                         PauseRow{"1s_https", RawServer::Https, 1000, 15, 5},
                                         PauseRow{"5s_http", RawServer::Http, 5000, 15, 3},
                                         PauseRow{"5s_https", RawServer::Https, 5000, 15, 3}),
                         RowName());

}  // namespace
