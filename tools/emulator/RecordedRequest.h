#pragma once

#include "Json.h"

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace emulator {

/// A request as received, with the outcome of its reply.
struct RecordedRequest {
    std::size_t number = 0;                                    ///< counted from 1, in order of arrival
    std::string method;                                        ///< HTTP verb
    std::string target;                                        ///< as received, including the query, not decoded
    std::string path;                                          ///< decoded
    std::vector<std::pair<std::string, std::string>> query;    ///< decoded
    std::vector<std::pair<std::string, std::string>> headers;  ///< names and values in the order received
    std::string body;                                          ///< as received
    std::size_t connection = 0;                                ///< number of its TCP connection
    int status = 0;                                            ///< of the reply; 0 without a reply, or before it
    std::optional<int> code;                                   ///< of the reply's envelope
    std::chrono::system_clock::time_point time;                ///< of its arrival
    bool ended = false;                                        ///< false while the reply is due

    /// Looks up a header.
    /// @param name name of the header, case-insensitive
    /// @return the value of the first header with this name; empty without one
    [[nodiscard]] std::string header(const std::string& name) const;
    /// @return the request in the control path's format
    [[nodiscard]] Json toJson() const;
};

}  // namespace emulator
