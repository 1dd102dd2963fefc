#include "Families.h"

namespace emulator::families {
namespace {

const Collection kCaptureRecords{"/ipms/captureRecords", "id"};

Json CorrectPlate(const Call& call)
{
    kCaptureRecords.find(call.state, call.body.at("id"))["plateNo"] = call.body.at("plateNo");
    return RecordAccepted(call);
}

}  // namespace

HandlerTable Ipms()
{
    return {
        {"IPMS.GetSimpleParkingLots", List("/ipms/parkingLots", {OneOf("parkingLotIds", "id")})},
        {"IPMS.GetDetailParkingLots", List("/ipms/parkingLots", {OneOf("parkingLotIds", "id"), Equals("orgCode")})},
        {"IPMS.GetParkingOrganization", List("/ipms/organisations")},
        {"IPMS.UpdateVehicleCaptureRecord", CorrectPlate},
    };
}

}  // namespace emulator::families
