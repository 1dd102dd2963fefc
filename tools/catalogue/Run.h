#pragma once

#include "Call.h"

#include <APIModule.h>
#include <ObservedExchange.h>
#include <Outcome.h>

#include <nlohmann/json.hpp>

#include <chrono>
#include <functional>
#include <optional>
#include <vector>

namespace catalogue {

struct RunSettings {
    int serverId = -1;                                            ///< -1 for the user manager's current server
    std::optional<std::chrono::milliseconds> timeout = {};        ///< instead of the call's own
    std::function<void(APIModule::RequestParam&)> onPacked = {};  ///< the last word on the request
    APIModule::ExchangeObserver observer = {};                    ///< sees the exchange of the call
};

/// How a call ended, with its record.
struct Outcome : APIModule::OutcomeBase {
    nlohmann::json record;  ///< as far as it was read; null for a call without a Parse
};

/// Runs a call and waits for its end, behind a wait dialog over @p parent or, with null, in the event loop. @p
/// arguments are those of ReadArguments().
Outcome Run(const Call& call, const std::vector<Value>& arguments, const RunSettings& settings = {},
            QWidget* parent = nullptr);

/// Begins a call, as APIModule::Start() does.
APIModule::CallHandle Start(const Call& call, const std::vector<Value>& arguments, const RunSettings& settings,
                            QObject* context, const std::function<void(const Outcome&)>& finished);

/// The request of a call, which is not sent, as APIModule::Preview() makes it.
std::optional<APIModule::ObservedExchange> Preview(const Call& call, const std::vector<Value>& arguments,
                                                   const RunSettings& settings = {});

}  // namespace catalogue
