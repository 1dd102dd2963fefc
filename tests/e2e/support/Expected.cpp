#include "Expected.h"

#include <algorithm>
#include <stdexcept>

namespace e2e {

Expectation At(const std::string& pointer)
{
    return [pointer = Json::json_pointer(pointer)](const Json& state) { return state.at(pointer); };
}

Json With(Json object, const Json& more)
{
    object.update(more);
    return object;
}

Json Pick(const Json& object, const Keys& keys)
{
    Json picked = Json::object();
    for (const std::string& key : keys) {
        picked[key] = object.at(key);
    }
    return picked;
}

Json PickEach(const Json& list, const Keys& keys)
{
    return Each(list, [&keys](const Json& element) { return Pick(element, keys); });
}

Json PageOf(const Json& list, std::size_t page, std::size_t pageSize)
{
    const std::size_t end = std::min(page * pageSize, list.size());
    Json elements = Json::array();
    for (std::size_t index = (page - 1) * pageSize; index < end; ++index) {
        elements.push_back(list.at(index));
    }
    return elements;
}

Json Element(const Json& list, const std::string& key, const Json& value)
{
    const auto found =
        std::find_if(list.begin(), list.end(), [&](const Json& element) { return element.at(key) == value; });
    if (found == list.end()) {
        throw std::out_of_range("no element with " + key + " " + value.dump());
    }
    return *found;
}

}  // namespace e2e
