#include "Help.h"

#include "Texts.h"

#include <algorithm>
#include <sstream>

namespace apicall {
namespace {

using catalogue::Call;
using catalogue::Kind;
using catalogue::Translated;
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
        out << call.name << std::string(longest - call.name.size() + 2, ' ') << Translated(call.summary) << '\n';
    }
    return out.str();
}

std::string HelpFor(const Call& call)
{
    std::ostringstream out;
    out << call.name << " (" << Translated(call.subject) << ")\n" << Translated(call.summary) << "\n\n";

    out << Filled(call.arguments.empty() ? Texts::tr("Arguments: none") : Texts::tr("Arguments:")) << '\n';
    for (const catalogue::Argument& argument : call.arguments) {
        out << "  " << argument.name << ": " << NameOf(*argument.type) << '\n';
        WriteFields(out, *argument.type, "    ");
    }

    out << '\n';
    if (call.result == nullptr) {
        out << Filled(Texts::tr("Result: none")) << '\n';
    } else {
        out << Filled(Texts::tr("Result: %1"), NameOf(*call.result)) << '\n';
        WriteFields(out, *call.result, "  ");
    }
    return out.str();
}

}  // namespace apicall
