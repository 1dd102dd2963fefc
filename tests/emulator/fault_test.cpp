#include "EmulatorTest.h"

#include <atomic>
#include <chrono>
#include <future>
#include <thread>
#include <vector>

using emulator::Fault;
using std::chrono::milliseconds;
using std::chrono::steady_clock;

namespace {

constexpr const char* kPrivacy = "/brms/api/v1.1/config/ai/privacy";
constexpr milliseconds kLong{30'000};

}  // namespace

class FaultTest : public EmulatorTest, public testing::WithParamInterface<TestClient::Scheme> {
protected:
    enum Execution {
        Executed,
        NotExecuted
    };

    Reply get() { return m_client->get(kTimeSync); }

    /// The reply to a call that hits the fault. Checks whether a write that hits it is executed, and that the next call
    /// succeeds, on the same connection or a new one.
    Reply replyWith(const Json& fault, Execution execution)
    {
        AddFault(m_platform, fault);
        Reply reply = get();
        const Json before = m_platform.state();
        AddFault(m_platform, fault);
        ClientOf(m_platform, GetParam())->put(kPrivacy, {{"enable", 1}});
        m_platform.clearFaults();
        EXPECT_EQ(m_platform.state() != before, execution == Executed);
        m_platform.reset();
        EXPECT_EQ(get().code(), 1000);
        return reply;
    }

    /// Sends a call that is still running when the request has arrived.
    template <typename Call>
    std::future<Reply> hanging(Call call)
    {
        std::future<Reply> reply = std::async(std::launch::async, call);
        EXPECT_TRUE(m_platform.waitForRequests(2, kLong));
        return reply;
    }
    std::future<Reply> hangingGet()
    {
        return hanging([this] { return get(); });
    }

    std::unique_ptr<TestClient> m_client = ClientOf(m_platform, GetParam());
    const std::string m_normalBody = get().body;
};

INSTANTIATE_TEST_SUITE_P(Schemes, FaultTest, testing::Values(TestClient::Scheme::Http, TestClient::Scheme::Https),
                         SchemeName);

TEST_P(FaultTest, DelaysTheNormalReply)
{
    const auto begin = steady_clock::now();
    EXPECT_EQ(replyWith({{"kind", "delay"}, {"delayMs", 300}}, Executed).body, m_normalBody);
    EXPECT_GE(steady_clock::now() - begin, 2 * milliseconds(300)) << "a read and a write";
}

TEST_P(FaultTest, DelayCombinesWithOtherKinds)
{
    AddFault(m_platform, {{"kind", "notJson"}, {"delayMs", 200}});
    const auto begin = steady_clock::now();
    EXPECT_TRUE(get().json().is_discarded());
    EXPECT_GE(steady_clock::now() - begin, milliseconds(200));
}

TEST_P(FaultTest, SendsStatusWithHeadersAndBody)
{
    for (const int status : {200, 204, 302, 401, 403, 404, 407, 500, 503, 599}) {
        const std::string body = status == 204 ? "" : "text";
        const Reply reply =
            replyWith({{"kind", "status"},
                       {"status", status},
                       {"headers", {{"WWW-Authenticate", "Basic realm=\"x\""}, {"Location", "/elsewhere"}}},
                       {"body", body}},
                      NotExecuted);
        EXPECT_EQ(reply.status, status);
        EXPECT_EQ(reply.body, body);
        EXPECT_EQ(reply.headers.find("WWW-Authenticate")->second, "Basic realm=\"x\"");
        EXPECT_EQ(reply.headers.find("Location")->second, "/elsewhere");
    }
}

TEST_P(FaultTest, SendsEnvelopeWithCodeAndText)
{
    const std::string desc = "wörter \"und\" %s";
    const Reply reply = replyWith({{"kind", "envelope"}, {"code", -7}, {"desc", desc}}, NotExecuted);
    EXPECT_EQ(reply.status, 200);
    EXPECT_EQ(reply.json(), (Json{{"code", -7}, {"desc", desc}}));
}

TEST_P(FaultTest, SendsEmptyBody)
{
    const Reply reply = replyWith({{"kind", "empty"}}, NotExecuted);
    EXPECT_TRUE(reply.arrived);
    EXPECT_EQ(reply.status, 200);
    EXPECT_EQ(reply.body, "");
}

TEST_P(FaultTest, SendsTruncatedBodyAsCompleteHttpReply)
{
    const Reply reply = replyWith({{"kind", "cut"}}, Executed);
    EXPECT_TRUE(reply.arrived);
    EXPECT_EQ(reply.status, 200);
    EXPECT_EQ(reply.body, m_normalBody.substr(0, m_normalBody.size() / 2));
    EXPECT_TRUE(reply.json().is_discarded());
}

TEST_P(FaultTest, SendsBodyThatIsNotJson)
{
    const Reply reply = replyWith({{"kind", "notJson"}}, NotExecuted);
    EXPECT_EQ(reply.status, 200);
    EXPECT_FALSE(reply.body.empty());
    EXPECT_TRUE(reply.json().is_discarded());
}

TEST_P(FaultTest, SendsGivenText)
{
    const std::string body = std::string(100'000, '[') + std::string(1, '\0') + "\xff";
    EXPECT_EQ(replyWith({{"kind", "text"}, {"body", body}}, NotExecuted).body, body);
}

TEST_P(FaultTest, LargeBodyHasRequestedSizeAndNormalData)
{
    for (const std::size_t size : {1'000UL, 5UL * 1024 * 1024}) {
        const Reply reply = replyWith({{"kind", "large"}, {"size", size}}, Executed);
        EXPECT_EQ(reply.body.size(), size);
        EXPECT_EQ(reply.data(), Json::parse(m_normalBody).at("data"));
    }
    EXPECT_EQ(replyWith({{"kind", "large"}, {"size", 10}}, Executed).json(), Json::parse(m_normalBody))
        << "never smaller than the normal reply";
}

TEST_P(FaultTest, SendsHundredMegabytes)
{
    Fault fault;
    fault.kind = Fault::Kind::Text;
    fault.body.assign(100UL * 1024 * 1024, 'x');
    m_platform.addFault(fault);
    EXPECT_EQ(get().body.size(), fault.body.size());
}

TEST_P(FaultTest, ClosesConnectionBeforeReply)
{
    AddFault(m_platform, {{"kind", "closeBefore"}});
    get();
    EXPECT_EQ(m_platform.requests().back().status, 0);
    EXPECT_FALSE(replyWith({{"kind", "closeBefore"}}, NotExecuted).arrived);
}

TEST_P(FaultTest, ClosesConnectionInTheMiddleOfReply)
{
    EXPECT_FALSE(replyWith({{"kind", "closeMiddle"}}, Executed).arrived);
}

TEST_P(FaultTest, SilenceLastsUntilClientDisconnects)
{
    AddFault(m_platform, {{"kind", "silent"}});
    std::future<Reply> reply = hangingGet();
    EXPECT_EQ(ClientOf(m_platform, GetParam())->get(kTimeSync).code(), 1000) << "others are served meanwhile";
    EXPECT_EQ(reply.wait_for(milliseconds(100)), std::future_status::timeout);
    m_client->abort();
    EXPECT_FALSE(reply.get().arrived);
    m_client = ClientOf(m_platform, GetParam());
    EXPECT_EQ(get().code(), 1000);
}

TEST_P(FaultTest, SilenceLastsUntilEmulatorStops)
{
    AddFault(m_platform, {{"kind", "silent"}});
    std::future<Reply> reply = hangingGet();
    const auto begin = steady_clock::now();
    m_platform.stop();
    EXPECT_FALSE(reply.get().arrived);
    EXPECT_LT(steady_clock::now() - begin, kLong);
}

TEST_P(FaultTest, DelayedWriteIsDroppedWhenClientDisconnects)
{
    AddFault(m_platform, {{"kind", "delay"}, {"delayMs", 3'600'000}});
    std::future<Reply> reply = hanging([this] { return m_client->put(kPrivacy, {{"enable", 1}}); });
    m_client->abort();
    EXPECT_FALSE(reply.get().arrived);
    m_platform.stop();
    EXPECT_EQ(m_platform.state()["brms"]["aiPrivacy"]["enable"], 0);
}

TEST_P(FaultTest, ThrottlesTheNormalReply)
{
    const Json fault = {{"kind", "slow"}, {"bytesPerSecond", m_normalBody.size() * 5}};
    AddFault(m_platform, fault);
    const auto begin = steady_clock::now();
    EXPECT_EQ(get().body, m_normalBody);
    EXPECT_GE(steady_clock::now() - begin, milliseconds(200));
    EXPECT_EQ(m_platform.connections(), 1U) << "the connection is kept";
    EXPECT_EQ(replyWith(fault, Executed).body, m_normalBody);
}

TEST_P(FaultTest, ThrottlesToVeryLowAndVeryHighRates)
{
    AddFault(m_platform, {{"kind", "slow"}, {"path", "/brms/api/v1.1/user/group?ids="}, {"bytesPerSecond", 1}});
    std::future<Reply> reply = hanging([this] { return m_client->remove("/brms/api/v1.1/user/group?ids=nobody"); });
    EXPECT_EQ(reply.wait_for(std::chrono::seconds(2)), std::future_status::timeout);
    m_client->abort();
    EXPECT_FALSE(reply.get().arrived);

    AddFault(m_platform, {{"kind", "slow"}, {"bytesPerSecond", 1024 * 1024 * 1024}});
    m_client = ClientOf(m_platform, GetParam());
    EXPECT_EQ(get().body, m_normalBody);
}

TEST_P(FaultTest, SlowReplyEndsWhenEmulatorStops)
{
    AddFault(m_platform, {{"kind", "slow"}, {"bytesPerSecond", 1}});
    std::future<Reply> reply = hangingGet();
    m_platform.stop();
    EXPECT_FALSE(reply.get().arrived);
}

TEST(SlowFaultTest, SendsHeadFirstAndBodyInPieces)
{
    RunningEmulator platform;
    AddFault(platform, {{"kind", "slow"}, {"bytesPerSecond", 20}});
    RawConnection connection(platform.httpPort(), "GET /brms/ HTTP/1.1\r\nHost: a\r\nConnection: close\r\n\r\n");
    const std::string head = connection.receive();
    EXPECT_EQ(head.substr(head.size() - 4), "\r\n\r\n") << head;
    std::size_t pieces = 0;
    std::string body;
    for (std::string piece = connection.receive(); !piece.empty(); piece = connection.receive()) {
        ++pieces;
        body += piece;
    }
    EXPECT_EQ(Json::parse(body).at("code"), 401);
    EXPECT_GT(pieces, 1U);
}

class FaultListTest : public EmulatorTest {
protected:
    int codeOf(const std::string& target) { return m_client->get(target).code(); }
    void addEnvelope(const std::string& path, int code, int times)
    {
        AddFault(m_platform, {{"kind", "envelope"}, {"path", path}, {"code", code}, {"times", times}});
    }

    std::unique_ptr<TestClient> m_client = ClientOf(m_platform);
};

TEST_F(FaultListTest, AppliesToItsPathTheGivenNumberOfTimes)
{
    addEnvelope("/brms/api/v1.1/config/time", 5, 2);
    EXPECT_EQ(codeOf(kPrivacy), 1000);
    EXPECT_EQ(codeOf(kTimeSync), 5);
    ASSERT_EQ(m_platform.faults().size(), 1U);
    EXPECT_EQ(m_platform.faults().front().times, 1);
    EXPECT_EQ(codeOf(kTimeSync), 5);
    EXPECT_TRUE(m_platform.faults().empty());
    EXPECT_EQ(codeOf(kTimeSync), 1000);
}

TEST_F(FaultListTest, ZeroTimesMeansUntilCleared)
{
    addEnvelope("", 5, 0);
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(codeOf(kTimeSync), 5);
    }
    m_platform.clearFaults();
    EXPECT_EQ(codeOf(kTimeSync), 1000);
}

TEST_F(FaultListTest, FirstMatchingFaultApplies)
{
    addEnvelope("/brms/", 5, 1);
    addEnvelope("/brms/", 6, 1);
    EXPECT_EQ(codeOf(kTimeSync), 5);
    EXPECT_EQ(codeOf(kTimeSync), 6);
}

TEST_F(FaultListTest, PathPrefixMayIncludeQuery)
{
    addEnvelope("/brms/api/v1.1/config/local/setting?settingType=2", 5, 0);
    EXPECT_EQ(codeOf("/brms/api/v1.1/config/local/setting?settingType=1"), 1000);
    EXPECT_EQ(codeOf("/brms/api/v1.1/config/local/setting?settingType=2"), 5);
}

TEST_F(FaultListTest, AppliesOnlyToItsMethod)
{
    AddFault(m_platform, {{"kind", "envelope"}, {"path", kPrivacy}, {"code", 5}, {"method", "PUT"}});
    EXPECT_EQ(codeOf(kPrivacy), 1000);
    EXPECT_EQ(m_client->put(kPrivacy, {{"enable", 1}}).code(), 5);
    EXPECT_EQ(m_client->put(kPrivacy, {{"enable", 1}}).code(), 1000);
}

TEST_F(FaultListTest, AppliesToRequestsOfItsOperation)
{
    AddFault(m_platform, {{"kind", "envelope"}, {"code", 5}, {"times", 0}, {"operation", "BRMS.GetTimeSyncConfig"}});
    EXPECT_EQ(codeOf(kTimeSync), 5);
    EXPECT_EQ(codeOf(std::string(kTimeSync) + "?x=1"), 5);
    EXPECT_EQ(codeOf(kPrivacy), 1000);
    EXPECT_EQ(codeOf("/nowhere"), 1001);
    EXPECT_NE(m_client->put(kTimeSync, Json::object()).code(), 5);
    EXPECT_EQ(m_client->post(std::string(kTimeSync) + "/immediate", {}).code(), 1000);

    EXPECT_THROW(AddFault(m_platform, {{"kind", "empty"}, {"operation", "BRMS.GetTimeSync"}}), std::invalid_argument);
}

TEST_F(FaultListTest, SkipsMatchingRequestsBeforeItApplies)
{
    AddFault(m_platform, {{"kind", "envelope"}, {"path", kTimeSync}, {"code", 5}, {"skip", 2}, {"times", 2}});
    EXPECT_EQ(codeOf(kTimeSync), 1000);
    EXPECT_EQ(codeOf(kPrivacy), 1000) << "does not match and is not counted";
    EXPECT_EQ(codeOf(kTimeSync), 1000);
    EXPECT_EQ(codeOf(kTimeSync), 5);
    EXPECT_EQ(codeOf(kTimeSync), 5);
    EXPECT_EQ(codeOf(kTimeSync), 1000);
}

TEST_F(FaultListTest, SkippedRequestIsLeftToTheNextFault)
{
    AddFault(m_platform, {{"kind", "envelope"}, {"path", kTimeSync}, {"code", 5}, {"skip", 1}});
    addEnvelope(kTimeSync, 6, 1);
    EXPECT_EQ(codeOf(kTimeSync), 6);
    EXPECT_EQ(codeOf(kTimeSync), 5);
    EXPECT_EQ(codeOf(kTimeSync), 1000);
}

TEST_F(FaultListTest, AppliesBeforeTokenAndPathAreChecked)
{
    addEnvelope("/nowhere", 5, 1);
    EXPECT_EQ(ClientOf(m_platform, TestClient::Scheme::Http, "")->get("/nowhere").code(), 5);
}

class ConcurrencyTest : public EmulatorTest {};

TEST_F(ConcurrencyTest, HangingRequestsDoNotBlockOthers)
{
    constexpr std::size_t kHanging = 60;
    AddFault(m_platform, {{"kind", "silent"}, {"path", kTimeSync}, {"times", 0}});
    std::vector<std::future<Reply>> hanging;
    for (std::size_t i = 0; i < kHanging; ++i) {
        const auto scheme = i % 2 == 0 ? TestClient::Scheme::Http : TestClient::Scheme::Https;
        hanging.push_back(
            std::async(std::launch::async, [this, scheme] { return ClientOf(m_platform, scheme)->get(kTimeSync); }));
    }
    ASSERT_TRUE(m_platform.waitForRequests(kHanging, kLong));
    EXPECT_EQ(ClientOf(m_platform, TestClient::Scheme::Http)->get(kPrivacy).code(), 1000);
    EXPECT_EQ(ClientOf(m_platform, TestClient::Scheme::Https)->get(kPrivacy).code(), 1000);
    EXPECT_EQ(m_platform.connections(), kHanging + 2);
    m_platform.stop();
    for (std::future<Reply>& reply : hanging) {
        EXPECT_FALSE(reply.get().arrived);
    }
}

TEST_F(ConcurrencyTest, ConcurrentWritesAllSucceed)
{
    constexpr int kClients = 8;
    constexpr int kCalls = 25;
    std::vector<std::thread> threads;
    threads.reserve(kClients);
    std::atomic<int> succeeded = 0;
    for (int i = 0; i < kClients; ++i) {
        threads.emplace_back([this, i, &succeeded] {
            const auto client = ClientOf(m_platform, i % 2 == 0 ? TestClient::Scheme::Http : TestClient::Scheme::Https);
            for (int call = 0; call < kCalls; ++call) {
                const Json group = {{"groupName", std::to_string(i)}, {"memo", std::to_string(call)}};
                succeeded += client->post("/brms/api/v1.1/user/group", group).code() == 1000 ? 1 : 0;
                AddFault(m_platform, {{"kind", "empty"}, {"path", "/never"}});
                EXPECT_FALSE(m_platform.state().empty());
                EXPECT_FALSE(m_platform.requests().empty());
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(succeeded, kClients * kCalls);
    EXPECT_EQ(m_platform.state()["brms"]["userGroups"].size(), 5U + kClients * kCalls);
    EXPECT_EQ(m_platform.requests().size(), static_cast<std::size_t>(kClients * kCalls));
    EXPECT_EQ(m_platform.connections(), static_cast<std::size_t>(kClients));
}
