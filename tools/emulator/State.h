#pragma once

#include "Json.h"

#include <filesystem>
#include <set>
#include <stdexcept>
#include <string>

namespace emulator {

/// A seed file cannot be used; the text names it.
class SeedError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Reads every *.json file of the folder; brms.json becomes the member "brms" and so on.
/// @throws SeedError
Json LoadSeeds(const std::filesystem::path& folder);

/// Where something is in the state, such as "/brms/timeSync".
struct Place : Json::json_pointer {
    Place(const char* text = "") : json_pointer(text) {}
    Place(const json_pointer& place) : json_pointer(place) {}
};

/// The state of all families, each under its name: the seeds, as the calls have changed them.
///
/// A seed file may carry the member "scale": {"lists": ["devices", ...], "identifiers": ["deviceCode", ...]}. With a
/// scale of N each of these lists holds N copies of its elements; in the copies the texts of the named keys, at any
/// depth, end in "-2", "-3", ..., so that identifiers stay unique and still fit each other. A list is multiplied when
/// it is first asked for: most of a large state is never looked at.
class State {
public:
    /// @throws SeedError when a file scales what it does not hold.
    State(Json seeds, int scale);

    /// As with JSON, what is at a place; at() throws when nothing is.
    Json& at(const Place& place);
    Json& operator[](const Place& place);
    template <typename Value>
    Value value(const Place& place, const Value& otherwise)
    {
        return m_families.contains(place) ? at(place).get<Value>() : otherwise;
    }

    /// All of it.
    const Json& families();
    void set(Json families);
    /// Back to the seeds.
    void reset();

    /// The seeds, each list once.
    [[nodiscard]] const Json& seeds() const { return m_seeds; }

private:
    void multiplyWhatMeets(const Place& place);
    void multiply(const std::string& list);

    Json m_seeds;
    Json m_identifiers;  ///< by the lists that are to be multiplied
    int m_scale;
    Json m_families;
    std::set<std::string> m_single;  ///< the lists that are not multiplied yet
};

}  // namespace emulator
