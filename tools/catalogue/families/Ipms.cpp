#include "../detail/Entry.h"
#include "Families.h"

#include <IPMS/IPMSCalls.h>
#include <IPMS/ParkingFields.h>

namespace catalogue {

using detail::AddSubject;
using detail::Entry;
namespace IPMS = APIModule::IPMS;

void AddIpmsCalls(std::vector<Call>& calls)
{
    AddSubject(
        calls, QT_TRANSLATE_NOOP("catalogue::Call", "Parking"),
        {
            Entry<IPMS::GetSimpleParkingLots>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Lists parking lots with their positions and points"),
                "parkingLotIds", "mode"),
            Entry<IPMS::GetDetailParkingLots>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Lists parking lots with their spaces and channels"),
                "parkingLotIds", "orgCode", "mode"),
            Entry<IPMS::GetParkingOrganization>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Lists the organisations of the parking lots")),
            Entry<IPMS::UpdateVehicleCaptureRecord>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Corrects the plate number of a vehicle capture record"), "info"),
        });
}

}  // namespace catalogue
