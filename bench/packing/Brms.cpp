// The calls fill the places of a URL one after the other. clazy:excludeall=qstring-arg
#include "ByHand.h"

#include <BRMS/BRMSModule.h>

namespace bench {

using namespace APIModule;

namespace {

QString GroupBody(const AddUserGroupsParam& group)
{
    QJsonObject body;
    body.insert(QStringLiteral("groupName"), QString::fromStdString(group.groupName));
    body.insert(QStringLiteral("memo"), QString::fromStdString(group.memo));
    return Compact(body);
}

QString QuickCommandBody(const QuickCommand& command)
{
    QJsonArray requests;
    for (const QuickCommandHttpUrl& request : command.httpUrls) {
        QJsonObject element;
        element.insert(QStringLiteral("method"), QString::number(request.method));
        element.insert(QStringLiteral("url"), QString::fromStdString(request.url));
        element.insert(QStringLiteral("body"), QString::fromStdString(request.body));
        element.insert(QStringLiteral("seq"), QString::fromStdString(request.seq));
        requests.append(element);
    }
    QJsonObject body;
    body.insert(QStringLiteral("quickCommandName"), QString::fromStdString(command.quickCommandName));
    body.insert(QStringLiteral("enableShortcutKeys"), Flag(command.enableShortcutKeys));
    body.insert(QStringLiteral("shortcutKeys"), QString::fromStdString(command.shortcutKeys));
    body.insert(QStringLiteral("executeMode"), QString::number(command.executeMode));
    body.insert(QStringLiteral("remark"), QString::fromStdString(command.remark));
    body.insert(QStringLiteral("httpUrls"), requests);
    return Compact(body);
}

}  // namespace

// NOLINTBEGIN(performance-unnecessary-value-param): the parameters of the Packs
std::vector<HandWritten> BrmsByHand()
{
    return {
        {"BRMS.GetTimeSyncConfig", ByHand([](void* pRequest, int nServerId) {
             return Describe(pRequest, Method_Get, QStringLiteral("/brms/api/v1.1/config/time-sync"), nServerId);
         })},
        {"BRMS.SetTimeSyncConfig", ByHand([](void* pRequest, const TimeSyncConfig& config, int nServerId) {
             QJsonObject body;
             body.insert(QStringLiteral("enable"), Flag(config.enable));
             body.insert(QStringLiteral("startTime"), QString::fromUtf8(config.startTime.c_str()));
             body.insert(QStringLiteral("interval"), QString::number(config.interval));
             body.insert(QStringLiteral("deviceOnlineTimeSync"), Flag(config.deviceOnlineTimeSync));
             body.insert(QStringLiteral("enableNtp"), Flag(config.enableNtp));
             body.insert(QStringLiteral("ntpIp"), QString::fromUtf8(config.ntpIp.c_str()));
             body.insert(QStringLiteral("ntpPort"), QString::number(config.ntpPort));
             body.insert(QStringLiteral("ntpSyncInterval"), QString::number(config.ntpSyncInterval));
             return Describe(pRequest, Method_Put, QStringLiteral("/brms/api/v1.1/config/time-sync"), nServerId,
                             Compact(body));
         })},
        {"BRMS.ImmediatelySyncTime", ByHand([](void* pRequest, int nServerId) {
             return Describe(pRequest, Method_Post, QStringLiteral("/brms/api/v1.1/config/time-sync/immediate"),
                             nServerId);
         })},
        {"BRMS.GetRemoteLogConfig", ByHand([](void* pRequest, int nServerId) {
             return Describe(pRequest, Method_Get, QStringLiteral("/brms/api/v1.1/config/remote-log"), nServerId);
         })},
        {"BRMS.SetRemoteLogConfig", ByHand([](void* pRequest, const RemoteLogConfigInfo& config, int nServerId) {
             QJsonObject body;
             body.insert(QStringLiteral("enable"), Flag(config.enable));
             body.insert(QStringLiteral("ip"), QString::fromUtf8(config.ip.c_str()));
             body.insert(QStringLiteral("port"), QString::number(config.port));
             body.insert(QStringLiteral("platformId"), QString::fromUtf8(config.platformId.c_str()));
             return Describe(pRequest, Method_Put, QStringLiteral("/brms/api/v1.1/config/remote-log"), nServerId,
                             Compact(body));
         })},
        {"BRMS.GetDeviceLoginModel", ByHand([](void* pRequest, int nServerId) {
             return Describe(pRequest, Method_Get, QStringLiteral("/brms/api/v1.1/config/device-login-model"),
                             nServerId);
         })},
        {"BRMS.SetDeviceLoginModel", ByHand([](void* pRequest, const int& model, int nServerId) {
             QJsonObject body;
             body.insert(QStringLiteral("deviceLoginModel"), QString::number(model));
             return Describe(pRequest, Method_Put, QStringLiteral("/brms/api/v1.1/config/device-login-model"),
                             nServerId, Compact(body));
         })},
        {"BRMS.GetPushAppMsgConfig", ByHand([](void* pRequest, int nServerId) {
             return Describe(pRequest, Method_Get, QStringLiteral("/brms/api/v1.1/config/app/push-message"), nServerId);
         })},
        {"BRMS.SetPushAppMsgConfig", ByHand([](void* pRequest, const bool& enable, int nServerId) {
             QJsonObject body;
             body.insert(QStringLiteral("enablePushMessage"), Flag(enable));
             return Describe(pRequest, Method_Put, QStringLiteral("/brms/api/v1.1/config/app/push-message"), nServerId,
                             Compact(body));
         })},
        {"BRMS.GetSupportDataBaseType", ByHand([](void* pRequest, int nServerId) {
             return Describe(pRequest, Method_Get,
                             QStringLiteral("/brms/api/v1.1/config/outside-database/support/list"), nServerId);
         })},
        {"BRMS.GetLocalSetting", ByHand([](void* pRequest, const int& settingType, int nServerId) {
             return Describe(pRequest, Method_Get,
                             QStringLiteral("/brms/api/v1.1/config/local/setting?settingType=%1").arg(settingType),
                             nServerId);
         })},
        {"BRMS.UpdateLocalSetting", ByHand([](void* pRequest, bool& apply, const std::string& content, int nServerId) {
             QJsonObject body;
             body.insert(QStringLiteral("apply"), Flag(apply));
             body.insert(QStringLiteral("settingContent"), QString::fromUtf8(content.c_str()));
             return Describe(pRequest, Method_Put, QStringLiteral("/brms/api/v1.1/config/local/setting"), nServerId,
                             Compact(body));
         })},
        {"BRMS.GetAIPrivacyConfig", ByHand([](void* pRequest, int nServerId) {
             return Describe(pRequest, Method_Get, QStringLiteral("/brms/api/v1.1/config/ai/privacy"), nServerId);
         })},
        {"BRMS.UpdateAIPrivacyConfig", ByHand([](void* pRequest, const bool& enable, int nServerId) {
             QJsonObject body;
             body.insert(QStringLiteral("enable"), enable ? 1 : 0);
             return Describe(pRequest, Method_Put, QStringLiteral("/brms/api/v1.1/config/ai/privacy"), nServerId,
                             Compact(body));
         })},
        {"BRMS.GetNetworkConfig", ByHand([](void* pRequest, const std::string& deviceCode, int nServerId) {
             return Describe(
                 pRequest, Method_Get,
                 QStringLiteral("/brms/api/v1.1/device/%1/config/network").arg(QString::fromStdString(deviceCode)),
                 nServerId);
         })},
        {"BRMS.UpdateNetworkConfig", ByHand([](void* pRequest, NetworkConfig& config, int nServerId) {
             QJsonObject body;
             body.insert(QStringLiteral("ip"), QString::fromUtf8(config.ip.c_str()));
             body.insert(QStringLiteral("mask"), QString::fromUtf8(config.mask.c_str()));
             body.insert(QStringLiteral("gateway"), QString::fromUtf8(config.gateway.c_str()));
             body.insert(QStringLiteral("dns"), QString::fromUtf8(config.dns.c_str()));
             return Describe(pRequest, Method_Put,
                             QStringLiteral("/brms/api/v1.1/device/%1/config/network")
                                 .arg(QString::fromStdString(config.deviceCode)),
                             nServerId, Compact(body));
         })},
        {"BRMS.GetEncodeConfig", ByHand([](void* pRequest, const std::string& channelId, int nServerId) {
             return Describe(pRequest, Method_Get,
                             QStringLiteral("/brms/api/v1.1/device/channel/%1/config/encode")
                                 .arg(QString::fromStdString(channelId)),
                             nServerId);
         })},
        {"BRMS.UpdateEncodeConfig",
         ByHand([](void* pRequest, const std::string& channelId, std::vector<EncodeConfig>& configs, int nServerId) {
             QJsonArray configurations;
             for (const EncodeConfig& config : configs) {
                 QJsonObject element;
                 element.insert(QStringLiteral("streamType"), config.streamType);
                 element.insert(QStringLiteral("bitRate"), config.bitRate);
                 element.insert(QStringLiteral("bitRateControl"), config.bitRateControl);
                 element.insert(QStringLiteral("compression"), config.compression);
                 element.insert(QStringLiteral("enable"), config.enable);
                 element.insert(QStringLiteral("frameRate"), config.frameRate);
                 element.insert(QStringLiteral("iFrameInterval"), config.iFrameInterval);
                 element.insert(QStringLiteral("height"), config.height);
                 element.insert(QStringLiteral("width"), config.width);
                 configurations.append(element);
             }
             QJsonObject body;
             body.insert(QStringLiteral("encodeConfigurations"), configurations);
             return Describe(pRequest, Method_Put,
                             QStringLiteral("/brms/api/v1.1/device/channel/%1/config/encode")
                                 .arg(QString::fromStdString(channelId)),
                             nServerId, Compact(body));
         })},
        {"BRMS.GetEncodeCapability",
         ByHand([](void* pRequest, const std::string& channelId, int streamType, int nServerId) {
             return Describe(pRequest, Method_Get,
                             QStringLiteral("/brms/api/v1.1/device/channel/%1/capability/encode?streamType=%2")
                                 .arg(QString::fromStdString(channelId))
                                 .arg(streamType),
                             nServerId);
         })},
        {"BRMS.GetImageConfig", ByHand([](void* pRequest, const std::string& channelId, int nServerId) {
             return Describe(
                 pRequest, Method_Get,
                 QStringLiteral("/brms/api/v1.1/device/channel/%1/config/video").arg(QString::fromStdString(channelId)),
                 nServerId);
         })},
        {"BRMS.UpdateImageConfig", ByHand([](void* pRequest, ImageConfig& config, int nServerId) {
             QJsonObject body;
             body.insert(QStringLiteral("brightness"), config.brightness);
             body.insert(QStringLiteral("saturation"), config.saturation);
             body.insert(QStringLiteral("contrast"), config.contrast);
             body.insert(QStringLiteral("sharpness"), config.sharpness);
             return Describe(pRequest, Method_Put,
                             QStringLiteral("/brms/api/v1.1/device/channel/%1/config/video")
                                 .arg(QString::fromStdString(config.channelId)),
                             nServerId, Compact(body));
         })},
        {"BRMS.GetMultiCastConfig", ByHand([](void* pRequest, const std::string& channelId, int nServerId) {
             return Describe(pRequest, Method_Get,
                             QStringLiteral("/brms/api/v1.1/device/channel/%1/config/multicast")
                                 .arg(QString::fromStdString(channelId)),
                             nServerId);
         })},
        {"BRMS.SetMultiCastConfig", ByHand([](void* pRequest, const MultiCastConfigInfo& info, int nServerId) {
             QJsonArray streams;
             for (const MultiCastStream& stream : info.streams) {
                 QJsonObject element;
                 element.insert(QStringLiteral("status"), Flag(stream.status));
                 element.insert(QStringLiteral("multicastIp"), QString::fromUtf8(stream.multicastIp.c_str()));
                 element.insert(QStringLiteral("multicastPort"), QString::fromUtf8(stream.multicastPort.c_str()));
                 element.insert(QStringLiteral("streamType"), QString::number(stream.streamType));
                 streams.append(element);
             }
             QJsonObject body;
             body.insert(QStringLiteral("status"), Flag(info.status));
             body.insert(QStringLiteral("streams"), streams);
             return Describe(pRequest, Method_Put,
                             QStringLiteral("/brms/api/v1.1/device/channel/%1/config/multicast")
                                 .arg(QString::fromStdString(info.channelId)),
                             nServerId, Compact(body));
         })},
        {"BRMS.SetMultiCastStreamStatus",
         ByHand([](void* pRequest, const MultiCastStreamStatus& status, int nServerId) {
             QJsonObject body;
             body.insert(QStringLiteral("status"), Flag(status.status));
             body.insert(QStringLiteral("streamType"), QString::number(status.streamType));
             return Describe(pRequest, Method_Put,
                             QStringLiteral("/brms/api/v1.1/device/channel/%1/config/multicast/stream/status")
                                 .arg(QString::fromStdString(status.channelId)),
                             nServerId, Compact(body));
         })},
        {"BRMS.BatchDiscoverDevices",
         ByHand([](void* pRequest, const std::vector<std::string>& deviceCodes, int discoverMode, int nServerId) {
             QJsonObject body;
             body.insert(QStringLiteral("deviceCodes"), Texts(deviceCodes));
             body.insert(QStringLiteral("discoverMode"), discoverMode);
             return Describe(pRequest, Method_Post, QStringLiteral("/brms/api/v1.1/device/discover/async/batch"),
                             nServerId, Compact(body));
         })},
        {"BRMS.AlarmOutputControl",
         ByHand([](void* pRequest, const std::vector<std::string>& channelIds, bool on, int nServerId) {
             QJsonObject body;
             body.insert(QStringLiteral("channelIds"), Texts(channelIds));
             body.insert(QStringLiteral("action"), 0);
             body.insert(QStringLiteral("command"), on ? 1 : 0);
             return Describe(pRequest, Method_Post,
                             QStringLiteral("/brms/api/v1.1/device/channel/alarm-output/control"), nServerId,
                             Compact(body));
         })},
        {"BRMS.AudioLightControl",
         ByHand([](void* pRequest, const std::vector<std::string>& channelIds, bool on, int nServerId) {
             QJsonObject body;
             body.insert(QStringLiteral("channelIds"), Texts(channelIds));
             body.insert(QStringLiteral("command"), on ? 1 : 0);
             return Describe(pRequest, Method_Post,
                             QStringLiteral("/brms/api/v1.1/device/channel/audio-light/regulate"), nServerId,
                             Compact(body));
         })},
        {"BRMS.IPSpeakerControl", ByHand([](void* pRequest, IPSpeakerControl control, int nServerId) {
             QJsonArray channels;
             for (const IPSpeakerChannel& channel : control.channels) {
                 QJsonObject element;
                 element.insert(QStringLiteral("channelId"), QString::fromStdString(channel.channelId));
                 element.insert(QStringLiteral("fileIds"), QString::fromStdString(channel.fileIds));
                 element.insert(QStringLiteral("playCount"), QString::fromStdString(channel.playCount));
                 channels.append(element);
             }
             QJsonObject body;
             body.insert(QStringLiteral("channels"), channels);
             body.insert(QStringLiteral("command"), control.command);
             return Describe(pRequest, Method_Post,
                             QStringLiteral("/brms/api/v1.1/device/channel/audio/ip-speaker/control"), nServerId,
                             Compact(body));
         })},
        {"BRMS.CheckHotSpareWarning", ByHand([](void* pRequest, int nServerId) {
             return Describe(pRequest, Method_Get, QStringLiteral("/brms/api/v1.1/system/hot-spare/switch/warning"),
                             nServerId);
         })},
        {"BRMS.GetBasicServiceWarm", ByHand([](void* pRequest, int nServerId) {
             return Describe(pRequest, Method_Get,
                             QStringLiteral("/brms/api/v1.1/system/only-startup-basic-service/warning"), nServerId);
         })},
        {"BRMS.GetDiskWarm", ByHand([](void* pRequest, int nServerId) {
             return Describe(pRequest, Method_Get, QStringLiteral("/brms/api/v1.1/system/warn/disk/list"), nServerId);
         })},
        {"BRMS.GetMemoryOutOfServerList", ByHand([](void* pRequest, int nServerId) {
             return Describe(pRequest, Method_Get, QStringLiteral("/brms/api/v1.1/system/out/memory/server/list"),
                             nServerId);
         })},
        {"BRMS.GetNetWorks", ByHand([](void* pRequest, int nServerId) {
             return Describe(pRequest, Method_Get, QStringLiteral("/brms/api/v1.1/system/network/list"), nServerId);
         })},
        {"BRMS.GetUserGroupList", ByHand([](void* pRequest, const std::string& keyword, int nServerId) {
             return Describe(
                 pRequest, Method_Get,
                 QStringLiteral("/brms/api/v1.1/user/group/list?keyword=%1").arg(QString::fromStdString(keyword)),
                 nServerId);
         })},
        {"BRMS.GetUserGroup", ByHand([](void* pRequest, const std::string& groupId, int nServerId) {
             return Describe(pRequest, Method_Get,
                             QStringLiteral("/brms/api/v1.1/user/group/%1").arg(QString::fromStdString(groupId)),
                             nServerId);
         })},
        {"BRMS.AddUserGroup", ByHand([](void* pRequest, const AddUserGroupsParam& group, int nServerId) {
             return Describe(pRequest, Method_Post, QStringLiteral("/brms/api/v1.1/user/group"), nServerId,
                             GroupBody(group));
         })},
        {"BRMS.UpdateUserGroup",
         ByHand([](void* pRequest, const std::string& groupId, const AddUserGroupsParam& group, int nServerId) {
             return Describe(pRequest, Method_Put,
                             QStringLiteral("/brms/api/v1.1/user/group/%1").arg(QString::fromStdString(groupId)),
                             nServerId, GroupBody(group));
         })},
        {"BRMS.MoveUserGroup", ByHand([](void* pRequest, const MoveUserGroupsParam& move, int nServerId) {
             QJsonObject body;
             body.insert(QStringLiteral("userIds"), Texts(move.userIds));
             body.insert(QStringLiteral("groupId"), QString::fromStdString(move.groupId));
             return Describe(pRequest, Method_Post, QStringLiteral("/brms/api/v1.1/user/group/move/batch"), nServerId,
                             Compact(body));
         })},
        {"BRMS.ClearUserGroup", ByHand([](void* pRequest, const std::string& groupId, int nServerId) {
             return Describe(pRequest, Method_Post,
                             QStringLiteral("/brms/api/v1.1/user/group/%1/clear").arg(QString::fromStdString(groupId)),
                             nServerId);
         })},
        {"BRMS.DeleteUserGroup", ByHand([](void* pRequest, const std::vector<std::string>& groupIds, int nServerId) {
             return Describe(pRequest, Method_Delete,
                             QStringLiteral("/brms/api/v1.1/user/group?ids=%1").arg(Joined(groupIds)), nServerId);
         })},
        {"BRMS.AddQuickCommand", ByHand([](void* pRequest, const QuickCommand& command, int nServerId) {
             return Describe(pRequest, Method_Post, QStringLiteral("/brms/api/v1.1/config/quick/command"), nServerId,
                             QuickCommandBody(command));
         })},
        {"BRMS.UpdateQuickCommand", ByHand([](void* pRequest, const QuickCommand& command, int nServerId) {
             return Describe(
                 pRequest, Method_Put,
                 QStringLiteral("/brms/api/v1.1/config/quick/command/%1").arg(QString::fromStdString(command.id)),
                 nServerId, QuickCommandBody(command));
         })},
        {"BRMS.DelQuickCommand", ByHand([](void* pRequest, std::vector<std::string> ids, int nServerId) {
             return Describe(pRequest, Method_Delete,
                             QStringLiteral("/brms/api/v1.1/config/quick/command?ids=%1").arg(Joined(ids)), nServerId);
         })},
        {"BRMS.GetQuickCommand", ByHand([](void* pRequest, const std::string& id, int nServerId) {
             return Describe(pRequest, Method_Get,
                             QStringLiteral("/brms/api/v1.1/config/quick/command/%1").arg(QString::fromStdString(id)),
                             nServerId);
         })},
        {"BRMS.GetQuickCommands", ByHand([](void* pRequest, const std::string& keyword, int nServerId) {
             return Describe(pRequest, Method_Get,
                             QStringLiteral("/brms/api/v1.1/config/quick/command/list?keyword=%1")
                                 .arg(QString::fromStdString(keyword)),
                             nServerId);
         })},
        {"BRMS.GetAlarmPlanQuickCommands", ByHand([](void* pRequest, const std::string& planId, int nServerId) {
             return Describe(
                 pRequest, Method_Get,
                 QStringLiteral("/brms/api/v1.1/alarm/plan/%1/quick/command/list").arg(QString::fromStdString(planId)),
                 nServerId);
         })},
        {"BRMS.GetPageSummaryAlarmPlans",
         ByHand([](void* pRequest, const GetPageSummaryAlarmPlansParam& query, int nServerId) {
             return Describe(pRequest, Method_Get,
                             QStringLiteral("/brms/api/v1.1/alarm/plan/summary/page?page=%1&pageSize=%2&keyword=%3")
                                 .arg(query.page)
                                 .arg(query.pageSize)
                                 .arg(QString::fromStdString(query.keyword)),
                             nServerId);
         })},
        {"BRMS.GetAlarmLinkControlList",
         ByHand([](void* pRequest, const std::string& sourceCode, int alarmType, int nServerId) {
             return Describe(
                 pRequest, Method_Get,
                 QStringLiteral("/brms/api/v1.1/alarm/plan/source/alarm-type/linkage/list?sourceCode=%1&alarmType=%2")
                     .arg(QString::fromStdString(sourceCode))
                     .arg(alarmType),
                 nServerId);
         })},
        {"BRMS.GetAlarmLayerDetail",
         ByHand([](void* pRequest, const std::string& resourceCode, int resourceType, int nServerId) {
             return Describe(pRequest, Method_Get,
                             QStringLiteral("/ipms/api/v1.1/parking-lot/layer/detail?resourceType=%1&resourceCode=%2")
                                 .arg(resourceType)
                                 .arg(QString::fromStdString(resourceCode)),
                             nServerId);
         })},
        {"BRMS.GetAlarmHostFileInfo", ByHand([](void* pRequest, const std::string& alarmRecordId, int nServerId) {
             return Describe(pRequest, Method_Get,
                             QStringLiteral("/brms/api/v1.1/alarm/record/%1/file/detail")
                                 .arg(QString::fromStdString(alarmRecordId)),
                             nServerId);
         })},
        {"BRMS.GetAudioFileInfo",
         ByHand([](void* pRequest, const std::string& url, const std::string& body, int nServerId) {
             return Describe(pRequest, Method_Get, QString::fromUtf8(url.c_str()), nServerId,
                             QString::fromUtf8(body.c_str()));
         })},
        {"BRMS.GetPluginLogType", ByHand([](void* pRequest, int nServerId) {
             return Describe(pRequest, Method_Get, QStringLiteral("/brms/api/v1.1/log/plugin-log/event-type/list"),
                             nServerId);
         })},
        {"BRMS.GetGeneralEvents", ByHand([](void* pRequest, GetGeneralEventsParam& query, int nServerId) {
             QJsonObject body;
             body.insert(QStringLiteral("transportType"), QString::fromStdString(query.transportType));
             body.insert(QStringLiteral("matchType"), QString::fromStdString(query.matchType));
             body.insert(QStringLiteral("keyword"), QString::fromStdString(query.keyword));
             return Describe(pRequest, Method_Get, QStringLiteral("/brms/api/v1.1/alarm/general/event/list"), nServerId,
                             Compact(body));
         })},
        {"BRMS.GetChannelWebTunnel", ByHand([](void* pRequest, const std::string& channelId, int nServerId) {
             return Describe(
                 pRequest, Method_Get,
                 QStringLiteral("/brms/api/v1.1/device/channel/%1/web/tunnel").arg(QString::fromStdString(channelId)),
                 nServerId);
         })},
        {"BRMS.GetChannelWebAuthorization", ByHand([](void* pRequest, const std::string& channelId, int nServerId) {
             return Describe(pRequest, Method_Get,
                             QStringLiteral("/brms/api/v1.1/device/channel/%1/web/authorization")
                                 .arg(QString::fromStdString(channelId)),
                             nServerId);
         })},
        {"BRMS.GetChannelWebEnablement", ByHand([](void* pRequest, const std::string& channelId, int nServerId) {
             return Describe(pRequest, Method_Get,
                             QStringLiteral("/brms/api/v1.1/device/channel/%1/web/enablement")
                                 .arg(QString::fromStdString(channelId)),
                             nServerId);
         })},
        {"BRMS.GetWebEnablement", ByHand([](void* pRequest, const std::string& deviceCode, int nServerId) {
             return Describe(
                 pRequest, Method_Get,
                 QStringLiteral("/brms/api/v1.1/device/%1/web/enablement").arg(QString::fromStdString(deviceCode)),
                 nServerId);
         })},
        {"BRMS.GetMenuAvailable", ByHand([](void* pRequest, const std::string& menuCode, int nServerId) {
             return Describe(pRequest, Method_Get,
                             QStringLiteral("/brms/api/v1.1/menu/%1/available").arg(QString::fromStdString(menuCode)),
                             nServerId);
         })},
        {"BRMS.GetDeriveToken", ByHand([](void* pRequest, int nServerId) {
             return Describe(pRequest, Method_Post, QStringLiteral("/brms/api/v1.1/account/token/derive"), nServerId);
         })},
        {"BRMS.GetPermissionResourceCollection", ByHand([](void* pRequest, int nServerId) {
             return Describe(pRequest, Method_Get,
                             QStringLiteral("/brms/api/v1.1/account/permission/resource/collection"), nServerId);
         })},
        {"BRMS.FunctionChannelCheck", ByHand([](void* pRequest, FunctionChannelCheck& check, int nServerId) {
             QJsonObject body;
             body.insert(QStringLiteral("channelId"), QString::fromStdString(check.channelId));
             body.insert(QStringLiteral("functionCode"), QString::fromStdString(check.functionCode));
             return Describe(pRequest, Method_Post, QStringLiteral("/brms/api/v1.1/account/function/channel/check"),
                             nServerId, Compact(body));
         })},
        {"BRMS.GetDeviceCategoryCount", ByHand([](void* pRequest, const DeviceCategoryParamReq& query, int nServerId) {
             return Describe(
                 pRequest, Method_Get,
                 QStringLiteral("/brms/api/v1.1/device/statistics/count-by-device-category/list"
                                "?keyword=%1&orgCode=%2&domain=%3&permitted=%4&sourceType=%5&containChild=%6")
                     .arg(QString::fromStdString(query.keyword))
                     .arg(QString::fromStdString(query.orgCode))
                     .arg(QString::fromStdString(query.domain))
                     .arg(QString::fromStdString(query.permitted))
                     .arg(QString::fromStdString(query.sourceType))
                     .arg(QString::fromStdString(query.containChild)),
                 nServerId);
         })},
    };
}
// NOLINTEND(performance-unnecessary-value-param)

}  // namespace bench
