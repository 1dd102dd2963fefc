#include "../detail/Entry.h"
#include "Families.h"

#include <BRMS/AccountAccessFields.h>
#include <BRMS/AlarmEventFields.h>
#include <BRMS/BRMSModule.h>
#include <BRMS/DeviceConfigFields.h>
#include <BRMS/DeviceControlFields.h>
#include <BRMS/QuickCommandFields.h>
#include <BRMS/ServerWarningFields.h>
#include <BRMS/SystemConfigFields.h>
#include <BRMS/UserGroupFields.h>

namespace catalogue {

using detail::AddSubject;
using detail::Entry;
using Brms = APIModule::CBRMSModule;

void AddBrmsCalls(std::vector<Call>& calls)
{
    AddSubject(
        calls, QT_TRANSLATE_NOOP("catalogue::Call", "System configuration"),
        {
            Entry<&Brms::PacketGetTimeSyncConfig, &Brms::ParseGetTimeSyncConfig>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Reads the time synchronisation settings")),
            Entry<&Brms::PacketSetTimeSyncConfig>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Writes the time synchronisation settings"), "config"),
            Entry<&Brms::PacketImmediatelySyncTime>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Synchronises the time of all devices now")),
            Entry<&Brms::PacketGetRemoteLogConfig, &Brms::ParseGetRemoteLogConfig>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Reads the remote log settings")),
            Entry<&Brms::PacketSetRemoteLogConfig>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Writes the remote log settings"), "config"),
            Entry<&Brms::PacketGetDeviceLoginModel, &Brms::ParseGetDeviceLoginModel>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Reads the login model of devices")),
            Entry<&Brms::PacketSetDeviceLoginModel>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Writes the login model of devices"), "model"),
            Entry<&Brms::PacketGetPushAppMsgConfig, &Brms::ParseGetPushAppMsgConfig>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Reads whether messages are pushed to the mobile app")),
            Entry<&Brms::PacketSetPushAppMsgConfig>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Switches the push of messages to the mobile app"), "enable"),
            Entry<&Brms::PacketGetSupportDataBaseType, &Brms::ParseGetSupportDataBaseType>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Reads which outside databases are supported")),
            Entry<&Brms::PacketGetLocalSetting, &Brms::ParseGetLocalSetting>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Reads one of the client's settings"), "settingType"),
            Entry<&Brms::PacketUpdateLocalSetting>(QT_TRANSLATE_NOOP("catalogue::Call", "Writes the client's setting"),
                                                   "apply", "content"),
            Entry<&Brms::PacketGetAIPrivacyConfig, &Brms::ParseGetAIPrivacyConfig>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Reads the AI privacy switch")),
            Entry<&Brms::PacketUpdateAIPrivacyConfig>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Sets the AI privacy switch"), "enable"),
        });
    AddSubject(calls, QT_TRANSLATE_NOOP("catalogue::Call", "Device and channel configuration"),
               {
                   Entry<&Brms::PacketGetNetworkConfig, &Brms::ParseGetNetworkConfig>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Reads the network settings of a device"), "deviceCode"),
                   Entry<&Brms::PacketUpdateNetworkConfig>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Writes the network settings of a device"), "config"),
                   Entry<&Brms::PacketGetEncodeConfig, &Brms::ParseGetEncodeConfig>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Reads the encoding of a channel's streams"), "channelId"),
                   Entry<&Brms::PacketUpdateEncodeConfig>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Writes the encoding of a channel's streams"), "channelId",
                       "configs"),
                   Entry<&Brms::PacketGetEncodeCapability, &Brms::ParseGetEncodeCapability>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Reads what the encoder of a stream offers"), "channelId",
                       "streamType"),
                   Entry<&Brms::PacketGetImageConfig, &Brms::ParseGetImageConfig>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Reads the image adjustment of a channel"), "channelId"),
                   Entry<&Brms::PacketUpdateImageConfig>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Writes the image adjustment of a channel"), "config"),
                   Entry<&Brms::PacketGetMultiCastConfig, &Brms::ParseGetMultiCastConfig>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Reads the multicast settings of a channel"), "channelId"),
                   Entry<&Brms::PacketSetMultiCastConfig>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Writes the multicast settings of a channel"), "info"),
                   Entry<&Brms::PacketSetMultiCastStreamStatus>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Switches the multicast of one stream"), "status"),
               });
    AddSubject(calls, QT_TRANSLATE_NOOP("catalogue::Call", "Device control"),
               {
                   Entry<&Brms::PacketBatchDiscoverDevices, &Brms::ParseBatchDiscoverDevices>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Starts the discovery of several devices"), "deviceCodes",
                       "discoverMode"),
                   Entry<&Brms::PacketAlarmOutputControl, &Brms::ParseChannelControl>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Switches alarm outputs"), "channelIds", "on"),
                   Entry<&Brms::PacketAudioLightControl, &Brms::ParseChannelControl>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Switches audio-light alarms"), "channelIds", "on"),
                   Entry<&Brms::PacketIPSpeakerControl, &Brms::ParseChannelControl>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Lets IP speakers play audio files"), "control"),
               });
    AddSubject(calls, QT_TRANSLATE_NOOP("catalogue::Call", "Server status warnings"),
               {
                   Entry<&Brms::PacketCheckHotSpareWarning, &Brms::ParseCheckHotSpareWarning>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Asks for a switch-over to the hot-spare server")),
                   Entry<&Brms::PacketGetBasicServiceWarm, &Brms::ParseGetBasicServiceWarm>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Asks whether only the basic services were started")),
                   Entry<&Brms::PacketGetDiskWarm, &Brms::ParseGetDiskWarm>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Lists the servers with disks that raise warnings")),
                   Entry<&Brms::PacketGetMemoryOutOfServerList, &Brms::ParseGetMemoryOutOfServerList>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Lists the servers that ran out of memory")),
                   Entry<&Brms::PacketGetNetWorks, &Brms::ParseGetNetWorks>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Lists the networks that the system knows")),
               });
    AddSubject(
        calls, QT_TRANSLATE_NOOP("catalogue::Call", "User groups"),
        {
            Entry<&Brms::PacketGetUserGroupList, &Brms::ParseGetUserGroupList>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Lists the user groups"), "keyword"),
            Entry<&Brms::PacketGetUserGroup, &Brms::ParseGetUserGroup>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Reads one user group"), "groupId"),
            Entry<&Brms::PacketAddUserGroup, &Brms::ParseAddUserGroup>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Creates a user group"), "group"),
            Entry<&Brms::PacketUpdateUserGroup>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Renames or describes a user group"), "groupId", "group"),
            Entry<&Brms::PacketMoveUserGroup>(QT_TRANSLATE_NOOP("catalogue::Call", "Moves users into one group"),
                                              "move"),
            Entry<&Brms::PacketClearUserGroup>(QT_TRANSLATE_NOOP("catalogue::Call", "Empties a user group"), "groupId"),
            Entry<&Brms::PacketDeleteUserGroup>(QT_TRANSLATE_NOOP("catalogue::Call", "Deletes user groups"),
                                                "groupIds"),
        });
    AddSubject(
        calls, QT_TRANSLATE_NOOP("catalogue::Call", "Quick commands"),
        {
            Entry<&Brms::PacketAddQuickCommand>(QT_TRANSLATE_NOOP("catalogue::Call", "Creates a quick command"),
                                                "command"),
            Entry<&Brms::PacketUpdateQuickCommand>(QT_TRANSLATE_NOOP("catalogue::Call", "Changes a quick command"),
                                                   "command"),
            Entry<&Brms::PacketDelQuickCommand>(QT_TRANSLATE_NOOP("catalogue::Call", "Deletes quick commands"), "ids"),
            Entry<&Brms::PacketGetQuickCommand, &Brms::ParseGetQuickCommand>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Reads one quick command"), "id"),
            Entry<&Brms::PacketGetQuickCommands, &Brms::ParseGetQuickCommands>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Lists the quick commands"), "keyword"),
            Entry<&Brms::PacketGetAlarmPlanQuickCommands, &Brms::ParseGetAlarmPlanQuickCommands>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Lists the quick commands of an alarm plan"), "planId"),
        });
    AddSubject(calls, QT_TRANSLATE_NOOP("catalogue::Call", "Alarm and event information"),
               {
                   Entry<&Brms::PacketGetPageSummaryAlarmPlans, &Brms::ParseGetPageSummaryAlarmPlans>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Reads one page of the alarm plans"), "query"),
                   Entry<&Brms::PacketGetAlarmLinkControlList, &Brms::ParseGetAlarmLinkControlList>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Reads what an alarm sets off"), "sourceCode", "alarmType"),
                   Entry<&Brms::PacketGetAlarmLayerDetail, &Brms::ParseGetAlarmLayerDetail>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Reads the map layer on which an alarm resource lies"),
                       "resourceCode", "resourceType"),
                   Entry<&Brms::PacketGetAlarmHostFileInfo, &Brms::ParseGetAlarmHostFileInfo>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Reads the recorded files of an alarm"), "alarmRecordId"),
                   Entry<&Brms::PacketGetAudioFileInfo, &Brms::ParseGetAudioFileInfo>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Asks for the state of an audio file task"), "url", "body"),
                   Entry<&Brms::PacketGetPluginLogType, &Brms::ParseGetPluginLogType>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Lists the event types of plug-in logs")),
                   Entry<&Brms::PacketGetGeneralEvents, &Brms::ParseGetGeneralEvents>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Lists the general events"), "query"),
               });
    AddSubject(
        calls, QT_TRANSLATE_NOOP("catalogue::Call", "Account and web access"),
        {
            Entry<&Brms::PacketGetChannelWebTunnel, &Brms::ParseGetChannelWebTunnel>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Asks where the web page of a channel is reached"), "channelId"),
            Entry<&Brms::PacketGetChannelWebAuthorization, &Brms::ParseGetChannelWebAuthorization>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Asks how to log in to the web page of a channel"), "channelId"),
            Entry<&Brms::PacketGetChannelWebEnablement, &Brms::ParseGetChannelWebEnablement>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Asks whether a channel's web page may be opened"), "channelId"),
            Entry<&Brms::PacketGetWebEnablement, &Brms::ParseGetWebEnablement>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Asks whether a device's web page may be opened"), "deviceCode"),
            Entry<&Brms::PacketGetMenuAvailable, &Brms::ParseGetMenuAvailable>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Asks whether a menu is available"), "menuCode"),
            Entry<&Brms::PacketGetDeriveToken, &Brms::ParseGetDeriveToken>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Has a token derived from the account's session")),
            Entry<&Brms::PacketGetPermissionResourceCollection, &Brms::ParseGetPermissionResourceCollection>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Reads what the account may use")),
            Entry<&Brms::PacketFunctionChannelCheck, &Brms::ParseFunctionChannelCheck>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Asks whether the account may use a function on a channel"),
                "check"),
            Entry<&Brms::PacketGetDeviceCategoryCount, &Brms::ParseGetGetDeviceCategoryCount>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Counts the devices of each category"), "query"),
        });
}

}  // namespace catalogue
