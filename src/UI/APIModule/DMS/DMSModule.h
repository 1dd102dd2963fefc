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
/// A Parse reads the "data" object of the reply, @p data. It returns 0, or stops with -1 at the first missing key;
/// fields read before that key keep their new values. It appends complete elements to lists, with their inner lists,
/// and does not clear the lists first. It does not run for a reply without data.
///
/// "Inserted unencoded": the Pack inserts the bytes up to the first zero byte into the URL unchanged, as Latin-1
/// characters. If the string may contain `%`, `&`, `#`, `?`, `/` or non-ASCII letters, the caller encodes it by
/// QUrl::toPercentEncoding() first.
///
/// Codes, units and formats that the server defines are passed through unchanged; the comments give the value in the
/// contract's example.
class APIMODULE_EXPORT CDMSModule {
public:
    /// @name PTZ
    /// Wash function and home position of pan-tilt-zoom cameras. The wash calls use the administration interface and
    /// always address server 1. The home position calls use the REST interface and name the channel in the URL.
    /// @{

    /// Turns on the wash function of a channel: POST /admin/API/DMS/Ptz/AuxControl, always on server 1
    ///
    /// Body: "data", an object with "channelId", a string, and "command", always the number 1.
    /// @param channelId the channel
    static int PackeWashOpen(void* pReqParamData, std::string channelId);
    /// Reads "lockUser", which is required, then fills "result" of @p status. Unless "lockUser" is empty, it then fills
    /// "userName", "userLevel" and "lowerDomain" from it, in this order. Without "lockUser" nothing is filled.
    ///
    /// The call also succeeds when another user holds the lock; @p status names that user.
    static int ParseWashOpen(const QJsonObject& data, PtzWashStatus& status);

    /// Turns on the wash function of several channels: POST /admin/API/DMS/Ptz/AuxBatchControl, always on server 1
    ///
    /// Body: "data", an object with "ptzAuxControlXos", a list with "channelId", a string, and "command", always
    /// the number 1, of each channel in the given order; empty if @p channelIds is empty.
    /// @param channelIds the channels; not changed
    static int PackeBatchWashOpen(void* pReqParamData, std::vector<std::string>& channelIds);
    /// Fills "result", then "msg" of @p status.
    static int ParseBatchWashOpen(const QJsonObject& data, PtzBatchWashStatus& status);

    /// Stores the current position of a channel's camera as its home position:
    /// POST /brms/api/v1.1/ptz/channel/{channelId}/home-position/configure, no body
    /// @param channelId the channel, inserted unencoded
    static int PackeSetHomePosition(void* pReqParamData, std::string channelId, int nServerId);
    /// Reads @p status as ParseWashOpen() does.
    static int ParseSetHomePosition(const QJsonObject& data, PtzPositionResetReq& status);

    /// Moves a channel's camera to its home position:
    /// POST /brms/api/v1.1/ptz/channel/{channelId}/home-position/goto, no body
    ///
    /// Its log texts are those of PackeSetHomePosition().
    /// @param channelId the channel, inserted unencoded
    static int PackeGotoHomePosition(void* pReqParamData, std::string channelId, int nServerId);
    /// Reads @p status as ParseWashOpen() does.
    static int ParseGotoHomePosition(const QJsonObject& data, PtzPositionResetReq& status);
    /// @}

    CDMSModule& operator=(const CDMSModule&);      ///< Does nothing, the class has no data. @return *this
    CDMSModule& operator=(CDMSModule&&) noexcept;  ///< Does nothing, the class has no data. @return *this
};

}  // namespace APIModule
