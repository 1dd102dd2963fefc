#pragma once

#include <string>

namespace bench {

/// A figure of one contender, measured in a separate process.
double Probe(const std::string& what, const std::string& contender, int nPort);

// What can be asked.
constexpr const char* kFirstCall = "first-call";    ///< seconds that the first call over HTTPS takes
constexpr const char* kPeakMemory = "peak-memory";  ///< megabytes resident at the most, with a large reply read
constexpr const char* kTypedPeakMemory = "typed-peak-memory";  ///< the same by a typed call
constexpr const char* kGrowth = "growth";  ///< kilobytes resident after many calls more than after some

}  // namespace bench
