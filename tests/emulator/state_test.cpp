#include "EmulatorTest.h"

namespace {

constexpr const char* kChannel = "/brms/api/v1.1/device/channel/1000001$1$0$0";

struct ReadBack {
    const char* name;
    std::string target;     ///< of the write and the read
    const char* body;       ///< of the write
    const char* data;       ///< of the read
    std::string untouched;  ///< a target that the write must not change; may be empty
};

class ReadBackTest : public EmulatorTableTest, public testing::WithParamInterface<ReadBack> {};

}  // namespace

TEST_P(ReadBackTest, GetReturnsWhatPutStored)
{
    const auto writer = ClientOf(m_platform);
    const auto reader = ClientOf(m_platform, TestClient::Scheme::Https);
    const Reply original = reader->get(GetParam().target);
    EXPECT_NE(original.data(), Json::parse(GetParam().data)) << "the row checks nothing: the value is already stored";
    const std::string other = GetParam().untouched.empty() ? "" : reader->get(GetParam().untouched).body;

    const Reply written = writer->request("PUT", GetParam().target, GetParam().body);
    EXPECT_EQ(written.json(), (Json{{"code", 1000}, {"desc", "Success"}, {"data", Json::object()}})) << written.body;
    EXPECT_EQ(reader->get(GetParam().target).data(), Json::parse(GetParam().data));
    if (!other.empty()) {
        EXPECT_EQ(reader->get(GetParam().untouched).body, other);
    }
    m_platform.reset();
    EXPECT_EQ(reader->get(GetParam().target).body, original.body);
}

INSTANTIATE_TEST_SUITE_P(
    Writes, ReadBackTest,
    testing::Values(
        ReadBack{
            "TimeSync", "/brms/api/v1.1/config/time-sync",
            R"({"enable":"0","startTime":"äß\"","interval":"30","deviceOnlineTimeSync":"1","enableNtp":"0","ntpIp":"","ntpPort":"-1","ntpSyncInterval":"2147483647"})",
            R"({"enable":false,"startTime":"äß\"","interval":30,"deviceOnlineTimeSync":true,"enableNtp":false,"ntpIp":"","ntpPort":-1,"ntpSyncInterval":2147483647})",
            ""},
        ReadBack{"RemoteLog", "/brms/api/v1.1/config/remote-log",
                 R"({"enable":"0","ip":"10.1.1.1","port":"1514","platformId":"1"})",
                 R"({"enable":false,"ip":"10.1.1.1","port":1514,"platformId":"1"})", ""},
        ReadBack{"DeviceLoginModel", "/brms/api/v1.1/config/device-login-model", R"({"deviceLoginModel":"-3"})",
                 R"({"deviceLoginModel":-3})", ""},
        ReadBack{"PushMessage", "/brms/api/v1.1/config/app/push-message", R"({"enablePushMessage":"1"})",
                 R"({"enablePushMessage":true})", ""},
        ReadBack{"AiPrivacy", "/brms/api/v1.1/config/ai/privacy", R"({"enable":1})", R"({"enable":1})", ""},
        ReadBack{"Network", "/brms/api/v1.1/device/1000002/config/network",
                 R"({"ip":"1.2.3.4","mask":"m","gateway":"g","dns":"d"})",
                 R"({"ip":"1.2.3.4","mask":"m","gateway":"g","dns":"d"})",
                 "/brms/api/v1.1/device/1000001/config/network"},
        ReadBack{"NetworkOfADeviceWithoutSeed", "/brms/api/v1.1/device/1000003/config/network",
                 R"({"ip":"1.2.3.4","mask":"m","gateway":"g","dns":"d"})",
                 R"({"ip":"1.2.3.4","mask":"m","gateway":"g","dns":"d"})",
                 "/brms/api/v1.1/device/1000004/config/network"},
        ReadBack{
            "Encode", std::string(kChannel) + "/config/encode",
            R"({"encodeConfigurations":[{"streamType":1,"bitRate":1,"bitRateControl":2,"compression":3,"enable":0,"frameRate":5,"iFrameInterval":6,"height":7,"width":8}]})",
            R"({"encodeConfigurations":[{"streamType":1,"bitRate":1,"bitRateControl":2,"compression":3,"enable":0,"frameRate":5,"iFrameInterval":6,"height":7,"width":8}]})",
            "/brms/api/v1.1/device/channel/1000002$1$0$0/config/encode"},
        ReadBack{"EncodeEmpty", std::string(kChannel) + "/config/encode", R"({"encodeConfigurations":[]})",
                 R"({"encodeConfigurations":[]})", ""},
        ReadBack{"Image", std::string(kChannel) + "/config/video",
                 R"({"brightness":1,"saturation":2,"contrast":3,"sharpness":-4})",
                 R"({"brightness":1,"saturation":2,"contrast":3,"sharpness":-4})",
                 "/brms/api/v1.1/device/channel/1000001$1$0$1/config/video"},
        ReadBack{
            "Multicast", std::string(kChannel) + "/config/multicast",
            R"({"status":"0","streams":[{"status":"1","multicastIp":"239.1.1.1","multicastPort":"7","streamType":"3"}]})",
            R"({"status":false,"streams":[{"status":true,"multicastIp":"239.1.1.1","multicastPort":"7","streamType":3}]})",
            ""},
        ReadBack{"UserGroup", "/brms/api/v1.1/user/group/12", R"({"groupName":"New & \"old\"","memo":""})",
                 R"({"id":"12","groupName":"New & \"old\"","memo":""})", "/brms/api/v1.1/user/group/13"},
        ReadBack{
            "QuickCommand", "/brms/api/v1.1/config/quick/command/6",
            R"({"quickCommandName":"N","enableShortcutKeys":"0","shortcutKeys":"F1","executeMode":"-2","remark":"r","httpUrls":[{"method":"-1","url":"u","body":"{\"a\":1}","seq":"9"}]})",
            R"({"id":"6","quickCommandName":"N","enableShortcutKeys":false,"shortcutKeys":"F1","executeMode":-2,"remark":"r","httpUrls":[{"method":-1,"url":"u","body":"{\"a\":1}","seq":"9"}]})",
            "/brms/api/v1.1/config/quick/command/5"},
        ReadBack{"CardConfiguration", "/obms/api/v1.1/acs/config/desfire",
                 R"({"enableDesfire":"0","enableReadEncryptContent":"1"})",
                 R"({"enableDesfire":false,"enableReadEncryptContent":true})", ""}),
    RowName());

class StateTest : public EmulatorTableTest {
protected:
    /// The values of one field of a list call's elements.
    Json column(const std::string& target, const std::string& field)
    {
        Json values = Json::array();
        const Json data = m_client->get(target).data();
        for (const Json& element : data.at("results")) {
            values.push_back(element.at(field));
        }
        return values;
    }

    /// What the state records of a write that no call reads back.
    Json accepted(const std::string& operation) { return m_platform.state().at("accepted").at(operation); }

    std::unique_ptr<TestClient> m_client = ClientOf(m_platform);
};

TEST_F(StateTest, MulticastStreamStatusShowsInTheConfig)
{
    const std::string target = std::string(kChannel) + "/config/multicast";
    Json expected = m_client->get(target).data();
    EXPECT_EQ(expected.at("streams").at(1).at("status"), false);
    expected["streams"][1]["status"] = true;
    EXPECT_EQ(m_client->put(target + "/stream/status", {{"status", "1"}, {"streamType", "2"}}).code(), 1000);
    EXPECT_EQ(m_client->get(target).data(), expected);
}

TEST_F(StateTest, LocalSettingUpdateChangesTheOneReadLast)
{
    const std::string target = "/brms/api/v1.1/config/local/setting";
    EXPECT_EQ(m_client->put(target, {{"apply", "0"}, {"settingContent", "first"}}).code(), 1000);
    EXPECT_EQ(m_client->get(target + "?settingType=1").data(),
              (Json{{"apply", false}, {"settingType", 1}, {"settingVersion", 8}, {"settingContent", "first"}}));
    EXPECT_EQ(m_client->get(target + "?settingType=77").data(),
              (Json{{"apply", false}, {"settingType", 77}, {"settingVersion", 0}, {"settingContent", ""}}));
    EXPECT_EQ(m_client->put(target, {{"apply", "1"}, {"settingContent", "new"}}).code(), 1000);
    EXPECT_EQ(m_client->put(target, {{"apply", "1"}, {"settingContent", "newer"}}).code(), 1000);
    EXPECT_EQ(m_client->get(target + "?settingType=1").data().at("settingVersion"), 8);
    EXPECT_EQ(m_client->get(target + "?settingType=77").data(),
              (Json{{"apply", true}, {"settingType", 77}, {"settingVersion", 2}, {"settingContent", "newer"}}));
}

TEST_F(StateTest, UserGroupsAreAddedFoundAndDeleted)
{
    const std::string target = "/brms/api/v1.1/user/group";
    const Reply added = m_client->post(target, Json{{"groupName", "Überwachung"}, {"memo", "m"}});
    const std::string id = added.data().at("id");
    EXPECT_EQ(id, "17");
    EXPECT_EQ(m_client->get(target + "/" + id).data(), (Json{{"id", id}, {"groupName", "Überwachung"}, {"memo", "m"}}));
    EXPECT_EQ(column(target + "/list?keyword=wachung", "id"), Json{id});
    EXPECT_EQ(column(target + "/list?keyword=GUARDS", "id"), (Json{"12", "13"}));
    EXPECT_EQ(column(target + "/list?keyword=", "id"), (Json{"12", "13", "14", "15", "16", "17"}));
    EXPECT_EQ(column(target + "/list?keyword=Gate", "id"), Json::array()) << "the memo is not searched";

    EXPECT_EQ(m_client->remove(target + "?ids=13,17").code(), 1000);
    EXPECT_EQ(column(target + "/list?keyword=", "id"), (Json{"12", "14", "15", "16"}));
    EXPECT_EQ(m_client->remove(target + "?ids=").code(), 1000);
    EXPECT_EQ(m_client->post(target, Json{{"groupName", ""}, {"memo", ""}}).data().at("id"), "18")
        << "identifiers are not reused";
}

TEST_F(StateTest, UsersMoveAndLeaveGroups)
{
    const std::string target = "/brms/api/v1.1/user/group";
    const auto groupOf = [this](std::size_t user) { return m_platform.state()["brms"]["users"][user]["groupId"]; };
    EXPECT_EQ(m_client->post(target + "/move/batch", Json{{"userIds", {"31", "33"}}, {"groupId", "14"}}).code(), 1000);
    EXPECT_EQ(groupOf(0), "14");
    EXPECT_EQ(groupOf(1), "12");
    EXPECT_EQ(groupOf(2), "14");
    EXPECT_EQ(accepted("BRMS.MoveUserGroup").at(0).at("body"), (Json{{"userIds", {"31", "33"}}, {"groupId", "14"}}));
    EXPECT_EQ(m_client->post(target + "/14/clear").code(), 1000);
    EXPECT_EQ(groupOf(0), "");
    EXPECT_EQ(groupOf(1), "12");
    EXPECT_EQ(accepted("BRMS.ClearUserGroup").at(0).at("path"), (Json{{"groupId", "14"}}));
    EXPECT_EQ(m_client->remove(target + "?ids=12").code(), 1000);
    EXPECT_EQ(groupOf(1), "") << "a deleted group has no users";
}

TEST_F(StateTest, QuickCommandsAreAddedFoundAndDeleted)
{
    const std::string target = "/brms/api/v1.1/config/quick/command";
    const Json body = {{"quickCommandName", "Neu"},
                       {"enableShortcutKeys", "1"},
                       {"shortcutKeys", "F2"},
                       {"executeMode", "2"},
                       {"remark", ""},
                       {"httpUrls", Json::array()}};
    EXPECT_EQ(m_client->post(target, body).data(), Json::object());
    EXPECT_EQ(column(target + "/list?keyword=neu", "id"), Json{"9"});
    EXPECT_EQ(column(target + "/list?keyword=neu", "enableShortcutKeys"), Json{true});
    EXPECT_EQ(m_client->get(target + "/9").data().at("executeMode"), 2);
    EXPECT_EQ(m_client->remove(target + "?ids=9,6").code(), 1000);
    EXPECT_EQ(column(target + "/list?keyword=", "id"), (Json{"5", "7", "8"}));
}

TEST_F(StateTest, PlanListsItsCurrentCommands)
{
    const std::string plan = "/brms/api/v1.1/alarm/plan/9/quick/command/list";
    const std::string command = "/brms/api/v1.1/config/quick/command";
    EXPECT_EQ(column(plan, "quickCommandName"), (Json{"Evacuate hall", "Lights yard on", "Open main gate"}));
    Json body = {{"quickCommandName", "Renamed"},
                 {"enableShortcutKeys", "1"},
                 {"shortcutKeys", ""},
                 {"executeMode", "1"},
                 {"remark", ""},
                 {"httpUrls", Json::array()}};
    EXPECT_EQ(m_client->put(command + "/7", body).code(), 1000);
    EXPECT_EQ(m_client->remove(command + "?ids=6").code(), 1000);
    EXPECT_EQ(column(plan, "quickCommandName"), (Json{"Renamed", "Open main gate"}));
}

TEST_F(StateTest, ManagedPersonsAreReplaced)
{
    const std::string target = "/obms/api/v1.1/acs/device/1000042/manage/person";
    EXPECT_EQ(column(target + "/list", "personId"), Json{"5003"});
    EXPECT_EQ(m_client->put(target, {{"personIds", {"5002", "5001"}}}).code(), 1000);
    EXPECT_EQ(column(target + "/list", "personId"), (Json{"5002", "5001"}));
    EXPECT_EQ(column(target + "/list", "errorCode"), (Json{"1103", "0"}));
    EXPECT_EQ(m_client->get(target + "/list").data().at("results").at(1).at("orgInfos").size(), 2U);
    EXPECT_EQ(m_client->put(target, {{"personIds", Json::array()}}).code(), 1000);
    EXPECT_EQ(column(target + "/list", "personId"), Json::array());
    EXPECT_EQ(column("/obms/api/v1.1/acs/device/1000041/manage/person/list", "personId"),
              (Json{"5001", "5002", "5006"}));
}

TEST_F(StateTest, ReissueRemovesFailures)
{
    const std::string target = "/obms/api/v1.1/acs/config/desfire/failure";
    EXPECT_EQ(m_client->get(target + "/page?page=1&pageSize=20&keyword=").data().at("totalCount"), 4);
    EXPECT_EQ(m_client->post(target + "/reissue").code(), 1000);
    EXPECT_EQ(m_client->get(target + "/page?page=1&pageSize=20&keyword=").data(),
              (Json{{"totalCount", 0}, {"pageData", Json::array()}}));
    EXPECT_EQ(accepted("OBMS.ReissueConfigDesfire").size(), 1U);
}

TEST_F(StateTest, ContactsAreDeletedByName)
{
    const std::string target = "/obms/api/v1.1/vtalk/issue/contact/delete";
    const auto contacts = [this] { return m_platform.state()["obms"]["contacts"]["1000051"]; };
    const Json named = {{"mode", "2"}, {"vtoDeviceCode", "1000051"}, {"vthDeviceCodes", {"1000052", "1000054"}}};
    EXPECT_EQ(m_client->post(target, named).code(), 1000);
    EXPECT_EQ(contacts(), Json{"1000053"});
    EXPECT_EQ(accepted("OBMS.DeleteAddressBooks").at(0).at("body"), named);
    const Json all = {{"mode", "1"}, {"vtoDeviceCode", "1000051"}, {"vthDeviceCodes", Json::array()}};
    EXPECT_EQ(m_client->post(target, all).code(), 1000);
    EXPECT_EQ(contacts(), Json::array());
}

TEST_F(StateTest, CaptureRecordStoresPlate)
{
    const Json body = {{"id", "88002"}, {"plateNo", "ÄÖ 1"}};
    EXPECT_EQ(m_client->put("/ipms/api/v1.1/fusion/vehicle-capture/record", body).code(), 1000);
    EXPECT_EQ(m_platform.state()["ipms"]["captureRecords"][1]["plateNo"], "ÄÖ 1");
    EXPECT_EQ(accepted("IPMS.UpdateVehicleCaptureRecord").at(0).at("body"), body);
}

TEST_F(StateTest, FailedUploadsOfAnalysisTasksAreMarked)
{
    const Json body = {{"ids", {"702"}}};
    EXPECT_EQ(m_client->post("/iams/api/v1.1/stream-analyse/task/file/upload/failed/update/batch", body).code(), 1000);
    EXPECT_EQ(m_platform.state()["iams"]["tasks"][0]["uploadFailed"], false);
    EXPECT_EQ(m_platform.state()["iams"]["tasks"][1]["uploadFailed"], true);
    EXPECT_EQ(accepted("IAMS.SetAnalysisTaskUploadFailed").at(0).at("body"), body);
}

struct RecordedWrite {
    const char* name;
    const char* target;
    const char* body;
    const char* operation;
    const char* path;
};
class RecordedWriteTest : public EmulatorTableTest, public testing::WithParamInterface<RecordedWrite> {};

TEST_P(RecordedWriteTest, IsRecordedInTheState)
{
    EXPECT_EQ(ClientOf(m_platform)->request("POST", GetParam().target, GetParam().body).code(), 1000);
    const Json accepted = m_platform.state().at("accepted").at(GetParam().operation);
    ASSERT_EQ(accepted.size(), 1U);
    const Json body = *GetParam().body == '\0' ? Json() : Json::parse(GetParam().body);
    EXPECT_EQ(accepted.at(0),
              (Json{{"path", Json::parse(GetParam().path)}, {"query", Json::object()}, {"body", body}}));
}

INSTANTIATE_TEST_SUITE_P(
    Writes, RecordedWriteTest,
    testing::Values(
        RecordedWrite{"SyncTime", "/brms/api/v1.1/config/time-sync/immediate", "", "BRMS.ImmediatelySyncTime", "{}"},
        RecordedWrite{"Discover", "/brms/api/v1.1/device/discover/async/batch",
                      R"({"deviceCodes":[],"discoverMode":2})", "BRMS.BatchDiscoverDevices", "{}"},
        RecordedWrite{"AlarmOutput", "/brms/api/v1.1/device/channel/alarm-output/control",
                      R"({"channelIds":["1000001$3$0$0"],"action":0,"command":1})", "BRMS.AlarmOutputControl", "{}"},
        RecordedWrite{"AudioLight", "/brms/api/v1.1/device/channel/audio-light/regulate",
                      R"({"channelIds":[],"command":0})", "BRMS.AudioLightControl", "{}"},
        RecordedWrite{"Speaker", "/brms/api/v1.1/device/channel/audio/ip-speaker/control",
                      R"({"channels":[{"channelId":"1000005$10$0$0","fileIds":"1","playCount":"2"}],"command":7})",
                      "BRMS.IPSpeakerControl", "{}"},
        RecordedWrite{"DeriveToken", "/brms/api/v1.1/account/token/derive", "", "BRMS.GetDeriveToken", "{}"},
        RecordedWrite{"Wash", "/admin/API/DMS/Ptz/AuxControl", R"({"data":{"channelId":"1000001$1$0$0","command":1}})",
                      "DMS.WashOpen", "{}"},
        RecordedWrite{"WashNone", "/admin/API/DMS/Ptz/AuxBatchControl", R"({"data":{"ptzAuxControlXos":[]}})",
                      "DMS.BatchWashOpen", "{}"},
        RecordedWrite{"SetHome", "/brms/api/v1.1/ptz/channel/1000001$1$0$0/home-position/configure", "",
                      "DMS.SetHomePosition", R"({"channelId":"1000001$1$0$0"})"},
        RecordedWrite{"GotoHome", "/brms/api/v1.1/ptz/channel/1000001$1$0$0/home-position/goto", "",
                      "DMS.GotoHomePosition", R"({"channelId":"1000001$1$0$0"})"},
        RecordedWrite{"ResetAntiPass", "/obms/api/v1.1/acs/person/5003/anti-pass-time/reset", "",
                      "OBMS.PersonResetAntiPass", R"({"personId":"5003"})"},
        RecordedWrite{"Snapshot", "/obms/api/v1.1/alarm-host/zone/72/snapshot", R"({"action":-1})",
                      "OBMS.AlarmHostZoneSnapShot", R"({"zoneId":"72"})"}),
    RowName());

struct Read {
    const char* name;
    const char* method;
    const char* target;
    const char* body;
    const char* pointer;   ///< in "data"
    const char* expected;  ///< at the pointer
};
class ReadTest : public EmulatorTableTest, public testing::WithParamInterface<Read> {};

TEST_P(ReadTest, RepliesFromTheSeeds)
{
    const Reply reply = ClientOf(m_platform)->request(GetParam().method, GetParam().target, GetParam().body);
    EXPECT_EQ(reply.code(), 1000) << reply.body;
    EXPECT_EQ(reply.data().at(Json::json_pointer(GetParam().pointer)), Json::parse(GetParam().expected)) << reply.body;
}

INSTANTIATE_TEST_SUITE_P(
    Seeds, ReadTest,
    testing::Values(
        Read{"EncodeCapabilityOfStream2", "GET",
             "/brms/api/v1.1/device/channel/1000001$1$0$0/capability/encode?streamType=2", "", "/supportCompressions",
             R"(["3"])"},
        Read{"FailingAndUnknownChannels", "POST", "/brms/api/v1.1/device/channel/alarm-output/control",
             R"({"channelIds":["1000001$3$0$0","1000001$3$0$1","x"],"action":0,"command":1})", "/failedChannels",
             R"([{"channelId":"1000001$3$0$1","errorCode":5},{"channelId":"x","errorCode":1005}])"},
        Read{"FailingSpeaker", "POST", "/brms/api/v1.1/device/channel/audio/ip-speaker/control",
             R"({"channels":[{"channelId":"1000006$10$0$0","fileIds":"1","playCount":"2"}],"command":7})",
             "/failedChannels", R"([{"channelId":"1000006$10$0$0","errorCode":5}])"},
        Read{"DiskWithoutDisks", "GET", "/brms/api/v1.1/system/warn/disk/list", "", "/results/2/warnDisks", "[]"},
        Read{
            "PlansSecondPage", "GET", "/brms/api/v1.1/alarm/plan/summary/page?page=2&pageSize=3&keyword=", "",
            "/pageData",
            R"([{"id":"10","planName":"Intrusion yard"},{"id":"11","planName":"Camera covered"},{"id":"17","planName":"Parking barrier blocked"}])"},
        Read{"PlansPageZeroIsTheFirst", "GET", "/brms/api/v1.1/alarm/plan/summary/page?page=0&pageSize=1&keyword=", "",
             "/pageData", R"([{"id":"3","planName":"Door forced, main building"}])"},
        Read{"PlansPageAfterTheLast", "GET", "/brms/api/v1.1/alarm/plan/summary/page?page=99&pageSize=20&keyword=", "",
             "/pageData", "[]"},
        Read{"PlansHugePage", "GET",
             "/brms/api/v1.1/alarm/plan/summary/page?page=999999999&pageSize=999999999&keyword=", "", "/pageData",
             "[]"},
        Read{"PlansWithKeyword", "GET", "/brms/api/v1.1/alarm/plan/summary/page?page=1&pageSize=20&keyword=door", "",
             "/totalCount", "3"},
        Read{"LinkageOfAnotherType", "GET",
             "/brms/api/v1.1/alarm/plan/source/alarm-type/linkage/list?sourceCode=1000001$1$0$0&alarmType=-5", "", "",
             R"({"linkAudioLightChannels":[],"linkAlarmOutputChannels":[],"linkAudioChannels":[]})"},
        Read{"LinkageOfADevice", "GET",
             "/brms/api/v1.1/alarm/plan/source/alarm-type/linkage/list?sourceCode=1000031&alarmType=5", "",
             "/linkAudioChannels", "[]"},
        Read{"MenuNotAvailable", "GET", "/brms/api/v1.1/menu/parking.report/available", "", "/available", "false"},
        Read{"FunctionAllowed", "POST", "/brms/api/v1.1/account/function/channel/check",
             R"({"channelId":"1000001$1$0$0","functionCode":"monitor.ptz"})", "/authorized", R"("1")"},
        Read{"FunctionNotAllowed", "POST", "/brms/api/v1.1/account/function/channel/check",
             R"({"channelId":"1000001$1$0$0","functionCode":"door.open"})", "/authorized", R"("0")"},
        Read{
            "DeviceCounts", "GET",
            "/brms/api/v1.1/device/statistics/count-by-device-category/"
            "list?keyword=&orgCode=&domain=&permitted=&sourceType=&containChild=",
            "", "/results",
            R"([{"deviceCategory":1,"deviceCount":6},{"deviceCategory":5,"deviceCount":4},{"deviceCategory":6,"deviceCount":2},{"deviceCategory":8,"deviceCount":4},{"deviceCategory":11,"deviceCount":2}])"},
        Read{"DeviceCountsFiltered", "GET",
             "/brms/api/v1.1/device/statistics/count-by-device-category/"
             "list?keyword=reader&orgCode=001&domain=&permitted=1&sourceType=&containChild=0",
             "", "/results", R"([{"deviceCategory":5,"deviceCount":1}])"},
        Read{"DeviceCountsWithChildren", "GET",
             "/brms/api/v1.1/device/statistics/count-by-device-category/"
             "list?keyword=reader&orgCode=001&domain=&permitted=1&sourceType=&containChild=true",
             "", "/results", R"([{"deviceCategory":5,"deviceCount":3}])"},
        Read{"WashOfALockedChannel", "POST", "/admin/API/DMS/Ptz/AuxControl",
             R"({"data":{"channelId":"1000002$1$0$0","command":1}})", "",
             R"({"result":"1","lockUser":{"userName":"operator2","userLevel":"2","lowerDomain":""}})"},
        Read{"WashOfAFreeChannel", "POST", "/admin/API/DMS/Ptz/AuxControl",
             R"({"data":{"channelId":"1000001$1$0$0","command":1}})", "", R"({"result":"0","lockUser":{}})"},
        Read{
            "WashBatchWithALockedChannel", "POST", "/admin/API/DMS/Ptz/AuxBatchControl",
            R"({"data":{"ptzAuxControlXos":[{"channelId":"1000001$1$0$0","command":1},{"channelId":"1000002$1$0$0","command":1}]}})",
            "", R"({"result":"1","msg":"1 channels switched, 1 locked"})"},
        Read{"LotsById", "GET", "/ipms/api/v1.1/parking-lot/summary/list?parkingLotIds=3,1,77&mode=-1", "",
             "/results/1/parkingLotName", R"("Visitor car park")"},
        Read{"LotsOfAnOrganisation", "GET",
             "/ipms/api/v1.1/parking-lot/detail/list?parkingLotIds=&mode=0&orgCode=001001001", "",
             "/results/0/parkingLotName", R"("Truck yard")"},
        Read{"LotsOfAnUnknownOrganisation", "GET",
             "/ipms/api/v1.1/parking-lot/detail/list?parkingLotIds=&mode=0&orgCode=9", "", "/results", "[]"},
        Read{"SummaryPointHasNoChannels", "GET", "/ipms/api/v1.1/parking-lot/summary/list?parkingLotIds=1&mode=-1", "",
             "/results/0/positions/0/points/0",
             R"({"id":"111","pointName":"Main gate in","remark":"","refPointId":"112","direction":1,"mode":1})"},
        Read{
            "PersonsAtADevice", "POST", "/obms/api/v1.1/acs/person/access/authorize/fetch/page",
            R"({"page":"1","pageSize":"2","containChild":"0","keyword":"","deviceCode":"1000042","orgCode":"","pointIds":[]})",
            "/totalCount", "6"},
        Read{
            "PersonsAtPoints", "POST", "/obms/api/v1.1/acs/person/access/authorize/fetch/page",
            R"({"page":"1","pageSize":"2","containChild":"0","keyword":"","deviceCode":"","orgCode":"","pointIds":["62"]})",
            "/totalCount", "4"},
        Read{
            "PersonsOfAnOrganisation", "POST", "/obms/api/v1.1/acs/person/access/authorize/fetch/page",
            R"({"page":"1","pageSize":"2","containChild":"0","keyword":"","deviceCode":"","orgCode":"001002","pointIds":[]})",
            "/totalCount", "2"},
        Read{
            "PersonsOfOrganisationAndChildren", "POST", "/obms/api/v1.1/acs/person/access/authorize/fetch/page",
            R"({"page":"1","pageSize":"2","containChild":"1","keyword":"","deviceCode":"","orgCode":"001002","pointIds":[]})",
            "/totalCount", "4"},
        Read{
            "PersonsWithKeyword", "POST", "/obms/api/v1.1/acs/person/access/authorize/fetch/page",
            R"({"page":"1","pageSize":"20","containChild":"0","keyword":"müller","deviceCode":"","orgCode":"","pointIds":[]})",
            "/pageData/0/personId", R"("5006")"},
        Read{"OfflineRules", "GET", "/obms/api/v1.1/acp/point/61/rule/list?ruleType=1&hasOfflinePoint=1", "",
             "/results", R"([{"ruleId":"10","ruleName":"Night watch","ruleType":"1","hasOfflinePoint":true}])"},
        Read{"RulesOfAnyKind", "GET", "/obms/api/v1.1/acp/point/61/rule/list?ruleType=&hasOfflinePoint=-1", "",
             "/results/2/ruleId", R"("11")"},
        Read{
            "FailuresWithKeyword", "GET",
            "/obms/api/v1.1/acs/config/desfire/failure/page?page=1&pageSize=20&keyword=HALL", "", "",
            R"({"totalCount":1,"pageData":[{"id":"302","deviceCode":"1000042","deviceName":"Hall reader","deviceIp":"192.168.20.42","reason":1}]})"},
        Read{"DeviceOffline", "GET", "/omms/api/v1.1/device/1000022", "", "/statusName", R"("Offline")"}),
    RowName());

TEST_F(StateTest, SessionsAndTokensAreNewEachTime)
{
    const std::string derive = "/brms/api/v1.1/account/token/derive";
    EXPECT_NE(m_client->post(derive).data(), m_client->post(derive).data());
    const std::string snapshot = "/obms/api/v1.1/alarm-host/zone/71/snapshot";
    EXPECT_NE(m_client->post(snapshot, Json{{"action", 1}}).data(),
              m_client->post(snapshot, Json{{"action", 1}}).data());
    const std::string discover = "/brms/api/v1.1/device/discover/async/batch";
    const Json devices = {{"deviceCodes", {"1000001"}}, {"discoverMode", 1}};
    EXPECT_NE(m_client->post(discover, devices).data(), m_client->post(discover, devices).data());
}

TEST(ScaledStateTest, LongListsAreServed)
{
    const RunningEmulator platform(With(&emulator::Options::scale, 50));
    const auto client = ClientOf(platform);
    EXPECT_EQ(client->get("/brms/api/v1.1/user/group/list?keyword=").data().at("results").size(), 250U);
    EXPECT_EQ(client->get("/brms/api/v1.1/user/group/12-50").code(), 1000);
    EXPECT_EQ(client->get("/omms/api/v1.1/channel/1000001$1$0$0-50").data().at("deviceCode"), "1000001-50");
    EXPECT_EQ(client->get("/brms/api/v1.1/device/channel/1000001$1$0$0-7/config/encode").code(), 1000);
    EXPECT_EQ(client->get("/ipms/api/v1.1/parking-lot/detail/list?parkingLotIds=&mode=-1&orgCode=")
                  .data()
                  .at("results")
                  .size(),
              200U);
}
