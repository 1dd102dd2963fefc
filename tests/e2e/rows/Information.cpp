#include "Rows.h"

#include <algorithm>
#include <map>

namespace e2e {

std::vector<Row> DeviceControlRows()
{
    const Json discovery = R"({"deviceCodes": ["1000002", "1000001"], "discoverMode": 1})"_json;
    const Json lamps = {"1000001$3$0$0", "1000001$3$0$1", "1000002$3$0$0"};
    const Json sirens = {"1000001$7$0$0", "1000002$7$0$0"};
    const Json speakers = R"({"command": 2, "channels": [
        {"channelId": "1000005$10$0$0", "fileIds": "12,13", "playCount": "3"},
        {"channelId": "1000006$10$0$0", "fileIds": "14", "playCount": "1"}]})"_json;
    const auto failed = [](const std::string& channelId) {
        return [channelId](const Json& state) {
            return Json::array(
                {{{"channelId", channelId}, {"errorCode", state.at("brms").at("failingChannels").at(channelId)}}});
        };
    };
    return {
        {"BRMS.BatchDiscoverDevices",
         "",
         discovery,
         [](const Json& state) { return "discover-" + state.at("numbers").at("discover").dump(); },
         {Accepted("BRMS.BatchDiscoverDevices", Json::object(), discovery)}},
        {"BRMS.AlarmOutputControl",
         "",
         {{"channelIds", lamps}, {"on", true}},
         failed("1000001$3$0$1"),
         {Accepted("BRMS.AlarmOutputControl", Json::object(), {{"channelIds", lamps}, {"action", 0}, {"command", 1}})}},
        {"BRMS.AlarmOutputControl",
         "Off",
         {{"channelIds", lamps}, {"on", false}},
         failed("1000001$3$0$1"),
         {Accepted("BRMS.AlarmOutputControl", Json::object(), {{"channelIds", lamps}, {"action", 0}, {"command", 0}})}},
        {"BRMS.AudioLightControl",
         "",
         {{"channelIds", sirens}, {"on", true}},
         failed("1000002$7$0$0"),
         {Accepted("BRMS.AudioLightControl", Json::object(), {{"channelIds", sirens}, {"command", 1}})}},
        {"BRMS.IPSpeakerControl",
         "",
         {{"control", speakers}},
         failed("1000006$10$0$0"),
         {Accepted("BRMS.IPSpeakerControl", Json::object(), speakers)}},
    };
}

std::vector<Row> ServerWarningRows()
{
    return {
        {"BRMS.GetBasicServiceWarm",
         "",
         {},
         At("/brms/basicServiceWarning/warningHappened"),
         {},
         {{"/brms/basicServiceWarning/warningHappened", true}}},
        {"BRMS.GetDiskWarm", "", {}, At("/brms/warnDisks")},
        {"BRMS.GetMemoryOutOfServerList",
         "",
         {},
         [](const Json& state) {
             return Each(state.at("brms").at("outOfMemory"), [](const Json& server) { return server.at("serverIp"); });
         }},
        {"BRMS.GetNetWorks",
         "",
         {},
         [](const Json& state) {
             return Json{{"netWorks", state.at("brms").at("networks")}};
         }},
    };
}

std::vector<Row> AlarmEventRows()
{
    return {
        {"BRMS.GetPageSummaryAlarmPlans",
         "",
         {{"query", {{"page", 2}, {"pageSize", 3}}}},
         [](const Json& state) {
             return PageOf(PickEach(state.at("brms").at("alarmPlans"), {"id", "planName"}), 2, 3);
         }},
        {"BRMS.GetPageSummaryAlarmPlans",
         "Keyword",
         {{"query", {{"page", 1}, {"pageSize", 20}, {"keyword", "door"}}}},
         [](const Json& state) {
             return PickEach(Where(state.at("brms").at("alarmPlans"),
                                   [](const Json& plan) {
                                       const std::string name = plan.at("planName");
                                       return name.find("Door") != std::string::npos ||
                                              name.find("door") != std::string::npos;
                                   }),
                             {"id", "planName"});
         }},
        {"BRMS.GetAlarmLinkControlList",
         "",
         {{"sourceCode", "1000001$1$0$0"}, {"alarmType", 5}},
         [](const Json& state) {
             return Pick(Element(state.at("brms").at("alarmLinkages"), "sourceCode", "1000001$1$0$0"),
                         {"linkAlarmOutputChannels", "linkAudioLightChannels", "linkAudioChannels"});
         }},
        {"BRMS.GetAlarmLayerDetail",
         "",
         {{"resourceCode", "1000021$1$0$0"}, {"resourceType", 3}},
         [](const Json& state) {
             return Pick(
                 Element(state.at("brms").at("layers"), "resourceCode", "1000021$1$0$0"),
                 {"layerId", "layerName", "layerPicture", "locationX", "locationY", "width", "height", "angle"});
         }},
        {"BRMS.GetAlarmHostFileInfo",
         "",
         {{"alarmRecordId", "20240611221500002"}},
         [](const Json& state) {
             return Pick(Element(state.at("brms").at("alarmRecords"), "id", "20240611221500002"),
                         {"alarmCode", "files"});
         }},
        {"BRMS.GetAudioFileInfo",
         "",
         {{"url", "/brms/api/v1.1/audio/file/task/info"}, {"body", R"({"taskId": "4"})"}},
         At("/brms/audioTask")},
        {"BRMS.GetPluginLogType", "", {}, At("/brms/pluginLogTypes")},
        {"BRMS.GetGeneralEvents",
         "",
         {{"query", {{"transportType", "1"}, {"matchType", "2"}, {"keyword", "fire"}}}},
         At("/brms/generalEvents")},
    };
}

/// How many of the devices there are in each category.
static Json CountedByCategory(const Json& devices)
{
    std::map<int, int> counts;
    for (const Json& device : devices) {
        ++counts[device.at("deviceCategory").get<int>()];
    }
    Json counted = Json::array();
    for (const auto& [category, count] : counts) {
        counted.push_back({{"deviceCategory", category}, {"deviceCount", count}});
    }
    return counted;
}

std::vector<Row> AccountAccessRows()
{
    const Json gate = {{"channelId", "1000001$1$0$0"}};
    const Json yard = {{"channelId", "1000002$1$0$0"}};
    const Json allDevices = R"({"keyword": "", "orgCode": "", "domain": "", "permitted": "", "sourceType": "",
                                "containChild": ""})"_json;
    return {
        {"BRMS.GetChannelWebTunnel", "", gate,
         [](const Json& state) {
             return With(state.at("brms").at("webTunnel").at("1000001$1$0$0"), {{"username", ""}, {"token", ""}});
         }},
        {"BRMS.GetChannelWebAuthorization", "", yard,
         [](const Json& state) {
             return With(state.at("brms").at("webAuthorization").at("1000002$1$0$0"),
                         {{"https", false}, {"port", 0}, {"ip", ""}});
         }},
        {"BRMS.GetChannelWebEnablement", "", gate,
         [](const Json& state) {
             return Element(state.at("inventory").at("channels"), "channelId", "1000001$1$0$0").at("enableWeb");
         }},
        {"BRMS.GetWebEnablement",
         "",
         {{"deviceCode", "1000041"}},
         [](const Json& state) {
             return Element(state.at("inventory").at("devices"), "deviceCode", "1000041").at("enableWeb");
         }},
        {"BRMS.GetMenuAvailable", "", {{"menuCode", "monitor.ptz"}}, At("/brms/menus/monitor.ptz/available")},
        {"BRMS.GetDeriveToken",
         "",
         {},
         [](const Json& state) { return "derived-" + state.at("numbers").at("derivedToken").dump(); },
         {Accepted("BRMS.GetDeriveToken", Json::object(), {})}},
        {"BRMS.GetPermissionResourceCollection", "", {}, At("/brms/permission")},
        {"BRMS.FunctionChannelCheck",
         "",
         {{"check", With(gate, {{"functionCode", "alarm.confirm"}})}},
         [](const Json& state) {
             const Json& allowed = state.at("brms").at("permission").at("menuFunctionCodes");
             return Json{{"authorized", std::count(allowed.begin(), allowed.end(), "alarm.confirm")}};
         }},
        {"BRMS.GetDeviceCategoryCount",
         "",
         {{"query", allDevices}},
         [](const Json& state) { return CountedByCategory(state.at("inventory").at("devices")); }},
        {"BRMS.GetDeviceCategoryCount",
         "Filtered",
         {{"query", With(allDevices, {{"keyword", "r"},
                                      {"orgCode", "001"},
                                      {"permitted", "1"},
                                      {"sourceType", "1"},
                                      {"containChild", "0"}})}},
         [](const Json& state) {
             return CountedByCategory(Where(state.at("inventory").at("devices"), [](const Json& device) {
                 return device.at("deviceName").get<std::string>().find('r') != std::string::npos &&
                        device.at("orgCode") == "001" && device.at("permitted") == true &&
                        device.at("sourceType") == "1";
             }));
         }},
    };
}

}  // namespace e2e
