#pragma once

#include <vector>

namespace explorer {

/// The middle of the values, or the mean of the two in the middle; 0 without values.
double Median(std::vector<double> values);

/// The smallest of the values that at least this share of them (0 to 1) does not exceed; 0 without values.
double Percentile(std::vector<double> values, double share);

}  // namespace explorer
