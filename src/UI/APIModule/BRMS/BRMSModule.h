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

/// Calls of the basic resource management service.
///
/// A Pack describes its request in the RequestParam behind @p pReqParamData, for the server @p nServerId (-1: the user
/// manager's current one). It returns 0, or -1 with the RequestParam untouched, and writes one log line either way.
///
/// A Parse reads the "data" object of the reply, @p data. It returns 0, or stops with -1 at the first missing key;
/// fields read before that key keep their new values. It appends complete elements to lists, with their inner lists,
/// and does not clear the lists first. It does not run for a reply without data.
///
/// "Inserted unencoded": the Pack inserts the string into the URL unchanged. If it may contain `%`, `&`, `#`, `?` or
/// `/`, the caller encodes it by QUrl::toPercentEncoding() first: the keyword `R&D` would end at its ampersand, and the
/// server would refuse the call with code 1003. QUrl itself encodes spaces and non-ASCII letters.
///
/// Codes, units and formats that the server defines are passed through unchanged; the comments give the value in the
/// contract's example. A list in "results" is complete and has no total.
class APIMODULE_EXPORT CBRMSModule {
public:
    /// @name System configuration
    /// Settings of the whole platform. Flags and numbers are sent as strings ("1"/"0", decimal), except for the AI
    /// privacy switch. A string ends at its first zero byte.
    /// @{

    /// Reads the time synchronisation settings: GET /brms/api/v1.1/config/time-sync
    static int PacketGetTimeSyncConfig(void* pReqParamData, int nServerId);
    /// Fills the fields of @p config in their order.
    static int ParseGetTimeSyncConfig(const QJsonObject& data, TimeSyncConfig& config);

    /// Writes all eight time synchronisation settings: PUT /brms/api/v1.1/config/time-sync
    ///
    /// Body: every field of @p config under its key, as a string.
    /// @param config the new settings
    static int PacketSetTimeSyncConfig(void* pReqParamData, const TimeSyncConfig& config, int nServerId);

    /// Synchronises the time of all devices now: POST /brms/api/v1.1/config/time-sync/immediate, no body
    static int PacketImmediatelySyncTime(void* pReqParamData, int nServerId);

    /// Reads the remote log settings: GET /brms/api/v1.1/config/remote-log
    static int PacketGetRemoteLogConfig(void* pReqParamData, int nServerId);
    /// Fills the fields of @p config in their order.
    static int ParseGetRemoteLogConfig(const QJsonObject& data, RemoteLogConfigInfo& config);

    /// Writes all four remote log settings: PUT /brms/api/v1.1/config/remote-log
    ///
    /// Body: every field of @p config under its key, as a string.
    /// @param config the new settings
    static int PacketSetRemoteLogConfig(void* pReqParamData, const RemoteLogConfigInfo& config, int nServerId);

    /// Reads the login model of devices: GET /brms/api/v1.1/config/device-login-model
    static int PacketGetDeviceLoginModel(void* pReqParamData, int nServerId);
    /// Reads "deviceLoginModel", the server's code (1 in the contract's example), into @p model.
    static int ParseGetDeviceLoginModel(const QJsonObject& data, int& model);

    /// Writes the login model of devices: PUT /brms/api/v1.1/config/device-login-model
    ///
    /// Body: "deviceLoginModel", @p model as a decimal string.
    /// @param model the server's code (2 in the contract's example)
    static int PacketSetDeviceLoginModel(void* pReqParamData, const int& model, int nServerId);

    /// Reads whether messages are pushed to the mobile app: GET /brms/api/v1.1/config/app/push-message
    static int PacketGetPushAppMsgConfig(void* pReqParamData, int nServerId);
    /// Reads "enablePushMessage" into @p enable.
    static int ParseGetPushAppMsgConfig(const QJsonObject& data, bool& enable);

    /// Enables or disables push messages to the mobile app: PUT /brms/api/v1.1/config/app/push-message
    ///
    /// Body: "enablePushMessage", the string "1" or "0".
    /// @param enable whether messages are pushed
    static int PacketSetPushAppMsgConfig(void* pReqParamData, const bool& enable, int nServerId);

    /// Lists the supported external databases: GET /brms/api/v1.1/config/outside-database/support/list
    static int PacketGetSupportDataBaseType(void* pReqParamData, int nServerId);
    /// Appends the server's codes in "databaseTypes", a list of decimal strings ("1", "3" and "4" in the contract's
    /// example), to @p types. Any other element, even a number, is read as 0.
    static int ParseGetSupportDataBaseType(const QJsonObject& data, std::vector<int>& types);

    /// Reads one of the client's settings: GET /brms/api/v1.1/config/local/setting?settingType={settingType}
    /// @param settingType the server's code of the setting (1 in the contract's example)
    static int PacketGetLocalSetting(void* pReqParamData, const int& settingType, int nServerId);
    /// Fills the fields of @p setting in their order.
    static int ParseGetLocalSetting(const QJsonObject& data, LocalSettingQueryResult& setting);

    /// Writes the client's setting: PUT /brms/api/v1.1/config/local/setting
    ///
    /// Body: "apply", the string "1" or "0", and "settingContent". The type of the setting is not sent: the server
    /// changes the setting that was last read with the same session token, or the one of type 1 before any read, and
    /// increments its version.
    /// @param apply the apply flag of the setting; not changed
    /// @param content the new value, opaque to the server
    static int PacketUpdateLocalSetting(void* pReqParamData, bool& apply, const std::string& content, int nServerId);

    /// Reads the AI privacy switch: GET /brms/api/v1.1/config/ai/privacy
    static int PacketGetAIPrivacyConfig(void* pReqParamData, int nServerId);
    /// Reads "enable", the number 1 for on and 0 for off, into @p enable.
    static int ParseGetAIPrivacyConfig(const QJsonObject& data, int& enable);

    /// Sets the AI privacy switch: PUT /brms/api/v1.1/config/ai/privacy
    ///
    /// Body: "enable", the number 1 or 0; every other switch of this group is sent as a string.
    /// @param enable whether privacy is on
    static int PacketUpdateAIPrivacyConfig(void* pReqParamData, const bool& enable, int nServerId);
    /// @}

    /// @name Device and channel configuration
    /// Settings of one device or channel. Encoding and image settings are sent as numbers, network and multicast
    /// settings as strings ("1"/"0", decimal) that end at their first zero byte.
    /// @{

    /// Reads the network settings of a device: GET /brms/api/v1.1/device/{deviceCode}/config/network
    /// @param deviceCode the device, inserted unencoded
    static int PacketGetNetworkConfig(void* pReqParamData, const std::string& deviceCode, int nServerId);
    /// Fills "ip", "mask", "gateway" and "dns" of @p config in this order; the device code stays as it is.
    static int ParseGetNetworkConfig(const QJsonObject& data, NetworkConfig& config);

    /// Writes all four network settings of a device: PUT /brms/api/v1.1/device/{config.deviceCode}/config/network
    ///
    /// Body: "ip", "mask", "gateway" and "dns", strings.
    /// @param config the device, inserted unencoded, and its new settings; not changed
    static int PacketUpdateNetworkConfig(void* pReqParamData, NetworkConfig& config, int nServerId);

    /// Reads the encoding of a channel's streams: GET /brms/api/v1.1/device/channel/{channelId}/config/encode
    /// @param channelId the channel, inserted unencoded
    static int PacketGetEncodeConfig(void* pReqParamData, const std::string& channelId, int nServerId);
    /// Appends the streams of "encodeConfigurations" to @p configs. Their "channelId" stays empty.
    static int ParseGetEncodeConfig(const QJsonObject& data, std::vector<EncodeConfig>& configs);

    /// Replaces the encoding of a channel's streams: PUT /brms/api/v1.1/device/channel/{channelId}/config/encode
    ///
    /// Body: "encodeConfigurations", a list with the nine numbers of each stream; empty if @p configs is empty. The
    /// next read returns the streams that were sent, and no others.
    /// @param channelId the channel, inserted unencoded
    /// @param configs the streams; not changed
    static int PacketUpdateEncodeConfig(void* pReqParamData, const std::string& channelId,
                                        std::vector<EncodeConfig>& configs, int nServerId);

    /// Reads the encoding capability of a stream:
    /// GET /brms/api/v1.1/device/channel/{channelId}/capability/encode?streamType={streamType}
    /// @param channelId the channel, inserted unencoded. A `%` before a single digit, as in `%2F`, would be replaced
    ///        by the stream type; codes of two digits, such as `%26`, are safe.
    /// @param streamType the server's code of the stream (1 in the contract's example)
    static int PacketGetEncodeCapability(void* pReqParamData, const std::string& channelId, int streamType,
                                         int nServerId);
    /// Appends the codes in "supportCompressions", a list of decimal strings, then the capabilities in
    /// "encodeCapabilities" to @p capability. Any other element of the first list is read as 0.
    static int ParseGetEncodeCapability(const QJsonObject& data, EncodeCapability& capability);

    /// Reads the image adjustment of a channel: GET /brms/api/v1.1/device/channel/{channelId}/config/video
    /// @param channelId the channel, inserted unencoded
    static int PacketGetImageConfig(void* pReqParamData, const std::string& channelId, int nServerId);
    /// Fills the four adjustments of @p config in their order; the channel stays as it is.
    static int ParseGetImageConfig(const QJsonObject& data, ImageConfig& config);

    /// Writes all four image values of a channel: PUT
    /// /brms/api/v1.1/device/channel/{config.channelId}/config/video
    ///
    /// Body: "brightness", "saturation", "contrast" and "sharpness", numbers.
    /// @param config the channel, inserted unencoded, and its new settings; not changed
    static int PacketUpdateImageConfig(void* pReqParamData, ImageConfig& config, int nServerId);

    /// Reads the multicast settings of a channel: GET /brms/api/v1.1/device/channel/{channelId}/config/multicast
    /// @param channelId the channel, inserted unencoded
    static int PacketGetMultiCastConfig(void* pReqParamData, const std::string& channelId, int nServerId);
    /// Fills "status" of @p info, then appends the streams of "streams"; the channel stays as it is.
    static int ParseGetMultiCastConfig(const QJsonObject& data, MultiCastConfigInfo& info);

    /// Replaces the multicast settings of a channel: PUT
    /// /brms/api/v1.1/device/channel/{info.channelId}/config/multicast
    ///
    /// Body: "status", the string "1" or "0", and "streams", a list with "status", "multicastIp", "multicastPort" and
    /// "streamType" of each stream, as strings.
    /// @param info the channel, inserted unencoded, and its new settings
    static int PacketSetMultiCastConfig(void* pReqParamData, const MultiCastConfigInfo& info, int nServerId);

    /// Enables or disables multicast for one stream:
    /// PUT /brms/api/v1.1/device/channel/{status.channelId}/config/multicast/stream/status
    ///
    /// Body: "status", the string "1" or "0", and "streamType", a decimal string.
    /// @param status the channel, inserted unencoded, its stream and the switch
    static int PacketSetMultiCastStreamStatus(void* pReqParamData, const MultiCastStreamStatus& status, int nServerId);
    /// @}

    /// @name Device control
    /// Commands that take effect at once. Flags and numbers are sent as numbers, and empty lists are sent, too.
    /// @{

    /// Starts the discovery of several devices: POST /brms/api/v1.1/device/discover/async/batch
    ///
    /// Body: "deviceCodes", a list of strings, and "discoverMode", a number.
    /// @param deviceCodes the devices
    /// @param discoverMode the server's code (1 in the contract's example)
    static int PacketBatchDiscoverDevices(void* pReqParamData, const std::vector<std::string>& deviceCodes,
                                          int discoverMode, int nServerId);
    /// Reads "session", the identifier of the started discovery, into @p session.
    static int ParseBatchDiscoverDevices(const QJsonObject& data, std::string& session);

    /// Switches alarm outputs: POST /brms/api/v1.1/device/channel/alarm-output/control; the reply is read by
    /// ParseChannelControl().
    ///
    /// Body: "channelIds", a list of strings, "action", always the number 0, and "command", the number 1 when @p on is
    /// true and 0 when it is false.
    /// @param channelIds the channels
    /// @param on whether they are switched on
    static int PacketAlarmOutputControl(void* pReqParamData, const std::vector<std::string>& channelIds, bool on,
                                        int nServerId);

    /// Switches audio-light alarms: POST /brms/api/v1.1/device/channel/audio-light/regulate; the reply is read by
    /// ParseChannelControl().
    ///
    /// Body: "channelIds", a list of strings, and "command", the number 1 when @p on is true and 0 when it is false.
    /// There is no "action" here.
    /// @param channelIds the channels
    /// @param on whether they are switched on
    static int PacketAudioLightControl(void* pReqParamData, const std::vector<std::string>& channelIds, bool on,
                                       int nServerId);

    /// Plays audio files on IP speakers: POST /brms/api/v1.1/device/channel/audio/ip-speaker/control; the reply is
    /// read by ParseChannelControl().
    ///
    /// Body: "channels", a list with the three strings of each speaker, and "command", a number.
    /// @param control the speakers and their command
    static int PacketIPSpeakerControl(void* pReqParamData, IPSpeakerControl control, int nServerId);

    /// Appends the channels in "failedChannels", on which the command failed, to @p failedChannels; none when all
    /// channels succeeded. The call itself succeeds either way.
    static int ParseChannelControl(const QJsonObject& data, std::vector<ChannelControlRsp>& failedChannels);
    /// @}

    /// @name Server status warnings
    /// Server states that the client must report to its user.
    /// @{

    /// Checks for a switch-over to the hot-spare server: GET /brms/api/v1.1/system/hot-spare/switch/warning
    static int PacketCheckHotSpareWarning(void* pReqParamData, int nServerId);
    /// Fills the fields of @p warning in their order.
    static int ParseCheckHotSpareWarning(const QJsonObject& data, CheckHostSpareWarning& warning);

    /// Checks whether only the basic services were started:
    /// GET /brms/api/v1.1/system/only-startup-basic-service/warning
    static int PacketGetBasicServiceWarm(void* pReqParamData, int nServerId);
    /// Reads "warningHappened" into @p warningHappened.
    static int ParseGetBasicServiceWarm(const QJsonObject& data, bool& warningHappened);

    /// Lists the servers with disks that raise warnings: GET /brms/api/v1.1/system/warn/disk/list
    static int PacketGetDiskWarm(void* pReqParamData, int nServerId);
    /// Appends the servers of "results" with their disks to @p servers; none when no disk raises a warning.
    static int ParseGetDiskWarm(const QJsonObject& data, std::vector<DiskWarmParam>& servers);

    /// Lists the servers that ran out of memory: GET /brms/api/v1.1/system/out/memory/server/list
    static int PacketGetMemoryOutOfServerList(void* pReqParamData, int nServerId);
    /// Appends the "serverIp" of each element of "results" to @p serverIps.
    static int ParseGetMemoryOutOfServerList(const QJsonObject& data, std::vector<std::string>& serverIps);

    /// Lists the networks known to the system: GET /brms/api/v1.1/system/network/list
    static int PacketGetNetWorks(void* pReqParamData, int nServerId);
    /// Appends the networks of "results" to @p netWorks.
    static int ParseGetNetWorks(const QJsonObject& data, NetWorksParam& netWorks);
    /// @}

    /// @name User groups
    /// Groups of the platform's users.
    /// @{

    /// Lists the user groups whose name contains a keyword: GET /brms/api/v1.1/user/group/list?keyword={keyword}
    /// @param keyword part of the name, empty for all groups; inserted unencoded, so pass `R&D` as `R%26D`
    static int PacketGetUserGroupList(void* pReqParamData, const std::string& keyword, int nServerId);
    /// Appends the groups of "results" to @p groups.
    static int ParseGetUserGroupList(const QJsonObject& data, std::vector<UserConfigUserGroups>& groups);

    /// Reads one user group: GET /brms/api/v1.1/user/group/{groupId}
    /// @param groupId the group, inserted unencoded
    static int PacketGetUserGroup(void* pReqParamData, const std::string& groupId, int nServerId);
    /// Fills the fields of @p group in their order.
    static int ParseGetUserGroup(const QJsonObject& data, UserConfigUserGroups& group);

    /// Creates a user group: POST /brms/api/v1.1/user/group
    ///
    /// Body: "groupName" and "memo", strings, sent even when empty.
    /// @param group name and memo of the group
    static int PacketAddUserGroup(void* pReqParamData, const AddUserGroupsParam& group, int nServerId);
    /// Reads "id", the identifier that the server assigned to the new group, into @p groupId.
    static int ParseAddUserGroup(const QJsonObject& data, std::string& groupId);

    /// Writes name and memo of a user group: PUT /brms/api/v1.1/user/group/{groupId}
    ///
    /// Body: "groupName" and "memo", strings, sent even when empty.
    /// @param groupId the group, inserted unencoded
    /// @param group its new name and memo
    static int PacketUpdateUserGroup(void* pReqParamData, const std::string& groupId, const AddUserGroupsParam& group,
                                     int nServerId);

    /// Moves users from their current groups to one group: POST /brms/api/v1.1/user/group/move/batch
    ///
    /// Body: "userIds", a list of strings, empty for no users, and "groupId".
    /// @param move the users and the group
    static int PacketMoveUserGroup(void* pReqParamData, const MoveUserGroupsParam& move, int nServerId);

    /// Removes all users from a group; the group remains: POST /brms/api/v1.1/user/group/{groupId}/clear, no body
    /// @param groupId the group, inserted unencoded
    static int PacketClearUserGroup(void* pReqParamData, const std::string& groupId, int nServerId);

    /// Deletes user groups: DELETE /brms/api/v1.1/user/group?ids={groupIds, comma-separated}, no body
    ///
    /// Its log texts are those of PacketClearUserGroup().
    /// @param groupIds the groups; may be empty; inserted unencoded
    static int PacketDeleteUserGroup(void* pReqParamData, const std::vector<std::string>& groupIds, int nServerId);
    /// @}

    /// @name Quick commands
    /// Named lists of HTTP requests that the server stores. A command is sent as strings ("1"/"0", decimal) and read in
    /// the types of its fields.
    /// @{

    /// Creates a quick command: POST /brms/api/v1.1/config/quick/command
    ///
    /// Body: every field of @p command but "id", as strings; "httpUrls" is a list with the four strings of each
    /// request. The reply does not contain the identifier of the new command; PacketGetQuickCommands() returns it.
    /// @param command the command; its "id" is not sent
    static int PacketAddQuickCommand(void* pReqParamData, const QuickCommand& command, int nServerId);

    /// Replaces a quick command with its requests: PUT /brms/api/v1.1/config/quick/command/{command.id}
    ///
    /// Body: as that of PacketAddQuickCommand().
    /// @param command the new values of the command that has this "id", inserted unencoded
    static int PacketUpdateQuickCommand(void* pReqParamData, const QuickCommand& command, int nServerId);

    /// Deletes quick commands: DELETE /brms/api/v1.1/config/quick/command?ids={ids, comma-separated}, no body
    ///
    /// The server also removes them from the lists of alarm plans.
    /// @param ids the commands; may be empty; inserted unencoded
    static int PacketDelQuickCommand(void* pReqParamData, std::vector<std::string> ids, int nServerId);

    /// Reads one quick command: GET /brms/api/v1.1/config/quick/command/{id}
    /// @param id the command, inserted unencoded
    static int PacketGetQuickCommand(void* pReqParamData, const std::string& id, int nServerId);
    /// Fills "id", "quickCommandName", "shortcutKeys", "remark", "enableShortcutKeys" and "executeMode" of @p command
    /// in this order, then appends the requests of "httpUrls".
    static int ParseGetQuickCommand(const QJsonObject& data, QuickCommand& command);

    /// Lists the quick commands whose name contains a keyword: GET
    /// /brms/api/v1.1/config/quick/command/list?keyword={keyword}
    /// @param keyword part of the name, empty for all commands; inserted unencoded, so pass `R&D` as `R%26D`
    static int PacketGetQuickCommands(void* pReqParamData, const std::string& keyword, int nServerId);
    /// Appends the commands of "results" to @p commands, each with name, identifier, shortcut keys, their switch and
    /// remark. The mode stays 0, and the requests stay empty.
    static int ParseGetQuickCommands(const QJsonObject& data, std::vector<QuickCommand>& commands);

    /// Lists the quick commands of an alarm plan: GET /brms/api/v1.1/alarm/plan/{planId}/quick/command/list
    /// @param planId the alarm plan, inserted unencoded
    static int PacketGetAlarmPlanQuickCommands(void* pReqParamData, const std::string& planId, int nServerId);
    /// Appends the commands of "results" to @p commands. A command has its name and requests, a request its method,
    /// URL and position; all other fields stay empty.
    static int ParseGetAlarmPlanQuickCommands(const QJsonObject& data, std::vector<QuickCommand>& commands);
    /// @}

    /// @name Alarm and event information
    /// What the client shows about alarms and events.
    /// @{

    /// Reads one page of the alarm plans whose name contains a keyword:
    /// GET /brms/api/v1.1/alarm/plan/summary/page?page={page}&pageSize={pageSize}&keyword={keyword}
    /// @param query the page, counted from 1 (0 also means the first page), its size, and a part of the name, empty for
    ///        all plans; the keyword is inserted unencoded, so pass `R&D` as `R%26D`
    static int PacketGetPageSummaryAlarmPlans(void* pReqParamData, const GetPageSummaryAlarmPlansParam& query,
                                              int nServerId);
    /// Appends the plans of "pageData" to @p plans.
    ///
    /// It does not read "totalCount", the number of plans on all pages. For a typed call Outcome::Data() contains it:
    /// `outcome.Data().value("totalCount").toInt()`.
    static int ParseGetPageSummaryAlarmPlans(const QJsonObject& data, std::vector<SummaryAlarmPlan>& plans);

    /// Lists the channels that an alarm triggers:
    /// GET /brms/api/v1.1/alarm/plan/source/alarm-type/linkage/list?sourceCode={sourceCode}&alarmType={alarmType}
    /// @param sourceCode the source of the alarm ("1000001$1$0$0" in the contract's example), inserted unencoded. A `%`
    ///        before a single digit, as in `%2F`, would be replaced by the type; codes of two digits, such as `%26`,
    ///        are safe.
    /// @param alarmType the server's code of the alarm type (5 in the contract's example)
    static int PacketGetAlarmLinkControlList(void* pReqParamData, const std::string& sourceCode, int alarmType,
                                             int nServerId);
    /// Appends the channels of "linkAudioLightChannels", then those of "linkAlarmOutputChannels" and of
    /// "linkAudioChannels" to the lists of @p control. All three keys are required; each list may be empty.
    static int ParseGetAlarmLinkControlList(const QJsonObject& data, AlarmLinkControl& control);

    /// Reads the map layer of an alarm resource from the parking management service:
    /// GET /ipms/api/v1.1/parking-lot/layer/detail?resourceType={resourceType}&resourceCode={resourceCode}
    /// @param resourceCode the resource ("1000001$1$0$0" in the contract's example), inserted unencoded
    /// @param resourceType the server's code of the resource type (3 in the contract's example)
    static int PacketGetAlarmLayerDetail(void* pReqParamData, const std::string& resourceCode, int resourceType,
                                         int nServerId);
    /// Fills "layerId", "layerName", "layerPicture", "height", "width", "locationX", "locationY" and "angle" of @p
    /// layer in this order.
    static int ParseGetAlarmLayerDetail(const QJsonObject& data, AlarmLayerInfo& layer);

    /// Reads the recorded files of an alarm: GET /brms/api/v1.1/alarm/record/{alarmRecordId}/file/detail
    /// @param alarmRecordId the record of the alarm, inserted unencoded
    static int PacketGetAlarmHostFileInfo(void* pReqParamData, const std::string& alarmRecordId, int nServerId);
    /// Fills "alarmCode" of @p info, then appends the files of "files".
    static int ParseGetAlarmHostFileInfo(const QJsonObject& data, AlarmHostFileInfo& info);

    /// Reads the state of an audio file task: GET {url}
    /// @param url path and query of the request, sent unchanged up to the first zero byte; the contract's example is
    ///        "/brms/api/v1.1/audio/file/task/info"
    /// @param body body of the request, up to its first zero byte; not sent, because the call is a GET
    static int PacketGetAudioFileInfo(void* pReqParamData, const std::string& url, const std::string& body,
                                      int nServerId);
    /// Fills "fileUrl", then "taskProgress" of @p info.
    static int ParseGetAudioFileInfo(const QJsonObject& data, AudioFileInfo& info);

    /// Lists the event types of plug-in logs: GET /brms/api/v1.1/log/plugin-log/event-type/list
    static int PacketGetPluginLogType(void* pReqParamData, int nServerId);
    /// Appends the groups of "results" with their event types to @p groups.
    static int ParseGetPluginLogType(const QJsonObject& data, std::vector<PluginLogTypeGroupInfo>& groups);

    /// Lists all general events: GET /brms/api/v1.1/alarm/general/event/list
    ///
    /// Body: "transportType", "matchType" and "keyword", strings. A GET is sent without a body, so the server never
    /// receives this filter.
    /// @param query the filter; not changed
    static int PacketGetGeneralEvents(void* pReqParamData, GetGeneralEventsParam& query, int nServerId);
    /// Appends the events of "results" to @p events.
    static int ParseGetGeneralEvents(const QJsonObject& data, std::vector<GeneralEventRsp>& events);
    /// @}

    /// @name Account and web access
    /// Permissions of the account, and access to the web pages of devices.
    /// @{

    /// Reads the address of a channel's web page: GET /brms/api/v1.1/device/channel/{channelId}/web/tunnel
    /// @param channelId the channel, inserted unencoded
    static int PacketGetChannelWebTunnel(void* pReqParamData, const std::string& channelId, int nServerId);
    /// Fills "https", "port" and "ip" of @p tunnel in this order; user name and token stay as they are.
    static int ParseGetChannelWebTunnel(const QJsonObject& data, GetChannelWebTunnelRsp& tunnel);

    /// Reads the credentials for a channel's web page:
    /// GET /brms/api/v1.1/device/channel/{channelId}/web/authorization
    /// @param channelId the channel, inserted unencoded
    static int PacketGetChannelWebAuthorization(void* pReqParamData, const std::string& channelId, int nServerId);
    /// Fills "username", then "token" of @p tunnel; scheme, port and address stay as they are.
    static int ParseGetChannelWebAuthorization(const QJsonObject& data, GetChannelWebTunnelRsp& tunnel);

    /// Checks whether web access is enabled for a channel: GET /brms/api/v1.1/device/channel/{channelId}/web/enablement
    /// @param channelId the channel, inserted unencoded
    static int PacketGetChannelWebEnablement(void* pReqParamData, const std::string& channelId, int nServerId);
    /// Reads "enableWeb" into @p enabled.
    static int ParseGetChannelWebEnablement(const QJsonObject& data, bool& enabled);

    /// Checks whether web access is enabled for a device: GET /brms/api/v1.1/device/{deviceCode}/web/enablement
    /// @param deviceCode the device, inserted unencoded
    static int PacketGetWebEnablement(void* pReqParamData, const std::string& deviceCode, int nServerId);
    /// Reads "enableWeb" into @p enabled.
    static int ParseGetWebEnablement(const QJsonObject& data, bool& enabled);

    /// Checks whether a menu is available: GET /brms/api/v1.1/menu/{menuCode}/available
    /// @param menuCode the server's code of the menu ("parking" in the contract's example), inserted unencoded
    static int PacketGetMenuAvailable(void* pReqParamData, const std::string& menuCode, int nServerId);
    /// Reads "available" into @p available.
    static int ParseGetMenuAvailable(const QJsonObject& data, bool& available);

    /// Derives a token from the account's session: POST /brms/api/v1.1/account/token/derive, no body
    static int PacketGetDeriveToken(void* pReqParamData, int nServerId);
    /// Reads "token" into @p token.
    static int ParseGetDeriveToken(const QJsonObject& data, std::string& token);

    /// Reads the account's permissions: GET /brms/api/v1.1/account/permission/resource/collection
    static int PacketGetPermissionResourceCollection(void* pReqParamData, int nServerId);
    /// Appends the codes in "menuFunctionCodes" and "localConfigItemCodes" to the lists of @p collection; an element
    /// that is not a string is read as an empty one. If either list is missing, @p collection is untouched.
    static int ParseGetPermissionResourceCollection(const QJsonObject& data,
                                                    PermissionResourceCollectionResp& collection);

    /// Checks whether the account may use a function on a channel: POST /brms/api/v1.1/account/function/channel/check
    ///
    /// Body: "channelId" and "functionCode", strings.
    /// @param check channel and function; not changed
    static int PacketFunctionChannelCheck(void* pReqParamData, FunctionChannelCheck& check, int nServerId);
    /// Reads the string "authorized" and stores the integer at its start in @p result; 0 if it does not start with a
    /// number.
    static int ParseFunctionChannelCheck(const QJsonObject& data, FunctionChannelCheckResult& result);

    /// Counts the devices of each category: GET /brms/api/v1.1/device/statistics/count-by-device-category/list with the
    /// fields of @p query in their order as its "keyword", "orgCode", "domain", "permitted", "sourceType" and
    /// "containChild". An empty field is sent as an empty value.
    /// @param query the filter, inserted unencoded. In every field but the last, a `%` before a single digit, as in
    ///        `%2F`, would be replaced by a later field; codes of two digits, such as `%26`, are safe.
    static int PacketGetDeviceCategoryCount(void* pReqParamData, const DeviceCategoryParamReq& query, int nServerId);
    /// Appends the counts of "results" to @p categories.
    static int ParseGetGetDeviceCategoryCount(const QJsonObject& data,
                                              std::vector<DeviceCategoryQueryResult>& categories);
    /// @}

    CBRMSModule& operator=(const CBRMSModule&);      ///< Does nothing, the class has no data. @return *this
    CBRMSModule& operator=(CBRMSModule&&) noexcept;  ///< Does nothing, the class has no data. @return *this
};

}  // namespace APIModule
