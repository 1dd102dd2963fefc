// Servers that send endlessly. The time-out ends the call and releases all its resources.
#include "support/Rows.h"
#include "TransportHost.h"

#include <QElapsedTimer>
#include <QTimer>

#include <filesystem>

using namespace testing_support;

namespace {

/// What a server sends first, and what it then repeats.
struct EndlessSource {
    const char* name;
    QByteArray first;
    QByteArray repeated;
};

const QByteArray kOk = "HTTP/1.1 200 OK\r\n";

const std::vector<EndlessSource> kEndless = {
    {"status_line", "HTTP/1.1 200 ", "reason"},
    {"header_line", kOk + "X-A: ", "value"},
    {"header_name", kOk, "name"},
    {"empty_lines", "", "\r\n"},
    {"100_continue", "", "HTTP/1.1 100 Continue\r\n\r\n"},
    {"header_lines", kOk, "X-A: 1\r\n"},
    {"tiny_chunks", kOk + "Transfer-Encoding: chunked\r\n\r\n", "1\r\n \r\n"},
    {"chunk_extension", kOk + "Transfer-Encoding: chunked\r\n\r\n1;", "name=value;"},
    {"trailer", kOk + "Transfer-Encoding: chunked\r\n\r\n0\r\n", "X-A: 1\r\n"},
    {"spaces_before_the_status", "", " "},
    {"body", kOk + "\r\n", "body"},
};

struct Row {
    std::string name;
    EndlessSource source;
    RawServer::Scheme scheme;
    int perSecond;
    int calls;
};

void PrintTo(const Row& row, std::ostream* pStream)
{
    *pStream << row.name;
}

std::vector<Row> Rows(int nPerSecond, int nCalls)
{
    std::vector<Row> rows;
    for (const EndlessSource& source : kEndless) {
        for (const RawServer::Scheme scheme : {RawServer::Http, RawServer::Https}) {
            rows.push_back({source.name + std::string(scheme == RawServer::Http ? "_http" : "_https"), source, scheme,
                            nPerSecond, nCalls});
        }
    }
    return rows;
}

int Threads()
{
    const std::filesystem::directory_iterator threads("/proc/self/task");
    return int(std::distance(begin(threads), end(threads)));
}

class EndlessReply : public TransportHost, public testing::WithParamInterface<Row> {};

TEST_P(EndlessReply, EndsByTheTimeOutAndReleasesEverything)
{
    const Row& row = GetParam();
    WarmUp();
    constexpr int kTimeoutSeconds = 1;
    constexpr int kGenerousMs = 2500;
    constexpr int kLeastTicks = 1;  // of a hundred on an idle machine
    const int nThreads = Threads();
    const Census before = Census::Now();
    {
        const RawServer server(
            [&row](const RawRequest&) {
                RawReply reply{row.source.first};
                reply.moreBytes = row.source.repeated;
                reply.endlessPerSecond = row.perSecond;
                return reply;
            },
            row.scheme);
        Use(server, row.scheme);
        for (int i = 0; i < row.calls; ++i) {
            int nTicks = 0;
            QTimer ticks;
            QObject::connect(&ticks, &QTimer::timeout, &ticks, [&nTicks] { ++nTicks; });
            ticks.start(10);
            const Lateness lateness(kTimeoutSeconds);
            QElapsedTimer elapsed;
            elapsed.start();
            const int nCode = Run(APIModule::Method_Get, QStringLiteral("/path"), QString(), kTimeoutSeconds).code;
            // The library may reject the reply earlier because it is too large.
            EXPECT_TRUE(nCode == kTimedOut || nCode == -18) << nCode;
            EXPECT_LT(lateness.Milliseconds(), 100);
            EXPECT_LT(elapsed.elapsed(), kTimeoutSeconds * 1000 + kGenerousMs) << "the event loop was blocked";
            // The user interface stays responsive.
            EXPECT_GT(nTicks, kLeastTicks);
        }
        EXPECT_TRUE(Await([&server] { return server.OpenConnectionCount() == 0; }))
            << "the server still has " << server.OpenConnectionCount() << " connections";
    }
    EXPECT_TRUE(Await([nThreads] { return Threads() <= nThreads; })) << Threads() << " threads instead of " << nThreads;
    ExpectNoLeaks(before);
}

// As fast as possible, and slowly enough for the client to read everything.
INSTANTIATE_TEST_SUITE_P(Fast, EndlessReply, testing::ValuesIn(Rows(500'000'000, 1)), RowName());
INSTANTIATE_TEST_SUITE_P(Slow, EndlessReply, testing::ValuesIn(Rows(2'000'000, 1)), RowName());
INSTANTIATE_TEST_SUITE_P(TenTimes, EndlessReply,
                         testing::Values(Row{"tiny_chunks_http", kEndless[6], RawServer::Http, 2'000'000, 10},
                                         Row{"header_line_https", kEndless[1], RawServer::Https, 2'000'000, 10}),
                         RowName());

}  // namespace
