#include "Lists.h"

#include "Bench.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <set>
#include <string>

namespace bench {
namespace {

using Json = nlohmann::ordered_json;  // keys in the order in which the platform sends them

/// Data whose lists are repeated. Each # is replaced by the number of the element.
struct Row {
    const char* call;
    const char* data;
};

constexpr Row kRows[] = {
    {"BRMS.GetSupportDataBaseType", R"({"databaseTypes": ["#"]})"},
    {"BRMS.GetEncodeConfig",
     R"({"encodeConfigurations": [
         {"streamType": 1, "bitRate": 4096, "bitRateControl": 1, "compression": 3, "enable": 1, "frameRate": 25,
          "iFrameInterval": 50, "height": 1080, "width": 1920}]})"},
    {"BRMS.GetEncodeCapability",
     R"({"supportCompressions": ["#"], "encodeCapabilities": [
         {"compression": 3, "formats": [{"frameRateMax": 25, "videoHeight": 1080, "videoWidth": 1920},
                                        {"frameRateMax": 50, "videoHeight": 720, "videoWidth": 1280}]}]})"},
    {"BRMS.GetMultiCastConfig",
     R"({"status": true,
         "streams": [{"multicastIp": "239.255.0.11", "multicastPort": "3#", "streamType": 1, "status": true}]})"},
    {"BRMS.AlarmOutputControl", R"({"failedChannels": [{"channelId": "1000001$3$0$#", "errorCode": 5}]})"},
    {"BRMS.GetDiskWarm",
     R"({"results": [{"serverIp": "192.168.10.4", "serverType": 2,
                      "warnDisks": [{"path": "/dev/sdb", "slot": 1}, {"path": "/dev/sdd#", "slot": 3}]}]})"},
    {"BRMS.GetMemoryOutOfServerList", R"({"results": [{"serverIp": "192.168.10.4"}]})"},
    {"BRMS.GetNetWorks", R"({"results": [{"netWorkName": "LAN #", "netWorkValue": 0}]})"},
    {"BRMS.GetUserGroupList",
     R"({"results": [{"id": "#", "groupName": "Guards day shift", "memo": "Gate and yard"}]})"},
    {"BRMS.GetQuickCommand",
     R"({"id": "5", "quickCommandName": "Open main gate", "enableShortcutKeys": true, "shortcutKeys": "Ctrl+Alt+G",
         "executeMode": 1, "remark": "Asks for no confirmation",
         "httpUrls": [{"method": 2, "url": "http://192.168.30.5/gate/open", "body": "{\"gate\":1}", "seq": "#"}]})"},
    {"BRMS.GetQuickCommands",
     R"({"results": [{"id": "#", "quickCommandName": "Open main gate", "enableShortcutKeys": true,
                      "shortcutKeys": "Ctrl+Alt+G", "remark": "Asks for no confirmation"}]})"},
    {"BRMS.GetAlarmPlanQuickCommands",
     R"({"results": [{"quickCommandName": "Open main gate",
                      "httpUrls": [{"method": 2, "url": "http://192.168.30.5/gate/open", "seq": "#"}]}]})"},
    {"BRMS.GetPageSummaryAlarmPlans",
     R"({"totalCount": 1000, "pageData": [{"id": "#", "planName": "Door forced, main building"}]})"},
    {"BRMS.GetAlarmLinkControlList",
     R"({"linkAudioLightChannels": [{"channelId": "1000001$7$0$#", "channelName": "Gate siren"}],
         "linkAlarmOutputChannels": [{"channelId": "1000001$3$0$#", "channelName": "Gate lamp"}],
         "linkAudioChannels": [{"channelId": "1000005$10$0$#", "channelName": "Yard speaker", "fileIds": "12,13"}]})"},
    {"BRMS.GetAlarmHostFileInfo",
     R"({"alarmCode": "{a1f0c7d2-0611}", "files": [
         {"fileType": 1, "filePath": "/record/20240611/083000.dav", "ssId": "ss-01", "channelId": "1000001$1$0$#",
          "recordTime": 1718094600, "fileTimeLength": 30, "fileLength": 15728640}]})"},
    {"BRMS.GetPluginLogType",
     R"({"results": [{"groupId": "access#", "groupName": "Access control", "sort": 1, "eventTypes": [
         {"eventType": "door.open", "eventTypeName": "Door opened", "sort": 1},
         {"eventType": "door.forced", "eventTypeName": "Door forced", "sort": 2}]}]})"},
    {"BRMS.GetGeneralEvents", R"({"results": [{"id": "#", "eventName": "Intrusion reported by partner system"}]})"},
    {"BRMS.GetPermissionResourceCollection",
     R"({"menuFunctionCodes": ["monitor.preview.#"], "localConfigItemCodes": ["local.snapshot.#"]})"},
    {"BRMS.GetDeviceCategoryCount", R"({"results": [{"deviceCategory": 1, "deviceCount": 128}]})"},
    {"IPMS.GetSimpleParkingLots",
     R"({"results": [
         {"id": "#", "parkingLotName": "Headquarters", "orgCode": "001", "orgName": "Root", "parentParkingLotId": "",
          "parentParkingLotName": "", "parkingLotMode": 1, "enableParkingSpaceStatistics": 1,
          "parkingSpaceStatisticsType": 0, "positions": [
              {"id": "#1", "positionName": "Main gate", "remark": "North side", "points": [
                  {"id": "#11", "pointName": "Main gate in", "remark": "", "refPointId": "112", "direction": 1,
                   "mode": 1}]}]}]})"},
    {"IPMS.GetParkingOrganization",
     R"({"results": [{"orgCode": "001001#", "orgName": "Site North", "parentOrgCode": "001", "hasChild": 0,
                      "hasAuthority": 1}]})"},
    {"OBMS.GetPageAccessAuthorizePersons",
     R"({"totalCount": 1000, "pageData": [
         {"personId": "5#", "personName": "Ada Berg", "orgCode": "001", "orgName": "Root",
          "orgInfos": [{"orgCode": "001", "orgName": "Root"}, {"orgCode": "001002", "orgName": "Site South"}]}]})"},
    {"OBMS.GetManagePersons",
     R"({"results": [
         {"personId": "5#", "personName": "Ada Berg", "orgCode": "001", "orgName": "Root", "errorCode": "0",
          "orgInfos": [{"orgCode": "001", "orgName": "Root"}, {"orgCode": "001002", "orgName": "Site South"}]}]})"},
    {"OBMS.GetPointRules",
     R"({"results": [{"ruleId": "#", "ruleName": "Office hours", "ruleType": "1", "hasOfflinePoint": false}]})"},
    {"OBMS.GetPageConfigDesfireFailInfo",
     R"({"totalCount": 1000, "pageData": [
         {"id": "#", "deviceCode": "1000041", "deviceName": "Gate reader", "deviceIp": "192.168.20.41",
          "reason": 2}]})"},
    {"OMMS.GetAlertTypes",
     R"({"results": [{"alertTypeId": "channel.offline.#", "alertTypeName": "Channel offline"}]})"},
};

Json Numbered(const Json& element, std::size_t number)
{
    std::string text = element.dump();
    for (auto place = text.find('#'); place != std::string::npos; place = text.find('#')) {
        text.replace(place, 1, std::to_string(number));
    }
    return Json::parse(text);
}

QByteArray Repeated(const char* data)
{
    Json repeated = Json::parse(data);
    for (Json& list : repeated) {
        if (list.is_array()) {
            const Json element = list.front();
            list.clear();
            for (std::size_t number = 0; number < kElements; ++number) {
                list.push_back(Numbered(element, number));
            }
        }
    }
    return QByteArray::fromStdString(repeated.dump());
}

bool ReadsList(const catalogue::Type& type)
{
    return type.kind == catalogue::Kind::List ||
           std::any_of(type.fields.begin(), type.fields.end(),
                       [](const catalogue::Field& field) { return ReadsList(*field.type); });
}

}  // namespace

std::vector<ListReply> ListReplies()
{
    std::set<std::string_view> missing;
    for (const catalogue::Call& call : catalogue::Calls()) {
        if (call.result && ReadsList(*call.result) && call.name != "IPMS.GetDetailParkingLots") {
            missing.insert(call.parseName);
        }
    }
    std::vector<ListReply> replies;
    for (const Row& row : kRows) {
        const catalogue::Call* pCall = catalogue::FindCall(row.call);
        Require(pCall && missing.erase(pCall->parseName) == 1, std::string(row.call) + " is a call with a list");
        replies.push_back({pCall, Repeated(row.data)});
    }
    Require(missing.empty(), "every Parse that reads a list is measured");
    return replies;
}

std::size_t CountElements(const catalogue::Type& type, void* record)
{
    if (type.kind == catalogue::Kind::List) {
        return type.list.size(record);
    }
    std::size_t count = 0;
    for (const catalogue::Field& field : type.fields) {
        count += CountElements(*field.type, field.access(record));
    }
    return count;
}

}  // namespace bench
