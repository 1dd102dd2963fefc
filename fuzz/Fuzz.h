#pragma once

#include "support/RandomJson.h"

#include <fuzzer/FuzzedDataProvider.h>

#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <limits>
#include <string>

/// What the targets share.
namespace fuzz {

/// Choices out of the fuzzer's bytes; when these are used up, always the first one.
inline testing_support::Choose ChoiceOf(FuzzedDataProvider& data)
{
    return [&data](quint64 most) { return data.ConsumeIntegralInRange<std::uint64_t>(0, most); };
}

/// Ends the run as a finding.
inline void Require(bool bHolds, const std::string& text)
{
    if (!bHolds) {
        std::cerr << text << std::endl;
        std::abort();
    }
}

}  // namespace fuzz
