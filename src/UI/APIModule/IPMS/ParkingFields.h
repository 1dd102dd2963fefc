#pragma once

#include "Parking.h"

#include <boost/describe/class.hpp>

namespace APIModule {

// The fields of each record, in the order of their declaration.
BOOST_DESCRIBE_STRUCT(SimpleParkingPointInfo, (), (id, pointName, remark, refPointId, direction, mode))
BOOST_DESCRIBE_STRUCT(SimpleParkingPositionInfo, (), (id, positionName, remark, points))
BOOST_DESCRIBE_STRUCT(SimpleParkingLotInfoRsp, (),
                      (id, parkingLotName, orgCode, orgName, parentParkingLotId, parentParkingLotName, parkingLotMode,
                       enableParkingSpaceStatistics, parkingSpaceStatisticsType, positions))
BOOST_DESCRIBE_STRUCT(ParkingChannelInfo, (), (channelId, channelType))
BOOST_DESCRIBE_STRUCT(DetailParkingPointInfo, (),
                      (id, pointName, remark, refPointId, refPointName, direction, mode, channels, refChannels))
BOOST_DESCRIBE_STRUCT(DetailParkingPositionInfo, (), (id, positionName, remark, points))
BOOST_DESCRIBE_STRUCT(DatailParkingLotInfoRsp, (),
                      (id, parkingLotName, orgCode, orgName, parentParkingLotId, parentParkingLotName, parkingLotMode,
                       enableParkingSpaceStatistics, parkingSpaceStatisticsType, issueVehicles, issueStatus,
                       totalParkingSpaceCount, idleParkingSpaceCount, positions))
BOOST_DESCRIBE_STRUCT(OrganizationInfoRsp, (), (orgCode, orgName, parentOrgCode, hasChild, hasAuthority))
BOOST_DESCRIBE_STRUCT(UpdateVehicleCaptureRecordInfo, (), (id, plateNo))

}  // namespace APIModule
