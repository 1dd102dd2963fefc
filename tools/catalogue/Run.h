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
    int serverId = -1;                                            ///< -1: the user manager's current server
    std::optional<std::chrono::milliseconds> timeout = {};        ///< overrides the call's default
    std::function<void(APIModule::RequestParam&)> onPacked = {};  ///< may change the packed request
    APIModule::ExchangeObserver observer = {};                    ///< receives the exchange of the call
};

/// The outcome of a call with its record as JSON.
struct Outcome : APIModule::OutcomeBase {
    nlohmann::json record;  ///< the fields read so far; null for a call without a Parse
};

/// Runs a call and waits until it ends: behind a wait dialog over @p parent, or in the event loop when it is null.
/// @p arguments come from ReadArguments().
Outcome Run(const Call& call, const std::vector<Value>& arguments, const RunSettings& settings = {},
            QWidget* parent = nullptr);

/// Starts a call, as APIModule::Start() does.
APIModule::CallHandle Start(const Call& call, const std::vector<Value>& arguments, const RunSettings& settings,
                            QObject* context, const std::function<void(const Outcome&)>& finished);

/// Builds the request of a call without sending it, as APIModule::Preview() does.
std::optional<APIModule::ObservedExchange> Preview(const Call& call, const std::vector<Value>& arguments,
                                                   const RunSettings& settings = {});

}  // namespace catalogue
