#pragma once

#include <array>
#include <cstddef>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace soak {

/// A call that was made, and how it ended.
struct FinishedCall {
    std::string family;
    std::string call;
    std::string fault;
    bool withDialog;
    std::size_t depth;  ///< 1, more during the waits of other calls
    int result;
    int code;  ///< the notified code if the result is -1, otherwise the result
};

/// What the process held at one moment.
struct ResourceUsage {
    double residentKiB = 0;
    int descriptors = 0;
    int objects = 0;

    static ResourceUsage Now();
};

/// Counts calls and samples the resources of the process.
class Tally {
public:
    void Count(const FinishedCall& call);
    void Fail(const std::string& what);
    /// @param progress from 0 to 1
    void Sample(double progress);

    [[nodiscard]] std::size_t Calls() const { return m_calls; }
    [[nodiscard]] std::size_t Failures() const { return m_failures; }

    void PrintTables() const;
    /// Prints every deviation. @param allCalls number of different calls
    [[nodiscard]] bool IsGood(std::size_t allCalls) const;

private:
    static constexpr std::size_t kTenths = 10;
    using Tenth = std::vector<ResourceUsage>;

    std::size_t m_calls = 0;
    std::size_t m_failures = 0;
    std::size_t m_withDialog = 0;
    std::size_t m_nested = 0;
    std::map<std::string, std::size_t> m_byFamily;
    std::map<std::string, std::size_t> m_byCall;
    std::map<std::string, std::map<std::pair<int, int>, std::size_t>> m_byFault;
    std::array<Tenth, kTenths> m_tenths;
    std::array<std::size_t, kTenths> m_callsUntil{};
};

}  // namespace soak
