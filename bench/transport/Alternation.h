#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace bench {

/// The values of one measurement by counter; kSeconds is the time.
using Values = std::map<std::string, double>;
constexpr const char* kSeconds = "seconds";

/// The duration of the work.
Values Time(const std::function<void()>& work);

/// The delays of a timer's ticks while the work runs the event loop, in milliseconds and in ascending order.
std::vector<double> Lateness(int nInterval, const std::function<void()>& work);

/// The longest stall of the event loop that the work runs, in milliseconds.
Values Stall(const std::function<void()>& work);

/// Runs the event loop for this time.
void Idle(int nMilliseconds);

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
