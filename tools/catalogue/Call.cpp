#include "Call.h"

#include "detail/Texts.h"
#include "families/Families.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cctype>
#include <numeric>

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

/// The case-insensitive edit distance: the number of letters to insert, remove or replace.
std::size_t Distance(std::string_view left, std::string_view right)
{
    std::vector<std::size_t> row(right.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t(0));
    for (const char letter : left) {
        std::size_t diagonal = row[0]++;
        for (std::size_t i = 0; i < right.size(); ++i) {
            const bool isSame =
                std::tolower(static_cast<unsigned char>(letter)) == std::tolower(static_cast<unsigned char>(right[i]));
            const std::size_t replaced = diagonal + (isSame ? 0 : 1);
            diagonal = row[i + 1];
            row[i + 1] = std::min({replaced, diagonal + 1, row[i] + 1});
        }
    }
    return row.back();
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

std::string ClosestName(std::string_view misspelt, const std::vector<std::string_view>& names)
{
    constexpr std::size_t kLettersPerTypo = 4;
    std::string_view closest;
    std::size_t least = misspelt.size() / kLettersPerTypo + 1;
    for (const std::string_view name : names) {
        const std::size_t distance = Distance(misspelt, name);
        if (distance < least) {
            least = distance;
            closest = name;
        }
    }
    return std::string(closest);
}

void RefuseArgument(const Call& call, const std::string& name)
{
    if (call.arguments.empty()) {
        //: %1 is a call
        throw Mismatch(Filled(Texts::tr("%1 has no argument \"%2\"; it takes no arguments"), call.name, name));
    }
    std::vector<std::string_view> names;
    for (const Argument& argument : call.arguments) {
        names.push_back(argument.name);
    }
    if (const std::string closest = ClosestName(name, names); !closest.empty()) {
        //: %1 is a call, %3 the name of one of its arguments
        throw Mismatch(Filled(Texts::tr("%1 has no argument \"%2\"; did you mean \"%3\"?"), call.name, name, closest));
    }
    //: %1 is a call, %3 the names of its arguments
    throw Mismatch(
        Filled(Texts::tr("%1 has no argument \"%2\"; its arguments are: %3"), call.name, name, NamesOfArguments(call)));
}

std::string Translated(std::string_view text)
{
    return QCoreApplication::translate("catalogue::Call", std::string(text).c_str()).toStdString();
}

std::vector<Value> ReadArguments(const Call& call, const nlohmann::json& arguments)
{
    if (!arguments.is_object()) {
        throw Mismatch(
            Filled(Texts::tr("the arguments of %1 must be a JSON object with the argument names as keys"), call.name));
    }
    RefuseUnknown(call, arguments);

    std::vector<Value> values;
    for (const Argument& argument : call.arguments) {
        const std::string name(argument.name);
        const auto given = arguments.find(name);
        if (given == arguments.end()) {
            //: %1 is a call, %3 a type
            throw Mismatch(
                Filled(Texts::tr("%1 requires the argument \"%2\" (%3)"), call.name, name, NameOf(*argument.type)));
        }
        values.emplace_back(*argument.type).Assign(*given, "/" + name);
    }
    return values;
}

}  // namespace catalogue
