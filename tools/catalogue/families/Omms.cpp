#include "../detail/Entry.h"
#include "Families.h"

#include <OMMS/MaintenanceFields.h>
#include <OMMS/OMMSModule.h>

namespace catalogue {

using detail::AddSubject;
using detail::Entry;
using Omms = APIModule::COMMSModule;

void AddOmmsCalls(std::vector<Call>& calls)
{
    AddSubject(calls, QT_TRANSLATE_NOOP("catalogue::Call", "Maintenance"),
               {
                   Entry<&Omms::PacketGetAlertTypes, &Omms::ParseGetAlertTypes>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Lists the alert types")),
                   Entry<&Omms::PacketGetChannelInfo, &Omms::ParseGetChannelInfo>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Reads the maintenance view of a channel"), "channelId"),
                   Entry<&Omms::PacketGetDeviceInfo, &Omms::ParseGetDeviceInfo>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Reads the maintenance view of a device"), "deviceCode"),
               });
}

}  // namespace catalogue
