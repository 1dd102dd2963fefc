#include "../detail/Entry.h"
#include "Families.h"

#include <IPMS/IPMSModule.h>

namespace APIModule {

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

namespace catalogue {

using detail::AddSubject;
using detail::Entry;
using Ipms = APIModule::CIPMSModule;

void AddIpmsCalls(std::vector<Call>& calls)
{
    AddSubject(calls, QT_TRANSLATE_NOOP("catalogue::Call", "Parking"),
               {
                   Entry<&Ipms::PacketGetSimpleParkingLots, &Ipms::ParseGetSimpleParkingLots>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Lists parking lots with their positions and points"),
                       "parkingLotIds", "mode"),
                   Entry<&Ipms::PacketGetDetailParkingLots, &Ipms::ParseGetDetailParkingLots>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Lists parking lots with their spaces and channels"),
                       "parkingLotIds", "orgCode", "mode"),
                   Entry<&Ipms::PacketGetParkingOrganization, &Ipms::ParseGetParkingOrganization>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Lists the organisations of the parking lots")),
                   Entry<&Ipms::PacketUpdateVehicleCaptureRecord>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Corrects the plate number of a capture record"), "info"),
               });
}

}  // namespace catalogue
