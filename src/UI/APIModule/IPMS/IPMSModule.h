#pragma once

#include "../APIModuleGlobal.h"
#include "Parking.h"

#include <QJsonObject>

#include <string>
#include <vector>

namespace APIModule {

/// Calls of the parking management service: Packs and Parses as CAPIModule describes them.
class APIMODULE_EXPORT CIPMSModule {
public:
    CIPMSModule& operator=(const CIPMSModule&);      ///< @assignsnothing
    CIPMSModule& operator=(CIPMSModule&&) noexcept;  ///< @assignsnothing

    /// @name Parking
    /// Parking lots, their organisations and the vehicles captured there. Identifiers and codes go into the URL as they
    /// stand, nothing escaped.
    /// @{

    /// Lists parking lots in short form: GET
    /// /ipms/api/v1.1/parking-lot/summary/list?parkingLotIds={parkingLotIds}&mode={mode}
    ///
    /// @param pReqParamData the RequestParam
    /// @param parkingLotIds the parking lots; the caller joins several identifiers into this one text itself
    /// @param mode the server's code
    /// @param nServerId the server, -1 for the current one
    /// @return 0 or -1
    static int PacketGetSimpleParkingLots(void* pReqParamData, const std::string& parkingLotIds, int mode,
                                          int nServerId);
    /// Appends the parking lots of "results" up to the first that is not whole, its positions and points included.
    /// @parse{lots}
    static int ParseGetSimpleParkingLots(const QJsonObject& data, std::vector<SimpleParkingLotInfoRsp>& lots);

    /// Lists parking lots in detail: GET
    /// /ipms/api/v1.1/parking-lot/detail/list?parkingLotIds={parkingLotIds}&mode={mode}&orgCode={orgCode}
    ///
    /// @param pReqParamData the RequestParam
    /// @param parkingLotIds the parking lots; the caller joins several identifiers into this one text itself
    /// @param orgCode the organisation that they belong to
    /// @param mode the server's code
    /// @param nServerId the server, -1 for the current one
    /// @return 0 or -1
    static int PacketGetDetailParkingLots(void* pReqParamData, const std::string& parkingLotIds,
                                          const std::string& orgCode, int mode, int nServerId);
    /// Appends the parking lots of "results" up to the first that is not whole, its positions, points and channels
    /// included.
    /// @parse{lots}
    static int ParseGetDetailParkingLots(const QJsonObject& data, std::vector<DatailParkingLotInfoRsp>& lots);

    /// Lists the organisations that parking lots belong to: GET /ipms/api/v1.1/organization/list
    /// @pack
    static int PacketGetParkingOrganization(void* pReqParamData, int nServerId);
    /// Appends the organisations of "results" up to the first that is not whole.
    /// @parse{organizations}
    static int ParseGetParkingOrganization(const QJsonObject& data, std::vector<OrganizationInfoRsp>& organizations);

    /// Corrects the plate number of a vehicle capture record: PUT /ipms/api/v1.1/fusion/vehicle-capture/record
    ///
    /// Body: "id" and "plateNo", texts. There is no Parse.
    /// @pack{info, the record and its plate number}
    static int PacketUpdateVehicleCaptureRecord(void* pReqParamData, const UpdateVehicleCaptureRecordInfo& info,
                                                int nServerId);
    /// @}
};

}  // namespace APIModule
