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

/// How fast the server sends, and to how many calls one after another.
struct Load {
    const char* name;
    int perSecond;
    int calls = 1;
};

using testing_support::operator<<;

int Threads()
{
    const std::filesystem::directory_iterator threads("/proc/self/task");
    return int(std::distance(begin(threads), end(threads)));
}

class EndlessReply : public TransportHost,
                     public testing::WithParamInterface<std::tuple<EndlessSource, RawServer::Scheme, Load>> {};

TEST_P(EndlessReply, EndsByTheTimeOutAndReleasesEverything)
{
    const auto& [source, scheme, load] = GetParam();
    WarmUp();
    constexpr int kTimeoutSeconds = 1;
    constexpr int kGenerousMs = 2500;
    constexpr int kLeastTicks = 1;  // of a hundred on an idle machine
    RawReply reply{source.first};
    reply.moreBytes = source.repeated;
    reply.endlessPerSecond = load.perSecond;
    const int nThreads = Threads();
    const Census before = Census::Now();
    {
        const RawServer server([reply](const RawRequest&) { return reply; }, scheme);
        Use(server, scheme);
        for (int i = 0; i < load.calls; ++i) {
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
INSTANTIATE_TEST_SUITE_P(Once, EndlessReply,
                         testing::Combine(testing::ValuesIn(kEndless),
                                          testing::Values(RawServer::Http, RawServer::Https),
                                          testing::Values(Load{"fast", 500'000'000}, Load{"slow", 2'000'000})),
                         RowName());
INSTANTIATE_TEST_SUITE_P(TenTimes, EndlessReply,
                         testing::Values(std::tuple(kEndless[6], RawServer::Http, Load{"slow", 2'000'000, 10}),
                                         std::tuple(kEndless[1], RawServer::Https, Load{"slow", 2'000'000, 10})),
                         RowName());

}  // namespace
