#include "EmulatorTest.h"

#include <algorithm>
#include <chrono>
#include <regex>
#include <thread>

namespace {

constexpr const char* kFaults = "/emulator/v1/faults";
constexpr const char* kState = "/emulator/v1/state";

}  // namespace

class ControlTest : public EmulatorTest {
protected:
    std::unique_ptr<TestClient> m_control = ClientOf(m_platform, TestClient::Scheme::Http, "");
    std::unique_ptr<TestClient> m_client = ClientOf(m_platform, TestClient::Scheme::Https);
};

TEST_F(ControlTest, FaultsAreAddedListedAndCleared)
{
    const Json fault = {{"path", "/brms"}, {"method", "GET"}, {"kind", "status"},
                        {"times", 0},      {"status", 503},   {"headers", {{"Retry-After", "9"}}},
                        {"body", "later"}, {"delayMs", 1},    {"code", 0},
                        {"desc", ""},      {"size", 0},       {"bytesPerSecond", 7},
                        {"skip", 0},       {"operation", ""}};
    const Reply added = m_control->post(kFaults, fault);
    EXPECT_EQ(added.status, 201);
    Json numbered = fault;
    numbered["number"] = 1;
    EXPECT_EQ(added.json(), numbered);
    EXPECT_EQ(m_control->get(kFaults).json(), Json::array({numbered}));
    const Reply hit = m_client->get(kTimeSync);
    EXPECT_EQ(hit.status, 503);
    EXPECT_EQ(hit.body, "later");
    EXPECT_EQ(hit.headers.find("Retry-After")->second, "9");
    EXPECT_EQ(m_control->remove(kFaults).status, 204);
    EXPECT_EQ(m_control->get(kFaults).json(), Json::array());
    EXPECT_EQ(m_client->get(kTimeSync).code(), 1000);
}

TEST_F(ControlTest, OneFaultIsRemoved)
{
    for (const int status : {501, 502, 503}) {
        m_control->post(kFaults, Json{{"kind", "status"}, {"status", status}});
    }
    EXPECT_EQ(m_control->remove(std::string(kFaults) + "/2").status, 204);
    EXPECT_EQ(m_control->remove(std::string(kFaults) + "/2").status, 404);
    for (const char* number : {"/0", "/4", "/-1", "/1x", "/"}) {
        EXPECT_EQ(m_control->remove(kFaults + std::string(number)).status, 404) << number;
    }
    EXPECT_EQ(m_client->get(kTimeSync).status, 501);
    EXPECT_EQ(m_client->get(kTimeSync).status, 503);

    emulator::Fault fault;
    fault.times = 0;
    const std::size_t number = m_platform.addFault(fault);
    EXPECT_EQ(m_control->get(kFaults).json().at(0).at("number"), number);
    EXPECT_TRUE(m_platform.removeFault(number));
    EXPECT_FALSE(m_platform.removeFault(number));
    EXPECT_TRUE(m_platform.faults().empty());
}

TEST_F(ControlTest, RequestsAreListedAfterANumber)
{
    for (int i = 0; i < 3; ++i) {
        m_client->get(kTimeSync);
    }
    const Json requests = m_control->get("/emulator/v1/requests?after=1").json();
    ASSERT_EQ(requests.size(), 2U);
    EXPECT_EQ(requests.at(0).at("number"), 2);
    EXPECT_EQ(m_control->get("/emulator/v1/requests?after=3").json(), Json::array());
    EXPECT_EQ(m_control->get("/emulator/v1/requests?after=0").json().size(), 3U);
    for (const char* query : {"after=x", "after=", "after=-1", "before=1", "after=1&after=1x"}) {
        EXPECT_EQ(m_control->get(std::string("/emulator/v1/requests?") + query).status, 400) << query;
    }
}

TEST_F(ControlTest, RequestsReportTheirTimeAndWhetherTheyEnded)
{
    m_control->post(kFaults, Json{{"kind", "silent"}});
    m_control->post(kFaults, Json{{"kind", "closeBefore"}});
    const auto before = std::chrono::system_clock::now();
    std::thread silent([this] { ClientOf(m_platform)->get(kTimeSync); });
    ASSERT_TRUE(m_platform.waitForRequests(1, std::chrono::seconds(20)));
    m_client->get(kTimeSync);
    m_client->get(kTimeSync);
    const auto after = std::chrono::system_clock::now();
    const Json requests = m_control->get("/emulator/v1/requests").json();
    ASSERT_EQ(requests.size(), 3U);
    EXPECT_FALSE(requests.at(0).at("ended").get<bool>());
    EXPECT_TRUE(requests.at(1).at("ended").get<bool>());
    EXPECT_EQ(requests.at(1).at("status"), 0);
    EXPECT_TRUE(requests.at(2).at("ended").get<bool>());
    const std::string time = requests.at(2).at("time");
    EXPECT_TRUE(std::regex_match(time, std::regex(R"(\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d\.\d{3}Z)"))) << time;
    const auto recorded = m_platform.requests().back().time;
    EXPECT_GE(recorded, before);
    EXPECT_LE(recorded, after);
    m_platform.stop();
    silent.join();
}

struct RefusedFault {
    const char* name;
    const char* body;
    const char* error;
};
class RefusedFaultTest : public EmulatorTableTest, public testing::WithParamInterface<RefusedFault> {};

TEST_P(RefusedFaultTest, IsRejectedWithReason)
{
    const Reply reply = ClientOf(m_platform)->request("POST", kFaults, GetParam().body);
    EXPECT_EQ(reply.status, 400);
    EXPECT_NE(reply.json().value("error", "").find(GetParam().error), std::string::npos) << reply.body;
    EXPECT_TRUE(m_platform.faults().empty());
}

INSTANTIATE_TEST_SUITE_P(
    Faults, RefusedFaultTest,
    testing::Values(
        RefusedFault{"NotJson", "{", "not JSON"}, RefusedFault{"NotObject", "[]", "kind"},
        RefusedFault{"NoKind", "{}", "kind"}, RefusedFault{"UnknownKind", R"({"kind":"slower"})", "'slower'"},
        RefusedFault{"KindNotString", R"({"kind":1})", "kind: expected a string"},
        RefusedFault{"UnknownKey", R"({"kind":"empty","tims":1})", "tims: not expected"},
        RefusedFault{"TimesNegative", R"({"kind":"empty","times":-1})", "times"},
        RefusedFault{"TimesNotNumber", R"({"kind":"empty","times":"1"})", "times"},
        RefusedFault{"StatusTooLow", R"({"kind":"status","status":199})", "status"},
        RefusedFault{"StatusTooHigh", R"({"kind":"status","status":600})", "status"},
        RefusedFault{"DelayNegative", R"({"kind":"delay","delayMs":-5})", "delayMs"},
        RefusedFault{"MethodUnknown", R"({"kind":"empty","method":"put"})", "method: unknown 'put'"},
        RefusedFault{"MethodNotString", R"({"kind":"empty","method":["PUT"]})", "method: expected a string"},
        RefusedFault{"SkipNegative", R"({"kind":"empty","skip":-1})", "skip"},
        RefusedFault{"OperationNotString", R"({"kind":"empty","operation":1})", "operation: expected a string"},
        RefusedFault{"OperationUnknown", R"({"kind":"empty","operation":"BRMS.Get"})", "operation: unknown 'BRMS.Get'"},
        RefusedFault{"SpeedZero", R"({"kind":"slow","bytesPerSecond":0})", "bytesPerSecond"},
        RefusedFault{"SizeNegative", R"({"kind":"large","size":-5})", "size"},
        RefusedFault{"HeadersNotObject", R"({"kind":"status","headers":[]})", "headers"},
        RefusedFault{"HeaderNotString", R"({"kind":"status","headers":{"A":1}})", "headers"}),
    RowName());

TEST_F(ControlTest, RequestsAreReturnedAsReceived)
{
    m_client->get("/brms/api/v1.1/user/group/list?keyword=a%20b+c&x=%26&&y");
    m_client->put(kTimeSync, {{"ü", 1}});
    const Json requests = m_control->get("/emulator/v1/requests").json();
    ASSERT_EQ(requests.size(), 2U) << "calls of the control path are not recorded";
    const Json& first = requests.at(0);
    EXPECT_EQ(first.at("number"), 1);
    EXPECT_EQ(first.at("method"), "GET");
    EXPECT_EQ(first.at("target"), "/brms/api/v1.1/user/group/list?keyword=a%20b+c&x=%26&&y");
    EXPECT_EQ(first.at("path"), "/brms/api/v1.1/user/group/list");
    EXPECT_EQ(first.at("query"), Json::parse(R"([{"name":"keyword","value":"a b c"},{"name":"x","value":"&"},)"
                                             R"({"name":"y","value":""}])"));
    EXPECT_EQ(first.at("body"), "");
    EXPECT_EQ(first.at("status"), 200);
    EXPECT_EQ(first.at("code"), 1003);
    const Json token = {{"name", "X-Subject-Token"}, {"value", emulator::kDefaultToken}};
    EXPECT_EQ(std::count(first.at("headers").begin(), first.at("headers").end(), token), 1);
    EXPECT_EQ(requests.at(1).at("body"), R"({"ü":1})");
    EXPECT_EQ(requests.at(1).at("connection"), first.at("connection"));

    EXPECT_EQ(m_platform.requests().front().header("x-subject-token"), emulator::kDefaultToken);
    EXPECT_EQ(m_platform.requests().front().header("Content-Type"), "application/json;charset=UTF-8");
    EXPECT_EQ(m_platform.requests().front().header("Absent"), "");

    EXPECT_EQ(m_control->remove("/emulator/v1/requests").status, 204);
    EXPECT_EQ(m_control->get("/emulator/v1/requests").json(), Json::array());
}

TEST_F(ControlTest, TargetIsKeptByteForByte)
{
    const std::string target = "/brms/api/v1.1/user/group/list?keyword=a&b?c%2b\"<\xc3\xbc";
    EXPECT_EQ(m_client->get(target).code(), 1003);
    EXPECT_EQ(m_platform.requests().back().target, target);
    EXPECT_EQ(m_platform.requests().back().query.at(1).first, "b?c+\"<\xc3\xbc");
}

TEST_F(ControlTest, TargetWithInvalidUtf8IsShown)
{
    m_client->get("/brms/api/v1.1/user/group/%ff");
    EXPECT_EQ(m_control->get("/emulator/v1/requests").json().at(0).at("path"), "/brms/api/v1.1/user/group/\uFFFD");
}

TEST_F(ControlTest, RequestsWithoutReplyHaveNoStatus)
{
    m_control->post(kFaults, Json{{"kind", "closeBefore"}});
    m_client->get(kTimeSync);
    const Json requests = m_control->get("/emulator/v1/requests").json();
    EXPECT_EQ(requests.at(0).at("status"), 0);
    EXPECT_EQ(requests.at(0).at("code"), Json());
}

TEST_F(ControlTest, OldRequestsAreDiscarded)
{
    const std::string large(1024UL * 1024, 'x');
    for (int i = 0; i < 70; ++i) {
        EXPECT_EQ(m_client->request("PUT", kTimeSync, large).code(), 1004);
    }
    EXPECT_EQ(m_platform.requests().size(), 64U);
    EXPECT_EQ(m_platform.requests().back().number, 70U);
    EXPECT_EQ(m_platform.requests().back().body, large) << "a body of a megabyte arrives completely";
}

TEST_F(ControlTest, StateShowsWritesAndResetUndoesThem)
{
    const Json seeds = m_control->get("/emulator/v1/state").json();
    EXPECT_EQ(seeds, m_platform.state());
    m_client->post("/brms/api/v1.1/config/time-sync/immediate");
    const Json changed = m_control->get("/emulator/v1/state").json();
    EXPECT_EQ(changed.at("accepted").at("BRMS.ImmediatelySyncTime"),
              Json::parse(R"([{"path":{},"query":{},"body":null}])"));
    EXPECT_EQ(m_control->post("/emulator/v1/reset").status, 204);
    EXPECT_EQ(m_control->get("/emulator/v1/state").json(), seeds);
    EXPECT_EQ(m_platform.requests().size(), 1U) << "the reset keeps the requests";
}

struct Patch {
    const char* name;
    const char* patch;
    const char* pointer;
    const char* value;  ///< after the patch; null if absent
};
class PatchTest : public EmulatorTableTest, public testing::WithParamInterface<Patch> {
protected:
    void expectPatched(const Json& before)
    {
        const Json::json_pointer pointer(GetParam().pointer);
        Json expected = before;
        if (GetParam().value == nullptr) {
            expected.at(pointer.parent_pointer()).erase(pointer.back());
        } else {
            expected[pointer] = Json::parse(GetParam().value);
        }
        EXPECT_NE(expected, before);
        EXPECT_EQ(m_platform.state(), expected);
    }

    const Json m_seeds = m_platform.state();
};

TEST_P(PatchTest, ChangesTheStateOverTheControlPath)
{
    EXPECT_EQ(ClientOf(m_platform)->request("PUT", kState, GetParam().patch).status, 204);
    expectPatched(m_seeds);
}

TEST_P(PatchTest, ChangesTheStateFromTheClass)
{
    m_platform.mergeState(Json::parse(GetParam().patch));
    expectPatched(m_seeds);
}

INSTANTIATE_TEST_SUITE_P(
    Patches, PatchTest,
    testing::Values(
        Patch{"Value", R"({"brms":{"timeSync":{"interval":"77"}}})", "/brms/timeSync/interval", "\"77\""},
        Patch{"NewMember", R"({"brms":{"timeSync":{"more":{"a":null,"b":1}}}})", "/brms/timeSync/more", R"({"b":1})"},
        Patch{"NullRemoves", R"({"brms":{"timeSync":null}})", "/brms/timeSync", nullptr},
        Patch{"ListIsReplaced", R"({"brms":{"userGroups":[{"id":"1"}]}})", "/brms/userGroups", R"([{"id":"1"}])"},
        Patch{"NewFamily", R"({"tests":[1]})", "/tests", "[1]"}),
    RowName());

TEST_F(ControlTest, CallsReadWhatAPatchWrote)
{
    EXPECT_EQ(m_control->put(kState, Json::parse(R"({"brms":{"timeSync":{"ntpIp":"192.0.2.7"}}})")).status, 204);
    EXPECT_EQ(m_client->get(kTimeSync).data().at("ntpIp"), "192.0.2.7");
    m_platform.reset();
    EXPECT_NE(m_client->get(kTimeSync).data().at("ntpIp"), "192.0.2.7");
}

TEST_F(ControlTest, NonObjectPatchChangesNothing)
{
    const Json before = m_platform.state();
    for (const char* patch : {"", "{", "[]", "null", "7"}) {
        const Reply reply = m_control->request("PUT", kState, patch);
        EXPECT_EQ(reply.status, 400) << patch;
        EXPECT_FALSE(reply.json().value("error", "").empty()) << patch;
    }
    EXPECT_THROW(m_platform.mergeState(Json::array()), std::invalid_argument);
    EXPECT_EQ(m_platform.state(), before);
}

TEST_F(ControlTest, ConnectionsAreCounted)
{
    const auto count = [this] { return m_control->get("/emulator/v1/connections").json().at("connections"); };
    EXPECT_EQ(count(), 1);
    m_client->get(kTimeSync);
    m_client->get(kTimeSync);
    EXPECT_EQ(count(), 2) << "the second call uses the first one's connection";
    ClientOf(m_platform)->get(kTimeSync);
    EXPECT_EQ(count(), 3);
    EXPECT_EQ(m_platform.connections(), 3U);
}

TEST_F(ControlTest, UnknownPathsAndMethodsGetAnErrorStatus)
{
    EXPECT_EQ(m_control->get("/emulator/v1/nothing").status, 404);
    EXPECT_EQ(m_control->get("/emulator/").status, 404);
    EXPECT_EQ(m_control->put(kFaults, Json::object()).status, 405);
    EXPECT_EQ(m_control->post("/emulator/v1/state").status, 405);
}

TEST(ControlOffTest, ControlPathIsForbidden)
{
    const RunningEmulator platform(With(&emulator::Options::controlPath, false));
    const auto client = ClientOf(platform);
    EXPECT_EQ(client->post(kFaults, Json{{"kind", "empty"}}).status, 403);
    EXPECT_EQ(client->get("/emulator/v1/state").status, 403);
    EXPECT_EQ(client->get(kTimeSync).code(), 1000);
}

TEST(ControlTokenTest, ControlPathRequiresItsToken)
{
    const std::string controlToken = "the-tester";
    const RunningEmulator platform(With(&emulator::Options::controlToken, controlToken));
    for (const char* token : {"", "wrong", emulator::kDefaultToken}) {
        const auto client = ClientOf(platform, TestClient::Scheme::Http, token);
        for (const char* path : {kFaults, kState, "/emulator/v1/requests", "/emulator/v1/nothing"}) {
            const Reply reply = client->get(path);
            EXPECT_EQ(reply.status, 401) << token << path;
            EXPECT_FALSE(reply.json().value("error", "").empty()) << reply.body;
        }
        EXPECT_EQ(client->post(kFaults, Json{{"kind", "empty"}}).status, 401) << token;
    }
    EXPECT_TRUE(platform.faults().empty());
    EXPECT_EQ(ClientOf(platform, TestClient::Scheme::Https, controlToken)->get(kState).json(), platform.state());
    EXPECT_EQ(ClientOf(platform)->get(kTimeSync).code(), 1000);
}

TEST(OptionsTest, ConfiguredTokenIsRequired)
{
    const std::string token = "другой";
    const RunningEmulator platform(With(&emulator::Options::token, token));
    EXPECT_EQ(ClientOf(platform)->get(kTimeSync).status, 401);
    EXPECT_EQ(ClientOf(platform, TestClient::Scheme::Https, token)->get(kTimeSync).code(), 1000);
}

TEST(OptionsTest, StopsWithoutStart)
{
    emulator::PlatformEmulator platform;
    platform.stop();
    EXPECT_EQ(platform.httpPort(), 0);
}

TEST(OptionsTest, StopsAtOnceWithIdleConnections)
{
    RunningEmulator platform;
    const auto plain = ClientOf(platform);
    const auto secure = ClientOf(platform, TestClient::Scheme::Https);
    EXPECT_EQ(plain->get(kTimeSync).code(), 1000);
    EXPECT_EQ(secure->get(kTimeSync).code(), 1000);
    const auto begin = std::chrono::steady_clock::now();
    platform.stop();
    platform.stop();
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(10));
    EXPECT_FALSE(plain->get(kTimeSync).arrived);
}
