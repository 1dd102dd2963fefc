#include "../detail/Entry.h"
#include "Families.h"

#include <IPMS/IPMSModule.h>
#include <IPMS/ParkingFields.h>

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
