#pragma once

#include <catalogue/Call.h>

#include <string>
#include <vector>

namespace apicall {

/// The arguments of a call as they stand on the command line. Throws WrongUsage or catalogue::Mismatch.
std::vector<catalogue::Value> ReadArguments(const catalogue::Call& call, const std::vector<std::string>& arguments);

}  // namespace apicall
