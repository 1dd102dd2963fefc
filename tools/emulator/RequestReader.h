#pragma once

#include "HttpMessage.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

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

/// Checks that lines of text end in CR LF and contain no other control character. The parser does not report a wrong
/// line end: it waits for more data.
class LineScan {
public:
    /// Continues to the end of the line or of the text.
    /// @return whether a line ended
    /// @throws RequestFault
    bool scan(std::string_view text);

    /// The current position.
    [[nodiscard]] std::size_t position() const { return m_at; }
    /// Whether the last complete line is empty.
    [[nodiscard]] bool lineWasEmpty() const { return m_line == m_lineBefore + 2; }

private:
    std::size_t m_at = 0;
    std::size_t m_line = 0;
    std::size_t m_lineBefore = 0;
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
    [[nodiscard]] bool hasBegun() const { return m_parser != nullptr; }
    /// @return the number of bytes not parsed yet
    [[nodiscard]] std::size_t pending() const { return rest().size(); }
    /// @return the complete request, valid until next()
    [[nodiscard]] HttpRequest& request() { return m_request; }
    /// @return whether the connection stays open after the request
    [[nodiscard]] bool keepsAlive() const;
    /// @return whether the request uses HTTP/1.0
    [[nodiscard]] bool isOldVersion() const;
    /// @return the reason for refusing the request
    [[nodiscard]] const RequestFault& fault() const { return *m_fault; }

private:
    class Parser;

    [[nodiscard]] std::string_view rest() const { return std::string_view(m_input).substr(m_used); }
    /// Stores the RequestFault that the action throws.
    template <typename Action>
    Progress refusing(Action action);
    Progress parse();
    /// Skips one empty line, which some clients send after a body.
    bool begin();
    /// @return whether the head is complete
    bool readHead();
    /// Checks the request line immediately: a client of another protocol may never send the end of the head.
    void readRequestLine(std::string_view line, bool isComplete);
    void endHead(std::string_view head);
    /// @return whether any bytes were parsed
    bool readBody();

    std::string m_input;
    std::size_t m_used = 0;  ///< bytes of the input parsed so far
    HttpRequest m_request;
    std::unique_ptr<Parser> m_parser;
    std::optional<RequestFault> m_fault;
    LineScan m_lines;
    std::size_t m_parsed = 0;  ///< bytes of the head passed to the parser
    bool m_skippedLine = false;
};

}  // namespace emulator
