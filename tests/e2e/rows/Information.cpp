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
        WritesAndReads("BRMS.BatchDiscoverDevices", discovery,
                       {Accepted("BRMS.BatchDiscoverDevices", Json::object(), discovery)},
                       [](const Json& state) { return "discover-" + state.at("numbers").at("discover").dump(); }),
        WritesAndReads("BRMS.AlarmOutputControl", {{"channelIds", lamps}, {"on", true}},
                       {Accepted("BRMS.AlarmOutputControl", Json::object(),
                                 {{"channelIds", lamps}, {"action", 0}, {"command", 1}})},
                       failed("1000001$3$0$1")),
        WritesAndReads("BRMS.AlarmOutputControl Off", {{"channelIds", lamps}, {"on", false}},
                       {Accepted("BRMS.AlarmOutputControl", Json::object(),
                                 {{"channelIds", lamps}, {"action", 0}, {"command", 0}})},
                       failed("1000001$3$0$1")),
        WritesAndReads("BRMS.AudioLightControl", {{"channelIds", sirens}, {"on", true}},
                       {Accepted("BRMS.AudioLightControl", Json::object(), {{"channelIds", sirens}, {"command", 1}})},
                       failed("1000002$7$0$0")),
        WritesAndReads("BRMS.IPSpeakerControl", {{"control", speakers}},
                       {Accepted("BRMS.IPSpeakerControl", Json::object(), speakers)}, failed("1000006$10$0$0")),
    };
}

std::vector<Row> ServerWarningRows()
{
    return {
        Reads("BRMS.GetBasicServiceWarm", {}, At("/brms/basicServiceWarning/warningHappened"),
              {{"/brms/basicServiceWarning/warningHappened", true}}),
        Reads("BRMS.GetDiskWarm", {}, At("/brms/warnDisks")),
        Reads("BRMS.GetMemoryOutOfServerList", {},
              [](const Json& state) {
                  return Each(state.at("brms").at("outOfMemory"),
                              [](const Json& server) { return server.at("serverIp"); });
              }),
        Reads("BRMS.GetNetWorks", {},
              [](const Json& state) {
                  return Json{{"netWorks", state.at("brms").at("networks")}};
              }),
    };
}

std::vector<Row> AlarmEventRows()
{
    return {
        Reads("BRMS.GetPageSummaryAlarmPlans", {{"query", {{"page", 2}, {"pageSize", 3}}}},
              [](const Json& state) {
                  return PageOf(PickEach(state.at("brms").at("alarmPlans"), {"id", "planName"}), 2, 3);
              }),
        Reads("BRMS.GetPageSummaryAlarmPlans Keyword",
              {{"query", {{"page", 1}, {"pageSize", 20}, {"keyword", "door"}}}},
              [](const Json& state) {
                  return PickEach(Where(state.at("brms").at("alarmPlans"),
                                        [](const Json& plan) {
                                            const std::string name = plan.at("planName");
                                            return name.find("Door") != std::string::npos ||
                                                   name.find("door") != std::string::npos;
                                        }),
                                  {"id", "planName"});
              }),
        Reads("BRMS.GetAlarmLinkControlList", {{"sourceCode", "1000001$1$0$0"}, {"alarmType", 5}},
              [](const Json& state) {
                  return Pick(Element(state.at("brms").at("alarmLinkages"), "sourceCode", "1000001$1$0$0"),
                              {"linkAlarmOutputChannels", "linkAudioLightChannels", "linkAudioChannels"});
              }),
        Reads("BRMS.GetAlarmLayerDetail", {{"resourceCode", "1000021$1$0$0"}, {"resourceType", 3}},
              [](const Json& state) {
                  return Pick(
                      Element(state.at("brms").at("layers"), "resourceCode", "1000021$1$0$0"),
                      {"layerId", "layerName", "layerPicture", "locationX", "locationY", "width", "height", "angle"});
              }),
        Reads("BRMS.GetAlarmHostFileInfo", {{"alarmRecordId", "20240611221500002"}},
              [](const Json& state) {
                  return Pick(Element(state.at("brms").at("alarmRecords"), "id", "20240611221500002"),
                              {"alarmCode", "files"});
              }),
        Reads("BRMS.GetAudioFileInfo", {{"url", "/brms/api/v1.1/audio/file/task/info"}, {"body", R"({"taskId": "4"})"}},
              At("/brms/audioTask")),
        Reads("BRMS.GetPluginLogType", {}, At("/brms/pluginLogTypes")),
        Reads("BRMS.GetGeneralEvents", {{"query", {{"transportType", "1"}, {"matchType", "2"}, {"keyword", "fire"}}}},
              At("/brms/generalEvents")),
    };
}

/// The number of devices in each category.
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
        Reads("BRMS.GetChannelWebTunnel", gate,
              [](const Json& state) {
                  return With(state.at("brms").at("webTunnel").at("1000001$1$0$0"), {{"username", ""}, {"token", ""}});
              }),
        Reads("BRMS.GetChannelWebAuthorization", yard,
              [](const Json& state) {
                  return With(state.at("brms").at("webAuthorization").at("1000002$1$0$0"),
                              {{"https", false}, {"port", 0}, {"ip", ""}});
              }),
        Reads("BRMS.GetChannelWebEnablement", gate,
              [](const Json& state) {
                  return Element(state.at("inventory").at("channels"), "channelId", "1000001$1$0$0").at("enableWeb");
              }),
        Reads("BRMS.GetWebEnablement", {{"deviceCode", "1000041"}},
              [](const Json& state) {
                  return Element(state.at("inventory").at("devices"), "deviceCode", "1000041").at("enableWeb");
              }),
        Reads("BRMS.GetMenuAvailable", {{"menuCode", "monitor.ptz"}}, At("/brms/menus/monitor.ptz/available")),
        WritesAndReads("BRMS.GetDeriveToken", {}, {Accepted("BRMS.GetDeriveToken", Json::object(), {})},
                       [](const Json& state) { return "derived-" + state.at("numbers").at("derivedToken").dump(); }),
        Reads("BRMS.GetPermissionResourceCollection", {}, At("/brms/permission")),
        Reads("BRMS.FunctionChannelCheck", {{"check", With(gate, {{"functionCode", "alarm.confirm"}})}},
              [](const Json& state) {
                  const Json& allowed = state.at("brms").at("permission").at("menuFunctionCodes");
                  return Json{{"authorized", std::count(allowed.begin(), allowed.end(), "alarm.confirm")}};
              }),
        Reads("BRMS.GetDeviceCategoryCount", {{"query", allDevices}},
              [](const Json& state) { return CountedByCategory(state.at("inventory").at("devices")); }),
        Reads("BRMS.GetDeviceCategoryCount Filtered",
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
              }),
    };
}

}  // namespace e2e
