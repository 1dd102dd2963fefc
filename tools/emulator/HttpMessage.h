#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace emulator {

struct HttpRequest {
    std::string method;
    std::string target;                                        ///< as it came, query included
    std::vector<std::pair<std::string, std::string>> headers;  ///< as they came, without those of a chunked body's end
    std::string body;
    std::size_t connection = 0;  ///< number of the TCP connection, from 1
};

struct HttpResponse {
    enum class Ending {
        Complete,
        CloseBefore,  ///< the connection is closed instead of an answer
        CloseMiddle,  ///< half of the body is sent, then the connection is closed
        Reset         ///< the connection is reset instead of an answer
    };

    int status = 200;
    /// Content-Type, Content-Length and Transfer-Encoding replace those that the server sends otherwise.
    std::vector<std::pair<std::string, std::string>> headers;
    std::string body;
    Ending ending = Ending::Complete;
    std::size_t bytesPerSecond = 0;  ///< of the body; 0: as fast as the client takes it
};

}  // namespace emulator
