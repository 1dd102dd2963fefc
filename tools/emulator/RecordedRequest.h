#pragma once

#include "Json.h"

#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace emulator {

/// A request as it came, and what it was answered with.
struct RecordedRequest {
    std::size_t number = 0;                                    ///< from 1, in the order of arrival
    std::string method;                                        ///< HTTP verb
    std::string target;                                        ///< as received, query included, nothing decoded
    std::string path;                                          ///< decoded
    std::vector<std::pair<std::string, std::string>> query;    ///< decoded
    std::vector<std::pair<std::string, std::string>> headers;  ///< names and values in their order
    std::string body;                                          ///< as received
    std::size_t connection = 0;                                ///< number of the TCP connection it came over
    int status = 0;           ///< of the answer; 0 while there is none, and when none was given
    std::optional<int> code;  ///< of the answer's envelope

    /// Looks up a header.
    /// @param name name of the header, in upper or lower case
    /// @return the value of the first header of this name, empty without one
    [[nodiscard]] std::string header(const std::string& name) const;
    /// @return the request as the control path lists it
    [[nodiscard]] Json toJson() const;
};

}  // namespace emulator
