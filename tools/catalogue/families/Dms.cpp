#include "../detail/Entry.h"
#include "Families.h"

#include <DMS/DMSCalls.h>
#include <DMS/PtzFields.h>

namespace catalogue {

using detail::AddSubject;
using detail::Entry;
namespace DMS = APIModule::DMS;

void AddDmsCalls(std::vector<Call>& calls)
{
    AddSubject(
        calls, QT_TRANSLATE_NOOP("catalogue::Call", "PTZ"),
        {
            Entry<DMS::WashOpen>(QT_TRANSLATE_NOOP("catalogue::Call", "Turns on the wash function of a channel"),
                                 "channelId"),
            Entry<DMS::BatchWashOpen>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Turns on the wash function of several channels"), "channelIds"),
            Entry<DMS::SetHomePosition>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Stores the current camera position as the home position"),
                "channelId"),
            Entry<DMS::GotoHomePosition>(QT_TRANSLATE_NOOP("catalogue::Call", "Moves the camera to its home position"),
                                         "channelId"),
        });
}

}  // namespace catalogue
