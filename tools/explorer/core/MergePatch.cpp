#include "MergePatch.h"

namespace explorer {
namespace {

using nlohmann::json;

json Changes(const json& from, const json& to)
{
    if (!from.is_object() || !to.is_object()) {
        return to;
    }
    json patch = json::object();
    for (const auto& member : to.items()) {
        const auto before = from.find(member.key());
        if (before == from.end()) {
            patch[member.key()] = member.value();
        } else if (*before != member.value()) {
            patch[member.key()] = Changes(*before, member.value());
        }
    }
    for (const auto& member : from.items()) {
        if (!to.contains(member.key())) {
            patch[member.key()] = nullptr;
        }
    }
    return patch;
}

}  // namespace

std::optional<json> MergePatch(const json& from, const json& to)
{
    json patch = Changes(from, to);
    json patched = from;
    patched.merge_patch(patch);
    return patched == to ? std::optional(std::move(patch)) : std::nullopt;
}

}  // namespace explorer
