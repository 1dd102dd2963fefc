#pragma once

#include <catalogue/Call.h>

#include <string>

namespace apicall {

/// Every call on a line that begins with its name.
std::string ListOfCalls();

/// What a call does, its arguments and its result with their types.
std::string HelpFor(const catalogue::Call& call);

}  // namespace apicall
