#pragma once

#include "../APIModuleGlobal.h"

#include <string>

namespace APIModule {

/// One type of alert that alert rules can use.
struct AlertInfoResp {
    std::string alertTypeId;    ///< "alertTypeId": identifier of the type
    std::string alertTypeName;  ///< "alertTypeName": display name
};

/// The maintenance view of one channel.
struct ChannelInfoResp {
    std::string channelName;                  ///< "channelName": name of the channel
    std::string channelId;                    ///< "channelId": the channel
    int channelType = 0;                      ///< "channelType": the server's code
    std::string deviceCode;                   ///< "deviceCode": the device that the channel belongs to
    std::string deviceName;                   ///< "deviceName": name of the device
    int deviceCategory = 0;                   ///< "deviceCategory": the server's code
    std::string deviceCategoryName;           ///< "deviceCategoryName": name of the category
    std::string orgCode;                      ///< "orgCode": the organisation
    std::string orgName;                      ///< "orgName": name of the organisation
    int onlineStatus = 0;                     ///< "onlineStatus": the server's code
    std::string channelStatus;                ///< "channelStatus": the server's code as text
    std::string abnormalReason;               ///< "abnormalReason": why the channel is not well
    std::string channelIp;                    ///< "channelIp": address of the channel
    std::string channelMac;                   ///< "channelMac": hardware address of the channel
    std::string deviceIp;                     ///< "deviceIp": address of the device
    std::string macAddress;                   ///< "macAddress": hardware address of the device
    std::string deviceRecordDays;             ///< "deviceRecordDays": days of recordings, as text, such as "28"
    std::string configRecordDays;             ///< "configRecordDays": days that are configured, as text, such as "30"
    std::string deviceRecordWholenessStatus;  ///< "deviceRecordWholenessStatus": whether recordings are complete
    std::string motionDetectPlan;             ///< "motionDetectPlan": plan of motion detection
    std::string patchPlan;                    ///< "patchPlan": plan of fetching missed recordings
    std::string recordPlan;                   ///< "recordPlan": plan of recording
    int64 updateDate = 0;                     ///< "updateDate": last update in the server's unit, such as 1718094600000
};

/// The maintenance view of one device.
struct DeviceInfoResp {
    std::string deviceCode;          ///< "deviceCode": the device
    std::string deviceName;          ///< "deviceName": name of the device
    std::string deviceIp;            ///< "deviceIp": address of the device
    std::string deviceSn;            ///< "deviceSn": serial number, read last
    int status = 0;                  ///< "status": the server's code
    std::string statusName;          ///< "statusName": name of the status
    std::string offlineReason;       ///< "offlineReason": why the device is offline
    int deviceCategory = 0;          ///< "deviceCategory": the server's code
    std::string deviceCategoryName;  ///< "deviceCategoryName": name of the category
    int deviceType = 0;              ///< "deviceType": the server's code
    std::string deviceTypeName;      ///< "deviceTypeName": name of the type
    std::string manufacturer;        ///< "manufacturer": the server's code as text
    std::string manufacturerName;    ///< "manufacturerName": name of the manufacturer
    std::string faultStatus;         ///< "faultStatus": the server's code as text
    std::string faultStatusName;     ///< "faultStatusName": name of the fault status
    std::string updateTime;          ///< "updateTime": last update as text, such as "2024-06-11 08:30:00"
    int addType = 0;                 ///< "addType": how the device was added, the server's code
    std::string orgCode;             ///< "orgCode": the organisation
    std::string orgName;             ///< "orgName": name of the organisation
    std::string faultReason;         ///< "faultReason": what the fault is
    std::string mac;                 ///< "mac": hardware address
    std::string softwareVersion;     ///< "softwareVersion": version of the device's software
    std::string subnetMask;          ///< "subnetMask": mask of the device's network
    std::string deviceModel;         ///< "deviceModel": model of the device
};

}  // namespace APIModule
