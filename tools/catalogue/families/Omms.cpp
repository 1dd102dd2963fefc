#include "../detail/Entry.h"
#include "Families.h"

#include <OMMS/OMMSModule.h>

namespace APIModule {

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

namespace catalogue {

using detail::AddSubject;
using detail::Entry;
using Omms = APIModule::COMMSModule;

void AddOmmsCalls(std::vector<Call>& calls)
{
    AddSubject(calls, QT_TRANSLATE_NOOP("catalogue::Call", "Maintenance"),
               {
                   Entry<&Omms::PacketGetAlertTypes, &Omms::ParseGetAlertTypes>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Lists the alert types")),
                   Entry<&Omms::PacketGetChannelInfo, &Omms::ParseGetChannelInfo>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Reads the maintenance view of a channel"), "channelId"),
                   Entry<&Omms::PacketGetDeviceInfo, &Omms::ParseGetDeviceInfo>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Reads the maintenance view of a device"), "deviceCode"),
               });
}

}  // namespace catalogue
