#include "../detail/Entry.h"
#include "Families.h"

#include <IAMS/IAMSModule.h>

namespace catalogue {

using detail::AddSubject;
using detail::Entry;
using Iams = APIModule::CIAMSModule;

void AddIamsCalls(std::vector<Call>& calls)
{
    AddSubject(calls, QT_TRANSLATE_NOOP("catalogue::Call", "Analysis tasks"),
               {
                   Entry<&Iams::PacketSetAnalysisTaskUploadFailed>(
                       QT_TRANSLATE_NOOP("catalogue::Call", "Marks the file uploads of tasks as failed"), "taskIds"),
               });
}

}  // namespace catalogue
