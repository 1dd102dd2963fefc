#include "Help.h"

#include <algorithm>
#include <sstream>

namespace apicall {
namespace {

using catalogue::Call;
using catalogue::Kind;
using catalogue::Type;

void WriteFields(std::ostream& out, const Type& type, const std::string& indent)
{
    if (type.kind == Kind::List) {
        WriteFields(out, *type.element, indent);
    }
    for (const catalogue::Field& field : type.fields) {
        out << indent << field.name << ": " << NameOf(*field.type) << '\n';
        WriteFields(out, *field.type, indent + "  ");
    }
}

}  // namespace

std::string ListOfCalls()
{
    std::size_t longest = 0;
    for (const Call& call : catalogue::Calls()) {
        longest = std::max(longest, call.name.size());
    }
    std::ostringstream out;
    for (const Call& call : catalogue::Calls()) {
        out << call.name << std::string(longest - call.name.size() + 2, ' ') << call.summary << '\n';
    }
    return out.str();
}

std::string HelpFor(const Call& call)
{
    std::ostringstream out;
    out << call.name << " (" << call.subject << ")\n" << call.summary << "\n\n";

    out << (call.arguments.empty() ? "Arguments: none\n" : "Arguments:\n");
    for (const catalogue::Argument& argument : call.arguments) {
        out << "  " << argument.name << ": " << NameOf(*argument.type) << '\n';
        WriteFields(out, *argument.type, "    ");
    }

    out << "\nResult: " << (call.result == nullptr ? "none" : NameOf(*call.result)) << '\n';
    if (call.result != nullptr) {
        WriteFields(out, *call.result, "  ");
    }
    return out.str();
}

}  // namespace apicall
