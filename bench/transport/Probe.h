#pragma once

#include <string>

namespace bench {

/// Measures a value of one contender in a separate process.
double Probe(const std::string& what, const std::string& contender, int nPort);

// The values that can be measured.
constexpr const char* kFirstCall = "first-call";    ///< duration of the first call over HTTPS in seconds
constexpr const char* kPeakMemory = "peak-memory";  ///< peak resident set in megabytes when a large reply is read
constexpr const char* kTypedPeakMemory = "typed-peak-memory";  ///< the same with a typed call
constexpr const char* kGrowth = "growth";  ///< growth of the resident set in kilobytes over many calls

}  // namespace bench
