#pragma once

#include "../APIModuleGlobal.h"
#include "Maintenance.h"

#include <QJsonObject>

#include <string>
#include <vector>

namespace APIModule {

/// Calls of the operation and maintenance service: Packs and Parses as CAPIModule describes them.
class APIMODULE_EXPORT COMMSModule {
public:
    COMMSModule& operator=(const COMMSModule&);      ///< @assignsnothing
    COMMSModule& operator=(COMMSModule&&) noexcept;  ///< @assignsnothing

    /// @name Maintenance
    /// Alert types, and what maintenance shows of one channel or device: status, fault, health of recordings and
    /// network identity. Identifiers go into the URL as they stand, nothing escaped.
    /// @{

    /// Lists the types of alerts that alert rules can use: GET /omms/api/v1.1/alert/rule/alert-type/list
    /// @pack
    static int PacketGetAlertTypes(void* pReqParamData, int nServerId);
    /// Appends the types of "results" up to the first that is not whole.
    /// @parse{alertTypes}
    static int ParseGetAlertTypes(const QJsonObject& data, std::vector<AlertInfoResp>& alertTypes);

    /// Reads the maintenance view of a channel: GET /omms/api/v1.1/channel/{channelId}
    /// @pack{channelId, the channel}
    static int PacketGetChannelInfo(void* pReqParamData, std::string channelId, int nServerId);
    /// Fills the fields of @p channel in their order.
    /// @parse{channel}
    static int ParseGetChannelInfo(const QJsonObject& data, ChannelInfoResp& channel);

    /// Reads the maintenance view of a device: GET /omms/api/v1.1/device/{deviceCode}
    /// @pack{deviceCode, the device}
    static int PacketGetDeviceInfo(void* pReqParamData, std::string deviceCode, int nServerId);
    /// Fills the fields of @p device in their order, with the exception of "deviceSn", which is read last.
    /// @parse{device}
    static int ParseGetDeviceInfo(const QJsonObject& data, DeviceInfoResp& device);
    /// @}
};

}  // namespace APIModule
