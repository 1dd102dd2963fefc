#pragma once

#include "../APIModuleGlobal.h"
#include "Ptz.h"

#include <QJsonObject>

#include <string>
#include <vector>

namespace APIModule {

/// Calls of the device management service: Packs and Parses as CAPIModule describes them.
class APIMODULE_EXPORT CDMSModule {
public:
    CDMSModule& operator=(const CDMSModule&);      ///< @assignsnothing
    CDMSModule& operator=(CDMSModule&&) noexcept;  ///< @assignsnothing

    /// @name PTZ
    /// Wash function and home position of pan-tilt-zoom cameras. The wash calls use the administration interface and
    /// always address server 1. The home position calls use the REST interface and name the channel in the URL: its
    /// bytes up to the first zero byte, each one a Latin-1 character, nothing escaped.
    /// @{

    /// Switches the wash function of a channel on: POST /admin/API/DMS/Ptz/AuxControl, always on server 1
    ///
    /// Body: "data", an object with "channelId", a text, and "command", always the number 1.
    ///
    /// @param pReqParamData the RequestParam
    /// @param channelId the channel
    /// @return 0 or -1
    static int PackeWashOpen(void* pReqParamData, std::string channelId);
    /// Reads "lockUser", then fills "result", and from a "lockUser" that is not empty "userName", "userLevel" and
    /// "lowerDomain" in this order; with an empty one the three stay as they are. Without "lockUser" nothing is filled.
    /// @parse{status}
    static int ParseWashOpen(const QJsonObject& data, PtzWashStatus& status);

    /// Switches the wash function of several channels on: POST /admin/API/DMS/Ptz/AuxBatchControl, always on server 1
    ///
    /// Body: "data", an object with "ptzAuxControlXos", a list with "channelId", a text, and "command", always the
    /// number 1, of each channel in the given order; an empty list for no @p channelIds, which are not changed.
    ///
    /// @param pReqParamData the RequestParam
    /// @param channelIds the channels; not changed
    /// @return 0 or -1
    static int PackeBatchWashOpen(void* pReqParamData, std::vector<std::string>& channelIds);
    /// Fills "result", then "msg".
    /// @parse{status}
    static int ParseBatchWashOpen(const QJsonObject& data, PtzBatchWashStatus& status);

    /// Makes the present position of a channel its home position:
    /// POST /brms/api/v1.1/ptz/channel/{channelId}/home-position/configure, no body
    /// @pack{channelId, the channel}
    static int PackeSetHomePosition(void* pReqParamData, std::string channelId, int nServerId);
    /// Reads as ParseWashOpen() does.
    /// @parse{status}
    static int ParseSetHomePosition(const QJsonObject& data, PtzPositionResetReq& status);

    /// Moves a channel to its home position:
    /// POST /brms/api/v1.1/ptz/channel/{channelId}/home-position/goto, no body
    ///
    /// Its log texts are those of PackeSetHomePosition().
    /// @pack{channelId, the channel}
    static int PackeGotoHomePosition(void* pReqParamData, std::string channelId, int nServerId);
    /// Reads as ParseWashOpen() does.
    /// @parse{status}
    static int ParseGotoHomePosition(const QJsonObject& data, PtzPositionResetReq& status);
    /// @}
};

}  // namespace APIModule
