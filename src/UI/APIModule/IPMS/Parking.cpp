#include "IPMSModule_p.h"
#include "ParkingFields.h"

namespace APIModule {

int CIPMSModule::PacketGetSimpleParkingLots(void* pReqParamData, const std::string& parkingLotIds, int mode,
                                            int nServerId)
{
    return Pack(pReqParamData, kIpms, Method_Get,
                Url(QStringLiteral("/ipms/api/v1.1/parking-lot/summary/list?parkingLotIds=%1&mode=%2"),
                    Text(parkingLotIds), mode),
                nServerId);
}

int CIPMSModule::ParseGetSimpleParkingLots(const QJsonObject& data, std::vector<SimpleParkingLotInfoRsp>& lots)
{
    return ReadFields(data, {{"results", lots}});
}

int CIPMSModule::PacketGetDetailParkingLots(void* pReqParamData, const std::string& parkingLotIds,
                                            const std::string& orgCode, int mode, int nServerId)
{
    return Pack(pReqParamData, kIpms, Method_Get,
                Url(QStringLiteral("/ipms/api/v1.1/parking-lot/detail/list?parkingLotIds=%1&mode=%2&orgCode=%3"),
                    Text(parkingLotIds), mode, Text(orgCode)),
                nServerId);
}

int CIPMSModule::ParseGetDetailParkingLots(const QJsonObject& data, std::vector<DatailParkingLotInfoRsp>& lots)
{
    return ReadFields(data, {{"results", lots}});
}

int CIPMSModule::PacketGetParkingOrganization(void* pReqParamData, int nServerId)
{
    return Pack(pReqParamData, kIpms, Method_Get, QStringLiteral("/ipms/api/v1.1/organization/list"), nServerId);
}

int CIPMSModule::ParseGetParkingOrganization(const QJsonObject& data, std::vector<OrganizationInfoRsp>& organizations)
{
    return ReadFields(data, {{"results", organizations}});
}

int CIPMSModule::PacketUpdateVehicleCaptureRecord(void* pReqParamData, const UpdateVehicleCaptureRecordInfo& info,
                                                  int nServerId)
{
    return Pack(pReqParamData, kIpms, Method_Put, QStringLiteral("/ipms/api/v1.1/fusion/vehicle-capture/record"),
                nServerId, Body({{"id", Text(info.id)}, {"plateNo", Text(info.plateNo)}}));
}

}  // namespace APIModule
