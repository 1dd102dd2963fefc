#include "Arguments.h"

#include "Options.h"
#include "Texts.h"

#include <catalogue/Merge.h>

#include <algorithm>
#include <fstream>
#include <iostream>
#include <iterator>

namespace apicall {
namespace {

using nlohmann::json;

std::string ReadAll(std::istream& stream, const std::string& name)
{
    try {
        return {std::istreambuf_iterator<char>(stream), {}};
    } catch (const std::ios_base::failure&) {
        throw WrongUsage(Filled(Texts::tr("cannot read %1"), name));
    }
}

std::string ReadFile(const std::string& name)
{
    std::ifstream file(name, std::ios::binary);
    if (!file) {
        throw WrongUsage(Filled(Texts::tr("cannot open %1"), name));
    }
    return ReadAll(file, name);
}

json ParseJson(const std::string& text, const std::string& what)
{
    try {
        return json::parse(text);
    } catch (const json::parse_error& error) {
        //: %1 is the name of the input, %2 a number
        throw WrongUsage(
            Filled(Texts::tr("%1 is not valid JSON: syntax error at byte %2"), what, std::to_string(error.byte)));
    }
}

bool IsOneObject(const std::vector<std::string>& arguments)
{
    if (arguments.empty()) {
        return false;
    }
    const std::string& first = arguments.front();
    return first == "-" || first.rfind('@', 0) == 0 || first.rfind('{', 0) == 0;
}

json OneObject(const std::vector<std::string>& arguments)
{
    if (arguments.size() > 1) {
        throw WrongUsage(Filled(Texts::tr("a JSON object must be the only argument")));
    }
    const std::string& argument = arguments.front();
    if (argument == "-") {
        const std::string name = Filled(Texts::tr("standard input"));
        return ParseJson(ReadAll(std::cin, name), name);
    }
    if (argument.front() == '@') {
        const std::string file = argument.substr(1);
        return ParseJson(ReadFile(file), file);
    }
    return ParseJson(argument, Filled(Texts::tr("the argument")));
}

}  // namespace

GivenArguments::GivenArguments(const catalogue::Call& call, const std::vector<std::string>& arguments)
{
    if (IsOneObject(arguments)) {
        m_assignments.push_back({json::json_pointer(), OneObject(arguments)});
        return;
    }
    std::vector<std::string> names;
    for (const std::string& argument : arguments) {
        const auto separator = argument.find('=');
        if (separator == std::string::npos) {
            throw WrongUsage(Filled(Texts::tr("argument \"%1\" is neither name=value nor a JSON object"), argument));
        }
        const std::string name = argument.substr(0, separator);
        const std::string value = argument.substr(separator + 1);
        const auto contains = [](const std::string& outer, const std::string& inner) {
            return inner == outer || inner.rfind(outer + '/', 0) == 0;
        };
        const bool isDuplicate = std::any_of(names.begin(), names.end(), [&](const std::string& other) {
            return contains(other, name) || contains(name, other);
        });
        if (isDuplicate) {
            throw WrongUsage(Filled(Texts::tr("argument \"%1\" is given twice"), name));
        }
        names.push_back(name);
        const catalogue::Type& type = catalogue::TypeAt(call, name);
        const bool isText = type.kind == catalogue::Kind::Text;
        //: %1 is the name, %2 the type
        const std::string what = Filled(Texts::tr("argument \"%1\" (%2)"), name, NameOf(type));
        m_assignments.push_back({json::json_pointer("/" + name), isText ? json(value) : ParseJson(value, what)});
    }
}

json GivenArguments::Object() const
{
    json object = json::object();
    for (const Assignment& assignment : m_assignments) {
        object[assignment.path] = assignment.value;
    }
    return object;
}

void GivenArguments::MergeInto(json& object) const
{
    for (const Assignment& assignment : m_assignments) {
        object[assignment.path].merge_patch(assignment.value);
    }
}

}  // namespace apicall
