#pragma once

#include "Maintenance.h"

#include <boost/describe/class.hpp>

namespace APIModule {

// The fields of each record, in the order of their declaration.
BOOST_DESCRIBE_STRUCT(AlertInfoResp, (), (alertTypeId, alertTypeName))
BOOST_DESCRIBE_STRUCT(ChannelInfoResp, (),
                      (channelName, channelId, channelType, deviceCode, deviceName, deviceCategory, deviceCategoryName,
                       orgCode, orgName, onlineStatus, channelStatus, abnormalReason, channelIp, channelMac, deviceIp,
                       macAddress, deviceRecordDays, configRecordDays, deviceRecordWholenessStatus, motionDetectPlan,
                       patchPlan, recordPlan, updateDate))
BOOST_DESCRIBE_STRUCT(DeviceInfoResp, (),
                      (deviceCode, deviceName, deviceIp, deviceSn, status, statusName, offlineReason, deviceCategory,
                       deviceCategoryName, deviceType, deviceTypeName, manufacturer, manufacturerName, faultStatus,
                       faultStatusName, updateTime, addType, orgCode, orgName, faultReason, mac, softwareVersion,
                       subnetMask, deviceModel))

}  // namespace APIModule
