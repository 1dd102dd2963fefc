#pragma once

#include "../APIModuleGlobal.h"
#include "Maintenance.h"

#include <QJsonObject>

#include <string>
#include <vector>

namespace APIModule {

/// Calls of the operation and maintenance service.
///
/// A Pack describes its request in the RequestParam behind @p pReqParamData, for the server @p nServerId (-1: the user
/// manager's current one). It returns 0, or -1 with the RequestParam untouched, and writes one log line either way.
///
/// A Parse reads the "data" object of the reply, @p data. It returns 0, or stops with -1 at the first missing key;
/// fields read before that key keep their new values. It appends complete elements to lists, with their inner lists,
/// and does not clear the lists first. It does not run for a reply without data.
///
/// "Inserted unencoded": the Pack inserts the string into the URL unchanged. If it may contain `%`, `&`, `#`, `?` or
/// `/`, the caller encodes it by QUrl::toPercentEncoding() first. QUrl itself encodes spaces and non-ASCII letters.
///
/// Codes, units and formats that the server defines are passed through unchanged; the comments give the value in the
/// contract's example. A list in "results" is complete and has no total.
class APIMODULE_EXPORT COMMSModule {
public:
    /// @name Maintenance
    /// Alert types, and the maintenance view of one channel or device: status, faults, recording health and network
    /// identity.
    /// @{

    /// Lists the types of alerts that alert rules can use: GET /omms/api/v1.1/alert/rule/alert-type/list
    static int PacketGetAlertTypes(void* pReqParamData, int nServerId);
    /// Appends the types of "results" to @p alertTypes.
    static int ParseGetAlertTypes(const QJsonObject& data, std::vector<AlertInfoResp>& alertTypes);

    /// Reads the maintenance view of a channel: GET /omms/api/v1.1/channel/{channelId}
    /// @param channelId the channel, inserted unencoded
    static int PacketGetChannelInfo(void* pReqParamData, std::string channelId, int nServerId);
    /// Fills the fields of @p channel in their order.
    static int ParseGetChannelInfo(const QJsonObject& data, ChannelInfoResp& channel);

    /// Reads the maintenance view of a device: GET /omms/api/v1.1/device/{deviceCode}
    /// @param deviceCode the device, inserted unencoded
    static int PacketGetDeviceInfo(void* pReqParamData, std::string deviceCode, int nServerId);
    /// Fills the fields of @p device in their order, except for "deviceSn", which is read last.
    static int ParseGetDeviceInfo(const QJsonObject& data, DeviceInfoResp& device);
    /// @}

    COMMSModule& operator=(const COMMSModule&);      ///< Does nothing, the class has no data. @return *this
    COMMSModule& operator=(COMMSModule&&) noexcept;  ///< Does nothing, the class has no data. @return *this
};

}  // namespace APIModule
