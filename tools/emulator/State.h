#pragma once

#include "Json.h"

#include <filesystem>
#include <set>
#include <stdexcept>
#include <string>

namespace emulator {

/// An invalid seed file; the text names it.
class SeedError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Reads every *.json file of the folder; brms.json becomes the member "brms" and so on.
/// @throws SeedError
Json LoadSeeds(const std::filesystem::path& folder);

/// A path in the state, such as "/brms/timeSync".
struct StatePath : Json::json_pointer {
    StatePath(const char* text = "") : json_pointer(text) {}
    StatePath(const json_pointer& path) : json_pointer(path) {}
};

/// The state of all families, by name: the seeds with all changes made by calls.
///
/// A seed file may carry the member "scale": {"lists": ["devices", ...], "identifiers": ["deviceCode", ...]}. With a
/// scale of N, each of these lists has N copies of its elements. In the copies, the texts of the named keys at any
/// depth get the suffix "-2", "-3", ..., so that identifiers stay unique and references between copies stay valid. A
/// list is multiplied on first access, because most of a large state is never read.
class State {
public:
    /// @throws SeedError when a file scales a list that it does not contain.
    State(Json seeds, int scale);

    /// The value at a path, as with JSON; at() throws if there is none.
    Json& at(const StatePath& path);
    Json& operator[](const StatePath& path);
    template <typename Value>
    Value value(const StatePath& path, const Value& otherwise)
    {
        return m_families.contains(path) ? at(path).get<Value>() : otherwise;
    }

    /// The whole state.
    const Json& families();
    void set(Json families);
    /// Restores the seeds.
    void reset();

    /// The seeds, with no list multiplied.
    [[nodiscard]] const Json& seeds() const { return m_seeds; }

private:
    void multiplyListsAt(const StatePath& path);
    void multiply(const std::string& list);

    Json m_seeds;
    Json m_identifiers;  ///< keys that identify elements, by the path of the list to multiply
    int m_scale;
    Json m_families;
    std::set<std::string> m_unmultiplied;  ///< the paths of the lists not multiplied yet
};

}  // namespace emulator
