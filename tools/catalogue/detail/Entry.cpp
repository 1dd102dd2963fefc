#include "Entry.h"

namespace catalogue::detail {

Call NamedCall(std::string_view constantName)
{
    Call call;
    call.family = Unqualified(constantName.substr(0, constantName.rfind("::")));
    call.name = call.family + "." + std::string(Unqualified(constantName));
    return call;
}

void AddSubject(std::vector<Call>& calls, std::string_view subject, std::vector<Call> entries)
{
    for (Call& call : entries) {
        call.subject = subject;
        calls.push_back(std::move(call));
    }
}

}  // namespace catalogue::detail
