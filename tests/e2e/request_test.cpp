// Requests as the platform receives them: texts in URLs, the server that is used, and objects that do not exist.
#include "support/EndToEnd.h"
#include "support/Rows.h"

#include <gtest/gtest.h>

namespace e2e {
namespace {

constexpr int kInvalidParameter = 1003;
constexpr int kUnknownObject = 1005;

struct KeywordRow {
    std::string name;
    std::string call;
    Json arguments;
    std::string target;  ///< as received by the server
    int result;
};

class Keyword : public EndToEnd, public testing::WithParamInterface<KeywordRow> {};

TEST_P(Keyword, IsSentInTheTarget)
{
    const catalogue::Outcome outcome = Run(GetParam().call, GetParam().arguments);
    ASSERT_EQ(Platform().requests().size(), 1U);
    EXPECT_EQ(Platform().requests().front().target, GetParam().target);
    EXPECT_EQ(outcome.Code(), GetParam().result) << outcome.Text().toStdString();
}

KeywordRow Sends(const char* name, const char* call, const Json& arguments, const char* target, int result)
{
    return {name, call, arguments, target, result};
}

Json Query(const std::string& keyword)
{
    return {{"page", 1}, {"pageSize", 20}, {"keyword", keyword}};
}

// An ampersand starts another value, which the platform rejects; a hash sign ends the request's target.
INSTANTIATE_TEST_SUITE_P(
    AmpersandAndHash, Keyword,
    testing::Values(
        Sends("UserGroups", "BRMS.GetUserGroupList", {{"keyword", "a&b#c"}},
              "/brms/api/v1.1/user/group/list?keyword=a&b", kInvalidParameter),
        Sends("HashAlone", "BRMS.GetUserGroupList", {{"keyword", "a#c"}}, "/brms/api/v1.1/user/group/list?keyword=a",
              0),
        Sends("QuickCommands", "BRMS.GetQuickCommands", {{"keyword", "a&b#c"}},
              "/brms/api/v1.1/config/quick/command/list?keyword=a&b", kInvalidParameter),
        Sends("AlarmPlans", "BRMS.GetPageSummaryAlarmPlans", {{"query", Query("a&b#c")}},
              "/brms/api/v1.1/alarm/plan/summary/page?page=1&pageSize=20&keyword=a&b", kInvalidParameter),
        Sends("CardFailures", "OBMS.GetPageConfigDesfireFailInfo", {{"req", Query("a&b#c")}},
              "/obms/api/v1.1/acs/config/desfire/failure/page?page=1&pageSize=20&keyword=a&b", kInvalidParameter),
        Sends("DeviceCount", "BRMS.GetDeviceCategoryCount", {{"query", {{"keyword", "a&b#c"}, {"orgCode", "001"}}}},
              "/brms/api/v1.1/device/statistics/count-by-device-category/list?keyword=a&b", kInvalidParameter)),
    testing_support::RowName());

INSTANTIATE_TEST_SUITE_P(
    PercentSign, Keyword,
    testing::Values(Sends("OnlyPlaceOfTheUrl", "BRMS.GetUserGroupList", {{"keyword", "a%2b"}},
                          "/brms/api/v1.1/user/group/list?keyword=a%2B", 0),
                    Sends("EncodedByTheHost", "BRMS.GetUserGroupList", {{"keyword", "R%26D"}},
                          "/brms/api/v1.1/user/group/list?keyword=R%26D", 0),
                    Sends("EncodedBeforeALaterValue", "BRMS.GetDeviceCategoryCount",
                          {{"query", {{"keyword", "R%26D"}, {"orgCode", "001"}}}},
                          "/brms/api/v1.1/device/statistics/count-by-device-category/list"
                          "?keyword=R%26D&orgCode=001&domain=&permitted=&sourceType=&containChild=",
                          0),
                    Sends("FormatMarkerOfALaterValue", "BRMS.GetDeviceCategoryCount",
                          {{"query", {{"keyword", "a%2b"}, {"orgCode", "001"}}}},
                          "/brms/api/v1.1/device/statistics/count-by-device-category/list"
                          "?keyword=a001b&orgCode=001&domain=&permitted=&sourceType=&containChild=",
                          0)),
    testing_support::RowName());

TEST_F(EndToEnd, KeywordInABodyArrivesUnchanged)
{
    const catalogue::Outcome outcome = Run("OBMS.GetPageAccessAuthorizePersons", {{"req", Query("a&b#c%2")}});
    EXPECT_TRUE(outcome) << outcome.Text().toStdString();
    ASSERT_EQ(Platform().requests().size(), 1U);
    EXPECT_EQ(Json::parse(Platform().requests().front().body).at("keyword"), "a&b#c%2");
}

/// Two servers, distinguished by the token that the host sends. The emulator rejects the second token.
class TwoServers : public EndToEnd {
protected:
    TwoServers()
    {
        users.servers[2] = users.servers[1];
        users.servers[2].token = "token-of-server-2";
    }

    /// Runs a call and returns the server that received it.
    int ServerOf(const std::string& call, const Json& arguments, int serverId = -1)
    {
        Platform().clearRequests();
        catalogue::RunSettings settings;
        settings.serverId = serverId;
        const catalogue::Outcome outcome = Run(call, arguments, settings);
        EXPECT_EQ(Platform().requests().size(), 1U) << call;
        const bool second = Platform().requests().back().header("X-Subject-Token") == users.servers[2].token;
        EXPECT_EQ(bool(outcome), !second) << call << ": " << outcome.Text().toStdString();
        return second ? 2 : 1;
    }
};

TEST_F(TwoServers, WashFunctionAlwaysUsesServer1)
{
    const Json channel = {{"channelId", "1000001$1$0$0"}};
    users.currentServerId = 2;
    EXPECT_EQ(ServerOf("DMS.WashOpen", channel), 1);
    EXPECT_EQ(ServerOf("DMS.BatchWashOpen", {{"channelIds", Json::array({"1000001$1$0$0"})}}), 1);
    EXPECT_EQ(ServerOf("DMS.SetHomePosition", channel), 2) << "other calls use the current server";
}

TEST_F(TwoServers, ManagingPersonsAreAlwaysReadFromTheCurrentServer)
{
    const Json device = {{"req", {{"deviceCode", "1000041"}}}};
    EXPECT_EQ(ServerOf("OBMS.GetManagePersons", device, 2), 1);
    EXPECT_EQ(ServerOf("OBMS.GetConfigDesfireInfo", {}, 2), 2) << "other calls use the given server";
    users.currentServerId = 2;
    EXPECT_EQ(ServerOf("OBMS.GetManagePersons", device, 1), 2);
}

struct UnknownRow {
    std::string name;
    std::string call;
    Json arguments;
};

UnknownRow Refuses(const char* name, const char* call, const Json& arguments)
{
    return {name, call, arguments};
}

class UnknownObject : public EndToEnd, public testing::WithParamInterface<UnknownRow> {};

TEST_P(UnknownObject, ReturnsTheEnvelopeCodeAndChangesNothing)
{
    const Json before = Platform().state();
    const catalogue::Outcome outcome = Run(GetParam().call, GetParam().arguments);
    EXPECT_EQ(outcome.End(), APIModule::CallEnd::Refused);
    EXPECT_EQ(outcome.Code(), kUnknownObject);
    EXPECT_EQ(notifications.Take(), QStringList());
    EXPECT_EQ(outcome.record, DefaultRecord(GetParam().call));
    EXPECT_EQ(Platform().state(), before);
}

INSTANTIATE_TEST_SUITE_P(
    Brms, UnknownObject,
    testing::Values(
        Refuses("NetworkOfADevice", "BRMS.GetNetworkConfig", {{"deviceCode", "404"}}),
        Refuses("NetworkToWrite", "BRMS.UpdateNetworkConfig", {{"config", {{"deviceCode", "404"}}}}),
        Refuses("EncodingOfAChannel", "BRMS.GetEncodeConfig", {{"channelId", "404"}}),
        Refuses("CapabilityOfAStream", "BRMS.GetEncodeCapability", {{"channelId", "1000001$1$0$0"}, {"streamType", 9}}),
        Refuses("ImageToWrite", "BRMS.UpdateImageConfig", {{"config", {{"channelId", "404"}}}}),
        Refuses("MulticastOfAStream", "BRMS.SetMultiCastStreamStatus",
                {{"status", {{"channelId", "1000001$1$0$0"}, {"streamType", 9}}}}),
        Refuses("OneOfTheDevicesToDiscover", "BRMS.BatchDiscoverDevices",
                {{"deviceCodes", {"1000001", "404"}}, {"discoverMode", 1}}),
        Refuses("UserGroup", "BRMS.GetUserGroup", {{"groupId", "404"}}),
        Refuses("UserGroupToClear", "BRMS.ClearUserGroup", {{"groupId", "404"}}),
        Refuses("OneOfTheUsersToMove", "BRMS.MoveUserGroup",
                {{"move", {{"groupId", "12"}, {"userIds", {"31", "404"}}}}}),
        Refuses("OneOfTheUserGroupsToDelete", "BRMS.DeleteUserGroup", {{"groupIds", {"12", "404"}}}),
        Refuses("QuickCommand", "BRMS.GetQuickCommand", {{"id", "404"}}),
        Refuses("QuickCommandToChange", "BRMS.UpdateQuickCommand", {{"command", {{"id", "404"}}}}),
        Refuses("OneOfTheQuickCommandsToDelete", "BRMS.DelQuickCommand", {{"ids", {"5", "404"}}}),
        Refuses("AlarmPlan", "BRMS.GetAlarmPlanQuickCommands", {{"planId", "404"}}),
        Refuses("SourceOfAnAlarm", "BRMS.GetAlarmLinkControlList", {{"sourceCode", "404"}, {"alarmType", 5}}),
        Refuses("ResourceOnALayer", "BRMS.GetAlarmLayerDetail", {{"resourceCode", "404"}, {"resourceType", 3}}),
        Refuses("AlarmRecord", "BRMS.GetAlarmHostFileInfo", {{"alarmRecordId", "404"}}),
        Refuses("ChannelWithAWebPage", "BRMS.GetChannelWebTunnel", {{"channelId", "404"}}),
        Refuses("Menu", "BRMS.GetMenuAvailable", {{"menuCode", "no.such.menu"}})),
    testing_support::RowName());

INSTANTIATE_TEST_SUITE_P(
    OtherFamilies, UnknownObject,
    testing::Values(Refuses("ChannelToWash", "DMS.WashOpen", {{"channelId", "404"}}),
                    Refuses("ChannelToMove", "DMS.GotoHomePosition", {{"channelId", "404"}}),
                    Refuses("OneOfTheTasks", "IAMS.SetAnalysisTaskUploadFailed", {{"taskIds", {"701", "404"}}}),
                    Refuses("CaptureRecord", "IPMS.UpdateVehicleCaptureRecord",
                            {{"info", {{"id", "404"}, {"plateNo", "X"}}}}),
                    Refuses("DeviceWithManagers", "OBMS.GetManagePersons", {{"req", {{"deviceCode", "404"}}}}),
                    Refuses("OneOfTheManagers", "OBMS.SetManagePersons",
                            {{"req", {{"deviceCode", "1000041"}, {"personIds", {"5001", "404"}}}}}),
                    Refuses("AccessPoint", "OBMS.GetPointRules", {{"req", {{"pointId", "404"}}}}),
                    Refuses("Person", "OBMS.PersonResetAntiPass", {{"personId", "404"}}),
                    Refuses("OutdoorStation", "OBMS.DeleteAddressBooks", {{"param", {{"vtoDeviceCode", "404"}}}}),
                    Refuses("Zone", "OBMS.AlarmHostZoneSnapShot", {{"zoneId", "404"}, {"action", 1}}),
                    Refuses("Channel", "OMMS.GetChannelInfo", {{"channelId", "404"}}),
                    Refuses("Device", "OMMS.GetDeviceInfo", {{"deviceCode", "404"}})),
    testing_support::RowName());

}  // namespace
}  // namespace e2e
