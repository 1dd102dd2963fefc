#pragma once

#include "HttpMessage.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace emulator {

/// The longest accepted target; longer ones get status 414.
constexpr std::size_t kLongestTarget = 8UL * 1024;
/// The largest accepted request line and headers together; larger ones get status 431.
constexpr std::size_t kLargestHead = 256UL * 1024;
/// The same for the trailers of a chunked body.
constexpr std::size_t kLargestEndOfBody = 16UL * 1024;
/// The largest accepted body; larger ones get status 413.
constexpr std::size_t kLargestBody = 256UL * 1024 * 1024;

/// Whether requests with this method are served; others get status 501.
bool IsServed(const std::string& method);

/// The reason for rejecting a request.
struct RequestFault {
    int status = 0;
    std::string reason;
};

/// Parses the requests of one connection one after the other, according to RFC 9112. The result does not depend on how
/// the bytes are split into pieces.
class RequestReader {
public:
    enum class Progress {
        NeedsMore,        ///< the request is incomplete
        ExpectsContinue,  ///< the client waits for status 100 before it sends the body; reported once
        Complete,         ///< the request is complete
        Refused           ///< the request is invalid or not served; the reader stops here
    };

    RequestReader();
    ~RequestReader();
    RequestReader(const RequestReader&) = delete;
    RequestReader& operator=(const RequestReader&) = delete;
    RequestReader(RequestReader&&) = delete;
    RequestReader& operator=(RequestReader&&) = delete;

    /// Adds received bytes.
    void add(std::string_view bytes);

    /// Parses the bytes added so far.
    Progress read();

    /// Handles the end of the client's data: refuses an incomplete request.
    Progress readEnd();

    /// Starts the next request, after a complete one.
    void next();

    /// @return whether part of a request was received
    [[nodiscard]] bool hasBegun() const;
    /// @return the number of bytes not parsed yet
    [[nodiscard]] std::size_t pending() const;
    /// @return the complete request, valid until next()
    [[nodiscard]] HttpRequest& request();
    /// @return whether the connection stays open after the request
    [[nodiscard]] bool keepsAlive() const;
    /// @return whether the request uses HTTP/1.0
    [[nodiscard]] bool isOldVersion() const;
    /// @return the reason for refusing the request
    [[nodiscard]] const RequestFault& fault() const;

private:
    class Private;

    std::unique_ptr<Private> m_private;
};

}  // namespace emulator
