#pragma once

#include <IPMS/Parking.h>

/// Which key is of which field in a detailed parking lot, in the order of the platform, for everything here that reads
/// or writes one. @p visit is given a key and its field.
namespace bench {

template <typename Visit>
void VisitFields(APIModule::ParkingChannelInfo& channel, Visit visit)
{
    visit("channelId", channel.channelId);
    visit("channelType", channel.channelType);
}

template <typename Visit>
void VisitFields(APIModule::DetailParkingPointInfo& point, Visit visit)
{
    visit("id", point.id);
    visit("pointName", point.pointName);
    visit("remark", point.remark);
    visit("refPointId", point.refPointId);
    visit("refPointName", point.refPointName);
    visit("direction", point.direction);
    visit("mode", point.mode);
    visit("channels", point.channels);
    visit("refChannels", point.refChannels);
}

template <typename Visit>
void VisitFields(APIModule::DetailParkingPositionInfo& position, Visit visit)
{
    visit("id", position.id);
    visit("positionName", position.positionName);
    visit("remark", position.remark);
    visit("points", position.points);
}

template <typename Visit>
void VisitFields(APIModule::DatailParkingLotInfoRsp& lot, Visit visit)
{
    visit("id", lot.id);
    visit("parkingLotName", lot.parkingLotName);
    visit("orgCode", lot.orgCode);
    visit("orgName", lot.orgName);
    visit("parentParkingLotId", lot.parentParkingLotId);
    visit("parentParkingLotName", lot.parentParkingLotName);
    visit("parkingLotMode", lot.parkingLotMode);
    visit("enableParkingSpaceStatistics", lot.enableParkingSpaceStatistics);
    visit("parkingSpaceStatisticsType", lot.parkingSpaceStatisticsType);
    visit("issueVehicles", lot.issueVehicles);
    visit("issueStatus", lot.issueStatus);
    visit("totalParkingSpaceCount", lot.totalParkingSpaceCount);
    visit("idleParkingSpaceCount", lot.idleParkingSpaceCount);
    visit("positions", lot.positions);
}

}  // namespace bench
