#include "Call.h"

#include "detail/Texts.h"
#include "families/Families.h"

#include <nlohmann/json.hpp>

#include <algorithm>

namespace catalogue {
namespace {

std::string NamesOfArguments(const Call& call)
{
    std::string names;
    for (const Argument& argument : call.arguments) {
        names += names.empty() ? "" : ", ";
        names += argument.name;
    }
    return names;
}

/// Ends with what the call takes instead.
[[noreturn]] void RefuseArgument(const Call& call, const std::string& name)
{
    if (call.arguments.empty()) {
        //: %1 is a call
        throw Mismatch(Filled(Texts::tr("%1 has no argument \"%2\": it takes none"), call.name, name));
    }
    //: %1 is a call, %3 the names of its arguments
    throw Mismatch(
        Filled(Texts::tr("%1 has no argument \"%2\": it takes %3"), call.name, name, NamesOfArguments(call)));
}

void RefuseUnknown(const Call& call, const nlohmann::json& arguments)
{
    for (const auto& item : arguments.items()) {
        if (call.FindArgument(item.key()) == nullptr) {
            RefuseArgument(call, item.key());
        }
    }
}

}  // namespace

const Argument* Call::FindArgument(std::string_view argumentName) const
{
    const auto found = std::find_if(arguments.begin(), arguments.end(),
                                    [argumentName](const Argument& argument) { return argument.name == argumentName; });
    return found == arguments.end() ? nullptr : &*found;
}

const std::vector<Call>& Calls()
{
    static const std::vector<Call> calls = [] {
        std::vector<Call> all;
        AddBrmsCalls(all);
        AddDmsCalls(all);
        AddIamsCalls(all);
        AddIpmsCalls(all);
        AddObmsCalls(all);
        AddOmmsCalls(all);
        return all;
    }();
    return calls;
}

const Call* FindCall(std::string_view name)
{
    const auto& calls = Calls();
    const auto found = std::find_if(calls.begin(), calls.end(), [name](const Call& call) { return call.name == name; });
    return found == calls.end() ? nullptr : &*found;
}

std::string Translated(std::string_view text)
{
    return QCoreApplication::translate("catalogue::Call", std::string(text).c_str()).toStdString();
}

std::vector<Value> ReadArguments(const Call& call, const nlohmann::json& arguments)
{
    if (!arguments.is_object()) {
        throw Mismatch(
            Filled(Texts::tr("the arguments of %1 must be a JSON object that holds each under its name"), call.name));
    }
    RefuseUnknown(call, arguments);

    std::vector<Value> values;
    for (const Argument& argument : call.arguments) {
        const std::string name(argument.name);
        const auto given = arguments.find(name);
        if (given == arguments.end()) {
            //: %1 is a call, %3 a type
            throw Mismatch(
                Filled(Texts::tr("%1 needs the argument \"%2\" (%3)"), call.name, name, NameOf(*argument.type)));
        }
        values.emplace_back(*argument.type).Assign(*given, "/" + name);
    }
    return values;
}

}  // namespace catalogue
