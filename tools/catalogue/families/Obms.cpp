#include "../detail/Entry.h"
#include "Families.h"

#include <OBMS/AccessControlFields.h>
#include <OBMS/CardIntercomFields.h>
#include <OBMS/OBMSModule.h>

namespace catalogue {

using detail::AddSubject;
using detail::Entry;
using Obms = APIModule::COBMSModule;

void AddObmsCalls(std::vector<Call>& calls)
{
    AddSubject(calls, QT_TRANSLATE_NOOP("catalogue::Call", "Access-control persons and rules"),
               {
                   Entry<&Obms::PacketGetPageAccessAuthorizePersons, &Obms::ParseGetPageAccessAuthorizePersons>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Reads one page of the persons with access"), "req"),
                   Entry<&Obms::PacketGetManagePersons, &Obms::ParseGetManagePersons>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Lists the persons managed on a device"), "req"),
                   Entry<&Obms::PacketSetManagePersons>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Replaces the persons managed on a device"), "req"),
                   Entry<&Obms::PackGetPointRules, &Obms::ParesGetPointRules>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Lists the rules of an access point"), "req"),
                   Entry<&Obms::PackPersonResetAntiPass>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Resets the anti-pass time of a person"), "personId"),
               });
    AddSubject(calls, QT_TRANSLATE_NOOP("catalogue::Call", "Cards, intercom and alarm hosts"),
               {
                   Entry<&Obms::PackGetConfigDesfireInfo, &Obms::ParseGetConfigDesfireInfo>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Reads the card configuration")),
                   Entry<&Obms::PackUpdateConfigDesfireInfo>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Writes the card configuration"), "param"),
                   Entry<&Obms::PackGetPageConfigDesfireFailInfo, &Obms::ParseGetPageConfigDesfireFailInfo>(
                       QT_TRANSLATE_NOOP("catalogue::Call",
                                         "Reads one page of the devices that failed to take the card configuration"),
                       "req"),
                   Entry<&Obms::PackReissueConfigDesfire>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Sends the card configuration to those devices again")),
                   Entry<&Obms::PackDeleteAddressBooks>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Deletes contacts of an outdoor station"), "param"),
                   Entry<&Obms::PacketAlarmHostZoneSnapShot, &Obms::ParseAlarmHostZoneSnapShot>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Has a snapshot taken of an alarm host's zone"), "zoneId",
                       "action"),
               });
}

}  // namespace catalogue
