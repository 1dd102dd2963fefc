#include "Fault.h"

#include <array>

namespace soak {
namespace {

constexpr int kUnusable = -1;
constexpr int kNetworkError = -18;
constexpr int kTimedOut = -101;
constexpr int kUnauthorised = 7000;

// Includes statuses without a body, redirects and requests for authentication.
constexpr std::array kStatuses = {201, 204, 301, 302, 304, 307, 400, 403, 404, 407, 409, 418, 500, 501, 502, 503, 599};
constexpr std::array kCodes = {-7, 0, 1, 999, 1001, 1005, 2001, 2147483647};

struct Kind {
    double weight;  ///< relative frequency
    bool onlyReading;
    Fault fault;
    void (*draw)(Random& random, Fault& fault) = nullptr;  ///< completes the fault
};

void DrawDelay(Random& random, Fault& fault)
{
    constexpr int kLongest = 15;
    fault.control["delayMs"] = std::uniform_int_distribution(0, kLongest)(random);
}

void DrawStatus(Random& random, Fault& fault)
{
    fault.code = OneOf(random, kStatuses);
    fault.control["status"] = fault.code;
}

void DrawCode(Random& random, Fault& fault)
{
    fault.code = OneOf(random, kCodes);
    fault.control["code"] = fault.code;
}

// A time-out takes a second, so these are rare. Qt repeats a request whose connection closed, so faults with 0 times
// apply until they are cleared.
const std::vector<Kind> kKinds = {
    {70, false, {"none", {}}},
    {3, false, {"delay", {{"kind", "delay"}}}, &DrawDelay},
    {6, false, {"status", {{"kind", "status"}}, Ending::NotifiedOnRequest}, &DrawStatus},
    {1, false, {"unauthorised", {{"kind", "status"}, {"status", 401}}, Ending::AlwaysNotified, kUnauthorised}},
    {6, false, {"envelope", {{"kind", "envelope"}, {"desc", "refused"}}, Ending::NotifiedOnRequest}, &DrawCode},
    {2, false, {"empty", {{"kind", "empty"}}, Ending::NotifiedOnRequest, kUnusable}},
    {2, false, {"cut", {{"kind", "cut"}}, Ending::NotifiedOnRequest, kUnusable}},
    {2, false, {"notJson", {{"kind", "notJson"}}, Ending::NotifiedOnRequest, kUnusable}},
    {2, false, {"array", {{"kind", "text"}, {"body", "[{\"code\": 1000}]"}}, Ending::NotifiedOnRequest, 0}},
    {1, false, {"large", {{"kind", "large"}, {"size", 200'000}}}},
    {0.5, false, {"slow", {{"kind", "slow"}, {"bytesPerSecond", 50'000}}}},
    {1.5, false, {"closeBefore", {{"kind", "closeBefore"}, {"times", 0}}, Ending::AlwaysNotified, kNetworkError}},
    {1.5, false, {"closeMiddle", {{"kind", "closeMiddle"}, {"times", 0}}, Ending::AlwaysNotified, kNetworkError}},
    {0.05, false, {"silent", {{"kind", "silent"}, {"times", 0}}, Ending::AlwaysNotified, kTimedOut, 1}},
    {1,
     true,
     {"noTime",
      {{"kind", "delay"}, {"delayMs", 1000}, {"times", 0}},
      Ending::AlwaysNotified,
      kTimedOut,
      0,
      false,
      true}},
    {0.5, true, {"parentDies", {{"kind", "silent"}, {"times", 0}}, Ending::AlwaysNotified, kTimedOut, {}, true, true}},
};

}  // namespace

Fault DrawFault(Random& random, bool onlyReads)
{
    std::vector<double> weights;
    weights.reserve(kKinds.size());
    for (const Kind& kind : kKinds) {
        weights.push_back(kind.onlyReading && !onlyReads ? 0 : kind.weight);
    }
    const Kind& kind = kKinds.at(std::discrete_distribution<std::size_t>(weights.begin(), weights.end())(random));
    Fault fault = kind.fault;
    if (kind.draw) {
        kind.draw(random, fault);
    }
    return fault;
}

std::vector<std::string> FaultNames()
{
    std::vector<std::string> names;
    names.reserve(kKinds.size());
    for (const Kind& kind : kKinds) {
        names.push_back(kind.fault.name);
    }
    return names;
}

bool Chance(Random& random, double share)
{
    return std::bernoulli_distribution(share)(random);
}

}  // namespace soak
