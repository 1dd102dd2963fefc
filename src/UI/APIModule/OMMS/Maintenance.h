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
    std::string channelStatus;                ///< "channelStatus": the server's code as a string
    std::string abnormalReason;               ///< "abnormalReason": reason for an abnormal channel status
    std::string channelIp;                    ///< "channelIp": address of the channel
    std::string channelMac;                   ///< "channelMac": hardware address of the channel
    std::string deviceIp;                     ///< "deviceIp": address of the device
    std::string macAddress;                   ///< "macAddress": hardware address of the device
    std::string deviceRecordDays;             ///< "deviceRecordDays": days recorded, as a string, such as "28"
    std::string configRecordDays;             ///< "configRecordDays": days configured, as a string, such as "30"
    std::string deviceRecordWholenessStatus;  ///< "deviceRecordWholenessStatus": whether recordings are complete
    std::string motionDetectPlan;             ///< "motionDetectPlan": motion detection plan
    std::string patchPlan;                    ///< "patchPlan": plan for fetching missed recordings
    std::string recordPlan;                   ///< "recordPlan": recording plan
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
    std::string manufacturer;        ///< "manufacturer": the server's code as a string
    std::string manufacturerName;    ///< "manufacturerName": name of the manufacturer
    std::string faultStatus;         ///< "faultStatus": the server's code as a string
    std::string faultStatusName;     ///< "faultStatusName": name of the fault status
    std::string updateTime;          ///< "updateTime": last update as a string, such as "2024-06-11 08:30:00"
    int addType = 0;                 ///< "addType": how the device was added, the server's code
    std::string orgCode;             ///< "orgCode": the organisation
    std::string orgName;             ///< "orgName": name of the organisation
    std::string faultReason;         ///< "faultReason": reason for the fault
    std::string mac;                 ///< "mac": hardware address
    std::string softwareVersion;     ///< "softwareVersion": version of the device's software
    std::string subnetMask;          ///< "subnetMask": mask of the device's network
    std::string deviceModel;         ///< "deviceModel": model of the device
};

}  // namespace APIModule
