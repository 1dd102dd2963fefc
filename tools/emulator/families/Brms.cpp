#include "Families.h"

#include <algorithm>
#include <iterator>

namespace emulator::families {
namespace {

const Collection kUserGroups{"/brms/userGroups", "id"};
const Collection kUsers{"/brms/users", "id"};
const Collection kQuickCommands{"/brms/quickCommands", "id"};
const Collection kAlarmPlans{"/brms/alarmPlans", "id"};
const Collection kAlarmRecords{"/brms/alarmRecords", "id"};
constexpr const char* kSettings = "/brms/localSettings";
constexpr const char* kLastSetting = "/brms/lastSettingType";

Json& SettingEntry(State& state, int type)
{
    Json& entry = state.at(StatePath(kSettings))[std::to_string(type)];
    if (entry.is_null()) {
        entry = Json{{"apply", false}, {"settingType", type}, {"settingVersion", 0}, {"settingContent", ""}};
    }
    return entry;
}

Json ReadSetting(const Call& call)
{
    const int type = call.query.at("settingType");
    call.state[StatePath(kLastSetting)] = type;
    return SettingEntry(call.state, type);
}

/// The call has no setting type: it changes the setting that was read last, or type 1 before any read.
Json WriteSetting(const Call& call)
{
    Json& entry = SettingEntry(call.state, call.state.value(StatePath(kLastSetting), 1));
    entry.update(BodyAsRead(call));
    entry["settingVersion"] = entry.at("settingVersion").get<std::int64_t>() + 1;
    return Json::object();
}

Json ReadEncodeCapability(const Call& call)
{
    const Json streams = ReadEntry("/brms/encodeCapability", kChannels)(call);
    const std::string type = ValueOf(call, "streamType");
    return streams.contains(type) ? streams.at(type) : RefuseUnknown("stream " + type);
}

/// Switches one stream; refuses a stream that is not configured.
Json SetMultiCastStreamStatus(const Call& call)
{
    Json config = ReadEntry("/brms/multicast", kChannels)(call);
    Json& stream = ElementOf(config.at("streams"), "streamType", ValueOf(call, "streamType"));
    stream["status"] = call.body.at("status") == "1";
    call.state.at(StatePath("/brms/multicast"))[PathValue(call)] = config;
    return Json::object();
}

Json DiscoverDevices(const Call& call)
{
    for (const Json& code : call.body.at("deviceCodes")) {
        kDevices.find(call.state, code);
    }
    RecordAccepted(call);
    return Json{{"session", "discover-" + NextNumber(call, "discover")}};
}

/// Returns the channels that fail: those seeded as failing, with their code, and unknown ones.
Json ControlChannels(const Call& call, const std::vector<std::string>& channelIds)
{
    const Json& failing = call.state.at(StatePath("/brms/failingChannels"));
    Json failed = Json::array();
    for (const std::string& id : channelIds) {
        if (!kChannels.has(call.state, id)) {
            failed.push_back(Json{{"channelId", id}, {"errorCode", code::UnknownObject}});
        } else if (failing.contains(id)) {
            failed.push_back(Json{{"channelId", id}, {"errorCode", failing.at(id)}});
        }
    }
    RecordAccepted(call);
    return Json{{"failedChannels", failed}};
}

Json ControlNamedChannels(const Call& call)
{
    return ControlChannels(call, call.body.at("channelIds"));
}

Json ControlSpeakers(const Call& call)
{
    std::vector<std::string> ids;
    const Json& speakers = call.body.at("channels");
    std::transform(speakers.begin(), speakers.end(), std::back_inserter(ids),
                   [](const Json& speaker) { return speaker.at("channelId"); });
    return ControlChannels(call, ids);
}

/// Removes the users from the groups; they remain as users without a group.
void LeaveGroups(State& state, const std::vector<std::string>& groupIds)
{
    for (Json& user : state.at(kUsers.list)) {
        if (std::count(groupIds.begin(), groupIds.end(), user.at("groupId")) > 0) {
            user["groupId"] = "";
        }
    }
}

Json MoveUsers(const Call& call)
{
    const std::string group = call.body.at("groupId");
    kUserGroups.find(call.state, group);
    for (const Json& id : call.body.at("userIds")) {
        kUsers.find(call.state, id);
    }
    for (const Json& id : call.body.at("userIds")) {
        kUsers.find(call.state, id)["groupId"] = group;
    }
    return RecordAccepted(call);
}

Json ClearGroup(const Call& call)
{
    kUserGroups.find(call.state, PathValue(call));
    LeaveGroups(call.state, {PathValue(call)});
    return RecordAccepted(call);
}

Json DeleteGroups(const Call& call)
{
    Json done = Delete(kUserGroups)(call);
    LeaveGroups(call.state, Listed(ValueOf(call, "ids")));
    return done;
}

/// The plan's commands as currently stored, without deleted ones.
Json ReadPlanCommands(const Call& call)
{
    Json commands = Json::array();
    for (const Json& id : kAlarmPlans.find(call.state, PathValue(call)).at("quickCommandIds")) {
        if (kQuickCommands.has(call.state, id)) {
            commands.push_back(kQuickCommands.find(call.state, id));
        }
    }
    return Json{{"results", commands}};
}

/// Returns empty lists for a device or channel without a linkage for this type of alarm.
Json ReadLinkage(const Call& call)
{
    const std::string source = ValueOf(call, "sourceCode");
    for (const Json& linkage : call.state.at(StatePath("/brms/alarmLinkages"))) {
        if (linkage.at("sourceCode") == source && linkage.at("alarmType") == call.query.at("alarmType")) {
            return linkage;
        }
    }
    if (!kChannels.has(call.state, source)) {
        kDevices.find(call.state, source);
    }
    return Json{{"linkAudioLightChannels", Json::array()},
                {"linkAlarmOutputChannels", Json::array()},
                {"linkAudioChannels", Json::array()}};
}

Json ReadLayer(const Call& call)
{
    const std::string resource = ValueOf(call, "resourceCode");
    for (const Json& layer : call.state.at(StatePath("/brms/layers"))) {
        if (layer.at("resourceCode") == resource && layer.at("resourceType") == call.query.at("resourceType")) {
            return layer;
        }
    }
    return RefuseUnknown(resource);
}

Json ReadMenu(const Call& call)
{
    const Json& menus = call.state.at(StatePath("/brms/menus"));
    return menus.contains(PathValue(call)) ? menus.at(PathValue(call)) : RefuseUnknown(PathValue(call));
}

Json DeriveToken(const Call& call)
{
    RecordAccepted(call);
    return Json{{"token", "derived-" + NextNumber(call, "derivedToken")}};
}

/// The account's menu functions are allowed on every channel.
Json CheckFunction(const Call& call)
{
    kChannels.find(call.state, call.body.at("channelId"));
    const Json& functions = call.state.at(StatePath("/brms/permission/menuFunctionCodes"));
    const bool allowed = std::count(functions.begin(), functions.end(), call.body.at("functionCode")) > 0;
    return Json{{"authorized", allowed ? "1" : "0"}};
}

Json CountDevices(const Call& call)
{
    const std::vector<Filter> filters = {HasKeyword({"deviceName", "deviceCode"}), InOrganisation(), Equals("domain"),
                                         Equals("sourceType"), [](const Json& device, const Call& request) {
                                             return !IsOn(ValueOf(request, "permitted")) ||
                                                    device.at("permitted") == true;
                                         }};
    std::map<int, int> counts;
    const Json devices = List(kDevices.list, filters)(call);
    for (const Json& device : devices.at("results")) {
        ++counts[device.at("deviceCategory").get<int>()];
    }
    Json results = Json::array();
    for (const auto& [category, count] : counts) {
        results.push_back(Json{{"deviceCategory", category}, {"deviceCount", count}});
    }
    return Json{{"results", results}};
}

}  // namespace

HandlerTable Brms()
{
    return {
        {"BRMS.GetTimeSyncConfig", ReadDocument("/brms/timeSync")},
        {"BRMS.SetTimeSyncConfig", WriteDocument("/brms/timeSync")},
        {"BRMS.GetRemoteLogConfig", ReadDocument("/brms/remoteLog")},
        {"BRMS.SetRemoteLogConfig", WriteDocument("/brms/remoteLog")},
        {"BRMS.GetDeviceLoginModel", ReadDocument("/brms/deviceLoginModel")},
        {"BRMS.SetDeviceLoginModel", WriteDocument("/brms/deviceLoginModel")},
        {"BRMS.GetPushAppMsgConfig", ReadDocument("/brms/pushMessage")},
        {"BRMS.SetPushAppMsgConfig", WriteDocument("/brms/pushMessage")},
        {"BRMS.GetSupportDataBaseType", ReadDocument("/brms/databaseTypes")},
        {"BRMS.GetLocalSetting", {ReadSetting, std::string(kSettings) + "/{}"}},
        {"BRMS.UpdateLocalSetting", WriteSetting},
        {"BRMS.GetAIPrivacyConfig", ReadDocument("/brms/aiPrivacy")},
        {"BRMS.UpdateAIPrivacyConfig", WriteDocument("/brms/aiPrivacy")},

        {"BRMS.GetNetworkConfig", ReadEntry("/brms/network", kDevices)},
        {"BRMS.UpdateNetworkConfig", WriteEntry("/brms/network", kDevices)},
        {"BRMS.GetEncodeConfig", ReadEntry("/brms/encode", kChannels)},
        {"BRMS.UpdateEncodeConfig", WriteEntry("/brms/encode", kChannels)},
        {"BRMS.GetEncodeCapability", {ReadEncodeCapability, "/brms/encodeCapability/{}/{}"}},
        {"BRMS.GetImageConfig", ReadEntry("/brms/image", kChannels)},
        {"BRMS.UpdateImageConfig", WriteEntry("/brms/image", kChannels)},
        {"BRMS.GetMultiCastConfig", ReadEntry("/brms/multicast", kChannels)},
        {"BRMS.SetMultiCastConfig", WriteEntry("/brms/multicast", kChannels)},
        {"BRMS.SetMultiCastStreamStatus", SetMultiCastStreamStatus},

        {"BRMS.BatchDiscoverDevices", DiscoverDevices},
        {"BRMS.AlarmOutputControl", ControlNamedChannels},
        {"BRMS.AudioLightControl", ControlNamedChannels},
        {"BRMS.IPSpeakerControl", ControlSpeakers},

        {"BRMS.GetBasicServiceWarm", ReadDocument("/brms/basicServiceWarning")},
        {"BRMS.GetDiskWarm", List("/brms/warnDisks")},
        {"BRMS.GetMemoryOutOfServerList", List("/brms/outOfMemory")},
        {"BRMS.GetNetWorks", List("/brms/networks")},

        {"BRMS.GetUserGroupList", List(kUserGroups.list, {HasKeyword({"groupName"})})},
        {"BRMS.GetUserGroup", ReadElement(kUserGroups)},
        {"BRMS.AddUserGroup", Create(kUserGroups, "BRMS.GetUserGroup")},
        {"BRMS.UpdateUserGroup", Update(kUserGroups)},
        {"BRMS.MoveUserGroup", MoveUsers},
        {"BRMS.ClearUserGroup", ClearGroup},
        {"BRMS.DeleteUserGroup", DeleteGroups},

        {"BRMS.AddQuickCommand", Create(kQuickCommands, "BRMS.GetQuickCommand")},
        {"BRMS.UpdateQuickCommand", Update(kQuickCommands)},
        {"BRMS.DelQuickCommand", Delete(kQuickCommands)},
        {"BRMS.GetQuickCommand", ReadElement(kQuickCommands)},
        {"BRMS.GetQuickCommands", List(kQuickCommands.list, {HasKeyword({"quickCommandName"})})},
        {"BRMS.GetAlarmPlanQuickCommands", ReadPlanCommands},

        {"BRMS.GetPageSummaryAlarmPlans", Page(kAlarmPlans.list, {HasKeyword({"planName"})})},
        {"BRMS.GetAlarmLinkControlList", {ReadLinkage, "/brms/alarmLinkages/[]"}},
        {"BRMS.GetAlarmLayerDetail", {ReadLayer, "/brms/layers/[]"}},
        {"BRMS.GetAlarmHostFileInfo", ReadElement(kAlarmRecords)},
        {"BRMS.GetAudioFileInfo", ReadDocument("/brms/audioTask")},
        {"BRMS.GetPluginLogType", List("/brms/pluginLogTypes")},
        {"BRMS.GetGeneralEvents", List("/brms/generalEvents")},

        {"BRMS.GetChannelWebTunnel", ReadEntry("/brms/webTunnel", kChannels)},
        {"BRMS.GetChannelWebAuthorization", ReadEntry("/brms/webAuthorization", kChannels)},
        {"BRMS.GetChannelWebEnablement", ReadElement(kChannels)},
        {"BRMS.GetWebEnablement", ReadElement(kDevices)},
        {"BRMS.GetMenuAvailable", {ReadMenu, "/brms/menus/{}"}},
        {"BRMS.GetDeriveToken", DeriveToken},
        {"BRMS.GetPermissionResourceCollection", ReadDocument("/brms/permission")},
        {"BRMS.FunctionChannelCheck", CheckFunction},
        {"BRMS.GetDeviceCategoryCount", CountDevices},
    };
}

}  // namespace emulator::families
