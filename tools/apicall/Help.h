#pragma once

#include <catalogue/Call.h>
#include <Contract.h>

#include <string>

namespace apicall {

/// All calls, one per line, each with its name and summary.
std::string ListOfCalls();

/// Describes a call with its arguments and result, using the contract's texts about its operation. With null, lists
/// only names and types.
std::string HelpFor(const catalogue::Call& call, const emulator::Operation* operation);

}  // namespace apicall
