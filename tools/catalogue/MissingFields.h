#pragma once

#include "Call.h"

#include <nlohmann/json_fwd.hpp>

#include <set>
#include <string>

namespace catalogue {

/// Fields of a record that have their default values because the reply did not contain them, as paths in the type:
/// "/info/channelId", or with "-" instead of every index, "/-/channelId".
using MissingFields = std::set<std::string>;

/// @param data of the reply that the record was read from
/// @param record as far as the Parse read it
/// @param complete whether the Parse read it to the end
MissingFields FindMissingFields(const Call& call, const QJsonObject& data, const nlohmann::json& record, bool complete);

}  // namespace catalogue
