#pragma once

#include "../APIModuleGlobal.h"
#include "AccountAccess.h"
#include "AlarmEvent.h"
#include "DeviceConfig.h"
#include "DeviceControl.h"
#include "QuickCommand.h"
#include "ServerWarning.h"
#include "SystemConfig.h"
#include "UserGroup.h"

#include <QJsonObject>

#include <string>
#include <vector>

namespace APIModule {

/// Calls of the basic resource management service: Packs and Parses as CAPIModule describes them.
class APIMODULE_EXPORT CBRMSModule {
public:
    CBRMSModule& operator=(const CBRMSModule&);      ///< @assignsnothing
    CBRMSModule& operator=(CBRMSModule&&) noexcept;  ///< @assignsnothing

    /// @name System configuration
    /// Settings of the whole platform. Flags and numbers travel to the server as texts ("1"/"0", decimal), with the
    /// exception of the AI privacy switch; a text ends at its first zero byte.
    /// @{

    /// Reads the time synchronisation settings: GET /brms/api/v1.1/config/time-sync
    /// @pack
    static int PacketGetTimeSyncConfig(void* pReqParamData, int nServerId);
    /// Fills the fields of @p config in their order.
    /// @parse{config}
    static int ParseGetTimeSyncConfig(const QJsonObject& data, TimeSyncConfig& config);

    /// Writes the time synchronisation settings: PUT /brms/api/v1.1/config/time-sync
    ///
    /// Body: every field of @p config under its key, all of them texts.
    /// @pack{config, what is to be written}
    static int PacketSetTimeSyncConfig(void* pReqParamData, const TimeSyncConfig& config, int nServerId);

    /// Synchronises the time of all devices now: POST /brms/api/v1.1/config/time-sync/immediate, no body
    /// @pack
    static int PacketImmediatelySyncTime(void* pReqParamData, int nServerId);

    /// Reads the remote log settings: GET /brms/api/v1.1/config/remote-log
    /// @pack
    static int PacketGetRemoteLogConfig(void* pReqParamData, int nServerId);
    /// Fills the fields of @p config in their order.
    /// @parse{config}
    static int ParseGetRemoteLogConfig(const QJsonObject& data, RemoteLogConfigInfo& config);

    /// Writes the remote log settings: PUT /brms/api/v1.1/config/remote-log
    ///
    /// Body: every field of @p config under its key, all of them texts.
    /// @pack{config, what is to be written}
    static int PacketSetRemoteLogConfig(void* pReqParamData, const RemoteLogConfigInfo& config, int nServerId);

    /// Reads the login model of devices: GET /brms/api/v1.1/config/device-login-model
    /// @pack
    static int PacketGetDeviceLoginModel(void* pReqParamData, int nServerId);
    /// Reads "deviceLoginModel", a number defined by the server.
    /// @parse{model}
    static int ParseGetDeviceLoginModel(const QJsonObject& data, int& model);

    /// Writes the login model of devices: PUT /brms/api/v1.1/config/device-login-model
    ///
    /// Body: "deviceLoginModel", the decimal text of @p model.
    /// @pack{model, the server's code}
    static int PacketSetDeviceLoginModel(void* pReqParamData, const int& model, int nServerId);

    /// Reads whether messages are pushed to the mobile app: GET /brms/api/v1.1/config/app/push-message
    /// @pack
    static int PacketGetPushAppMsgConfig(void* pReqParamData, int nServerId);
    /// Reads "enablePushMessage".
    /// @parse{enable}
    static int ParseGetPushAppMsgConfig(const QJsonObject& data, bool& enable);

    /// Switches the push of messages to the mobile app: PUT /brms/api/v1.1/config/app/push-message
    ///
    /// Body: "enablePushMessage", the text "1" or "0".
    /// @pack{enable, whether messages are pushed}
    static int PacketSetPushAppMsgConfig(void* pReqParamData, const bool& enable, int nServerId);

    /// Reads which outside databases are supported: GET /brms/api/v1.1/config/outside-database/support/list
    /// @pack
    static int PacketGetSupportDataBaseType(void* pReqParamData, int nServerId);
    /// Appends the codes of "databaseTypes", a list of decimal texts, to @p types; anything else in it counts as 0.
    /// @parse{types}
    static int ParseGetSupportDataBaseType(const QJsonObject& data, std::vector<int>& types);

    /// Reads one of the client's settings: GET /brms/api/v1.1/config/local/setting?settingType=@p settingType
    /// @pack{settingType, the server's code of the setting}
    static int PacketGetLocalSetting(void* pReqParamData, const int& settingType, int nServerId);
    /// Fills the fields of @p setting in their order.
    /// @parse{setting}
    static int ParseGetLocalSetting(const QJsonObject& data, LocalSettingQueryResult& setting);

    /// Writes the client's setting: PUT /brms/api/v1.1/config/local/setting
    ///
    /// Body: "apply", the text "1" or "0", and "settingContent". The type of the setting is not sent.
    /// @pack{apply, whether the setting holds; not changed, content, the new value}
    static int PacketUpdateLocalSetting(void* pReqParamData, bool& apply, const std::string& content, int nServerId);

    /// Reads the AI privacy switch: GET /brms/api/v1.1/config/ai/privacy
    /// @pack
    static int PacketGetAIPrivacyConfig(void* pReqParamData, int nServerId);
    /// Reads "enable" as a number.
    /// @parse{enable}
    static int ParseGetAIPrivacyConfig(const QJsonObject& data, int& enable);

    /// Sets the AI privacy switch: PUT /brms/api/v1.1/config/ai/privacy
    ///
    /// Body: "enable", the number 1 or 0, where every other switch sends a text.
    /// @pack{enable, whether privacy is on}
    static int PacketUpdateAIPrivacyConfig(void* pReqParamData, const bool& enable, int nServerId);
    /// @}

    /// @name Device and channel configuration
    /// Settings of one device or channel, which is named in the URL as it stands, nothing escaped. Encoding and image
    /// settings travel as numbers, network and multicast settings as texts ("1"/"0", decimal) that end at their first
    /// zero byte.
    /// @{

    /// Reads the network settings of a device: GET /brms/api/v1.1/device/{deviceCode}/config/network
    /// @pack{deviceCode, the device}
    static int PacketGetNetworkConfig(void* pReqParamData, const std::string& deviceCode, int nServerId);
    /// Fills "ip", "mask", "gateway" and "dns" in this order; the device code stays as it is.
    /// @parse{config}
    static int ParseGetNetworkConfig(const QJsonObject& data, NetworkConfig& config);

    /// Writes the network settings of a device: PUT /brms/api/v1.1/device/{config.deviceCode}/config/network
    ///
    /// Body: "ip", "mask", "gateway" and "dns", texts.
    /// @pack{config, the device and its settings; not changed}
    static int PacketUpdateNetworkConfig(void* pReqParamData, NetworkConfig& config, int nServerId);

    /// Reads the encoding of a channel's streams: GET /brms/api/v1.1/device/channel/{channelId}/config/encode
    /// @pack{channelId, the channel}
    static int PacketGetEncodeConfig(void* pReqParamData, const std::string& channelId, int nServerId);
    /// Appends the streams of "encodeConfigurations" up to the first that is not whole. Their channel stays empty.
    /// @parse{configs}
    static int ParseGetEncodeConfig(const QJsonObject& data, std::vector<EncodeConfig>& configs);

    /// Writes the encoding of a channel's streams: PUT /brms/api/v1.1/device/channel/{channelId}/config/encode
    ///
    /// Body: "encodeConfigurations", a list with the nine numbers of each stream; empty for no @p configs.
    /// @pack{channelId, the channel, configs, the streams; not changed}
    static int PacketUpdateEncodeConfig(void* pReqParamData, const std::string& channelId,
                                        std::vector<EncodeConfig>& configs, int nServerId);

    /// Reads what the encoder of a stream offers:
    /// GET /brms/api/v1.1/device/channel/{channelId}/capability/encode?streamType={streamType}
    /// @pack{channelId, the channel, streamType, the server's code of the stream}
    static int PacketGetEncodeCapability(void* pReqParamData, const std::string& channelId, int streamType,
                                         int nServerId);
    /// Appends the codes of "supportCompressions", a list of decimal texts in which anything else counts as 0, then
    /// the capabilities of "encodeCapabilities" up to the first that is not whole, its formats included.
    /// @parse{capability}
    static int ParseGetEncodeCapability(const QJsonObject& data, EncodeCapability& capability);

    /// Reads the image adjustment of a channel: GET /brms/api/v1.1/device/channel/{channelId}/config/video
    /// @pack{channelId, the channel}
    static int PacketGetImageConfig(void* pReqParamData, const std::string& channelId, int nServerId);
    /// Fills the four adjustments in their order; the channel stays as it is.
    /// @parse{config}
    static int ParseGetImageConfig(const QJsonObject& data, ImageConfig& config);

    /// Writes the image adjustment of a channel: PUT /brms/api/v1.1/device/channel/{config.channelId}/config/video
    ///
    /// Body: "brightness", "saturation", "contrast" and "sharpness", numbers.
    /// @pack{config, the channel and its settings; not changed}
    static int PacketUpdateImageConfig(void* pReqParamData, ImageConfig& config, int nServerId);

    /// Reads the multicast settings of a channel: GET /brms/api/v1.1/device/channel/{channelId}/config/multicast
    /// @pack{channelId, the channel}
    static int PacketGetMultiCastConfig(void* pReqParamData, const std::string& channelId, int nServerId);
    /// Fills "status", then appends the streams of "streams" up to the first that is not whole; the channel stays as
    /// it is.
    /// @parse{info}
    static int ParseGetMultiCastConfig(const QJsonObject& data, MultiCastConfigInfo& info);

    /// Writes the multicast settings of a channel: PUT /brms/api/v1.1/device/channel/{info.channelId}/config/multicast
    ///
    /// Body: "status", the text "1" or "0", and "streams", a list with "status", "multicastIp", "multicastPort" and
    /// "streamType" of each stream, all of them texts.
    /// @pack{info, the channel and its settings}
    static int PacketSetMultiCastConfig(void* pReqParamData, const MultiCastConfigInfo& info, int nServerId);

    /// Switches the multicast of one stream:
    /// PUT /brms/api/v1.1/device/channel/{status.channelId}/config/multicast/stream/status
    ///
    /// Body: "status", the text "1" or "0", and "streamType", a decimal text.
    /// @pack{status, the stream of a channel and its switch}
    static int PacketSetMultiCastStreamStatus(void* pReqParamData, const MultiCastStreamStatus& status, int nServerId);
    /// @}

    /// @name Device control
    /// Commands that act at once. Flags and numbers travel as numbers; an empty list of channels is sent as such.
    /// @{

    /// Starts the discovery of several devices: POST /brms/api/v1.1/device/discover/async/batch
    ///
    /// Body: "deviceCodes", a list of texts, and "discoverMode", a number that the server defines.
    /// @pack{deviceCodes, the devices, discoverMode, the server's code}
    static int PacketBatchDiscoverDevices(void* pReqParamData, const std::vector<std::string>& deviceCodes,
                                          int discoverMode, int nServerId);
    /// Reads "session", which names the discovery that the server started.
    /// @parse{session}
    static int ParseBatchDiscoverDevices(const QJsonObject& data, std::string& session);

    /// Switches alarm outputs: POST /brms/api/v1.1/device/channel/alarm-output/control; the reply is read by
    /// ParseChannelControl().
    ///
    /// Body: "channelIds", a list of texts, "action", always the number 0, and "command", the number 1 when @p on is
    /// true and 0 when it is false.
    /// @pack{channelIds, the channels, on, whether they are switched on}
    static int PacketAlarmOutputControl(void* pReqParamData, const std::vector<std::string>& channelIds, bool on,
                                        int nServerId);

    /// Switches audio-light alarms: POST /brms/api/v1.1/device/channel/audio-light/regulate; the reply is read by
    /// ParseChannelControl().
    ///
    /// Body: "channelIds", a list of texts, and "command", the number 1 when @p on is true and 0 when it is false; no
    /// "action" here.
    /// @pack{channelIds, the channels, on, whether they are switched on}
    static int PacketAudioLightControl(void* pReqParamData, const std::vector<std::string>& channelIds, bool on,
                                       int nServerId);

    /// Lets IP speakers play audio files: POST /brms/api/v1.1/device/channel/audio/ip-speaker/control; the reply is
    /// read by ParseChannelControl().
    ///
    /// Body: "channels", a list with the three texts of each speaker, and "command", a number.
    /// @pack{control, the speakers and what they are to do}
    static int PacketIPSpeakerControl(void* pReqParamData, IPSpeakerControl control, int nServerId);

    /// Appends the channels of "failedChannels", on which a command failed, up to the first that is not whole; none
    /// when all channels succeeded.
    /// @parse{failedChannels}
    static int ParseChannelControl(const QJsonObject& data, std::vector<ChannelControlRsp>& failedChannels);
    /// @}

    /// @name Server status warnings
    /// States of the platform's servers that a user must hear of.
    /// @{

    /// Asks for a switch-over to the hot-spare server: GET /brms/api/v1.1/system/hot-spare/switch/warning
    /// @pack
    static int PacketCheckHotSpareWarning(void* pReqParamData, int nServerId);
    /// Fills the fields of @p warning in their order.
    /// @parse{warning}
    static int ParseCheckHotSpareWarning(const QJsonObject& data, CheckHostSpareWarning& warning);

    /// Asks whether only the basic services were started:
    /// GET /brms/api/v1.1/system/only-startup-basic-service/warning
    /// @pack
    static int PacketGetBasicServiceWarm(void* pReqParamData, int nServerId);
    /// Reads "warningHappened".
    /// @parse{warningHappened}
    static int ParseGetBasicServiceWarm(const QJsonObject& data, bool& warningHappened);

    /// Lists the servers with disks that raise warnings: GET /brms/api/v1.1/system/warn/disk/list
    /// @pack
    static int PacketGetDiskWarm(void* pReqParamData, int nServerId);
    /// Appends the servers of "results" up to the first that is not whole, its disks included.
    /// @parse{servers}
    static int ParseGetDiskWarm(const QJsonObject& data, std::vector<DiskWarmParam>& servers);

    /// Lists the servers that ran out of memory: GET /brms/api/v1.1/system/out/memory/server/list
    /// @pack
    static int PacketGetMemoryOutOfServerList(void* pReqParamData, int nServerId);
    /// Appends the "serverIp" of each element of "results" up to the first that has none.
    /// @parse{serverIps}
    static int ParseGetMemoryOutOfServerList(const QJsonObject& data, std::vector<std::string>& serverIps);

    /// Lists the networks that the system knows: GET /brms/api/v1.1/system/network/list
    /// @pack
    static int PacketGetNetWorks(void* pReqParamData, int nServerId);
    /// Appends the networks of "results" up to the first that is not whole.
    /// @parse{netWorks}
    static int ParseGetNetWorks(const QJsonObject& data, NetWorksParam& netWorks);
    /// @}

    /// @name User groups
    /// Groups of the platform's users. Identifiers and keywords go into the URL as they stand, nothing escaped.
    /// @{

    /// Lists the user groups: GET /brms/api/v1.1/user/group/list?keyword={keyword}
    /// @pack{keyword, text to look for}
    static int PacketGetUserGroupList(void* pReqParamData, const std::string& keyword, int nServerId);
    /// Appends the groups of "results" up to the first that is not whole.
    /// @parse{groups}
    static int ParseGetUserGroupList(const QJsonObject& data, std::vector<UserConfigUserGroups>& groups);

    /// Reads one user group: GET /brms/api/v1.1/user/group/{groupId}
    /// @pack{groupId, the group}
    static int PacketGetUserGroup(void* pReqParamData, const std::string& groupId, int nServerId);
    /// Fills the fields of @p group in their order.
    /// @parse{group}
    static int ParseGetUserGroup(const QJsonObject& data, UserConfigUserGroups& group);

    /// Creates a user group: POST /brms/api/v1.1/user/group
    ///
    /// Body: "groupName" and "memo", texts, sent when empty, too.
    /// @pack{group, name and memo of the group}
    static int PacketAddUserGroup(void* pReqParamData, const AddUserGroupsParam& group, int nServerId);
    /// Reads "id", the identifier that the server gave to the new group.
    /// @parse{groupId}
    static int ParseAddUserGroup(const QJsonObject& data, std::string& groupId);

    /// Renames or describes a user group: PUT /brms/api/v1.1/user/group/{groupId}
    ///
    /// Body: "groupName" and "memo", texts, sent when empty, too.
    /// @pack{groupId, the group, group, its new name and memo}
    static int PacketUpdateUserGroup(void* pReqParamData, const std::string& groupId, const AddUserGroupsParam& group,
                                     int nServerId);

    /// Moves users into one group: POST /brms/api/v1.1/user/group/move/batch
    ///
    /// Body: "userIds", a list of texts, empty for no users, and "groupId".
    /// @pack{move, the users and the group}
    static int PacketMoveUserGroup(void* pReqParamData, const MoveUserGroupsParam& move, int nServerId);

    /// Empties a user group: POST /brms/api/v1.1/user/group/{groupId}/clear, no body
    /// @pack{groupId, the group}
    static int PacketClearUserGroup(void* pReqParamData, const std::string& groupId, int nServerId);

    /// Deletes user groups: DELETE /brms/api/v1.1/user/group?ids={groupIds, with a comma between two}, no body
    ///
    /// Its log texts are those of PacketClearUserGroup().
    /// @pack{groupIds, the groups}
    static int PacketDeleteUserGroup(void* pReqParamData, const std::vector<std::string>& groupIds, int nServerId);
    /// @}

    /// @name Quick commands
    /// Named lists of HTTP requests that the server stores. A command is sent with texts alone ("1"/"0", decimal) and
    /// read by the types of its fields. Identifiers and keywords go into the URL as they stand, nothing escaped.
    /// @{

    /// Creates a quick command: POST /brms/api/v1.1/config/quick/command
    ///
    /// Body: every field of @p command but "id", each a text; "httpUrls" is a list with the four texts of each request.
    /// The reply does not tell the identifier of the new command: PacketGetQuickCommands() does.
    /// @pack{command, the command; its "id" is not sent}
    static int PacketAddQuickCommand(void* pReqParamData, const QuickCommand& command, int nServerId);

    /// Changes a quick command: PUT /brms/api/v1.1/config/quick/command/{command.id}
    ///
    /// Body: as that of PacketAddQuickCommand().
    /// @pack{command, the command that has this "id" and its new values}
    static int PacketUpdateQuickCommand(void* pReqParamData, const QuickCommand& command, int nServerId);

    /// Deletes quick commands: DELETE /brms/api/v1.1/config/quick/command?ids={ids, with a comma between two}, no body
    /// @pack{ids, the commands}
    static int PacketDelQuickCommand(void* pReqParamData, std::vector<std::string> ids, int nServerId);

    /// Reads one quick command: GET /brms/api/v1.1/config/quick/command/{id}
    /// @pack{id, the command}
    static int PacketGetQuickCommand(void* pReqParamData, const std::string& id, int nServerId);
    /// Fills "id", "quickCommandName", "shortcutKeys", "remark", "enableShortcutKeys" and "executeMode" in this order,
    /// then appends the requests of "httpUrls" up to the first that is not whole.
    /// @parse{command}
    static int ParseGetQuickCommand(const QJsonObject& data, QuickCommand& command);

    /// Lists the quick commands: GET /brms/api/v1.1/config/quick/command/list?keyword={keyword}
    /// @pack{keyword, text to look for}
    static int PacketGetQuickCommands(void* pReqParamData, const std::string& keyword, int nServerId);
    /// Appends the commands of "results" up to the first that is not whole, each with its name, identifier, shortcut
    /// keys, their switch and remark. The mode stays 0 and the requests empty.
    /// @parse{commands}
    static int ParseGetQuickCommands(const QJsonObject& data, std::vector<QuickCommand>& commands);

    /// Lists the quick commands of an alarm plan: GET /brms/api/v1.1/alarm/plan/{planId}/quick/command/list
    /// @pack{planId, the alarm plan}
    static int PacketGetAlarmPlanQuickCommands(void* pReqParamData, const std::string& planId, int nServerId);
    /// Appends the commands of "results" up to the first that is not whole, its requests included. A command has its
    /// name and requests, a request its method, URL and place; all other fields stay empty.
    /// @parse{commands}
    static int ParseGetAlarmPlanQuickCommands(const QJsonObject& data, std::vector<QuickCommand>& commands);
    /// @}

    /// @name Alarm and event information
    /// What the client shows about alarms and events. Codes and texts go into the URL as they stand, nothing escaped.
    /// @{

    /// Reads one page of the alarm plans:
    /// GET /brms/api/v1.1/alarm/plan/summary/page?page={page}&pageSize={pageSize}&keyword={keyword}
    /// @pack{query, the page and the text to look for}
    static int PacketGetPageSummaryAlarmPlans(void* pReqParamData, const GetPageSummaryAlarmPlansParam& query,
                                              int nServerId);
    /// Appends the plans of "pageData" up to the first that is not whole; the counts of the page are not read.
    /// @parse{plans}
    static int ParseGetPageSummaryAlarmPlans(const QJsonObject& data, std::vector<SummaryAlarmPlan>& plans);

    /// Reads what an alarm sets off:
    /// GET /brms/api/v1.1/alarm/plan/source/alarm-type/linkage/list?sourceCode={sourceCode}&alarmType={alarmType}
    /// @pack{sourceCode, where the alarm comes from, alarmType, the server's code of the kind of alarm}
    static int PacketGetAlarmLinkControlList(void* pReqParamData, const std::string& sourceCode, int alarmType,
                                             int nServerId);
    /// Appends the channels of "linkAudioLightChannels", then those of "linkAlarmOutputChannels" and of
    /// "linkAudioChannels", up to the first that is not whole. All three lists must be there.
    /// @parse{control}
    static int ParseGetAlarmLinkControlList(const QJsonObject& data, AlarmLinkControl& control);

    /// Reads the map layer on which an alarm resource lies, from the parking management service:
    /// GET /ipms/api/v1.1/parking-lot/layer/detail?resourceType={resourceType}&resourceCode={resourceCode}
    /// @pack{resourceCode, the resource, resourceType, the server's code of the kind of resource}
    static int PacketGetAlarmLayerDetail(void* pReqParamData, const std::string& resourceCode, int resourceType,
                                         int nServerId);
    /// Fills "layerId", "layerName", "layerPicture", "height", "width", "locationX", "locationY" and "angle" in this
    /// order.
    /// @parse{layer}
    static int ParseGetAlarmLayerDetail(const QJsonObject& data, AlarmLayerInfo& layer);

    /// Reads the recorded files of an alarm: GET /brms/api/v1.1/alarm/record/{alarmRecordId}/file/detail
    /// @pack{alarmRecordId, the record of the alarm}
    static int PacketGetAlarmHostFileInfo(void* pReqParamData, const std::string& alarmRecordId, int nServerId);
    /// Fills "alarmCode", then appends the files of "files" up to the first that is not whole.
    /// @parse{info}
    static int ParseGetAlarmHostFileInfo(const QJsonObject& data, AlarmHostFileInfo& info);

    /// Asks for the state of an audio file task: GET {url}
    ///
    /// @param pReqParamData the RequestParam
    /// @param url path and query of the request, up to its first zero byte
    /// @param body body of the request, up to its first zero byte; a GET travels without it
    /// @param nServerId the server, -1 for the current one
    /// @return 0 or -1
    static int PacketGetAudioFileInfo(void* pReqParamData, const std::string& url, const std::string& body,
                                      int nServerId);
    /// Fills "fileUrl", then "taskProgress".
    /// @parse{info}
    static int ParseGetAudioFileInfo(const QJsonObject& data, AudioFileInfo& info);

    /// Lists the event types of plug-in logs: GET /brms/api/v1.1/log/plugin-log/event-type/list
    /// @pack
    static int PacketGetPluginLogType(void* pReqParamData, int nServerId);
    /// Appends the groups of "results" up to the first that is not whole, its event types included.
    /// @parse{groups}
    static int ParseGetPluginLogType(const QJsonObject& data, std::vector<PluginLogTypeGroupInfo>& groups);

    /// Lists the general events: GET /brms/api/v1.1/alarm/general/event/list
    ///
    /// Body: "transportType", "matchType" and "keyword", texts. A GET travels without its body, so the server does not
    /// see this filter.
    /// @pack{query, the filter; not changed}
    static int PacketGetGeneralEvents(void* pReqParamData, GetGeneralEventsParam& query, int nServerId);
    /// Appends the events of "results" up to the first that is not whole.
    /// @parse{events}
    static int ParseGetGeneralEvents(const QJsonObject& data, std::vector<GeneralEventRsp>& events);
    /// @}

    /// @name Account and web access
    /// What the account may use, and how a device's own web page is opened. Identifiers and codes go into the URL as
    /// they stand, nothing escaped.
    /// @{

    /// Asks where the web page of a channel is reached: GET /brms/api/v1.1/device/channel/{channelId}/web/tunnel
    /// @pack{channelId, the channel}
    static int PacketGetChannelWebTunnel(void* pReqParamData, const std::string& channelId, int nServerId);
    /// Fills "https", "port" and "ip" in this order; user name and token stay as they are.
    /// @parse{tunnel}
    static int ParseGetChannelWebTunnel(const QJsonObject& data, GetChannelWebTunnelRsp& tunnel);

    /// Asks how to log in to the web page of a channel:
    /// GET /brms/api/v1.1/device/channel/{channelId}/web/authorization
    /// @pack{channelId, the channel}
    static int PacketGetChannelWebAuthorization(void* pReqParamData, const std::string& channelId, int nServerId);
    /// Fills "username", then "token"; scheme, port and address stay as they are.
    /// @parse{tunnel}
    static int ParseGetChannelWebAuthorization(const QJsonObject& data, GetChannelWebTunnelRsp& tunnel);

    /// Asks whether a channel's web page may be opened: GET /brms/api/v1.1/device/channel/{channelId}/web/enablement
    /// @pack{channelId, the channel}
    static int PacketGetChannelWebEnablement(void* pReqParamData, const std::string& channelId, int nServerId);
    /// Reads "enableWeb".
    /// @parse{enabled}
    static int ParseGetChannelWebEnablement(const QJsonObject& data, bool& enabled);

    /// Asks whether a device's web page may be opened: GET /brms/api/v1.1/device/{deviceCode}/web/enablement
    /// @pack{deviceCode, the device}
    static int PacketGetWebEnablement(void* pReqParamData, const std::string& deviceCode, int nServerId);
    /// Reads "enableWeb".
    /// @parse{enabled}
    static int ParseGetWebEnablement(const QJsonObject& data, bool& enabled);

    /// Asks whether a menu is available: GET /brms/api/v1.1/menu/{menuCode}/available
    /// @pack{menuCode, the menu}
    static int PacketGetMenuAvailable(void* pReqParamData, const std::string& menuCode, int nServerId);
    /// Reads "available".
    /// @parse{available}
    static int ParseGetMenuAvailable(const QJsonObject& data, bool& available);

    /// Has a token derived from the account's session: POST /brms/api/v1.1/account/token/derive, no body
    /// @pack
    static int PacketGetDeriveToken(void* pReqParamData, int nServerId);
    /// Reads "token".
    /// @parse{token}
    static int ParseGetDeriveToken(const QJsonObject& data, std::string& token);

    /// Reads what the account may use: GET /brms/api/v1.1/account/permission/resource/collection
    /// @pack
    static int PacketGetPermissionResourceCollection(void* pReqParamData, int nServerId);
    /// Appends the codes of "menuFunctionCodes" and of "localConfigItemCodes"; anything in them that is no text counts
    /// as an empty one. Where either list is missing, @p collection is untouched.
    /// @parse{collection}
    static int ParseGetPermissionResourceCollection(const QJsonObject& data,
                                                    PermissionResourceCollectionResp& collection);

    /// Asks whether the account may use a function on a channel: POST /brms/api/v1.1/account/function/channel/check
    ///
    /// Body: "channelId" and "functionCode", texts.
    /// @pack{check, channel and function}
    static int PacketFunctionChannelCheck(void* pReqParamData, FunctionChannelCheck& check, int nServerId);
    /// Reads the text "authorized" and keeps the whole number that it begins with, 0 where there is none.
    /// @parse{result}
    static int ParseFunctionChannelCheck(const QJsonObject& data, FunctionChannelCheckResult& result);

    /// Counts the devices of each category:
    /// GET /brms/api/v1.1/device/statistics/count-by-device-category/list with the fields of @p query in their order as
    /// its "keyword", "orgCode", "domain", "permitted", "sourceType" and "containChild". An empty field leaves its
    /// place empty.
    /// @pack{query, the filter}
    static int PacketGetDeviceCategoryCount(void* pReqParamData, const DeviceCategoryParamReq& query, int nServerId);
    /// Appends the counts of "results" up to the first that is not whole.
    /// @parse{categories}
    static int ParseGetGetDeviceCategoryCount(const QJsonObject& data,
                                              std::vector<DeviceCategoryQueryResult>& categories);
    /// @}
};

}  // namespace APIModule
