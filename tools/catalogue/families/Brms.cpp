#include "../detail/Entry.h"
#include "Families.h"

#include <BRMS/AccountAccessFields.h>
#include <BRMS/AlarmEventFields.h>
#include <BRMS/BRMSCalls.h>
#include <BRMS/DeviceConfigFields.h>
#include <BRMS/DeviceControlFields.h>
#include <BRMS/QuickCommandFields.h>
#include <BRMS/ServerWarningFields.h>
#include <BRMS/SystemConfigFields.h>
#include <BRMS/UserGroupFields.h>

namespace catalogue {

using detail::AddSubject;
using detail::Entry;
namespace BRMS = APIModule::BRMS;

void AddBrmsCalls(std::vector<Call>& calls)
{
    AddSubject(
        calls, QT_TRANSLATE_NOOP("catalogue::Call", "System configuration"),
        {
            Entry<BRMS::GetTimeSyncConfig>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Reads the time synchronisation settings")),
            Entry<BRMS::SetTimeSyncConfig>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Writes the time synchronisation settings"), "config"),
            Entry<BRMS::ImmediatelySyncTime>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Synchronises the time of all devices now")),
            Entry<BRMS::GetRemoteLogConfig>(QT_TRANSLATE_NOOP("catalogue::Call", "Reads the remote log settings")),
            Entry<BRMS::SetRemoteLogConfig>(QT_TRANSLATE_NOOP("catalogue::Call", "Writes the remote log settings"),
                                            "config"),
            Entry<BRMS::GetDeviceLoginModel>(QT_TRANSLATE_NOOP("catalogue::Call", "Reads the login model of devices")),
            Entry<BRMS::SetDeviceLoginModel>(QT_TRANSLATE_NOOP("catalogue::Call", "Writes the login model of devices"),
                                             "model"),
            Entry<BRMS::GetPushAppMsgConfig>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Reads whether messages are pushed to the mobile app")),
            Entry<BRMS::SetPushAppMsgConfig>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Enables or disables push messages to the mobile app"), "enable"),
            Entry<BRMS::GetSupportDataBaseType>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Lists the supported external databases")),
            Entry<BRMS::GetLocalSetting>(QT_TRANSLATE_NOOP("catalogue::Call", "Reads one client setting"),
                                         "settingType"),
            Entry<BRMS::UpdateLocalSetting>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Writes the client setting that was read last"), "apply",
                "content"),
            Entry<BRMS::GetAIPrivacyConfig>(QT_TRANSLATE_NOOP("catalogue::Call", "Reads the AI privacy switch")),
            Entry<BRMS::UpdateAIPrivacyConfig>(QT_TRANSLATE_NOOP("catalogue::Call", "Sets the AI privacy switch"),
                                               "enable"),
        });
    AddSubject(calls, QT_TRANSLATE_NOOP("catalogue::Call", "Device and channel configuration"),
               {
                   Entry<BRMS::GetNetworkConfig>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Reads the network settings of a device"), "deviceCode"),
                   Entry<BRMS::UpdateNetworkConfig>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Writes the network settings of a device"), "config"),
                   Entry<BRMS::GetEncodeConfig>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Reads the encoding settings of a channel's streams"),
                       "channelId"),
                   Entry<BRMS::UpdateEncodeConfig>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Writes the encoding settings of a channel's streams"),
                       "channelId", "configs"),
                   Entry<BRMS::GetEncodeCapability>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Reads the encoding capability of a stream"), "channelId",
                       "streamType"),
                   Entry<BRMS::GetImageConfig>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Reads the image settings of a channel"), "channelId"),
                   Entry<BRMS::UpdateImageConfig>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Writes the image settings of a channel"), "config"),
                   Entry<BRMS::GetMultiCastConfig>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Reads the multicast settings of a channel"), "channelId"),
                   Entry<BRMS::SetMultiCastConfig>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Writes the multicast settings of a channel"), "info"),
                   Entry<BRMS::SetMultiCastStreamStatus>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Enables or disables multicast for one stream"), "status"),
               });
    AddSubject(
        calls, QT_TRANSLATE_NOOP("catalogue::Call", "Device control"),
        {
            Entry<BRMS::BatchDiscoverDevices>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Starts discovery of several devices"), "deviceCodes",
                "discoverMode"),
            Entry<BRMS::AlarmOutputControl>(QT_TRANSLATE_NOOP("catalogue::Call", "Switches alarm outputs on or off"),
                                            "channelIds", "on"),
            Entry<BRMS::AudioLightControl>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Switches audio-light alarms on or off"), "channelIds", "on"),
            Entry<BRMS::IPSpeakerControl>(QT_TRANSLATE_NOOP("catalogue::Call", "Plays audio files on IP speakers"),
                                          "control"),
        });
    AddSubject(
        calls, QT_TRANSLATE_NOOP("catalogue::Call", "Server status warnings"),
        {
            Entry<BRMS::CheckHotSpareWarning>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Checks for a failover to the hot-spare server")),
            Entry<BRMS::GetBasicServiceWarm>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Checks whether the server started with only its basic services")),
            Entry<BRMS::GetDiskWarm>(QT_TRANSLATE_NOOP("catalogue::Call", "Lists the servers with disk warnings")),
            Entry<BRMS::GetMemoryOutOfServerList>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Lists the servers that ran out of memory")),
            Entry<BRMS::GetNetWorks>(QT_TRANSLATE_NOOP("catalogue::Call", "Lists the networks known to the system")),
        });
    AddSubject(
        calls, QT_TRANSLATE_NOOP("catalogue::Call", "User groups"),
        {
            Entry<BRMS::GetUserGroupList>(QT_TRANSLATE_NOOP("catalogue::Call", "Lists the user groups"), "keyword"),
            Entry<BRMS::GetUserGroup>(QT_TRANSLATE_NOOP("catalogue::Call", "Reads one user group"), "groupId"),
            Entry<BRMS::AddUserGroup>(QT_TRANSLATE_NOOP("catalogue::Call", "Creates a user group"), "group"),
            Entry<BRMS::UpdateUserGroup>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Updates the name and description of a user group"), "groupId",
                "group"),
            Entry<BRMS::MoveUserGroup>(QT_TRANSLATE_NOOP("catalogue::Call", "Moves users to a group"), "move"),
            Entry<BRMS::ClearUserGroup>(QT_TRANSLATE_NOOP("catalogue::Call", "Removes all users from a group"),
                                        "groupId"),
            Entry<BRMS::DeleteUserGroup>(QT_TRANSLATE_NOOP("catalogue::Call", "Deletes user groups"), "groupIds"),
        });
    AddSubject(
        calls, QT_TRANSLATE_NOOP("catalogue::Call", "Quick commands"),
        {
            Entry<BRMS::AddQuickCommand>(QT_TRANSLATE_NOOP("catalogue::Call", "Creates a quick command"), "command"),
            Entry<BRMS::UpdateQuickCommand>(QT_TRANSLATE_NOOP("catalogue::Call", "Updates a quick command"), "command"),
            Entry<BRMS::DelQuickCommand>(QT_TRANSLATE_NOOP("catalogue::Call", "Deletes quick commands"), "ids"),
            Entry<BRMS::GetQuickCommand>(QT_TRANSLATE_NOOP("catalogue::Call", "Reads one quick command"), "id"),
            Entry<BRMS::GetQuickCommands>(QT_TRANSLATE_NOOP("catalogue::Call", "Lists the quick commands"), "keyword"),
            Entry<BRMS::GetAlarmPlanQuickCommands>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Lists the quick commands of an alarm plan"), "planId"),
        });
    AddSubject(
        calls, QT_TRANSLATE_NOOP("catalogue::Call", "Alarm and event information"),
        {
            Entry<BRMS::GetPageSummaryAlarmPlans>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Reads one page of the alarm plans"), "query"),
            Entry<BRMS::GetAlarmLinkControlList>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Lists the channels linked to an alarm"), "sourceCode",
                "alarmType"),
            Entry<BRMS::GetAlarmLayerDetail>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Reads the map layer of an alarm resource"), "resourceCode",
                "resourceType"),
            Entry<BRMS::GetAlarmHostFileInfo>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Lists the recorded files of an alarm"), "alarmRecordId"),
            Entry<BRMS::GetAudioFileInfo>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Reads the progress of an audio file task"), "url", "body"),
            Entry<BRMS::GetPluginLogType>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Lists the event types of plug-in logs")),
            Entry<BRMS::GetGeneralEvents>(QT_TRANSLATE_NOOP("catalogue::Call", "Lists the general events"), "query"),
        });
    AddSubject(
        calls, QT_TRANSLATE_NOOP("catalogue::Call", "Account and web access"),
        {
            Entry<BRMS::GetChannelWebTunnel>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Reads the address of a channel's web page"), "channelId"),
            Entry<BRMS::GetChannelWebAuthorization>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Reads the credentials for a channel's web page"), "channelId"),
            Entry<BRMS::GetChannelWebEnablement>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Checks whether web access is enabled for a channel"),
                "channelId"),
            Entry<BRMS::GetWebEnablement>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Checks whether web access is enabled for a device"),
                "deviceCode"),
            Entry<BRMS::GetMenuAvailable>(QT_TRANSLATE_NOOP("catalogue::Call", "Checks whether a menu is available"),
                                          "menuCode"),
            Entry<BRMS::GetDeriveToken>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Derives a token from the account's session")),
            Entry<BRMS::GetPermissionResourceCollection>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Reads the account's permissions")),
            Entry<BRMS::FunctionChannelCheck>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Checks whether the account may use a function on a channel"),
                "check"),
            Entry<BRMS::GetDeviceCategoryCount>(QT_TRANSLATE_NOOP("catalogue::Call", "Counts devices by category"),
                                                "query"),
        });
}

}  // namespace catalogue
