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

/// Appends the suffix to a text or to each text of a list. Empty texts identify nothing and remain unchanged.
void AppendSuffix(Json& value, const std::string& suffix)
{
    if (value.is_array()) {
        for (Json& element : value) {
            AppendSuffix(element, suffix);
        }
    } else if (value.is_string() && !value.get_ref<const std::string&>().empty()) {
        value = value.get<std::string>() + suffix;
    }
}

void RenameIdentifiers(Json& node, const Json& identifiers, const std::string& suffix)
{
    for (auto& member : node.items()) {
        if (std::find(identifiers.begin(), identifiers.end(), member.key()) != identifiers.end()) {
            AppendSuffix(member.value(), suffix);
        } else if (member.value().is_structured()) {
            RenameIdentifiers(member.value(), identifiers, suffix);
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
        throw SeedError(Filled(Texts::tr("folder %1 contains no seed file"), folder.string()));
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
                const StatePath list = StatePath() / family.key() / name.get<std::string>();
                m_seeds.at(list).get_ref<const Json::array_t&>();
                m_identifiers[list.to_string()] = rule.at("identifiers");
            }
        } catch (const Json::exception& error) {
            throw SeedError(family.key() + ".json: " + error.what());
        }
    }
    reset();
}

Json& State::at(const StatePath& path)
{
    multiplyListsAt(path);
    return m_families.at(path);
}

Json& State::operator[](const StatePath& path)
{
    multiplyListsAt(path);
    return m_families[path];
}

const Json& State::families()
{
    multiplyListsAt({});
    return m_families;
}

void State::set(Json families)
{
    m_unmultiplied.clear();
    m_families = std::move(families);
}

void State::reset()
{
    set(m_seeds);
    for (const auto& list : m_identifiers.items()) {
        m_unmultiplied.insert(list.key());
    }
}

/// Multiplies the lists at the path, above it and below it.
void State::multiplyListsAt(const StatePath& path)
{
    const std::string wanted = path.to_string() + "/";
    for (auto list = m_unmultiplied.begin(); list != m_unmultiplied.end();) {
        const std::string known = *list + "/";
        if (StartsWith(known, wanted) || StartsWith(wanted, known)) {
            multiply(*list);
            list = m_unmultiplied.erase(list);
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
        const std::string suffix = "-" + std::to_string(copy);
        for (std::size_t i = 0; i < count; ++i) {
            RenameIdentifiers(elements.emplace_back(elements[i]), identifiers, suffix);
        }
    }
}

}  // namespace emulator
