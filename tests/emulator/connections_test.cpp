// How the emulator handles many, idle and slow connections, and addresses that it cannot listen on.
#include "EmulatorTest.h"

#include <sys/resource.h>

#include <chrono>
#include <list>
#include <thread>

using std::chrono::milliseconds;
using std::chrono::seconds;
using std::chrono::steady_clock;

namespace {

constexpr std::size_t kLarge = 64UL * 1024 * 1024;
const std::string kGet =
    "GET /brms/api/v1.1/config/time-sync HTTP/1.1\r\nHost: a\r\nX-Subject-Token: emulator-token\r\n";

/// Each connection takes two file descriptors of this process.
void AllowManyFiles()
{
    rlimit files{};
    ASSERT_EQ(::getrlimit(RLIMIT_NOFILE, &files), 0);
    files.rlim_cur = files.rlim_max;
    ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &files), 0);
    ASSERT_GE(files.rlim_cur, 4096U);
}

}  // namespace

class ReadTimeoutTest : public testing::Test {
protected:
    static constexpr milliseconds kTime{300};

    RunningEmulator m_platform{With<milliseconds>(&emulator::Options::readTimeout, kTime)};
};

TEST_F(ReadTimeoutTest, SilentConnectionIsClosed)
{
    const auto begin = steady_clock::now();
    EXPECT_EQ(SendRaw(m_platform.httpPort(), ""), "");
    EXPECT_EQ(SendRaw(m_platform.httpsPort(), ""), "");
    EXPECT_GE(steady_clock::now() - begin, 2 * kTime);
}

TEST_F(ReadTimeoutTest, IdleConnectionIsClosedAfterReply)
{
    RawConnection connection(m_platform.httpPort(), kGet + "\r\n");
    EXPECT_NE(connection.receiveUntil("}}").find("\"code\":1000"), std::string::npos);
    EXPECT_EQ(connection.receiveUntil({}), "");
    EXPECT_FALSE(connection.isReset());
}

TEST_F(ReadTimeoutTest, RequestThatArrivesTooSlowlyIsClosed)
{
    for (const std::string& start : {kGet + "X: ", kGet + "Content-Length: 1000000\r\n\r\n"}) {
        RawConnection connection(m_platform.httpPort(), start);
        std::thread dribble([&connection] {
            while (connection.send("x")) {
                std::this_thread::sleep_for(kTime / 10);
            }
        });
        EXPECT_EQ(connection.receiveUntil({}), "");
        dribble.join();
    }
    EXPECT_TRUE(m_platform.requests().empty());
}

TEST_F(ReadTimeoutTest, RequestsThatArriveInTimeAreServed)
{
    const auto client = ClientOf(m_platform);
    for (int i = 0; i < 8; ++i) {
        EXPECT_EQ(client->get(kTimeSync).code(), 1000);
        std::this_thread::sleep_for(kTime / 4);
    }
    EXPECT_GE(m_platform.requests().size(), 8U);
}

TEST_F(ReadTimeoutTest, ConnectionIsClosedAfterReplyThatIsReadSlowly)
{
    AddFault(m_platform, {{"kind", "text"}, {"body", std::string(kLarge, 'x')}});
    RawConnection connection(m_platform.httpPort(), kGet + "\r\n");
    EXPECT_NE(connection.receiveUntil("\r\n\r\n").find("200 OK"), std::string::npos);
    std::this_thread::sleep_for(2 * kTime);
    const auto begin = steady_clock::now();
    EXPECT_GE(connection.receiveUntil({}).size(), kLarge / 2) << "the reply is still being sent";
    EXPECT_LT(steady_clock::now() - begin, seconds(60)) << "well before the time limit for a reply that is not read";
}

TEST_F(ReadTimeoutTest, ReplyMayTakeLongerThanReadTimeout)
{
    AddFault(m_platform, {{"kind", "delay"}, {"delayMs", (3 * kTime).count()}, {"times", 2}});
    EXPECT_EQ(ClientOf(m_platform)->get(kTimeSync).code(), 1000);
    EXPECT_EQ(ClientOf(m_platform, TestClient::Scheme::Https)->get(kTimeSync).code(), 1000);
}

TEST(ManyConnectionsTest, IdleConnectionsTakeNoThreadAndAreClosed)
{
    constexpr std::size_t kIdle = 1000;
    AllowManyFiles();
    emulator::PlatformEmulator platform(With<milliseconds>(&emulator::Options::readTimeout, seconds(20)));
    platform.start();
    const std::size_t threads = ThreadsOf("self");
    std::list<RawConnection> idle;
    for (std::size_t i = 0; i < kIdle; ++i) {
        idle.emplace_back(i % 2 == 0 ? platform.httpPort() : platform.httpsPort(), i % 4 == 0 ? kGet : "");
    }
    EXPECT_EQ(ClientOf(platform)->get(kTimeSync).code(), 1000);
    EXPECT_EQ(ClientOf(platform, TestClient::Scheme::Https)->get(kTimeSync).code(), 1000);
    EXPECT_EQ(platform.connections(), kIdle + 2);
    EXPECT_EQ(ThreadsOf("self"), threads);
    for (RawConnection& connection : idle) {
        EXPECT_EQ(connection.receiveUntil({}), "");
    }
    EXPECT_EQ(ClientOf(platform)->get(kTimeSync).code(), 1000);
}

TEST(ManyConnectionsTest, HangingRequestsTakeNoThread)
{
    constexpr std::size_t kHanging = 1000;
    AllowManyFiles();
    RunningEmulator platform;
    const std::size_t threads = ThreadsOf("self");
    AddFault(platform, {{"kind", "silent"}, {"times", static_cast<int>(kHanging)}});
    std::list<RawConnection> hanging;
    for (std::size_t i = 0; i < kHanging; ++i) {
        hanging.emplace_back(platform.httpPort(), kGet + "\r\n");
    }
    ASSERT_TRUE(platform.waitForRequests(kHanging, seconds(60)));
    EXPECT_EQ(ThreadsOf("self"), threads);
    EXPECT_EQ(ClientOf(platform)->get(kTimeSync).code(), 1000);
    platform.stop();
    for (RawConnection& connection : hanging) {
        EXPECT_EQ(connection.receiveUntil({}), "");
    }
}

class ConnectionTest : public EmulatorTest {};

TEST_F(ConnectionTest, PipelinedRequestIsServedAfterDelayedOne)
{
    AddFault(m_platform, {{"kind", "delay"}, {"delayMs", 200}});
    const std::string replies = SendRaw(m_platform.httpPort(), kGet + "\r\n" + kGet + "Connection: close\r\n\r\n");
    EXPECT_NE(replies.find("\"code\":1000", replies.find("\"code\":1000") + 1), std::string::npos) << replies;
    EXPECT_EQ(m_platform.requests().size(), 2U);
}

TEST_F(ConnectionTest, HalfCloseEndsHangingRequest)
{
    AddFault(m_platform, {{"kind", "silent"}});
    EXPECT_EQ(SendRaw(m_platform.httpPort(), kGet + "\r\n", true), "");
    EXPECT_EQ(m_platform.requests().size(), 1U);
    EXPECT_EQ(m_platform.requests().front().status, 0);
}

TEST_F(ConnectionTest, ResetFaultResetsTheConnection)
{
    ASSERT_EQ(ClientOf(m_platform)->post("/emulator/v1/faults", Json{{"kind", "reset"}}).status, 201);
    RawConnection connection(m_platform.httpPort(), kGet + "\r\n");
    EXPECT_EQ(connection.receiveUntil({}), "");
    EXPECT_TRUE(connection.isReset());
    EXPECT_EQ(m_platform.requests().back().status, 0);

    AddFault(m_platform, {{"kind", "closeBefore"}});
    RawConnection other(m_platform.httpPort(), kGet + "\r\n");
    EXPECT_EQ(other.receiveUntil({}), "");
    EXPECT_FALSE(other.isReset());
}

TEST_F(ConnectionTest, TruncatedReplyHasFullContentLengthAndHalfOfTheBody)
{
    const std::string whole = ClientOf(m_platform)->get(kTimeSync).body;
    AddFault(m_platform, {{"kind", "closeMiddle"}});
    RawConnection connection(m_platform.httpPort(), kGet + "\r\n");
    const std::string reply = connection.receiveUntil({});
    EXPECT_NE(reply.find("Content-Length: " + std::to_string(whole.size()) + "\r\n"), std::string::npos) << reply;
    EXPECT_EQ(reply.substr(reply.find("\r\n\r\n") + 4), whole.substr(0, whole.size() / 2));
    EXPECT_FALSE(connection.isReset());
}

TEST_F(ConnectionTest, StopsWhileClientDoesNotReadItsReply)
{
    AddFault(m_platform, {{"kind", "text"}, {"body", std::string(kLarge, 'x')}});
    RawConnection connection(m_platform.httpPort(), kGet + "\r\n");
    EXPECT_NE(connection.receiveUntil("\r\n\r\n").find("200 OK"), std::string::npos);
    EXPECT_EQ(ClientOf(m_platform)->get(kTimeSync).code(), 1000) << "others are served meanwhile";
    m_platform.stop();
    EXPECT_LT(connection.receiveUntil({}).size(), kLarge);
}

/// The error when an emulator with these options starts; empty for none.
std::string StartError(const emulator::Options& options)
{
    return ErrorOf<std::runtime_error>([&] { const RunningEmulator platform(options); });
}

struct UnusableAddress {
    const char* name;
    const char* address;
    const char* reason;
};

class ListenTest : public testing::TestWithParam<UnusableAddress> {};

TEST_P(ListenTest, ReportsWhyItCannotListen)
{
    EXPECT_EQ(StartError(With<std::string>(&emulator::Options::address, GetParam().address)), GetParam().reason);
}

INSTANTIATE_TEST_SUITE_P(
    Addresses, ListenTest,
    testing::Values(
        UnusableAddress{"NotLocal", "192.0.2.1", "cannot listen on 192.0.2.1:0: this machine has no such address"},
        UnusableAddress{"NotLocalIpv6", "2001:db8::1",
                        "cannot listen on [2001:db8::1]:0: this machine has no such address"},
        UnusableAddress{"Unknown", "no.such.host.invalid", "cannot listen on no.such.host.invalid:0: unknown address"}),
    RowName());

TEST(PortTest, ReportsThatPortIsTaken)
{
    RunningEmulator first;
    for (const auto port : {&emulator::Options::httpPort, &emulator::Options::httpsPort}) {
        EXPECT_EQ(StartError(With(port, first.httpPort())),
                  "cannot listen on 127.0.0.1:" + std::to_string(first.httpPort()) + ": the port is in use");
    }
}

TEST(PortTest, ReportsMissingPermissionForPort)
{
    const std::string error = StartError(With(&emulator::Options::httpPort, 1));
    if (error.empty()) {
        GTEST_SKIP() << "this user may listen on any port";
    }
    EXPECT_EQ(error, "cannot listen on 127.0.0.1:1: permission denied");
}

TEST(PortTest, PortIsFreeAgainAfterAStop)
{
    emulator::Options options;
    {
        const RunningEmulator first;
        EXPECT_EQ(ClientOf(first)->get(kTimeSync).code(), 1000);
        options.httpPort = first.httpPort();
        options.httpsPort = first.httpsPort();
    }
    const RunningEmulator second(options);
    EXPECT_EQ(ClientOf(second)->get(kTimeSync).code(), 1000);
}

TEST(PortTest, HostNameIsAcceptedAsAddress)
{
    const RunningEmulator platform(With<std::string>(&emulator::Options::address, "localhost"));
    EXPECT_EQ(ClientOf(platform)->get(kTimeSync).code(), 1000);
}
