#pragma once

#include "Call.h"

#include <nlohmann/json_fwd.hpp>

#include <optional>
#include <string>

namespace catalogue {

/// The read that brings what a write replaces.
struct MatchingRead {
    const Call* call;
    const Argument* argument;  ///< of the write: what the read returns
};

/// The read of the same name behind its verb whose record is an argument of the write: BRMS.GetEncodeConfig for
/// BRMS.UpdateEncodeConfig. Nothing for a call that has none.
std::optional<MatchingRead> FindMatchingRead(const Call& write);

/// The arguments of the read, from those given for the write: the ones of the same name, or the fields of the same name
/// in the record. Throws Mismatch when one is missing.
nlohmann::json ArgumentsOfRead(const MatchingRead& read, const Call& write, const nlohmann::json& given);

/// The type of what a path such as "configs/0/bitRate" names in the arguments of a call. Throws Mismatch for a place
/// that the call does not have.
const Type& TypeAt(const Call& call, const std::string& path);

}  // namespace catalogue
