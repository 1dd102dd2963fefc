#pragma once

#include <catalogue/Call.h>

#include <filesystem>
#include <string>

namespace apicall {

/// Every call on a line that begins with its name.
std::string ListOfCalls();

/// What a call does, its arguments and its result with their types, and what the contract in that folder says about
/// them. Without a contract there are names and types alone.
std::string HelpFor(const catalogue::Call& call, const std::filesystem::path& contract);

}  // namespace apicall
