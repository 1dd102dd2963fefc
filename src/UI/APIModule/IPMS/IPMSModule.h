#pragma once

#include "../APIModuleGlobal.h"
#include "Parking.h"

#include <QJsonObject>

#include <string>
#include <vector>

namespace APIModule {

/// Calls of the parking management service.
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
class APIMODULE_EXPORT CIPMSModule {
public:
    /// @name Parking
    /// Parking lots, their organisations and the vehicles captured there.
    /// @{

    /// Lists parking lots with their positions and points:
    /// GET /ipms/api/v1.1/parking-lot/summary/list?parkingLotIds={parkingLotIds}&mode={mode}
    /// @param parkingLotIds identifiers of the parking lots, joined by the caller ("1,2" in the contract's example),
    ///        empty for all; inserted unencoded. A `%` before a single digit, as in `%2C`, would be replaced by the
    ///        mode, so do not encode the commas; codes of two digits, such as `%26`, are safe.
    /// @param mode the server's code (-1 in the contract's example)
    static int PacketGetSimpleParkingLots(void* pReqParamData, const std::string& parkingLotIds, int mode,
                                          int nServerId);
    /// Appends the parking lots of "results" with their positions and points to @p lots.
    static int ParseGetSimpleParkingLots(const QJsonObject& data, std::vector<SimpleParkingLotInfoRsp>& lots);

    /// Lists parking lots with their space counts, positions, points and channels:
    /// GET /ipms/api/v1.1/parking-lot/detail/list?parkingLotIds={parkingLotIds}&mode={mode}&orgCode={orgCode}
    /// @param parkingLotIds identifiers of the parking lots, joined by the caller ("1,2" in the contract's example),
    ///        empty for all; inserted unencoded. A `%` before a single digit, as in `%2C`, would be replaced by the
    ///        mode or the organisation, so do not encode the commas; codes of two digits, such as `%26`, are safe.
    /// @param orgCode the organisation that they belong to, empty for all; inserted unencoded
    /// @param mode the server's code (-1 in the contract's example)
    static int PacketGetDetailParkingLots(void* pReqParamData, const std::string& parkingLotIds,
                                          const std::string& orgCode, int mode, int nServerId);
    /// Appends the parking lots of "results" with their positions, points and channels to @p lots.
    static int ParseGetDetailParkingLots(const QJsonObject& data, std::vector<DatailParkingLotInfoRsp>& lots);

    /// Lists the organisations that parking lots belong to: GET /ipms/api/v1.1/organization/list
    static int PacketGetParkingOrganization(void* pReqParamData, int nServerId);
    /// Appends the organisations in "results", a tree as a flat list, to @p organizations.
    static int ParseGetParkingOrganization(const QJsonObject& data, std::vector<OrganizationInfoRsp>& organizations);

    /// Corrects the plate number of a vehicle capture record: PUT /ipms/api/v1.1/fusion/vehicle-capture/record
    ///
    /// Body: "id" and "plateNo", strings. There is no Parse.
    /// @param info the record and its corrected plate number
    static int PacketUpdateVehicleCaptureRecord(void* pReqParamData, const UpdateVehicleCaptureRecordInfo& info,
                                                int nServerId);
    /// @}

    CIPMSModule& operator=(const CIPMSModule&);      ///< Does nothing, the class has no data. @return *this
    CIPMSModule& operator=(CIPMSModule&&) noexcept;  ///< Does nothing, the class has no data. @return *this
};

}  // namespace APIModule
