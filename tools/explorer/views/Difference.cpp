#include "Difference.h"

#include "Json.h"

namespace explorer {

using nlohmann::json;

std::vector<Difference> Differences(const json& left, const json& right)
{
    std::vector<Difference> differences;
    const json steps = json::diff(left, right);
    for (const json& step : steps) {
        const auto& path = step.at("path").get_ref<const std::string&>();
        const json::json_pointer place(path);
        const bool isAdded = step.at("op") == "add";
        const bool isRemoved = step.at("op") == "remove";
        differences.push_back({QString::fromStdString(path), isAdded ? QString() : CompactJsonText(left.at(place)),
                               isRemoved ? QString() : CompactJsonText(step.at("value"))});
    }
    return differences;
}

}  // namespace explorer
