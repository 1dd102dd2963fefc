#pragma once

#include "Call.h"

#include <nlohmann/json_fwd.hpp>

#include <optional>
#include <string>

namespace catalogue {

/// The call that reads the record which a write replaces.
struct MatchingRead {
    const Call* call;
    const Argument* argument;  ///< the argument of the write that takes the record
};

/// Finds the read whose name differs only in the verb and that returns what an argument of the write holds, such as
/// BRMS.GetEncodeConfig for BRMS.UpdateEncodeConfig. Returns nothing when there is none.
std::optional<MatchingRead> FindMatchingRead(const Call& write);

/// Takes the arguments of the read from those of the write: from the argument of the same name, or else from the field
/// of the same name in the record. Throws Mismatch when one is missing.
nlohmann::json ArgumentsOfRead(const MatchingRead& read, const Call& write, const nlohmann::json& given);

/// Returns the value of that argument with which the write changes nothing. Fields that are also arguments of the read
/// get the values of these arguments.
/// @param asked arguments of the read
/// @param record that the read returned
nlohmann::json PresentValue(const MatchingRead& read, const nlohmann::json& asked, const nlohmann::json& record);

/// The type at a path such as "configs/0/bitRate" in the arguments of a call. Throws Mismatch when the path does not
/// exist.
const Type& TypeAt(const Call& call, const std::string& path);

}  // namespace catalogue
