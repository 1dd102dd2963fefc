#pragma once

#include "HttpListener.h"
#include "Schema.h"

#include <chrono>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace emulator {

/// A request as it came, and what it was answered with.
struct RecordedRequest {
    std::size_t number = 0;  ///< from 1, in the order of arrival
    std::string method;
    std::string target;                                      ///< as received, query included, nothing decoded
    std::string path;                                        ///< decoded
    std::vector<std::pair<std::string, std::string>> query;  ///< decoded
    std::vector<std::pair<std::string, std::string>> headers;
    std::string body;
    std::size_t connection = 0;  ///< number of the TCP connection it came over
    int status = 0;              ///< of the answer; 0 while there is none, and when none was given
    std::optional<int> code;     ///< of the answer's envelope

    /// The first header of this name, case does not matter; empty without one.
    [[nodiscard]] std::string header(const std::string& name) const;
    [[nodiscard]] Json toJson() const;
};

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

/// The target without its query, not decoded.
std::string PathOf(const std::string& target);

}  // namespace emulator
