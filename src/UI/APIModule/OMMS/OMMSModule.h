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
/// A Parse reads the "data" object of the reply, @p data. It returns 0, or -1 at the first key that is missing: what it
/// read before that key stays filled. It appends to lists without clearing them, each element once all of it was read,
/// its inner lists included. It does not run for a reply without data.
///
/// "In the URL as given": the Pack escapes nothing there. The caller passes a text that may hold `%`, `&`, `#`, `?` or
/// `/` through QUrl::toPercentEncoding(); QUrl itself encodes blanks and letters beyond ASCII.
///
/// Codes, units and text formats that the server defines pass through unchanged; the comments name the value in the
/// contract's example. A list in "results" is complete and has no total.
class APIMODULE_EXPORT COMMSModule {
public:
    /// @name Maintenance
    /// Alert types, and what maintenance shows of one channel or device: status, fault, health of recordings and
    /// network identity.
    /// @{

    /// Lists the types of alerts that alert rules can use: GET /omms/api/v1.1/alert/rule/alert-type/list
    static int PacketGetAlertTypes(void* pReqParamData, int nServerId);
    /// Appends the types of "results" to @p alertTypes.
    static int ParseGetAlertTypes(const QJsonObject& data, std::vector<AlertInfoResp>& alertTypes);

    /// Reads the maintenance view of a channel: GET /omms/api/v1.1/channel/{channelId}
    /// @param channelId the channel, in the URL as given
    static int PacketGetChannelInfo(void* pReqParamData, std::string channelId, int nServerId);
    /// Fills the fields of @p channel in their order.
    static int ParseGetChannelInfo(const QJsonObject& data, ChannelInfoResp& channel);

    /// Reads the maintenance view of a device: GET /omms/api/v1.1/device/{deviceCode}
    /// @param deviceCode the device, in the URL as given
    static int PacketGetDeviceInfo(void* pReqParamData, std::string deviceCode, int nServerId);
    /// Fills the fields of @p device in their order, with the exception of "deviceSn", which is read last.
    static int ParseGetDeviceInfo(const QJsonObject& data, DeviceInfoResp& device);
    /// @}

    COMMSModule& operator=(const COMMSModule&);      ///< Does nothing, the class has no data. @return *this
    COMMSModule& operator=(COMMSModule&&) noexcept;  ///< Does nothing, the class has no data. @return *this
};

}  // namespace APIModule
