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
    const char* name;
    double weight;  ///< relative frequency
    bool onlyReading;
    Fault (*make)(Random& random);
};

Fault Delayed(Random& random)
{
    constexpr int kLongest = 15;
    return {"delay", {{"kind", "delay"}, {"delayMs", std::uniform_int_distribution(0, kLongest)(random)}}};
}

Fault Status(Random& random)
{
    const int status = OneOf(random, kStatuses);
    return {"status", {{"kind", "status"}, {"status", status}}, Ending::NotifiedOnRequest, status};
}

Fault Envelope(Random& random)
{
    const int code = OneOf(random, kCodes);
    return {"envelope", {{"kind", "envelope"}, {"code", code}, {"desc", "refused"}}, Ending::NotifiedOnRequest, code};
}

// A time-out takes a second, so these are rare.
constexpr std::array kKinds = {
    Kind{"none", 70, false,
         [](Random&) {
             return Fault{"none", {}};
         }},
    Kind{"delay", 3, false, &Delayed}, Kind{"status", 6, false, &Status},
    Kind{"unauthorised", 1, false,
         [](Random&) {
             return Fault{"unauthorised", {{"kind", "status"}, {"status", 401}}, Ending::AlwaysNotified, kUnauthorised};
         }},
    Kind{"envelope", 6, false, &Envelope},
    Kind{"empty", 2, false,
         [](Random&) {
             return Fault{"empty", {{"kind", "empty"}}, Ending::NotifiedOnRequest, kUnusable};
         }},
    Kind{"cut", 2, false,
         [](Random&) {
             return Fault{"cut", {{"kind", "cut"}}, Ending::NotifiedOnRequest, kUnusable};
         }},
    Kind{"notJson", 2, false,
         [](Random&) {
             return Fault{"notJson", {{"kind", "notJson"}}, Ending::NotifiedOnRequest, kUnusable};
         }},
    Kind{"array", 2, false,
         [](Random&) {
             return Fault{"array", {{"kind", "text"}, {"body", "[{\"code\": 1000}]"}}, Ending::NotifiedOnRequest, 0};
         }},
    Kind{"large", 1, false,
         [](Random&) {
             return Fault{"large", {{"kind", "large"}, {"size", 200'000}}};
         }},
    Kind{"slow", 0.5, false,
         [](Random&) {
             return Fault{"slow", {{"kind", "slow"}, {"bytesPerSecond", 50'000}}};
         }},
    // Qt repeats a request whose connection closed, so these faults apply until they are cleared.
    Kind{
        "closeBefore", 1.5, false,
        [](Random&) {
            return Fault{"closeBefore", {{"kind", "closeBefore"}, {"times", 0}}, Ending::AlwaysNotified, kNetworkError};
        }},
    Kind{
        "closeMiddle", 1.5, false,
        [](Random&) {
            return Fault{"closeMiddle", {{"kind", "closeMiddle"}, {"times", 0}}, Ending::AlwaysNotified, kNetworkError};
        }},
    Kind{"silent", 0.05, false,
         [](Random&) {
             return Fault{"silent", {{"kind", "silent"}, {"times", 0}}, Ending::AlwaysNotified, kTimedOut, 1};
         }},
    Kind{"noTime", 1, true,
         [](Random&) {
             return Fault{"noTime",
                          {{"kind", "delay"}, {"delayMs", 1000}, {"times", 0}},
                          Ending::AlwaysNotified,
                          kTimedOut,
                          0,
                          false,
                          true};
         }},
    Kind{"parentDies", 0.5, true, [](Random&) {
             return Fault{"parentDies", {{"kind", "silent"}, {"times", 0}}, Ending::AlwaysNotified, kTimedOut, {}, true,
                          true};
         }}};

}  // namespace

Fault DrawFault(Random& random, bool onlyReads)
{
    std::vector<double> weights;
    weights.reserve(kKinds.size());
    for (const Kind& kind : kKinds) {
        weights.push_back(kind.onlyReading && !onlyReads ? 0 : kind.weight);
    }
    return kKinds.at(std::discrete_distribution<std::size_t>(weights.begin(), weights.end())(random)).make(random);
}

std::vector<std::string> FaultNames()
{
    std::vector<std::string> names;
    names.reserve(kKinds.size());
    for (const Kind& kind : kKinds) {
        names.emplace_back(kind.name);
    }
    return names;
}

bool Chance(Random& random, double share)
{
    return std::bernoulli_distribution(share)(random);
}

}  // namespace soak
