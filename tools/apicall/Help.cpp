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

/// The fields of a record, or of a list's element type.
const std::vector<catalogue::Field>& FieldsOf(const Type& type)
{
    return type.kind == Kind::List ? FieldsOf(*type.element) : type.fields;
}

/// Writes a value and its fields, one per line, with type, description and permitted values. Permitted values are
/// omitted for a bool: the contract lists those of its wire format, such as 0 and 1.
void WriteValue(std::ostream& out, const std::string& indent, std::string_view name, const Type& type,
                const emulator::Descriptions& descriptions, const emulator::Descriptions& allowed,
                const std::string& parent = {})
{
    const std::string key(name);
    const std::string description = emulator::DescriptionOf(descriptions, parent, key);
    const std::string values = type.kind == Kind::Bool ? std::string() : emulator::DescriptionOf(allowed, parent, key);
    out << indent << key << ": " << NameOf(type) << (description.empty() ? "" : ". ") << description
        << (values.empty() ? "" : " [" + values + "]") << '\n';
    for (const catalogue::Field& field : FieldsOf(type)) {
        WriteValue(out, indent + "  ", field.name, *field.type, descriptions, allowed, key);
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

std::string HelpFor(const Call& call, const emulator::Operation* operation)
{
    std::ostringstream out;
    out << call.name << " (" << Translated(call.subject) << ")\n" << Translated(call.summary) << "\n\n";
    emulator::Descriptions sent;
    emulator::Descriptions allowed;
    emulator::Descriptions received;
    if (operation != nullptr) {
        out << operation->description << "\n\n" << operation->method << ' ' << operation->path << "\n\n";
        sent = operation->sent;
        allowed = operation->allowed;
        received = operation->received;
    }

    out << Filled(call.arguments.empty() ? Texts::tr("Arguments: none") : Texts::tr("Arguments:")) << '\n';
    for (const catalogue::Argument& argument : call.arguments) {
        WriteValue(out, "  ", argument.name, *argument.type, sent, allowed);
    }

    out << '\n';
    if (call.result == nullptr) {
        out << Filled(Texts::tr("Result: none")) << '\n';
    } else {
        out << Filled(Texts::tr("Result: %1"), NameOf(*call.result)) << '\n';
        for (const catalogue::Field& field : FieldsOf(*call.result)) {
            WriteValue(out, "  ", field.name, *field.type, received, {});
        }
    }
    return out.str();
}

}  // namespace apicall
