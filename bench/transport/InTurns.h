#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace bench {

/// The values of one measurement by counter; kSeconds is the time.
using Values = std::map<std::string, double>;
constexpr const char* kSeconds = "seconds";

/// A contender that is measured in turns with others.
struct Turn {
    std::string contender;
    std::function<Values()> measure;
};

/// Registers a benchmark for each contender. Contenders are measured two at a time, taking turns: load on the machine
/// affects both equally, and neither finds its data in the processor's caches.
///
/// @param nRounds number of turns of each contender in one repetition, of which the median is reported
void RegisterInTurns(const std::string& work, int nRounds, std::vector<Turn> turns);

}  // namespace bench
