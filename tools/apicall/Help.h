#pragma once

#include <catalogue/Call.h>

#include <filesystem>
#include <string>

namespace apicall {

/// All calls, one per line, each with its name and summary.
std::string ListOfCalls();

/// Describes a call with its arguments and result, using the contract in the given folder. Without a contract, lists
/// only names and types.
std::string HelpFor(const catalogue::Call& call, const std::filesystem::path& contract);

}  // namespace apicall
