#include "../detail/Entry.h"
#include "Families.h"

#include <BRMS/BRMSModule.h>

namespace APIModule
{

BOOST_DESCRIBE_STRUCT(TimeSyncConfig, (),
                      (enable, startTime, interval, deviceOnlineTimeSync, enableNtp, ntpIp, ntpPort, ntpSyncInterval))
BOOST_DESCRIBE_STRUCT(RemoteLogConfigInfo, (), (enable, ip, port, platformId))
BOOST_DESCRIBE_STRUCT(LocalSettingQueryResult, (), (apply, settingType, settingVersion, settingContent))

}  // namespace APIModule

namespace catalogue
{
namespace
{

using detail::Entry;
using Brms = APIModule::CBRMSModule;

constexpr const char* kSystemConfiguration = "System configuration";

}  // namespace

std::vector<Call> BrmsCalls()
{
    return {
        Entry<&Brms::PacketGetTimeSyncConfig, &Brms::ParseGetTimeSyncConfig>(kSystemConfiguration,
                                                                             "Reads the time synchronisation settings"),
        Entry<&Brms::PacketSetTimeSyncConfig>(kSystemConfiguration, "Writes the time synchronisation settings",
                                              "config"),
        Entry<&Brms::PacketImmediatelySyncTime>(kSystemConfiguration, "Synchronises the time of all devices now"),
        Entry<&Brms::PacketGetRemoteLogConfig, &Brms::ParseGetRemoteLogConfig>(kSystemConfiguration,
                                                                               "Reads the remote log settings"),
        Entry<&Brms::PacketSetRemoteLogConfig>(kSystemConfiguration, "Writes the remote log settings", "config"),
        Entry<&Brms::PacketGetDeviceLoginModel, &Brms::ParseGetDeviceLoginModel>(
            kSystemConfiguration, "Reads how devices log in to the platform"),
        Entry<&Brms::PacketSetDeviceLoginModel>(kSystemConfiguration, "Writes how devices log in to the platform",
                                                "model"),
        Entry<&Brms::PacketGetPushAppMsgConfig, &Brms::ParseGetPushAppMsgConfig>(
            kSystemConfiguration, "Reads whether messages are pushed to the mobile app"),
        Entry<&Brms::PacketSetPushAppMsgConfig>(kSystemConfiguration, "Switches the push of messages to the mobile app",
                                                "enable"),
        Entry<&Brms::PacketGetSupportDataBaseType, &Brms::ParseGetSupportDataBaseType>(
            kSystemConfiguration, "Reads which outside databases are supported"),
        Entry<&Brms::PacketGetLocalSetting, &Brms::ParseGetLocalSetting>(
            kSystemConfiguration, "Reads one of the client's settings", "settingType"),
        Entry<&Brms::PacketUpdateLocalSetting>(kSystemConfiguration, "Writes the client's setting", "apply", "content"),
        Entry<&Brms::PacketGetAIPrivacyConfig, &Brms::ParseGetAIPrivacyConfig>(kSystemConfiguration,
                                                                               "Reads the AI privacy switch"),
        Entry<&Brms::PacketUpdateAIPrivacyConfig>(kSystemConfiguration, "Sets the AI privacy switch", "enable"),
    };
}

}  // namespace catalogue
