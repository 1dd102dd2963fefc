#pragma once

#include "Type.h"

#include <nlohmann/json_fwd.hpp>

#include <string>
#include <string_view>

namespace catalogue {

/// What distinguishes a record from others of its type.
struct Identity {
    std::string name;        ///< the first field called "name" or "...Name"; empty for none
    std::string identifier;  ///< the first identifier; empty for none
};

/// @param type a record type
/// @param record a value of the type
Identity IdentityOf(const Type& type, const nlohmann::json& record);

/// Whether a field of that name identifies an object on the server: "id", "channelId", "orgCode" and the like.
bool IsIdentifier(std::string_view name);

/// A plain value as text: a string unchanged, any other value as JSON.
std::string PlainText(const nlohmann::json& value);

}  // namespace catalogue
