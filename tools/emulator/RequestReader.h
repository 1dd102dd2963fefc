#pragma once

#include "HttpMessage.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace emulator {

/// The longest target that is taken; status 414 beyond.
constexpr std::size_t kLongestTarget = 8UL * 1024;
/// The largest request line and headers together; status 431 beyond.
constexpr std::size_t kLargestHead = 256UL * 1024;
/// The same for the headers after a chunked body.
constexpr std::size_t kLargestEndOfBody = 16UL * 1024;
/// The largest body; status 413 beyond.
constexpr std::size_t kLargestBody = 256UL * 1024 * 1024;

/// Whether requests of this method are served; status 501 for any other.
bool IsServed(const std::string& method);

/// Why a request is not served.
struct RequestFault {
    int status = 0;
    std::string reason;
};

/// Reads the requests out of the bytes of one connection, one after the other, as RFC 9112 has them. However the bytes
/// are cut into pieces, the requests are the same.
class RequestReader {
public:
    enum class Progress {
        NeedsMore,     ///< bytes
        NeedsGoAhead,  ///< the client waits for status 100 before it sends the body; reported once
        Whole,         ///< the request is there
        Refused        ///< what came is no request, or none that is served; nothing after it is read
    };

    RequestReader();
    ~RequestReader();
    RequestReader(const RequestReader&) = delete;
    RequestReader& operator=(const RequestReader&) = delete;
    RequestReader(RequestReader&&) = delete;
    RequestReader& operator=(RequestReader&&) = delete;

    /// Takes what has come.
    void add(std::string_view bytes);

    /// Reads on as far as the bytes go.
    Progress read();

    /// The client ended its side: a request that has begun is refused.
    Progress readEnd();

    /// Turns to the next request, after a whole one.
    void next();

    /// @return whether part of a request is there
    [[nodiscard]] bool hasBegun() const;
    /// @return how many bytes wait to be read
    [[nodiscard]] std::size_t pending() const;
    /// @return the request, once it is whole; it stays until the next one
    [[nodiscard]] HttpRequest& request();
    /// @return whether the client leaves the connection open after a whole request
    [[nodiscard]] bool keepsAlive() const;
    /// @return whether the request is of HTTP/1.0
    [[nodiscard]] bool isOldVersion() const;
    /// @return why it is refused
    [[nodiscard]] const RequestFault& fault() const;

private:
    class Private;

    std::unique_ptr<Private> m_private;
};

}  // namespace emulator
