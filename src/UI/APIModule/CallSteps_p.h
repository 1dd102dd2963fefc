#pragma once

#include "Call.h"

#include <chrono>
#include <functional>
#include <optional>

namespace APIModule {

/// What a call does before its request is sent and after its reply arrived.
struct CallSteps {
    const char* pEntry;  ///< the public function that runs the call, as in log lines
    std::function<int(void*)> pack;
    detail::ReadData read;                             ///< null without a Parse
    bool bTyped = false;                               ///< a typed call reads large replies in the background
    std::optional<std::chrono::milliseconds> timeout;  ///< of a typed call
    ExchangeObserver observer;                         ///< of a typed call
};

}  // namespace APIModule
