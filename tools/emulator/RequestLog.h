#pragma once

#include "HttpMessage.h"
#include "RecordedRequest.h"

#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <deque>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace emulator {

/// Records at most the last 10,000 requests with at most 64 MiB of bodies; thread-safe.
class RequestLog {
public:
    /// @return the number of the recorded request
    std::size_t add(const HttpRequest& request);
    void answered(std::size_t number, int status, std::optional<int> code);

    /// @param after only those with a higher number
    [[nodiscard]] std::vector<RecordedRequest> list(std::size_t after = 0) const;
    void clear();

    /// Waits until @p count requests are recorded.
    /// @return false on time-out
    bool waitFor(std::size_t count, std::chrono::milliseconds time) const;

private:
    void removeOldest();

    mutable std::mutex m_mutex;
    mutable std::condition_variable m_arrived;
    std::deque<RecordedRequest> m_requests;
    std::size_t m_lastNumber = 0;
    std::size_t m_bodyBytes = 0;
};

/// The names and values of a query, decoded as in forms: '+' is a space.
std::vector<std::pair<std::string, std::string>> QueryOf(const std::string& target);

/// The target without scheme and host, if it has them.
std::string_view OriginForm(std::string_view target);

/// The target without host and query, not decoded.
std::string PathOf(const std::string& target);

}  // namespace emulator
