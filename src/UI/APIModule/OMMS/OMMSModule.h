#pragma once

#include "../APIModuleGlobal.h"
#include "Maintenance.h"

#include <QJsonObject>

#include <string>
#include <vector>

namespace APIModule {

/// Calls of the operation and maintenance service.
///
/// A Pack describes its request in the RequestParam behind `pReqParamData`, for the server `nServerId` (-1 for the
/// user manager's current one); it returns 0, or the -1 of CAPIModule::GetRequestParam() with the record untouched,
/// and writes one log line either way. A Parse reads the "data" object of the reply; it returns 0, or -1 at the first
/// key that cannot be read: what was read before that key stays filled, the rest is untouched. Lists are appended to
/// what the caller's vector holds.
class APIMODULE_EXPORT COMMSModule {
public:
    COMMSModule& operator=(const COMMSModule&);      ///< Does nothing: the class has no data. @return this
    COMMSModule& operator=(COMMSModule&&) noexcept;  ///< Does nothing: the class has no data. @return this

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
