// Writes the site's pages about the calls from the catalogue and the contract: calls.md, which links to a page for each
// family, calls_<family>.md. usage: pages-of-calls <folder of the contract> <folder for the pages>
#include <catalogue/Call.h>
#include <Contract.h>

#include <yaml-cpp/yaml.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using catalogue::Call;
using emulator::Json;
using emulator::Operation;

std::string LowerCase(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(), [](unsigned char letter) { return std::tolower(letter); });
    return text;
}

/// The name without its family.
std::string ShortName(const Call& call)
{
    return call.name.substr(call.family.size() + 1);
}

/// The label of the call's section.
std::string Label(const Call& call)
{
    std::string label = "call_" + call.name;
    std::replace(label.begin(), label.end(), '.', '_');
    return label;
}

/// A link to a name in the reference.
std::string Reference(std::string_view name, std::string_view shown)
{
    return std::string("[").append(shown).append("](@ref ").append(name).append(")");
}

std::string Reference(std::string_view function)
{
    return Reference(function, function.substr(function.rfind(':') + 1));
}

/// The type of an argument or a result, with a link for a record.
std::string TypeOf(const catalogue::Type& type)
{
    if (type.kind == catalogue::Kind::List) {
        return "list of " + TypeOf(*type.element);
    }
    const std::string name = catalogue::NameOf(type);
    return type.kind == catalogue::Kind::Record ? Reference("APIModule::" + name, name) : name;
}

/// Escapes vertical bars, which would end the cell of a table.
std::string Cell(std::string text)
{
    for (std::size_t at = 0; (at = text.find('|', at)) != std::string::npos; at += 2) {
        text.insert(at, 1, '\\');
    }
    return text;
}

std::string Block(const Json& json)
{
    constexpr int kIndentation = 2;
    return "```\n" + json.dump(kIndentation) + "\n```\n\n";
}

/// The path and query with the values of the contract's examples.
std::string ExampleRequest(const Operation& operation)
{
    const auto text = [&operation](const std::string& name) {
        const Json& value = operation.parameterExamples.value(name, Json());
        return value.is_string() ? value.get<std::string>() : value.is_null() ? std::string() : value.dump();
    };
    std::string path = operation.path;
    for (std::size_t begin = 0; (begin = path.find('{', begin)) != std::string::npos;) {
        const std::size_t end = path.find('}', begin);
        path.replace(begin, end + 1 - begin, text(path.substr(begin + 1, end - begin - 1)));
    }
    char separator = '?';
    for (const emulator::QueryParameter& parameter : operation.query) {
        path += separator + parameter.name + "=" + text(parameter.name);
        separator = '&';
    }
    return operation.method + " " + path;
}

void WriteCall(std::ostream& page, const Call& call, const Operation& operation)
{
    page << "### " << ShortName(call) << " {#" << Label(call) << "}\n\n"
         << operation.description << "\n\n| | |\n|---|---|\n"
         << "| Typed call | "
         << Reference("APIModule::" + call.family + "::" + ShortName(call), call.family + "::" + ShortName(call))
         << " |\n| Pack | " << Reference(call.packName) << " |\n";
    if (call.parse != nullptr) {
        page << "| Parse | " << Reference(call.parseName) << " |\n| Result | " << TypeOf(*call.result) << " |\n";
    }
    page << "| Request | " << operation.method << " `" << operation.path << "` |\n"
         << "| Contract | [" << call.name << "](contract/index.html#operation/" << call.name << ") |\n\n";
    if (!call.arguments.empty()) {
        page << "| Argument | Type | Meaning |\n|---|---|---|\n";
        for (const catalogue::Argument& argument : call.arguments) {
            const std::string name(argument.name);
            page << "| " << name << " | " << TypeOf(*argument.type) << " | "
                 << Cell(emulator::DescriptionOf(operation.sent, "", name)) << " |\n";
        }
        page << "\n";
    }
    page << "Example request:\n\n```\n" << ExampleRequest(operation) << "\n";
    if (!operation.bodyExamples.empty()) {
        constexpr int kIndentation = 2;
        page << "\n" << operation.bodyExamples.front().dump(kIndentation) << "\n";
    }
    page << "```\n\n";
    if (!operation.replyExamples.empty()) {
        page << "Example reply:\n\n" << Block(operation.replyExamples.front());
    }
}

/// The description of the contract's tag that has the name of the subject.
std::string DescriptionOf(const YAML::Node& tags, std::string_view subject)
{
    for (const YAML::Node& tag : tags) {
        if (tag["name"].as<std::string>() == subject) {
            return tag["description"].as<std::string>();
        }
    }
    throw std::runtime_error("the contract has no tag named " + std::string(subject));
}

/// Writes the page of one family.
void WriteFamily(const std::filesystem::path& folder, const emulator::Contract& contract, const YAML::Node& file,
                 const std::vector<const Call*>& calls)
{
    const std::string& family = calls.front()->family;
    const auto purpose = file["info"]["title"].as<std::string>();
    std::ofstream page(folder / ("calls_" + LowerCase(family) + ".md"));
    page << "# " << family << " calls {#calls_" << LowerCase(family) << "}\n\n"
         << purpose << ". " << file["info"]["description"].as<std::string>() << "\n\nThe typed calls are in `<"
         << family << "/" << family << "Calls.h>`, the Packs and Parses in "
         << Reference("APIModule::C" + family + "Module", "C" + family + "Module") << ".\n\n"
         << "| Call | What it does | Request |\n|---|---|---|\n";
    for (const Call* call : calls) {
        const Operation& operation = contract.operation(call->name);
        page << "| " << Reference(Label(*call), ShortName(*call)) << " | " << Cell(std::string(call->summary)) << " | "
             << operation.method << " `" << operation.path << "` |\n";
    }
    std::string_view subject;
    for (const Call* call : calls) {
        if (call->subject != subject) {
            subject = call->subject;
            page << "\n## " << subject << "\n\n" << DescriptionOf(file["tags"], subject) << "\n\n";
        }
        WriteCall(page, *call, contract.operation(call->name));
    }
}

}  // namespace

int main(int /*argc*/, char** argv)
{
    const std::filesystem::path contractFolder = argv[1];
    const std::filesystem::path folder = argv[2];
    const emulator::Contract contract = emulator::Contract::Load(contractFolder);

    std::ofstream overview(folder / "calls.md");
    overview << "# Calls {#calls}\n\nAll calls of the library, by family. The section of a call has its functions, its "
                "record, its arguments, and an example of a request and a reply.\n";
    const std::vector<Call>& calls = catalogue::Calls();
    for (auto begin = calls.begin(); begin != calls.end();) {
        const auto end =
            std::find_if(begin, calls.end(), [begin](const Call& call) { return call.family != begin->family; });
        std::vector<const Call*> ofFamily;
        std::transform(begin, end, std::back_inserter(ofFamily), [](const Call& call) { return &call; });
        const std::string file = LowerCase(begin->family);
        WriteFamily(folder, contract, YAML::LoadFile((contractFolder / (file + ".yaml")).string()), ofFamily);
        overview << "\n- @subpage calls_" << file << "\n";
        begin = end;
    }
}
