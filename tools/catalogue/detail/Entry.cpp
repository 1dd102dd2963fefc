#include "Entry.h"

namespace catalogue::detail {
namespace {

std::string_view WithoutPrefix(std::string_view name)
{
    for (const std::string_view prefix : {"Packet", "Packe", "Pack"}) {
        if (name.substr(0, prefix.size()) == prefix) {
            return name.substr(prefix.size());
        }
    }
    return name;
}

// "APIModule::CBRMSModule::PacketX" is of the family BRMS.
std::string_view FamilyOf(std::string_view packName)
{
    const std::string_view className = Unqualified(packName.substr(0, packName.rfind("::")));
    constexpr std::string_view kPrefix = "C";
    constexpr std::string_view kSuffix = "Module";
    return className.substr(kPrefix.size(), className.size() - kPrefix.size() - kSuffix.size());
}

}  // namespace

Call NamedCall(std::string_view packName, std::string_view parseName)
{
    Call call;
    call.packName = packName;
    call.parseName = parseName;
    call.family = FamilyOf(packName);
    call.name = call.family + "." + std::string(WithoutPrefix(Unqualified(packName)));
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
