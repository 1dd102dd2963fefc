#include "Call.h"

#include "families/Families.h"

#include <nlohmann/json.hpp>

#include <algorithm>

namespace catalogue {
namespace {

std::string Expected(const Call& call)
{
    if (call.arguments.empty()) {
        return "it takes none";
    }
    std::string names;
    for (const Argument& argument : call.arguments) {
        names += names.empty() ? "it takes " : ", ";
        names += argument.name;
    }
    return names;
}

void RefuseUnknown(const Call& call, const nlohmann::json& arguments)
{
    for (const auto& item : arguments.items()) {
        if (call.FindArgument(item.key()) == nullptr) {
            throw Mismatch(call.name + " has no argument \"" + item.key() + "\": " + Expected(call));
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

std::vector<Value> ReadArguments(const Call& call, const nlohmann::json& arguments)
{
    if (!arguments.is_object()) {
        throw Mismatch("the arguments of " + call.name + " must be a JSON object that holds each under its name");
    }
    RefuseUnknown(call, arguments);

    std::vector<Value> values;
    for (const Argument& argument : call.arguments) {
        const std::string name(argument.name);
        const auto given = arguments.find(name);
        if (given == arguments.end()) {
            throw Mismatch(call.name + " needs the argument \"" + name + "\" (" + NameOf(*argument.type) + ")");
        }
        values.emplace_back(*argument.type).Assign(*given, "/" + name);
    }
    return values;
}

}  // namespace catalogue
