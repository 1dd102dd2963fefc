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
                QT_TRANSLATE_NOOP("catalogue::Call", "Switches the push of messages to the mobile app"), "enable"),
            Entry<BRMS::GetSupportDataBaseType>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Reads which outside databases are supported")),
            Entry<BRMS::GetLocalSetting>(QT_TRANSLATE_NOOP("catalogue::Call", "Reads one of the client's settings"),
                                         "settingType"),
            Entry<BRMS::UpdateLocalSetting>(QT_TRANSLATE_NOOP("catalogue::Call", "Writes the client's setting"),
                                            "apply", "content"),
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
                       QT_TRANSLATE_NOOP("catalogue::Call", "Reads the encoding of a channel's streams"), "channelId"),
                   Entry<BRMS::UpdateEncodeConfig>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Writes the encoding of a channel's streams"), "channelId",
                       "configs"),
                   Entry<BRMS::GetEncodeCapability>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Reads what the encoder of a stream offers"), "channelId",
                       "streamType"),
                   Entry<BRMS::GetImageConfig>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Reads the image adjustment of a channel"), "channelId"),
                   Entry<BRMS::UpdateImageConfig>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Writes the image adjustment of a channel"), "config"),
                   Entry<BRMS::GetMultiCastConfig>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Reads the multicast settings of a channel"), "channelId"),
                   Entry<BRMS::SetMultiCastConfig>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Writes the multicast settings of a channel"), "info"),
                   Entry<BRMS::SetMultiCastStreamStatus>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Switches the multicast of one stream"), "status"),
               });
    AddSubject(calls, QT_TRANSLATE_NOOP("catalogue::Call", "Device control"),
               {
                   Entry<BRMS::BatchDiscoverDevices>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Starts the discovery of several devices"), "deviceCodes",
                       "discoverMode"),
                   Entry<BRMS::AlarmOutputControl>(QT_TRANSLATE_NOOP("catalogue::Call", "Switches alarm outputs"),
                                                   "channelIds", "on"),
                   Entry<BRMS::AudioLightControl>(QT_TRANSLATE_NOOP("catalogue::Call", "Switches audio-light alarms"),
                                                  "channelIds", "on"),
                   Entry<BRMS::IPSpeakerControl>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Lets IP speakers play audio files"), "control"),
               });
    AddSubject(
        calls, QT_TRANSLATE_NOOP("catalogue::Call", "Server status warnings"),
        {
            Entry<BRMS::CheckHotSpareWarning>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Asks for a switch-over to the hot-spare server")),
            Entry<BRMS::GetBasicServiceWarm>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Asks whether only the basic services were started")),
            Entry<BRMS::GetDiskWarm>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Lists the servers with disks that raise warnings")),
            Entry<BRMS::GetMemoryOutOfServerList>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Lists the servers that ran out of memory")),
            Entry<BRMS::GetNetWorks>(QT_TRANSLATE_NOOP("catalogue::Call", "Lists the networks that the system knows")),
        });
    AddSubject(
        calls, QT_TRANSLATE_NOOP("catalogue::Call", "User groups"),
        {
            Entry<BRMS::GetUserGroupList>(QT_TRANSLATE_NOOP("catalogue::Call", "Lists the user groups"), "keyword"),
            Entry<BRMS::GetUserGroup>(QT_TRANSLATE_NOOP("catalogue::Call", "Reads one user group"), "groupId"),
            Entry<BRMS::AddUserGroup>(QT_TRANSLATE_NOOP("catalogue::Call", "Creates a user group"), "group"),
            Entry<BRMS::UpdateUserGroup>(QT_TRANSLATE_NOOP("catalogue::Call", "Renames or describes a user group"),
                                         "groupId", "group"),
            Entry<BRMS::MoveUserGroup>(QT_TRANSLATE_NOOP("catalogue::Call", "Moves users into one group"), "move"),
            Entry<BRMS::ClearUserGroup>(QT_TRANSLATE_NOOP("catalogue::Call", "Empties a user group"), "groupId"),
            Entry<BRMS::DeleteUserGroup>(QT_TRANSLATE_NOOP("catalogue::Call", "Deletes user groups"), "groupIds"),
        });
    AddSubject(
        calls, QT_TRANSLATE_NOOP("catalogue::Call", "Quick commands"),
        {
            Entry<BRMS::AddQuickCommand>(QT_TRANSLATE_NOOP("catalogue::Call", "Creates a quick command"), "command"),
            Entry<BRMS::UpdateQuickCommand>(QT_TRANSLATE_NOOP("catalogue::Call", "Changes a quick command"), "command"),
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
            Entry<BRMS::GetAlarmLinkControlList>(QT_TRANSLATE_NOOP("catalogue::Call", "Reads what an alarm sets off"),
                                                 "sourceCode", "alarmType"),
            Entry<BRMS::GetAlarmLayerDetail>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Reads the map layer on which an alarm resource lies"),
                "resourceCode", "resourceType"),
            Entry<BRMS::GetAlarmHostFileInfo>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Reads the recorded files of an alarm"), "alarmRecordId"),
            Entry<BRMS::GetAudioFileInfo>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Asks for the state of an audio file task"), "url", "body"),
            Entry<BRMS::GetPluginLogType>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Lists the event types of plug-in logs")),
            Entry<BRMS::GetGeneralEvents>(QT_TRANSLATE_NOOP("catalogue::Call", "Lists the general events"), "query"),
        });
    AddSubject(
        calls, QT_TRANSLATE_NOOP("catalogue::Call", "Account and web access"),
        {
            Entry<BRMS::GetChannelWebTunnel>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Asks where the web page of a channel is reached"), "channelId"),
            Entry<BRMS::GetChannelWebAuthorization>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Asks how to log in to the web page of a channel"), "channelId"),
            Entry<BRMS::GetChannelWebEnablement>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Asks whether a channel's web page may be opened"), "channelId"),
            Entry<BRMS::GetWebEnablement>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Asks whether a device's web page may be opened"), "deviceCode"),
            Entry<BRMS::GetMenuAvailable>(QT_TRANSLATE_NOOP("catalogue::Call", "Asks whether a menu is available"),
                                          "menuCode"),
            Entry<BRMS::GetDeriveToken>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Has a token derived from the account's session")),
            Entry<BRMS::GetPermissionResourceCollection>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Reads what the account may use")),
            Entry<BRMS::FunctionChannelCheck>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Asks whether the account may use a function on a channel"),
                "check"),
            Entry<BRMS::GetDeviceCategoryCount>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Counts the devices of each category"), "query"),
        });
}

}  // namespace catalogue
