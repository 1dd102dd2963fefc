#pragma once

#include "../APIModuleGlobal.h"

#include <string>
#include <vector>

namespace APIModule {

/// One point of a parking position in the short list.
struct SimpleParkingPointInfo {
    std::string id;          ///< "id": identifier of the point
    std::string pointName;   ///< "pointName": display name
    std::string remark;      ///< "remark": free remark
    std::string refPointId;  ///< "refPointId": the point that it refers to
    int direction = 0;       ///< "direction": the server's code
    int mode = 0;            ///< "mode": the server's code
};

/// One position of a parking lot in the short list.
struct SimpleParkingPositionInfo {
    std::string id;                              ///< "id": identifier of the position
    std::string positionName;                    ///< "positionName": display name
    std::string remark;                          ///< "remark": free remark
    std::vector<SimpleParkingPointInfo> points;  ///< "points": the points of the position
};

/// One parking lot in the short list.
struct SimpleParkingLotInfoRsp {
    std::string id;                        ///< "id": identifier of the parking lot
    std::string parkingLotName;            ///< "parkingLotName": display name
    std::string orgCode;                   ///< "orgCode": the organisation that it belongs to
    std::string orgName;                   ///< "orgName": name of that organisation
    std::string parentParkingLotId;        ///< "parentParkingLotId": the parent parking lot
    std::string parentParkingLotName;      ///< "parentParkingLotName": name of the parent parking lot
    int parkingLotMode = 0;                ///< "parkingLotMode": the server's code
    int enableParkingSpaceStatistics = 0;  ///< "enableParkingSpaceStatistics": the number as sent by the server
    int parkingSpaceStatisticsType = 0;    ///< "parkingSpaceStatisticsType": the server's code
    std::vector<SimpleParkingPositionInfo> positions;  ///< "positions": the positions of the parking lot
};

/// One video channel that is bound to a parking point.
struct ParkingChannelInfo {
    std::string channelId;  ///< "channelId": the channel
    int channelType = 0;    ///< "channelType": the server's code
};

/// One point of a parking position in the detailed list.
struct DetailParkingPointInfo {
    std::string id;                               ///< "id": identifier of the point
    std::string pointName;                        ///< "pointName": display name
    std::string remark;                           ///< "remark": free remark
    std::string refPointId;                       ///< "refPointId": the point that it refers to
    std::string refPointName;                     ///< "refPointName": name of the point that it refers to
    int direction = 0;                            ///< "direction": the server's code
    int mode = 0;                                 ///< "mode": the server's code
    std::vector<ParkingChannelInfo> channels;     ///< "channels": the video channels of the point
    std::vector<ParkingChannelInfo> refChannels;  ///< "refChannels": the channels of the point it refers to
};

/// One position of a parking lot in the detailed list.
struct DetailParkingPositionInfo {
    std::string id;                              ///< "id": identifier of the position
    std::string positionName;                    ///< "positionName": display name
    std::string remark;                          ///< "remark": free remark
    std::vector<DetailParkingPointInfo> points;  ///< "points": the points of the position
};

/// One parking lot in the detailed list.
struct DatailParkingLotInfoRsp {
    std::string id;                        ///< "id": identifier of the parking lot
    std::string parkingLotName;            ///< "parkingLotName": display name
    std::string orgCode;                   ///< "orgCode": the organisation that it belongs to
    std::string orgName;                   ///< "orgName": name of that organisation
    std::string parentParkingLotId;        ///< "parentParkingLotId": the parent parking lot
    std::string parentParkingLotName;      ///< "parentParkingLotName": name of the parent parking lot
    int parkingLotMode = 0;                ///< "parkingLotMode": the server's code
    int enableParkingSpaceStatistics = 0;  ///< "enableParkingSpaceStatistics": the number as sent by the server
    int parkingSpaceStatisticsType = 0;    ///< "parkingSpaceStatisticsType": the server's code
    int issueVehicles = 0;                 ///< "issueVehicles": the number as sent by the server
    int issueStatus = 0;                   ///< "issueStatus": the server's code
    int totalParkingSpaceCount = 0;        ///< "totalParkingSpaceCount": total number of parking spaces
    int idleParkingSpaceCount = 0;         ///< "idleParkingSpaceCount": number of free parking spaces
    std::vector<DetailParkingPositionInfo> positions;  ///< "positions": the positions of the parking lot
};

/// One organisation that parking lots belong to.
struct OrganizationInfoRsp {
    std::string orgCode;        ///< "orgCode": code of the organisation, such as "001"
    std::string orgName;        ///< "orgName": display name
    std::string parentOrgCode;  ///< "parentOrgCode": the parent organisation, empty at the root
    int hasChild = 0;           ///< "hasChild": whether it has child organisations, the number as sent by the server
    int hasAuthority = 0;       ///< "hasAuthority": whether the user has rights in it, the number as sent by the server
};

/// The correction of a vehicle capture record.
struct UpdateVehicleCaptureRecordInfo {
    std::string id;       ///< "id": the capture record
    std::string plateNo;  ///< "plateNo": the corrected plate number
};

}  // namespace APIModule
