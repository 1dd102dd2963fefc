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

/// Ignores leaks during its lifetime. Qt's parser never frees the first of two lists or objects under the
/// same key.
using ForgivenLeaks = __lsan::ScopedDisabler;

inline QJsonDocument Parsed(const QByteArray& text, QJsonParseError* pError = nullptr)
{
    const ForgivenLeaks forgiven;
    return QJsonDocument::fromJson(text, pError);
}

}  // namespace fuzz
