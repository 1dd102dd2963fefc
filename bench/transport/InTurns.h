#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace bench {

/// What was measured once, by the names of counters; kSeconds is the time itself.
using Values = std::map<std::string, double>;
constexpr const char* kSeconds = "seconds";

/// One of those that are measured in turns.
struct Turn {
    std::string contender;
    std::function<Values()> measure;
};

/// Registers a benchmark for each contender. One repetition of all of them is measured together, two at a time in
/// turns: what disturbs the machine meanwhile disturbs both alike, and neither finds the processor's caches as it left
/// them.
///
/// @param nRounds how many turns of each make one repetition; it is their medians that are reported
void RegisterInTurns(const std::string& work, int nRounds, std::vector<Turn> turns);

}  // namespace bench
