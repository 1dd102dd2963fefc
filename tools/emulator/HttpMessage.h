#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace emulator {

struct HttpRequest {
    std::string method;
    std::string target;                                        ///< as received, query included
    std::vector<std::pair<std::string, std::string>> headers;  ///< as received, without the trailers of a chunked body
    std::string body;
    std::size_t connection = 0;  ///< number of the TCP connection, counted from 1
};

struct HttpResponse {
    enum class Ending {
        Complete,
        CloseBefore,  ///< the connection is closed without a reply
        CloseMiddle,  ///< the connection is closed after half of the body
        Reset         ///< the connection is reset without a reply
    };

    int status = 200;
    /// Content-Type, Content-Length and Transfer-Encoding override the server's defaults.
    std::vector<std::pair<std::string, std::string>> headers;
    std::string body;
    Ending ending = Ending::Complete;
    std::size_t bytesPerSecond = 0;  ///< of the body; 0: as fast as the client reads
};

}  // namespace emulator
