#include "../detail/Entry.h"
#include "Families.h"

#include <IAMS/IAMSCalls.h>

namespace catalogue {

using detail::AddSubject;
using detail::Entry;
namespace IAMS = APIModule::IAMS;

void AddIamsCalls(std::vector<Call>& calls)
{
    AddSubject(
        calls, QT_TRANSLATE_NOOP("catalogue::Call", "Analysis tasks"),
        {
            Entry<IAMS::SetAnalysisTaskUploadFailed>(
                QT_TRANSLATE_NOOP("catalogue::Call", "Marks the file uploads of analysis tasks as failed"), "taskIds"),
        });
}

}  // namespace catalogue
