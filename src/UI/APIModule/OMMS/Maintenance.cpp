#include "MaintenanceFields.h"
#include "OMMSModule_p.h"

namespace APIModule {

int COMMSModule::PacketGetAlertTypes(void* pReqParamData, int nServerId)
{
    return Pack(pReqParamData, kOmms, Method_Get, QStringLiteral("/omms/api/v1.1/alert/rule/alert-type/list"),
                nServerId);
}

int COMMSModule::ParseGetAlertTypes(const QJsonObject& data, std::vector<AlertInfoResp>& alertTypes)
{
    return ReadFields(data, {{"results", alertTypes}});
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): required by the signature
int COMMSModule::PacketGetChannelInfo(void* pReqParamData, std::string channelId, int nServerId)
{
    return Pack(pReqParamData, kOmms, Method_Get, Url(QStringLiteral("/omms/api/v1.1/channel/%1"), Text(channelId)),
                nServerId);
}

int COMMSModule::ParseGetChannelInfo(const QJsonObject& data, ChannelInfoResp& channel)
{
    return ReadRecord(data, channel);
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): required by the signature
int COMMSModule::PacketGetDeviceInfo(void* pReqParamData, std::string deviceCode, int nServerId)
{
    return Pack(pReqParamData, kOmms, Method_Get, Url(QStringLiteral("/omms/api/v1.1/device/%1"), Text(deviceCode)),
                nServerId);
}

int COMMSModule::ParseGetDeviceInfo(const QJsonObject& data, DeviceInfoResp& device)
{
    // The serial number is read last, although other fields are declared after it.
    return ReadFields(data, {
                                {"deviceCode", device.deviceCode},
                                {"deviceName", device.deviceName},
                                {"deviceIp", device.deviceIp},
                                {"status", device.status},
                                {"statusName", device.statusName},
                                {"offlineReason", device.offlineReason},
                                {"deviceCategory", device.deviceCategory},
                                {"deviceCategoryName", device.deviceCategoryName},
                                {"deviceType", device.deviceType},
                                {"deviceTypeName", device.deviceTypeName},
                                {"manufacturer", device.manufacturer},
                                {"manufacturerName", device.manufacturerName},
                                {"faultStatus", device.faultStatus},
                                {"faultStatusName", device.faultStatusName},
                                {"updateTime", device.updateTime},
                                {"addType", device.addType},
                                {"orgCode", device.orgCode},
                                {"orgName", device.orgName},
                                {"faultReason", device.faultReason},
                                {"mac", device.mac},
                                {"softwareVersion", device.softwareVersion},
                                {"subnetMask", device.subnetMask},
                                {"deviceModel", device.deviceModel},
                                {"deviceSn", device.deviceSn},
                            });
}

}  // namespace APIModule
