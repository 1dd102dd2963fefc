#include "State.h"

#include "Text.h"
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

}  // namespace

Json LoadSeeds(const std::filesystem::path& folder)
{
    Json seeds = Json::object();
    std::error_code fault;
    for (const auto& entry : std::filesystem::directory_iterator(folder, fault)) {
        if (entry.path().extension() == ".json") {
            seeds[entry.path().stem().string()] = ReadFile(entry.path());
        }
    }
    if (seeds.empty()) {
        throw SeedError(Filled(Texts::tr("no seed file in the folder %1"), folder.string()));
    }
    return seeds;
}

State::State(Json seeds, int scale) : m_seeds(std::move(seeds)), m_identifiers(Json::object()), m_scale(scale)
{
    for (const auto& family : m_seeds.items()) {
        try {
            const Json rule = family.value().value("scale", Json::object());
            family.value().erase("scale");
            for (const Json& name : rule.value("lists", Json::array())) {
                const Place list = Place() / family.key() / name.get<std::string>();
                m_seeds.at(list).get_ref<const Json::array_t&>();
                m_identifiers[list.to_string()] = rule.at("identifiers");
            }
        } catch (const Json::exception& error) {
            throw SeedError(family.key() + ".json: " + error.what());
        }
    }
    reset();
}

Json& State::at(const Place& place)
{
    multiplyWhatMeets(place);
    return m_families.at(place);
}

Json& State::operator[](const Place& place)
{
    multiplyWhatMeets(place);
    return m_families[place];
}

const Json& State::families()
{
    multiplyWhatMeets({});
    return m_families;
}

void State::set(Json families)
{
    m_single.clear();
    m_families = std::move(families);
}

void State::reset()
{
    set(m_seeds);
    for (const auto& list : m_identifiers.items()) {
        m_single.insert(list.key());
    }
}

/// The lists at the place, around it and in it.
void State::multiplyWhatMeets(const Place& place)
{
    const std::string asked = place.to_string() + "/";
    for (auto list = m_single.begin(); list != m_single.end();) {
        const std::string known = *list + "/";
        if (StartsWith(known, asked) || StartsWith(asked, known)) {
            multiply(*list);
            list = m_single.erase(list);
        } else {
            ++list;
        }
    }
}

void State::multiply(const std::string& list)
{
    auto& elements = m_families.at(Json::json_pointer(list)).get_ref<Json::array_t&>();
    const Json& identifiers = m_identifiers.at(list);
    const std::size_t count = elements.size();
    elements.reserve(count * static_cast<std::size_t>(m_scale));
    for (int copy = 2; copy <= m_scale; ++copy) {
        const std::string mark = "-" + std::to_string(copy);
        for (std::size_t i = 0; i < count; ++i) {
            MarkCopy(elements.emplace_back(elements[i]), identifiers, mark);
        }
    }
}

}  // namespace emulator
