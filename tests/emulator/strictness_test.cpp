#include "EmulatorTest.h"

namespace {

constexpr const char* kValidTimeSync =
    R"({"enable":"1","startTime":"03:00","interval":"30","deviceOnlineTimeSync":"0","enableNtp":"1","ntpIp":"10.0.0.1","ntpPort":"-1","ntpSyncInterval":"5"})";

/// The valid body with one piece of text replaced.
std::string TimeSyncWith(const std::string& text, const std::string& replacement)
{
    std::string body = kValidTimeSync;
    return body.replace(body.find(text), text.size(), replacement);
}

struct Refused {
    const char* name;
    const char* method;
    std::string target;
    std::string body;
    int code;
    const char* desc;
};

class RefusedCallTest : public EmulatorTableTest, public testing::WithParamInterface<Refused> {};

}  // namespace

TEST_P(RefusedCallTest, ReturnsEnvelopeAndChangesNothing)
{
    const Json before = m_platform.state();
    const Reply reply = ClientOf(m_platform)->request(GetParam().method, GetParam().target, GetParam().body);
    EXPECT_EQ(reply.status, 200);
    EXPECT_EQ(reply.code(), GetParam().code) << reply.body;
    EXPECT_NE(reply.desc().find(GetParam().desc), std::string::npos) << reply.body;
    EXPECT_EQ(reply.json().size(), 2U) << "an envelope of code and desc: " << reply.body;
    EXPECT_EQ(m_platform.state(), before);
}

INSTANTIATE_TEST_SUITE_P(
    Calls, RefusedCallTest,
    testing::Values(
        Refused{"UnknownPath", "GET", "/brms/api/v1.1/config/clock", "", 1001, "/brms/api/v1.1/config/clock"},
        Refused{"PathTooLong", "GET", "/brms/api/v1.1/config/time-sync/x", "", 1001, "no service"},
        Refused{"PathWithSlashAtItsEnd", "GET", "/brms/api/v1.1/config/time-sync/", "", 1001, "no service"},
        Refused{"PathInOtherCase", "GET", "/BRMS/api/v1.1/config/time-sync", "", 1001, "no service"},
        Refused{"RootPath", "GET", "/", "", 1001, "no service"},
        Refused{"WrongMethod", "DELETE", kTimeSync, "", 1002, "DELETE is not allowed"},
        Refused{"MethodOfNoCall", "PATCH", kTimeSync, "{}", 1002, "PATCH is not allowed"},
        Refused{"PostInsteadOfPut", "POST", kTimeSync, kValidTimeSync, 1002, "POST is not allowed"},

        Refused{"QueryMissing", "GET", "/brms/api/v1.1/config/local/setting", "", 1003, "query 'settingType': missing"},
        Refused{"QueryTwice", "GET", "/brms/api/v1.1/config/local/setting?settingType=1&settingType=1", "", 1003,
                "query 'settingType': there twice"},
        Refused{"QueryUnknown", "GET", "/brms/api/v1.1/config/local/setting?settingType=1&x=2", "", 1003,
                "query 'x': not expected"},
        Refused{"QueryWhereNoneIsAllowed", "GET", std::string(kTimeSync) + "?a=1", "", 1003, "query 'a': not expected"},
        Refused{"QueryNotNumber", "GET", "/brms/api/v1.1/config/local/setting?settingType=one", "", 1003,
                "query 'settingType': expected integer, got string in 'one'"},
        Refused{"QueryEmptyNumber", "GET", "/brms/api/v1.1/config/local/setting?settingType=", "", 1003,
                "query 'settingType': expected integer"},
        Refused{"QueryHalfNumber", "GET", "/brms/api/v1.1/config/local/setting?settingType=1a", "", 1003,
                "expected integer"},
        Refused{"QueryFraction", "GET", "/brms/api/v1.1/config/local/setting?settingType=1.5", "", 1003,
                "expected integer"},
        Refused{"QueryWithSecondMark", "GET", "/brms/api/v1.1/config/local/setting?settingType=1?", "", 1003,
                "in '1?'"},
        Refused{"QueryInOtherCase", "GET", "/brms/api/v1.1/config/local/setting?SettingType=1", "", 1003,
                "query 'SettingType': not expected"},
        Refused{"PageSizeNegative", "GET", "/brms/api/v1.1/alarm/plan/summary/page?page=1&pageSize=-1&keyword=", "",
                1003, "pageSize"},
        Refused{"PageNegative", "GET", "/brms/api/v1.1/alarm/plan/summary/page?page=-1&pageSize=1&keyword=", "", 1003,
                "query 'page': expected at least 0, got -1"},
        Refused{
            "PageNegativeText", "POST", "/obms/api/v1.1/acs/person/access/authorize/fetch/page",
            R"({"page":"-1","pageSize":"20","containChild":"1","keyword":"","deviceCode":"","orgCode":"","pointIds":[]})",
            1003, "/page: "},

        Refused{"BodyNotJson", "PUT", kTimeSync, "{enable:1}", 1004, "body: not JSON"},
        Refused{"BodyCut", "PUT", kTimeSync, R"({"enable":)", 1004, "body: not JSON"},
        Refused{"BodyMissing", "PUT", kTimeSync, "", 1004, "body: missing"},
        Refused{"BodyNotUtf8", "PUT", kTimeSync, TimeSyncWith("03:00", "\xff"), 1004, "body: not JSON"},
        Refused{"BodyWhereNoneIsAllowed", "POST", "/brms/api/v1.1/config/time-sync/immediate", "{}", 1003,
                "body: not expected"},
        Refused{"BodyAtDelete", "DELETE", "/brms/api/v1.1/user/group?ids=12", "{}", 1003, "body: not expected"},
        Refused{"BodyNotObject", "PUT", kTimeSync, "[]", 1003, ": expected object, got array"},
        Refused{"BodyNull", "PUT", kTimeSync, "null", 1003, ": expected object, got null"},
        Refused{"KeyMissing", "PUT", kTimeSync, TimeSyncWith(R"("interval":"30",)", ""), 1003, "/interval: missing"},
        Refused{"KeyUnknown", "PUT", kTimeSync, TimeSyncWith("{", R"({"extra":1,)"), 1003, "/extra: not expected"},
        Refused{"KeyWithSlashUnknown", "PUT", kTimeSync, TimeSyncWith("{", R"({"a/b~c":1,)"), 1003,
                "/a~1b~0c: not expected"},
        Refused{"NumberInsteadOfText", "PUT", kTimeSync, TimeSyncWith(R"("30")", "30"), 1003,
                "/interval: expected string, got number"},
        Refused{"BooleanInsteadOfText", "PUT", kTimeSync, TimeSyncWith(R"("enable":"1")", R"("enable":true)"), 1003,
                "/enable: expected string, got boolean"},
        Refused{"NullInsteadOfText", "PUT", kTimeSync, TimeSyncWith(R"("03:00")", "null"), 1003,
                "/startTime: expected string, got null"},
        Refused{"FlagNeitherOnNorOff", "PUT", kTimeSync, TimeSyncWith(R"("enable":"1")", R"("enable":"2")"), 1003,
                R"(/enable: expected one of ["0","1"], got "2")"},
        Refused{"NumberTextWithZeros", "PUT", kTimeSync, TimeSyncWith(R"("30")", R"("030")"), 1003, "/interval: "},
        Refused{"TextInsteadOfNumber", "PUT", "/brms/api/v1.1/config/ai/privacy", R"({"enable":"1"})", 1003,
                "/enable: expected integer, got string"},
        Refused{"BooleanInsteadOfNumber", "PUT", "/brms/api/v1.1/config/ai/privacy", R"({"enable":true})", 1003,
                "/enable: expected integer, got boolean"},
        Refused{"FractionInsteadOfNumber", "PUT", "/brms/api/v1.1/device/channel/1000001$1$0$0/config/video",
                R"({"brightness":1.5,"saturation":1,"contrast":1,"sharpness":1})", 1003,
                "/brightness: expected integer, got number"},
        Refused{"NestedTypeWrong", "PUT", "/brms/api/v1.1/device/channel/1000001$1$0$0/config/multicast",
                R"({"status":"1","streams":[{"multicastIp":"a","multicastPort":"1","streamType":"1","status":"1"},)"
                R"({"multicastIp":"a","multicastPort":1,"streamType":"2","status":"1"}]})",
                1003, "/streams/1/multicastPort: expected string, got number"},
        Refused{"NestedKeyMissing", "PUT", "/brms/api/v1.1/device/channel/1000001$1$0$0/config/multicast",
                R"({"status":"1","streams":[{"multicastIp":"a","multicastPort":"1","streamType":"1"}]})", 1003,
                "/streams/0/status: missing"},
        Refused{"NestedKeyUnknown", "POST", "/admin/API/DMS/Ptz/AuxControl",
                R"({"data":{"channelId":"1000001$1$0$0","command":1,"speed":2}})", 1003, "/data/speed: not expected"},
        Refused{"ElementTypeWrong", "POST", "/iams/api/v1.1/stream-analyse/task/file/upload/failed/update/batch",
                R"({"ids":["701",702]})", 1003, "/ids/1: expected string, got number"},
        Refused{
            "PageTextNotCount", "POST", "/obms/api/v1.1/acs/person/access/authorize/fetch/page",
            R"({"page":"-1","pageSize":"20","containChild":"0","keyword":"","deviceCode":"","orgCode":"","pointIds":[]})",
            1003, "page"},

        Refused{"UnknownDevice", "GET", "/brms/api/v1.1/device/4711/config/network", "", 1005, "'4711'"},
        Refused{"UnknownDeviceWritten", "PUT", "/brms/api/v1.1/device/4711/config/network",
                R"({"ip":"","mask":"","gateway":"","dns":""})", 1005, "'4711'"},
        Refused{"UnknownChannel", "GET", "/brms/api/v1.1/device/channel/x/config/encode", "", 1005, "'x'"},
        Refused{"UnknownStream", "GET", "/brms/api/v1.1/device/channel/1000001$1$0$0/capability/encode?streamType=9",
                "", 1005, "stream 9"},
        Refused{"UnknownMulticastStream", "PUT",
                "/brms/api/v1.1/device/channel/1000001$1$0$0/config/multicast/stream/status",
                R"({"status":"1","streamType":"9"})", 1005, "'9'"},
        Refused{"UnknownDeviceToDiscover", "POST", "/brms/api/v1.1/device/discover/async/batch",
                R"({"deviceCodes":["1000001","x"],"discoverMode":1})", 1005, "'x'"},
        Refused{"UnknownGroup", "GET", "/brms/api/v1.1/user/group/99", "", 1005, "'99'"},
        Refused{"UnknownGroupDecoded", "GET", "/brms/api/v1.1/user/group/a%20b", "", 1005, "'a b'"},
        Refused{"UnknownGroupUpdated", "PUT", "/brms/api/v1.1/user/group/99", R"({"groupName":"a","memo":""})", 1005,
                "'99'"},
        Refused{"UnknownGroupCleared", "POST", "/brms/api/v1.1/user/group/99/clear", "", 1005, "'99'"},
        Refused{"OneOfTheGroupsUnknown", "DELETE", "/brms/api/v1.1/user/group?ids=12,99", "", 1005, "'99'"},
        Refused{"UnknownGroupMovedTo", "POST", "/brms/api/v1.1/user/group/move/batch",
                R"({"userIds":["31"],"groupId":"99"})", 1005, "'99'"},
        Refused{"UnknownUserMoved", "POST", "/brms/api/v1.1/user/group/move/batch",
                R"({"userIds":["33","99"],"groupId":"12"})", 1005, "'99'"},
        Refused{"UnknownCommand", "GET", "/brms/api/v1.1/config/quick/command/99", "", 1005, "'99'"},
        Refused{"UnknownCommandDeleted", "DELETE", "/brms/api/v1.1/config/quick/command?ids=5,99", "", 1005, "'99'"},
        Refused{"UnknownPlan", "GET", "/brms/api/v1.1/alarm/plan/99/quick/command/list", "", 1005, "'99'"},
        Refused{"UnknownSource", "GET",
                "/brms/api/v1.1/alarm/plan/source/alarm-type/linkage/list?sourceCode=x&alarmType=5", "", 1005, "'x'"},
        Refused{"UnknownLayer", "GET", "/ipms/api/v1.1/parking-lot/layer/detail?resourceType=9&resourceCode=1000031",
                "", 1005, "'1000031'"},
        Refused{"UnknownRecord", "GET", "/brms/api/v1.1/alarm/record/1/file/detail", "", 1005, "'1'"},
        Refused{"UnknownMenu", "GET", "/brms/api/v1.1/menu/x/available", "", 1005, "'x'"},
        Refused{"UnknownChannelChecked", "POST", "/brms/api/v1.1/account/function/channel/check",
                R"({"channelId":"x","functionCode":"monitor.ptz"})", 1005, "'x'"},
        Refused{"UnknownChannelWashed", "POST", "/admin/API/DMS/Ptz/AuxControl",
                R"({"data":{"channelId":"x","command":1}})", 1005, "'x'"},
        Refused{"UnknownChannelInBatch", "POST", "/admin/API/DMS/Ptz/AuxBatchControl",
                R"({"data":{"ptzAuxControlXos":[{"channelId":"x","command":1}]}})", 1005, "'x'"},
        Refused{"UnknownHomePosition", "POST", "/brms/api/v1.1/ptz/channel/x/home-position/goto", "", 1005, "'x'"},
        Refused{"UnknownTask", "POST", "/iams/api/v1.1/stream-analyse/task/file/upload/failed/update/batch",
                R"({"ids":["701","9"]})", 1005, "'9'"},
        Refused{"UnknownCapture", "PUT", "/ipms/api/v1.1/fusion/vehicle-capture/record", R"({"id":"9","plateNo":"A"})",
                1005, "'9'"},
        Refused{"UnknownPersonManaged", "PUT", "/obms/api/v1.1/acs/device/1000041/manage/person",
                R"({"personIds":["5001","9"]})", 1005, "'9'"},
        Refused{"UnknownReader", "GET", "/obms/api/v1.1/acs/device/9/manage/person/list", "", 1005, "'9'"},
        Refused{"UnknownPoint", "GET", "/obms/api/v1.1/acp/point/9/rule/list?ruleType=&hasOfflinePoint=0", "", 1005,
                "'9'"},
        Refused{"UnknownPerson", "POST", "/obms/api/v1.1/acs/person/9/anti-pass-time/reset", "", 1005, "'9'"},
        Refused{"UnknownStation", "POST", "/obms/api/v1.1/vtalk/issue/contact/delete",
                R"({"mode":"1","vtoDeviceCode":"9","vthDeviceCodes":[]})", 1005, "'9'"},
        Refused{"UnknownZone", "POST", "/obms/api/v1.1/alarm-host/zone/9/snapshot", R"({"action":1})", 1005, "'9'"},
        Refused{"UnknownChannelMaintained", "GET", "/omms/api/v1.1/channel/x", "", 1005, "'x'"},
        Refused{"UnknownDeviceMaintained", "GET", "/omms/api/v1.1/device/x", "", 1005, "'x'"}),
    RowName());

class StrictnessTest : public EmulatorTest {};

TEST_F(StrictnessTest, MissingAndWrongTokensAreUnauthorised)
{
    const Json before = m_platform.state();
    for (const char* token : {"", "wrong", "emulator-token ", "EMULATOR-TOKEN"}) {
        const Reply reply =
            ClientOf(m_platform, TestClient::Scheme::Http, token)->request("PUT", kTimeSync, kValidTimeSync);
        // Spaces around a header's value are not part of it.
        const bool isRight = std::string(token) == "emulator-token ";
        EXPECT_EQ(reply.status, isRight ? 200 : 401) << token;
        EXPECT_EQ(reply.code(), isRight ? 1000 : 401) << token;
        EXPECT_EQ(m_platform.state() == before, !isRight) << token;
        m_platform.reset();
    }
}

TEST_F(StrictnessTest, TokenIsCheckedBeforePath)
{
    EXPECT_EQ(ClientOf(m_platform, TestClient::Scheme::Http, "")->get("/nowhere").status, 401);
}

TEST_F(StrictnessTest, ReplyThatBreaksTheContractIsReported)
{
    Json state = m_platform.state();
    state["brms"]["timeSync"].erase("ntpIp");
    state["brms"]["deviceLoginModel"]["deviceLoginModel"] = "1";
    m_platform.setState(state);
    const auto client = ClientOf(m_platform);
    const Reply missing = client->get(kTimeSync);
    EXPECT_EQ(missing.status, 200);
    EXPECT_EQ(missing.code(), 1006);
    EXPECT_NE(missing.desc().find("BRMS.GetTimeSyncConfig: /data/ntpIp: missing"), std::string::npos) << missing.body;
    const Reply wrongType = client->get("/brms/api/v1.1/config/device-login-model");
    EXPECT_EQ(wrongType.code(), 1006);
    EXPECT_NE(wrongType.desc().find("/data/deviceLoginModel: expected integer, got string"), std::string::npos)
        << wrongType.body;
}

TEST_F(StrictnessTest, MissingFamilyInTheStateIsReported)
{
    m_platform.setState(Json::object());
    EXPECT_EQ(ClientOf(m_platform)->get(kTimeSync).code(), 1006);
}

TEST_F(StrictnessTest, RequestWithoutContentLengthHasNoBody)
{
    for (const char* request :
         {"DELETE /brms/api/v1.1/user/group?ids=12", "POST /brms/api/v1.1/config/time-sync/immediate"}) {
        const std::string reply = SendRaw(
            m_platform.httpPort(), std::string(request) + " HTTP/1.1\r\nHost: a\r\nX-Subject-Token: emulator-token\r\n"
                                                          "Connection: close\r\n\r\n");
        EXPECT_NE(reply.find(R"("code":1000)"), std::string::npos) << request << ": " << reply;
    }
}

TEST_F(StrictnessTest, GetWithBodyIsRefusedAndTheNextRequestIsRead)
{
    const std::string head =
        "GET /brms/api/v1.1/config/time-sync HTTP/1.1\r\nHost: a\r\nX-Subject-Token: emulator-token\r\n";
    const std::string replies =
        SendRaw(m_platform.httpPort(), head + "Content-Length: 2\r\n\r\n{}" + head + "Connection: close\r\n\r\n");
    EXPECT_NE(replies.find(R"("desc":"body: not expected")"), std::string::npos) << replies;
    EXPECT_NE(replies.find(R"("code":1000)"), std::string::npos) << replies;
    ASSERT_EQ(m_platform.requests().size(), 2U);
    EXPECT_EQ(m_platform.requests().front().body, "{}");
    EXPECT_EQ(m_platform.requests().back().body, "");
}

TEST_F(StrictnessTest, InputThatIsNotHttpGetsStatus400)
{
    const std::string reply = SendRaw(m_platform.httpPort(), "HELLO\r\n\r\n", true);
    EXPECT_EQ(reply.substr(0, 12), "HTTP/1.1 400") << reply;
}

TEST_F(StrictnessTest, PlusInAQueryIsASpace)
{
    const auto client = ClientOf(m_platform);
    EXPECT_EQ(client->get("/brms/api/v1.1/user/group/list?keyword=day+shift").data().at("results").size(), 1U);
    EXPECT_EQ(client->get("/brms/api/v1.1/user/group/list?keyword=day%20shift").data().at("results").size(), 1U);
    EXPECT_EQ(client->get("/brms/api/v1.1/user/group/list?keyword=day%2Bshift").data().at("results").size(), 0U);
}
