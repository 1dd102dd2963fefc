#include "State.h"

#include "Texts.h"

#include <algorithm>
#include <fstream>
#include <utility>

namespace emulator {
namespace {

Json ReadFile(const std::filesystem::path& file)
{
    std::ifstream stream(file);
    try {
        return Json::parse(stream);
    } catch (const Json::exception& error) {
        throw SeedError(file.filename().string() + ": " + error.what());
    }
}

/// Appends the mark to a text, or to each text of a list; an empty text names nothing and stays.
void MarkTexts(Json& value, const std::string& mark)
{
    if (value.is_array()) {
        for (Json& element : value) {
            MarkTexts(element, mark);
        }
    } else if (value.is_string() && !value.get_ref<const std::string&>().empty()) {
        value = value.get<std::string>() + mark;
    }
}

void MarkCopy(Json& node, const Json& identifiers, const std::string& mark)
{
    for (auto& member : node.items()) {
        if (std::find(identifiers.begin(), identifiers.end(), member.key()) != identifiers.end()) {
            MarkTexts(member.value(), mark);
        } else if (member.value().is_structured()) {
            MarkCopy(member.value(), identifiers, mark);
        }
    }
}

void Multiply(Json& family, int scale)
{
    const Json rule = family.value("scale", Json::object());
    family.erase("scale");
    for (const Json& name : rule.value("lists", Json::array())) {
        Json& list = family.at(name.get<std::string>());
        const Json original = list;
        for (int copy = 2; copy <= scale; ++copy) {
            for (Json element : original) {
                MarkCopy(element, rule.at("identifiers"), "-" + std::to_string(copy));
                list.push_back(std::move(element));
            }
        }
    }
}

}  // namespace

Json LoadSeeds(const std::filesystem::path& folder, int scale)
{
    Json state = Json::object();
    std::error_code fault;
    for (const auto& entry : std::filesystem::directory_iterator(folder, fault)) {
        if (entry.path().extension() != ".json") {
            continue;
        }
        Json family = ReadFile(entry.path());
        try {
            Multiply(family, scale);
        } catch (const Json::exception& error) {
            throw SeedError(entry.path().filename().string() + ": " + error.what());
        }
        state[entry.path().stem().string()] = std::move(family);
    }
    if (state.empty()) {
        throw SeedError(Filled(Texts::tr("no seed file in the folder %1"), folder.string()));
    }
    return state;
}

}  // namespace emulator
