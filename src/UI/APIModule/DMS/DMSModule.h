#pragma once

#include "../APIModuleGlobal.h"
#include "Ptz.h"

#include <QJsonObject>

#include <string>
#include <vector>

namespace APIModule {

/// Calls of the device management service.
///
/// A Pack describes its request in the RequestParam behind @p pReqParamData, for the server @p nServerId (-1: the user
/// manager's current one). It returns 0, or -1 with the RequestParam untouched, and writes one log line either way.
///
/// A Parse reads the "data" object of the reply, @p data. It returns 0, or -1 at the first key that is missing: what it
/// read before that key stays filled. It appends to lists without clearing them, each element once all of it was read,
/// its inner lists included. It does not run for a reply without data.
///
/// "In the URL as given": the Pack escapes nothing there, and takes the bytes up to the first zero byte for Latin-1
/// characters. The caller passes a text that may hold `%`, `&`, `#`, `?`, `/` or letters beyond ASCII through
/// QUrl::toPercentEncoding().
///
/// Codes, units and text formats that the server defines pass through unchanged; the comments name the value in the
/// contract's example.
class APIMODULE_EXPORT CDMSModule {
public:
    /// @name PTZ
    /// Wash function and home position of pan-tilt-zoom cameras. The wash calls use the administration interface and
    /// always address server 1. The home position calls use the REST interface and name the channel in the URL.
    /// @{

    /// Switches the wash function of a channel on: POST /admin/API/DMS/Ptz/AuxControl, always on server 1
    ///
    /// Body: "data", an object with "channelId", a text, and "command", always the number 1.
    /// @param channelId the channel
    static int PackeWashOpen(void* pReqParamData, std::string channelId);
    /// Reads "lockUser", then fills "result" of @p status, and from a "lockUser" that is not empty "userName",
    /// "userLevel" and "lowerDomain" in this order; with an empty one the three stay as they are. Without "lockUser"
    /// nothing is filled.
    ///
    /// The call succeeds, too, when another user holds the lock: @p status says so.
    static int ParseWashOpen(const QJsonObject& data, PtzWashStatus& status);

    /// Switches the wash function of several channels on: POST /admin/API/DMS/Ptz/AuxBatchControl, always on server 1
    ///
    /// Body: "data", an object with "ptzAuxControlXos", a list with "channelId", a text, and "command", always the
    /// number 1, of each channel in the given order; an empty list for no @p channelIds.
    /// @param channelIds the channels; not changed
    static int PackeBatchWashOpen(void* pReqParamData, std::vector<std::string>& channelIds);
    /// Fills "result", then "msg" of @p status.
    static int ParseBatchWashOpen(const QJsonObject& data, PtzBatchWashStatus& status);

    /// Makes the present position of a channel its home position:
    /// POST /brms/api/v1.1/ptz/channel/{channelId}/home-position/configure, no body
    /// @param channelId the channel, in the URL as given
    static int PackeSetHomePosition(void* pReqParamData, std::string channelId, int nServerId);
    /// Reads @p status as ParseWashOpen() does.
    static int ParseSetHomePosition(const QJsonObject& data, PtzPositionResetReq& status);

    /// Moves a channel to its home position:
    /// POST /brms/api/v1.1/ptz/channel/{channelId}/home-position/goto, no body
    ///
    /// Its log texts are those of PackeSetHomePosition().
    /// @param channelId the channel, in the URL as given
    static int PackeGotoHomePosition(void* pReqParamData, std::string channelId, int nServerId);
    /// Reads @p status as ParseWashOpen() does.
    static int ParseGotoHomePosition(const QJsonObject& data, PtzPositionResetReq& status);
    /// @}

    CDMSModule& operator=(const CDMSModule&);      ///< Does nothing, the class has no data. @return *this
    CDMSModule& operator=(CDMSModule&&) noexcept;  ///< Does nothing, the class has no data. @return *this
};

}  // namespace APIModule
