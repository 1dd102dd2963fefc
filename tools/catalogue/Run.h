#pragma once

#include "Call.h"

#include <APIModule.h>
#include <nlohmann/json.hpp>

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace catalogue {

struct RunSettings {
    int serverId = -1;                       ///< -1 for the user manager's current server
    std::optional<int> timeoutSeconds = {};  ///< instead of the call's own
    QWidget* parent = nullptr;               ///< under the wait dialog; null waits in the event loop
    bool excludeUserInput = true;            ///< in the event loop
    QString caption = {};                    ///< of failures that are notified
    QString successTip = {};                 ///< instead of the one that names the call
    std::function<void(APIModule::RequestParam&)> onPacked = {};  ///< the last word on the request
    std::function<void(const QJsonObject&)> onData = {};          ///< sees the data before the Parse reads it
};

/// How a call ended.
struct Outcome {
    int result = -1;           ///< of CAPIModule::ExecuteFuncs
    bool confirmed = false;    ///< the success tip came
    std::string notification;  ///< other text that was notified, empty for none
    nlohmann::json record;     ///< as far as it was read; null for a call without a Parse

    [[nodiscard]] bool Succeeded() const { return result == 0 && confirmed; }
};

/// Runs a call through CAPIModule::ExecuteFuncs; statuses and envelope codes come back as the result. @p arguments are
/// those of ReadArguments(); a Pack that takes them by reference may change them.
Outcome Run(const Call& call, const std::vector<Value>& arguments, const RunSettings& settings);

}  // namespace catalogue
