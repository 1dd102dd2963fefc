#include "Arguments.h"

#include "Options.h"
#include "Texts.h"

#include <nlohmann/json.hpp>

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
        //: %1 is what was read, %2 the reason
        throw WrongUsage(Filled(Texts::tr("%1 is not JSON: %2"), what, error.what()));
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
        throw WrongUsage(Filled(Texts::tr("nothing may follow the JSON object with the arguments")));
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

json ByName(const catalogue::Call& call, const std::vector<std::string>& arguments)
{
    json object = json::object();
    for (const std::string& argument : arguments) {
        const auto separator = argument.find('=');
        if (separator == std::string::npos) {
            throw WrongUsage(Filled(Texts::tr("argument \"%1\" is neither name=value nor a JSON object"), argument));
        }
        const std::string name = argument.substr(0, separator);
        const std::string value = argument.substr(separator + 1);
        if (object.contains(name)) {
            throw WrongUsage(Filled(Texts::tr("argument \"%1\" is given twice"), name));
        }
        const catalogue::Argument* known = call.FindArgument(name);
        const bool isJson = known != nullptr && known->type->kind != catalogue::Kind::Text;
        //: %1 is the name, %2 the type
        object[name] = isJson ? ParseJson(value, Filled(Texts::tr("argument \"%1\" (%2)"), name, NameOf(*known->type)))
                              : json(value);
    }
    return object;
}

}  // namespace

std::vector<catalogue::Value> ReadArguments(const catalogue::Call& call, const std::vector<std::string>& arguments)
{
    return catalogue::ReadArguments(call, IsOneObject(arguments) ? OneObject(arguments) : ByName(call, arguments));
}

}  // namespace apicall
