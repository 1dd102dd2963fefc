#include "../detail/Entry.h"
#include "Families.h"

#include <DMS/DMSModule.h>
#include <DMS/PtzFields.h>

namespace catalogue {

using detail::AddSubject;
using detail::Entry;
using Dms = APIModule::CDMSModule;

void AddDmsCalls(std::vector<Call>& calls)
{
    AddSubject(
        calls, QT_TRANSLATE_NOOP("catalogue::Call", "PTZ"),
        {
            Entry<&Dms::PackeWashOpen, &Dms::ParseWashOpen>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Switches the wash function of a channel on"), "channelId"),
            Entry<&Dms::PackeBatchWashOpen, &Dms::ParseBatchWashOpen>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Switches the wash function of several channels on"),
                "channelIds"),
            Entry<&Dms::PackeSetHomePosition, &Dms::ParseSetHomePosition>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Makes the position of a channel its home position"), "channelId"),
            Entry<&Dms::PackeGotoHomePosition, &Dms::ParseGotoHomePosition>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Moves a channel to its home position"), "channelId"),
        });
}

}  // namespace catalogue
