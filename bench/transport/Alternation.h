#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace bench {

/// The values of one measurement by counter; kSeconds is the time.
using Values = std::map<std::string, double>;
constexpr const char* kSeconds = "seconds";

/// A contender, which is measured alternately with others.
struct Contender {
    std::string name;
    std::function<Values()> measure;
};

/// Registers a benchmark for each contender. Contenders are measured two at a time, alternately: load on the machine
/// affects both equally, and neither finds its data in the processor's caches.
///
/// @param nRounds number of measurements of each contender in one repetition, of which the median is reported
void RegisterAlternating(const std::string& work, int nRounds, std::vector<Contender> contenders);

}  // namespace bench
