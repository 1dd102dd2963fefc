#pragma once

#include "../APIModuleGlobal.h"

#include <string>

namespace APIModule {

/// Periodic time synchronisation of the devices, and of the platform with an NTP server.
struct TimeSyncConfig {
    bool enable = false;                ///< "enable": periodic synchronisation of the devices is on
    std::string startTime;              ///< "startTime": start time, in the server's format, such as "02:00:00"
    int interval = 0;                   ///< "interval": synchronisation interval, in the server's unit, such as 24
    bool deviceOnlineTimeSync = false;  ///< "deviceOnlineTimeSync": synchronise a device when it comes online
    bool enableNtp = false;             ///< "enableNtp": use an NTP server
    std::string ntpIp;                  ///< "ntpIp": address of the NTP server
    int ntpPort = 0;                    ///< "ntpPort": port of the NTP server
    int ntpSyncInterval = 0;            ///< "ntpSyncInterval": NTP interval, in the server's unit, such as 60
};

/// Forwarding of the platform's logs to a remote log server.
struct RemoteLogConfigInfo {
    bool enable = false;     ///< "enable": forwarding is on
    std::string ip;          ///< "ip": address of the log server
    int port = 0;            ///< "port": port of the log server
    std::string platformId;  ///< "platformId": the platform's identifier at the log server, such as "platform-01"
};

/// One kind of settings that the server stores for the client.
struct LocalSettingQueryResult {
    bool apply = false;          ///< "apply": the apply flag of the setting
    int settingType = 0;         ///< "settingType": kind of setting, the number that the query passed
    int64 settingVersion = 0;    ///< "settingVersion": version of the stored content; incremented by each update
    std::string settingContent;  ///< "settingContent": the setting itself, opaque to the server
};

}  // namespace APIModule
