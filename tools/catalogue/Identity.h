#pragma once

#include "Type.h"

#include <nlohmann/json_fwd.hpp>

#include <string>
#include <string_view>

namespace catalogue {

/// What distinguishes a record from others of its type.
struct Identity {
    std::string name;        ///< its first text that is named so; empty for none
    std::string identifier;  ///< its first identifier; empty for none
};

/// @p record is a value of the type, which is a record.
Identity IdentityOf(const Type& type, const nlohmann::json& record);

/// Whether values of that name identify something on the server: "id", "channelId", "orgCode" and the like.
bool IsIdentifier(std::string_view name);

/// A plain value as a text: a text as it is, anything else as JSON.
std::string PlainText(const nlohmann::json& value);

}  // namespace catalogue
