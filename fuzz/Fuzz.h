#pragma once

#include "support/RandomJson.h"

#include <QJsonDocument>

#include <fuzzer/FuzzedDataProvider.h>
#include <sanitizer/lsan_interface.h>

#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <limits>
#include <string>

/// Shared by the fuzz targets.
namespace fuzz {

/// Makes choices from the fuzzer's bytes. When these are used up, it always returns the first choice.
inline testing_support::Choose ChoiceOf(FuzzedDataProvider& data)
{
    return [&data](quint64 most) { return data.ConsumeIntegralInRange<std::uint64_t>(0, most); };
}

/// Reports a finding and aborts unless the condition holds.
inline void Require(bool bHolds, const std::string& text)
{
    if (!bHolds) {
        std::cerr << text << std::endl;
        std::abort();
    }
}

/// Ignores leaks during its lifetime, because Qt's parser never frees the first of two lists or objects with the
/// same key.
using ForgivenLeaks = __lsan::ScopedDisabler;

inline QJsonDocument Parsed(const QByteArray& text, QJsonParseError* pError = nullptr)
{
    const ForgivenLeaks forgiven;
    return QJsonDocument::fromJson(text, pError);
}

}  // namespace fuzz
