#pragma once

#include <nlohmann/json.hpp>

#include <optional>
#include <random>
#include <string>
#include <vector>

namespace soak {

using Json = nlohmann::json;
using Random = std::mt19937_64;

/// How a call must end.
enum class Ending {
    Success,
    Judged,  ///< with a code that is the result, or is notified where the caller asked for that
    Broken   ///< with a code that is notified in any case
};

/// A fault of a call, and the expected outcome.
struct Fault {
    std::string name;
    Json control;  ///< the fault for the emulator, null for none; its path is set later
    Ending ending = Ending::Success;
    int code = 0;
    std::optional<int> timeoutSeconds = {};  ///< instead of the call's own
    bool parentGoes = false;                 ///< the call waits behind a dialog whose parent is destroyed meanwhile
    bool answerIsLate = false;               ///< the emulator may meet the request after the call
};

/// @param onlyReads whether the call changes nothing, so that it may reach the emulator at any time
Fault DrawFault(Random& random, bool onlyReads);

/// The names of all faults, the usual ones first.
std::vector<std::string> FaultNames();

/// True in @p share of all cases.
bool Chance(Random& random, double share);

template <typename Values>
const auto& OneOf(Random& random, const Values& values)
{
    return values[std::uniform_int_distribution<std::size_t>(0, values.size() - 1)(random)];
}

}  // namespace soak
