#pragma once

#include <nlohmann/json.hpp>

#include <functional>
#include <string>
#include <vector>

/// Expected records, computed from the emulator's state.
namespace e2e {

using Json = nlohmann::json;
using Keys = std::vector<std::string>;

/// Computes the expected record from the emulator's state.
using Expectation = std::function<Json(const Json& state)>;

/// The value at a JSON pointer.
Expectation At(const std::string& pointer);

/// The object with further members.
Json With(Json object, const Json& more);
/// The object reduced to these members.
Json Pick(const Json& object, const Keys& keys);
Json PickEach(const Json& list, const Keys& keys);
/// The elements of a page; pages count from 1.
Json PageOf(const Json& list, std::size_t page, std::size_t pageSize);
/// The element whose member has this value.
Json Element(const Json& list, const std::string& key, const Json& value);
/// Each element changed by a function.
template <typename Change>
Json Each(const Json& list, Change change)
{
    Json changed = Json::array();
    for (const Json& element : list) {
        changed.push_back(change(element));
    }
    return changed;
}
/// The elements for which a function is true.
template <typename Test>
Json Where(const Json& list, Test test)
{
    Json found = Json::array();
    for (const Json& element : list) {
        if (test(element)) {
            found.push_back(element);
        }
    }
    return found;
}

}  // namespace e2e
