#include "IPMSModule_p.h"

namespace APIModule {

static int ReadRecord(const JsonObject& element, SimpleParkingPointInfo& point)
{
    return ReadFields(element, "id", point.id, "pointName", point.pointName, "remark", point.remark, "refPointId",
                      point.refPointId, "direction", point.direction, "mode", point.mode);
}

static int ReadRecord(const JsonObject& element, SimpleParkingPositionInfo& position)
{
    return ReadFields(element, "id", position.id, "positionName", position.positionName, "remark", position.remark,
                      "points", position.points);
}

static int ReadRecord(const JsonObject& element, SimpleParkingLotInfoRsp& lot)
{
    return ReadFields(element, "id", lot.id, "parkingLotName", lot.parkingLotName, "orgCode", lot.orgCode, "orgName",
                      lot.orgName, "parentParkingLotId", lot.parentParkingLotId, "parentParkingLotName",
                      lot.parentParkingLotName, "parkingLotMode", lot.parkingLotMode, "enableParkingSpaceStatistics",
                      lot.enableParkingSpaceStatistics, "parkingSpaceStatisticsType", lot.parkingSpaceStatisticsType,
                      "positions", lot.positions);
}

static int ReadRecord(const JsonObject& element, ParkingChannelInfo& channel)
{
    return ReadFields(element, "channelId", channel.channelId, "channelType", channel.channelType);
}

static int ReadRecord(const JsonObject& element, DetailParkingPointInfo& point)
{
    return ReadFields(element, "id", point.id, "pointName", point.pointName, "remark", point.remark, "refPointId",
                      point.refPointId, "refPointName", point.refPointName, "direction", point.direction, "mode",
                      point.mode, "channels", point.channels, "refChannels", point.refChannels);
}

static int ReadRecord(const JsonObject& element, DetailParkingPositionInfo& position)
{
    return ReadFields(element, "id", position.id, "positionName", position.positionName, "remark", position.remark,
                      "points", position.points);
}

static int ReadRecord(const JsonObject& element, DatailParkingLotInfoRsp& lot)
{
    return ReadFields(element, "id", lot.id, "parkingLotName", lot.parkingLotName, "orgCode", lot.orgCode, "orgName",
                      lot.orgName, "parentParkingLotId", lot.parentParkingLotId, "parentParkingLotName",
                      lot.parentParkingLotName, "parkingLotMode", lot.parkingLotMode, "enableParkingSpaceStatistics",
                      lot.enableParkingSpaceStatistics, "parkingSpaceStatisticsType", lot.parkingSpaceStatisticsType,
                      "issueVehicles", lot.issueVehicles, "issueStatus", lot.issueStatus, "totalParkingSpaceCount",
                      lot.totalParkingSpaceCount, "idleParkingSpaceCount", lot.idleParkingSpaceCount, "positions",
                      lot.positions);
}

static int ReadRecord(const JsonObject& element, OrganizationInfoRsp& organization)
{
    return ReadFields(element, "orgCode", organization.orgCode, "orgName", organization.orgName, "parentOrgCode",
                      organization.parentOrgCode, "hasChild", organization.hasChild, "hasAuthority",
                      organization.hasAuthority);
}

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
    return ReadFields(data, "results", lots);
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
    return ReadFields(data, "results", lots);
}

int CIPMSModule::PacketGetParkingOrganization(void* pReqParamData, int nServerId)
{
    return Pack(pReqParamData, kIpms, Method_Get, QStringLiteral("/ipms/api/v1.1/organization/list"), nServerId);
}

int CIPMSModule::ParseGetParkingOrganization(const QJsonObject& data, std::vector<OrganizationInfoRsp>& organizations)
{
    return ReadFields(data, "results", organizations);
}

int CIPMSModule::PacketUpdateVehicleCaptureRecord(void* pReqParamData, const UpdateVehicleCaptureRecordInfo& info,
                                                  int nServerId)
{
    return Pack(pReqParamData, kIpms, Method_Put, QStringLiteral("/ipms/api/v1.1/fusion/vehicle-capture/record"),
                nServerId, Body({{"id", Text(info.id)}, {"plateNo", Text(info.plateNo)}}));
}

}  // namespace APIModule
