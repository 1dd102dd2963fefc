#include "../detail/Entry.h"
#include "Families.h"

#include <OMMS/MaintenanceFields.h>
#include <OMMS/OMMSCalls.h>

namespace catalogue {

using detail::AddSubject;
using detail::Entry;
namespace OMMS = APIModule::OMMS;

void AddOmmsCalls(std::vector<Call>& calls)
{
    AddSubject(calls, QT_TRANSLATE_NOOP("catalogue::Call", "Maintenance"),
               {
                   Entry<OMMS::GetAlertTypes>(QT_TRANSLATE_NOOP("catalogue::Call", "Lists the alert types")),
                   Entry<OMMS::GetChannelInfo>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Reads the maintenance view of a channel"), "channelId"),
                   Entry<OMMS::GetDeviceInfo>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Reads the maintenance view of a device"), "deviceCode"),
               });
}

}  // namespace catalogue
