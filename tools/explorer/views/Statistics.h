#pragma once

#include <vector>

namespace explorer {

/// The median; 0 without values.
double Median(std::vector<double> values);

/// The percentile by nearest rank, for a share of 0 to 1; 0 without values.
double Percentile(std::vector<double> values, double share);

}  // namespace explorer
