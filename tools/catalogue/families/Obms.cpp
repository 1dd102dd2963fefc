#include "../detail/Entry.h"
#include "Families.h"

#include <OBMS/AccessControlFields.h>
#include <OBMS/CardIntercomFields.h>
#include <OBMS/OBMSCalls.h>

namespace catalogue {

using detail::AddSubject;
using detail::Entry;
namespace OBMS = APIModule::OBMS;

void AddObmsCalls(std::vector<Call>& calls)
{
    AddSubject(calls, QT_TRANSLATE_NOOP("catalogue::Call", "Access-control persons and rules"),
               {
                   Entry<OBMS::GetPageAccessAuthorizePersons>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Reads one page of the authorised persons"), "req"),
                   Entry<OBMS::GetManagePersons>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Lists the persons managed on a device"), "req"),
                   Entry<OBMS::SetManagePersons>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Replaces the persons managed on a device"), "req"),
                   Entry<OBMS::GetPointRules>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Lists the rules of an access point"), "req"),
                   Entry<OBMS::PersonResetAntiPass>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Resets the anti-passback time of a person"), "personId"),
               });
    AddSubject(
        calls, QT_TRANSLATE_NOOP("catalogue::Call", "Cards, intercom and alarm hosts"),
        {
            Entry<OBMS::GetConfigDesfireInfo>(QT_TRANSLATE_NOOP("catalogue::Call", "Reads the card configuration")),
            Entry<OBMS::UpdateConfigDesfireInfo>(QT_TRANSLATE_NOOP("catalogue::Call", "Writes the card configuration"),
                                                 "param"),
            Entry<OBMS::GetPageConfigDesfireFailInfo>(
                QT_TRANSLATE_NOOP("catalogue::Call",
                                  "Reads one page of the devices where issuing the card configuration failed"),
                "req"),
            Entry<OBMS::ReissueConfigDesfire>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Reissues the card configuration to the failed devices")),
            Entry<OBMS::DeleteAddressBooks>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Deletes contacts of an outdoor station"), "param"),
            Entry<OBMS::AlarmHostZoneSnapShot>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Requests a snapshot of an alarm host's zone"), "zoneId",
                "action"),
        });
}

}  // namespace catalogue
