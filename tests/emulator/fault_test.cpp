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

constexpr const char* kTimeSync = "/brms/api/v1.1/config/time-sync";
constexpr const char* kPrivacy = "/brms/api/v1.1/config/ai/privacy";
constexpr milliseconds kLong{30'000};

Fault FaultOf(Fault::Kind kind, const std::string& path = "/brms/")
{
    Fault fault;
    fault.path = path;
    fault.kind = kind;
    return fault;
}

}  // namespace

class FaultTest : public EmulatorTest, public testing::WithParamInterface<TestClient::Scheme> {
protected:
    Reply get() { return m_client->get(kTimeSync); }
    /// Returns whether a write that hits the fault changes the state.
    bool writeChangesState(const Fault& fault)
    {
        m_platform.reset();
        const Json before = m_platform.state();
        m_platform.addFault(fault);
        ClientOf(m_platform, GetParam())->put(kPrivacy, {{"enable", 1}});
        m_platform.clearFaults();
        return m_platform.state() != before;
    }
    /// Expects the next call to succeed, on the same connection or a new one.
    void expectRecovered() { EXPECT_EQ(get().code(), 1000); }

    std::unique_ptr<TestClient> m_client = ClientOf(m_platform, GetParam());
    const std::string m_normalBody = get().body;
};

INSTANTIATE_TEST_SUITE_P(Schemes, FaultTest, testing::Values(TestClient::Scheme::Http, TestClient::Scheme::Https),
                         SchemeName);

TEST_P(FaultTest, DelaysTheNormalReply)
{
    Fault fault = FaultOf(Fault::Kind::Delay);
    fault.delay = milliseconds(300);
    m_platform.addFault(fault);
    const auto begin = steady_clock::now();
    EXPECT_EQ(get().body, m_normalBody);
    EXPECT_GE(steady_clock::now() - begin, milliseconds(300));
    EXPECT_TRUE(writeChangesState(fault));
    expectRecovered();
}

TEST_P(FaultTest, DelayCombinesWithOtherKinds)
{
    Fault fault = FaultOf(Fault::Kind::NotJson);
    fault.delay = milliseconds(200);
    m_platform.addFault(fault);
    const auto begin = steady_clock::now();
    EXPECT_TRUE(get().json().is_discarded());
    EXPECT_GE(steady_clock::now() - begin, milliseconds(200));
}

TEST_P(FaultTest, SendsStatusWithHeadersAndBody)
{
    for (const int status : {200, 204, 302, 401, 403, 404, 407, 500, 503, 599}) {
        Fault fault = FaultOf(Fault::Kind::Status);
        fault.status = status;
        fault.headers = {{"WWW-Authenticate", "Basic realm=\"x\""}, {"Location", "/elsewhere"}};
        fault.body = status == 204 ? "" : "text";
        m_platform.addFault(fault);
        const Reply reply = get();
        EXPECT_EQ(reply.status, status);
        EXPECT_EQ(reply.body, fault.body);
        EXPECT_EQ(reply.headers.find("WWW-Authenticate")->second, "Basic realm=\"x\"");
        EXPECT_EQ(reply.headers.find("Location")->second, "/elsewhere");
    }
    EXPECT_FALSE(writeChangesState(FaultOf(Fault::Kind::Status)));
    expectRecovered();
}

TEST_P(FaultTest, SendsEnvelopeWithCodeAndText)
{
    Fault fault = FaultOf(Fault::Kind::Envelope);
    fault.code = -7;
    fault.desc = "wörter \"und\" %s";
    m_platform.addFault(fault);
    const Reply reply = get();
    EXPECT_EQ(reply.status, 200);
    EXPECT_EQ(reply.json(), (Json{{"code", -7}, {"desc", fault.desc}}));
    EXPECT_FALSE(writeChangesState(fault));
    expectRecovered();
}

TEST_P(FaultTest, SendsEmptyBody)
{
    m_platform.addFault(FaultOf(Fault::Kind::Empty));
    const Reply reply = get();
    EXPECT_TRUE(reply.arrived);
    EXPECT_EQ(reply.status, 200);
    EXPECT_EQ(reply.body, "");
    EXPECT_FALSE(writeChangesState(FaultOf(Fault::Kind::Empty)));
    expectRecovered();
}

TEST_P(FaultTest, SendsTruncatedBodyAsCompleteHttpReply)
{
    m_platform.addFault(FaultOf(Fault::Kind::Cut));
    const Reply reply = get();
    EXPECT_TRUE(reply.arrived);
    EXPECT_EQ(reply.status, 200);
    EXPECT_EQ(reply.body, m_normalBody.substr(0, m_normalBody.size() / 2));
    EXPECT_TRUE(reply.json().is_discarded());
    EXPECT_TRUE(writeChangesState(FaultOf(Fault::Kind::Cut)));
    expectRecovered();
}

TEST_P(FaultTest, SendsBodyThatIsNotJson)
{
    m_platform.addFault(FaultOf(Fault::Kind::NotJson));
    const Reply reply = get();
    EXPECT_EQ(reply.status, 200);
    EXPECT_FALSE(reply.body.empty());
    EXPECT_TRUE(reply.json().is_discarded());
    EXPECT_FALSE(writeChangesState(FaultOf(Fault::Kind::NotJson)));
    expectRecovered();
}

TEST_P(FaultTest, SendsGivenText)
{
    Fault fault = FaultOf(Fault::Kind::Text);
    fault.body = std::string(100'000, '[') + std::string(1, '\0') + "\xff";
    m_platform.addFault(fault);
    EXPECT_EQ(get().body, fault.body);
    EXPECT_FALSE(writeChangesState(fault));
    expectRecovered();
}

TEST_P(FaultTest, LargeBodyHasRequestedSizeAndNormalData)
{
    Fault fault = FaultOf(Fault::Kind::Large);
    for (const std::size_t size : {1'000UL, 5UL * 1024 * 1024}) {
        fault.size = size;
        m_platform.addFault(fault);
        const Reply reply = get();
        EXPECT_EQ(reply.body.size(), size);
        EXPECT_EQ(reply.data(), Json::parse(m_normalBody).at("data"));
    }
    fault.size = 10;
    m_platform.addFault(fault);
    EXPECT_EQ(get().json(), Json::parse(m_normalBody)) << "never smaller than the normal reply";
    EXPECT_TRUE(writeChangesState(fault));
    expectRecovered();
}

TEST_P(FaultTest, SendsHundredMegabytes)
{
    Fault fault = FaultOf(Fault::Kind::Text);
    fault.body.assign(100UL * 1024 * 1024, 'x');
    m_platform.addFault(fault);
    EXPECT_EQ(get().body.size(), fault.body.size());
}

TEST_P(FaultTest, ClosesConnectionBeforeReply)
{
    m_platform.addFault(FaultOf(Fault::Kind::CloseBefore));
    EXPECT_FALSE(get().arrived);
    EXPECT_EQ(m_platform.requests().back().status, 0);
    EXPECT_FALSE(writeChangesState(FaultOf(Fault::Kind::CloseBefore)));
    expectRecovered();
}

TEST_P(FaultTest, ClosesConnectionInTheMiddleOfReply)
{
    m_platform.addFault(FaultOf(Fault::Kind::CloseMiddle));
    EXPECT_FALSE(get().arrived);
    EXPECT_TRUE(writeChangesState(FaultOf(Fault::Kind::CloseMiddle)));
    expectRecovered();
}

TEST_P(FaultTest, SilenceLastsUntilClientDisconnects)
{
    m_platform.addFault(FaultOf(Fault::Kind::Silent));
    std::future<Reply> hanging = std::async(std::launch::async, [this] { return get(); });
    ASSERT_TRUE(m_platform.waitForRequests(2, kLong));
    EXPECT_EQ(ClientOf(m_platform, GetParam())->get(kTimeSync).code(), 1000) << "others are served meanwhile";
    EXPECT_EQ(hanging.wait_for(milliseconds(100)), std::future_status::timeout);
    m_client->abort();
    EXPECT_FALSE(hanging.get().arrived);
    m_client = ClientOf(m_platform, GetParam());
    expectRecovered();
}

TEST_P(FaultTest, SilenceLastsUntilEmulatorStops)
{
    m_platform.addFault(FaultOf(Fault::Kind::Silent));
    std::future<Reply> hanging = std::async(std::launch::async, [this] { return get(); });
    ASSERT_TRUE(m_platform.waitForRequests(2, kLong));
    const auto begin = steady_clock::now();
    m_platform.stop();
    EXPECT_FALSE(hanging.get().arrived);
    EXPECT_LT(steady_clock::now() - begin, kLong);
}

TEST_P(FaultTest, DelayedWriteIsDroppedWhenClientDisconnects)
{
    Fault fault = FaultOf(Fault::Kind::Delay);
    fault.delay = std::chrono::hours(1);
    m_platform.addFault(fault);
    std::future<Reply> hanging = std::async(std::launch::async, [this] {
        return m_client->put(kPrivacy, {{"enable", 1}});
    });
    ASSERT_TRUE(m_platform.waitForRequests(2, kLong));
    m_client->abort();
    EXPECT_FALSE(hanging.get().arrived);
    m_platform.stop();
    EXPECT_EQ(m_platform.state()["brms"]["aiPrivacy"]["enable"], 0);
}

TEST_P(FaultTest, ThrottlesTheNormalReply)
{
    Fault fault = FaultOf(Fault::Kind::Slow);
    fault.bytesPerSecond = m_normalBody.size() * 5;
    m_platform.addFault(fault);
    const auto begin = steady_clock::now();
    EXPECT_EQ(get().body, m_normalBody);
    EXPECT_GE(steady_clock::now() - begin, milliseconds(200));
    EXPECT_EQ(m_platform.connections(), 1U) << "the connection is kept";
    EXPECT_TRUE(writeChangesState(fault));
    expectRecovered();
}

TEST_P(FaultTest, ThrottlesToVeryLowAndVeryHighRates)
{
    Fault fault = FaultOf(Fault::Kind::Slow, "/brms/api/v1.1/user/group?ids=");
    fault.bytesPerSecond = 1;
    m_platform.addFault(fault);
    std::future<Reply> hanging =
        std::async(std::launch::async, [this] { return m_client->remove("/brms/api/v1.1/user/group?ids=nobody"); });
    ASSERT_TRUE(m_platform.waitForRequests(2, kLong));
    EXPECT_EQ(hanging.wait_for(std::chrono::seconds(2)), std::future_status::timeout);
    m_client->abort();
    EXPECT_FALSE(hanging.get().arrived);

    fault = FaultOf(Fault::Kind::Slow);
    fault.bytesPerSecond = 1024UL * 1024 * 1024;
    m_platform.addFault(fault);
    m_client = ClientOf(m_platform, GetParam());
    EXPECT_EQ(get().body, m_normalBody);
}

TEST_P(FaultTest, SlowReplyEndsWhenEmulatorStops)
{
    Fault fault = FaultOf(Fault::Kind::Slow);
    fault.bytesPerSecond = 1;
    m_platform.addFault(fault);
    std::future<Reply> hanging = std::async(std::launch::async, [this] { return get(); });
    ASSERT_TRUE(m_platform.waitForRequests(2, kLong));
    m_platform.stop();
    EXPECT_FALSE(hanging.get().arrived);
}

TEST(SlowFaultTest, SendsHeadFirstAndBodyInPieces)
{
    emulator::PlatformEmulator platform;
    platform.start();
    Fault fault = FaultOf(Fault::Kind::Slow, "");
    fault.bytesPerSecond = 20;
    platform.addFault(fault);
    RawConnection connection(platform.httpPort());
    connection.send("GET /brms/ HTTP/1.1\r\nHost: a\r\nConnection: close\r\n\r\n");
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
        Fault fault = FaultOf(Fault::Kind::Envelope, path);
        fault.code = code;
        fault.times = times;
        m_platform.addFault(fault);
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
    addEnvelope(kPrivacy, 5, 1);
    Fault fault = m_platform.faults().front();
    m_platform.clearFaults();
    fault.method = "PUT";
    m_platform.addFault(fault);
    EXPECT_EQ(codeOf(kPrivacy), 1000);
    EXPECT_EQ(m_client->put(kPrivacy, {{"enable", 1}}).code(), 5);
    EXPECT_EQ(m_client->put(kPrivacy, {{"enable", 1}}).code(), 1000);
}

TEST_F(FaultListTest, AppliesToRequestsOfItsOperation)
{
    Fault fault = FaultOf(Fault::Kind::Envelope, "");
    fault.code = 5;
    fault.times = 0;
    fault.operation = "BRMS.GetTimeSyncConfig";
    m_platform.addFault(fault);
    EXPECT_EQ(codeOf(kTimeSync), 5);
    EXPECT_EQ(codeOf(std::string(kTimeSync) + "?x=1"), 5);
    EXPECT_EQ(codeOf(kPrivacy), 1000);
    EXPECT_EQ(codeOf("/nowhere"), 1001);
    EXPECT_NE(m_client->put(kTimeSync, Json::object()).code(), 5);
    EXPECT_EQ(m_client->post(std::string(kTimeSync) + "/immediate", {}).code(), 1000);

    fault.operation = "BRMS.GetTimeSync";
    EXPECT_THROW(m_platform.addFault(fault), std::invalid_argument);
}

TEST_F(FaultListTest, SkipsMatchingRequestsBeforeItApplies)
{
    Fault fault = FaultOf(Fault::Kind::Envelope, kTimeSync);
    fault.code = 5;
    fault.skip = 2;
    fault.times = 2;
    m_platform.addFault(fault);
    EXPECT_EQ(codeOf(kTimeSync), 1000);
    EXPECT_EQ(codeOf(kPrivacy), 1000) << "does not match and is not counted";
    EXPECT_EQ(codeOf(kTimeSync), 1000);
    EXPECT_EQ(codeOf(kTimeSync), 5);
    EXPECT_EQ(codeOf(kTimeSync), 5);
    EXPECT_EQ(codeOf(kTimeSync), 1000);
}

TEST_F(FaultListTest, SkippedRequestIsLeftToTheNextFault)
{
    Fault fault = FaultOf(Fault::Kind::Envelope, kTimeSync);
    fault.code = 5;
    fault.skip = 1;
    m_platform.addFault(fault);
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
    Fault fault = FaultOf(Fault::Kind::Silent, kTimeSync);
    fault.times = 0;
    m_platform.addFault(fault);
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
                m_platform.addFault(FaultOf(Fault::Kind::Empty, "/never"));
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
