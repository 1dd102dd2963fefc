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

/// Keeps the requests, the latest 10,000 of them and 64 MiB of bodies at most; safe to use from several threads.
class RequestLog {
public:
    /// @return the number under which the request is kept
    std::size_t add(const HttpRequest& request);
    void answered(std::size_t number, int status, std::optional<int> code);

    [[nodiscard]] std::vector<RecordedRequest> list() const;
    void clear();

    /// Waits until so many requests are there.
    /// @return false when the time was over first
    bool waitFor(std::size_t count, std::chrono::milliseconds time) const;

private:
    void forgetOldest();

    mutable std::mutex m_mutex;
    mutable std::condition_variable m_arrived;
    std::deque<RecordedRequest> m_requests;
    std::size_t m_lastNumber = 0;
    std::size_t m_bodyBytes = 0;
};

/// The pairs of a query, decoded as forms are: '+' is a blank.
std::vector<std::pair<std::string, std::string>> QueryOf(const std::string& target);

/// The target without the scheme and the host that it may begin with.
std::string_view OriginForm(std::string_view target);

/// The target without host and query, not decoded.
std::string PathOf(const std::string& target);

}  // namespace emulator
