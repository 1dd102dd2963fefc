#pragma once

#include <nlohmann/json.hpp>

#include <optional>
#include <random>
#include <string>
#include <vector>

namespace soak {

using Json = nlohmann::json;
using Random = std::mt19937_64;

/// The expected end of a call.
enum class Ending {
    Success,
    NotifiedOnRequest,  ///< with a code that is returned, or notified on request
    AlwaysNotified      ///< with a code that is always notified
};

/// A fault of a call, and the expected outcome.
struct Fault {
    std::string name;
    Json control;  ///< the fault for the emulator or null; its path is set later
    Ending ending = Ending::Success;
    int code = 0;
    std::optional<int> timeoutSeconds = {};  ///< overrides the call's time-out
    bool parentDies = false;                 ///< the parent of the wait dialog is destroyed during the wait
    bool requestIsLate = false;              ///< the emulator may receive the request after the call has ended
};

/// @param onlyReads whether the call changes nothing, so that it may reach the emulator at any time
Fault DrawFault(Random& random, bool onlyReads);

/// The names of all faults, the case without a fault first.
std::vector<std::string> FaultNames();

/// Returns true with probability @p share.
bool Chance(Random& random, double share);

template <typename Values>
const auto& OneOf(Random& random, const Values& values)
{
    return values[std::uniform_int_distribution<std::size_t>(0, values.size() - 1)(random)];
}

}  // namespace soak
