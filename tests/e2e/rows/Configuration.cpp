#include "Rows.h"

namespace e2e {

std::vector<Row> SystemConfigRows()
{
    const Json timeSync = R"({
        "enable": false, "startTime": "23:59:01", "interval": 7, "deviceOnlineTimeSync": true, "enableNtp": false,
        "ntpIp": "ntp.example", "ntpPort": 1123, "ntpSyncInterval": 5})"_json;
    const Json withNtp = With(timeSync, {{"deviceOnlineTimeSync", false}, {"enableNtp", true}});
    const Json remoteLog = R"({"enable": false, "ip": "10.9.8.7", "port": 1514, "platformId": "Süd & Co #2"})"_json;
    const Json readSetting = {{"settingType", 3}};
    return {
        Writes("BRMS.SetTimeSyncConfig", {{"config", timeSync}},
               {ReadBack("BRMS.GetTimeSyncConfig", {}, timeSync), StateAt("/brms/timeSync", timeSync)}),
        Writes("BRMS.SetTimeSyncConfig WithNtp", {{"config", withNtp}},
               {ReadBack("BRMS.GetTimeSyncConfig", {}, withNtp), StateAt("/brms/timeSync", withNtp)}),
        Writes("BRMS.ImmediatelySyncTime", {}, {Accepted("BRMS.ImmediatelySyncTime", Json::object(), {})}),
        Writes("BRMS.SetRemoteLogConfig", {{"config", remoteLog}},
               {ReadBack("BRMS.GetRemoteLogConfig", {}, remoteLog), StateAt("/brms/remoteLog", remoteLog)}),
        Writes("BRMS.SetDeviceLoginModel", {{"model", 2}},
               {ReadBack("BRMS.GetDeviceLoginModel", {}, 2), StateAt("/brms/deviceLoginModel/deviceLoginModel", 2)}),
        Reads("BRMS.GetPushAppMsgConfig", {}, At("/brms/pushMessage/enablePushMessage"),
              {{"/brms/pushMessage/enablePushMessage", true}}),
        Writes("BRMS.SetPushAppMsgConfig", {{"enable", true}},
               {ReadBack("BRMS.GetPushAppMsgConfig", {}, true), StateAt("/brms/pushMessage/enablePushMessage", true)}),
        Reads("BRMS.GetSupportDataBaseType", {},
              [](const Json& state) {
                  return Each(state.at("brms").at("databaseTypes").at("databaseTypes"),
                              [](const Json& type) { return std::stoi(type.get<std::string>()); });
              }),
        Reads("BRMS.GetLocalSetting", readSetting, At("/brms/localSettings/3")),
        // Writes the setting that ReadBack() has just read, with a new version.
        Writes("BRMS.UpdateLocalSetting", {{"apply", false}, {"content", "<layout name=\"Halle\"/>"}},
               {ReadBack("BRMS.GetLocalSetting", readSetting,
                         {{"apply", false},
                          {"settingType", 3},
                          {"settingVersion", 13},
                          {"settingContent", "<layout name=\"Halle\"/>"}})}),
        Reads("BRMS.GetAIPrivacyConfig", {}, At("/brms/aiPrivacy/enable"), {{"/brms/aiPrivacy/enable", 1}}),
        Writes("BRMS.UpdateAIPrivacyConfig", {{"enable", true}},
               {ReadBack("BRMS.GetAIPrivacyConfig", {}, 1), StateAt("/brms/aiPrivacy/enable", 1)}),
    };
}

static Json WithoutChannel(const Json& record)
{
    return With(record, {{"channelId", ""}});
}

std::vector<Row> DeviceConfigRows()
{
    const Json gate = {{"channelId", "1000001$1$0$0"}};
    const Json yard = {{"channelId", "1000002$1$0$0"}};
    const Json network =
        R"({"ip": "10.0.3.33", "mask": "255.255.0.0", "gateway": "10.0.0.1", "dns": "10.0.0.53"})"_json;
    const Json encode = R"([
        {"streamType": 1, "bitRate": 6144, "bitRateControl": 0, "compression": 7, "enable": 1, "frameRate": 50,
         "iFrameInterval": 100, "height": 1440, "width": 2560},
        {"streamType": 2, "bitRate": 384, "bitRateControl": 1, "compression": 3, "enable": 0, "frameRate": 12,
         "iFrameInterval": 24, "height": 480, "width": 640}])"_json;
    const Json image = R"({"brightness": 1, "saturation": 22, "contrast": 83, "sharpness": 100})"_json;
    const Json multicast = R"({"status": true, "streams": [
        {"multicastIp": "239.255.2.1", "multicastPort": "40000", "streamType": 1, "status": true},
        {"multicastIp": "239.255.2.2", "multicastPort": "40002", "streamType": 3, "status": false}]})"_json;
    return {
        Reads("BRMS.GetNetworkConfig", {{"deviceCode", "1000002"}},
              [](const Json& state) {
                  return With(state.at("brms").at("network").at("1000002"), {{"deviceCode", ""}});
              }),
        Reads("BRMS.GetNetworkConfig OfADeviceWithoutConfig", {{"deviceCode", "1000051"}},
              [](const Json& state) {
                  return With(state.at("brms").at("network").at("*"), {{"deviceCode", ""}});
              }),
        Writes("BRMS.UpdateNetworkConfig", {{"config", With(network, {{"deviceCode", "1000001"}})}},
               {ReadBack("BRMS.GetNetworkConfig", {{"deviceCode", "1000001"}}, With(network, {{"deviceCode", ""}})),
                StateAt("/brms/network/1000001", network)}),
        Reads("BRMS.GetEncodeConfig", yard,
              [](const Json& state) {
                  return Each(state.at("brms").at("encode").at("1000002$1$0$0").at("encodeConfigurations"),
                              WithoutChannel);
              }),
        Writes("BRMS.UpdateEncodeConfig", With(yard, {{"configs", encode}}),
               {ReadBack("BRMS.GetEncodeConfig", yard, Each(encode, WithoutChannel)),
                StateAt("/brms/encode/1000002$1$0$0/encodeConfigurations", encode)}),
        Reads("BRMS.GetEncodeCapability", With(gate, {{"streamType", 1}}),
              [](const Json& state) {
                  Json capability = state.at("brms").at("encodeCapability").at("*").at("1");
                  capability["supportCompressions"] = Each(capability.at("supportCompressions"), [](const Json& code) {
                      return std::stoi(code.get<std::string>());
                  });
                  return capability;
              }),
        Reads("BRMS.GetImageConfig", yard,
              [](const Json& state) { return WithoutChannel(state.at("brms").at("image").at("1000002$1$0$0")); }),
        Writes("BRMS.UpdateImageConfig", {{"config", With(image, yard)}},
               {ReadBack("BRMS.GetImageConfig", yard, WithoutChannel(image)),
                StateAt("/brms/image/1000002$1$0$0", image)}),
        Reads("BRMS.GetMultiCastConfig", gate,
              [](const Json& state) { return WithoutChannel(state.at("brms").at("multicast").at("1000001$1$0$0")); }),
        Writes("BRMS.SetMultiCastConfig", {{"info", With(multicast, yard)}},
               {ReadBack("BRMS.GetMultiCastConfig", yard, WithoutChannel(multicast)),
                StateAt("/brms/multicast/1000002$1$0$0", multicast)}),
        Writes("BRMS.SetMultiCastStreamStatus", {{"status", With(gate, {{"streamType", 2}, {"status", true}})}},
               {ReadBack("BRMS.GetMultiCastConfig", gate, R"({"channelId": "", "status": true, "streams": [
              {"multicastIp": "239.255.0.11", "multicastPort": "36666", "streamType": 1, "status": true},
              {"multicastIp": "239.255.0.12", "multicastPort": "36668", "streamType": 2, "status": true}]})"_json)}),
    };
}

}  // namespace e2e
