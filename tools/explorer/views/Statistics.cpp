#include "Statistics.h"

#include <algorithm>
#include <cmath>

namespace explorer {

double Median(std::vector<double> values)
{
    if (values.empty()) {
        return 0;
    }
    std::sort(values.begin(), values.end());
    const std::size_t middle = values.size() / 2;
    return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

double Percentile(std::vector<double> values, double share)
{
    if (values.empty()) {
        return 0;
    }
    std::sort(values.begin(), values.end());
    const auto rank = std::size_t(std::ceil(share * double(values.size())));
    return values[std::clamp<std::size_t>(rank, 1, values.size()) - 1];
}

}  // namespace explorer
