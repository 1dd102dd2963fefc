#include "RequestReader.h"

#include "Text.h"

#include <boost/asio/buffer.hpp>
#include <boost/beast/http/basic_parser.hpp>
#include <boost/beast/http/error.hpp>

#include <algorithm>
#include <cstdint>
#include <limits>
#include <optional>
#include <strings.h>
#include <vector>

namespace emulator {
namespace {

namespace beast = boost::beast;
namespace http = beast::http;
using boost::system::error_code;
using Progress = RequestReader::Progress;

/// The target with method and version.
constexpr std::size_t kLongestRequestLine = kLongestTarget + 32;
/// The shortest possible rest of a chunked body between two chunks; the parser fails on less.
constexpr std::size_t kShortestChunkRest = std::string_view("0\r\n\r\n").size();
constexpr int kHttp10 = 10;
constexpr int kHttp11 = 11;

constexpr int kBadRequest = 400;
constexpr int kContentTooLarge = 413;
constexpr int kUriTooLong = 414;
constexpr int kExpectationFailed = 417;
constexpr int kHeadTooLarge = 431;
constexpr int kNotImplemented = 501;
constexpr int kVersionNotSupported = 505;

bool IsControl(char c)
{
    const auto byte = static_cast<unsigned char>(c);
    return (byte < 0x20 && c != '\t') || byte == 0x7f;
}

bool IsTokenChar(char c)
{
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') ||
           (c != '\0' && std::string_view("!#$%&'*+-.^_`|~").find(c) != std::string_view::npos);
}

bool IsBlank(char c)
{
    return c == ' ' || c == '\t';
}

bool IsName(const std::string& name, const char* wanted)
{
    return ::strcasecmp(name.c_str(), wanted) == 0;
}

std::string_view Trimmed(std::string_view text)
{
    while (!text.empty() && IsBlank(text.front())) {
        text.remove_prefix(1);
    }
    while (!text.empty() && IsBlank(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

bool HasFoldedLine(std::string_view lines)
{
    return lines.find("\r\n ") != std::string_view::npos || lines.find("\r\n\t") != std::string_view::npos;
}

/// Whether a Content-Length is valid but too large for an integer.
bool DeclaresHugeLength(std::string_view head)
{
    constexpr std::string_view name = "content-length:";
    constexpr std::size_t kSafeDigits = std::numeric_limits<std::uint64_t>::digits10;
    for (std::size_t begin = head.find('\n'); begin != std::string_view::npos; begin = head.find('\n', begin)) {
        ++begin;
        const std::string_view line = head.substr(begin, head.find('\r', begin) - begin);
        if (line.size() > name.size() && ::strncasecmp(line.data(), name.data(), name.size()) == 0) {
            const std::string_view length = Trimmed(line.substr(name.size()));
            if (length.size() > kSafeDigits && length.find_first_not_of("0123456789") == std::string_view::npos) {
                return true;
            }
        }
    }
    return false;
}

/// Whether the line has three parts, and the last one has the form "HTTP/d.d".
bool NamesVersion(std::string_view line)
{
    constexpr std::string_view form = " HTTP/d.d\r\n";
    if (line.size() < form.size() || std::count(line.begin(), line.end(), ' ') != 2) {
        return false;
    }
    line.remove_prefix(line.size() - form.size());
    return std::equal(form.begin(), form.end(), line.begin(),
                      [](char wanted, char c) { return wanted == 'd' ? c >= '0' && c <= '9' : c == wanted; });
}

void CheckRequestLine(const error_code& error, const HttpRequest& request, std::string_view line)
{
    if (error == http::error::bad_version && NamesVersion(line)) {
        throw RequestFault{kVersionNotSupported, "unsupported HTTP version"};
    }
    if (error && error != http::error::need_more) {
        throw RequestFault{kBadRequest, "request line: " + error.message()};
    }
    if (request.target.size() > kLongestTarget) {
        throw RequestFault{kUriTooLong, "target too long"};
    }
    if (!IsServed(request.method)) {
        throw RequestFault{kNotImplemented, "unknown method"};
    }
}

void CheckHost(const HttpRequest& request, int version)
{
    const auto isHost = [](const auto& header) { return IsName(header.first, "Host"); };
    const auto count = std::count_if(request.headers.begin(), request.headers.end(), isHost);
    if (count > 1 || (count == 0 && version >= kHttp11)) {
        throw RequestFault{kBadRequest, count == 0 ? "missing Host header" : "duplicate Host header"};
    }
    const auto host = std::find_if(request.headers.begin(), request.headers.end(), isHost);
    if (host != request.headers.end() && host->second.find_first_of(" \t,/?#@\\\"<>") != std::string::npos) {
        throw RequestFault{kBadRequest, "invalid Host header"};
    }
}

/// Checks Transfer-Encoding, because the parser treats a message with an unknown coding as one without a body.
void CheckTransferCoding(const HttpRequest& request, int version)
{
    std::size_t chunked = 0;
    bool isThere = false;
    for (const auto& [name, value] : request.headers) {
        if (!IsName(name, "Transfer-Encoding")) {
            continue;
        }
        isThere = true;
        for (const std::string& coding : Split(value, ',')) {
            const std::string trimmed(Trimmed(coding));
            if (IsName(trimmed, "chunked")) {
                ++chunked;
            } else if (!trimmed.empty()) {
                throw RequestFault{kNotImplemented, "unknown transfer coding"};
            }
        }
    }
    if (isThere && (chunked != 1 || version < kHttp11)) {
        throw RequestFault{kBadRequest, "invalid transfer coding"};
    }
}

std::string ExpectationOf(const HttpRequest& request)
{
    const auto found = std::find_if(request.headers.begin(), request.headers.end(),
                                    [](const auto& header) { return IsName(header.first, "Expect"); });
    return found == request.headers.end() ? std::string() : found->second;
}

void CheckHead(const error_code& error, const HttpRequest& request, std::string_view head, int version)
{
    if (HasFoldedLine(head)) {
        throw RequestFault{kBadRequest, "folded header"};
    }
    if (error == http::error::body_limit || (error == http::error::bad_content_length && DeclaresHugeLength(head))) {
        throw RequestFault{kContentTooLarge, "body too large"};
    }
    if (error) {
        throw RequestFault{kBadRequest, "headers: " + error.message()};
    }
    CheckHost(request, version);
    CheckTransferCoding(request, version);
    const std::string expectation = ExpectationOf(request);
    if (version >= kHttp11 && !expectation.empty() && !IsName(expectation, "100-continue")) {
        throw RequestFault{kExpectationFailed, "unknown expectation"};
    }
}

/// Checks the size of an incomplete line between two chunks or in the trailers.
void CheckIncompleteLine(std::string_view input)
{
    if (input.size() > kLargestEndOfBody) {
        throw RequestFault{kHeadTooLarge, "trailers too large"};
    }
}

/// Whether the line with the size of the next chunk is complete, after the end of the previous chunk.
bool HasChunkSize(std::string_view input)
{
    LineScan lines;
    const bool lineEnds = lines.scan(input) && (!lines.lineWasEmpty() || lines.scan(input));
    if (!lineEnds) {
        CheckIncompleteLine(input);
    }
    return lineEnds && input.size() >= kShortestChunkRest;
}

/// Checks the incomplete end of a chunked body.
void CheckEndOfBody(std::string_view input)
{
    LineScan lines;
    while (lines.scan(input)) {
    }
    CheckIncompleteLine(input);
}

}  // namespace

bool IsServed(const std::string& method)
{
    static const std::vector<std::string> served = {"GET", "HEAD", "POST", "PUT", "DELETE", "OPTIONS", "PATCH"};
    return std::find(served.begin(), served.end(), method) != served.end();
}

/// Stores the fields as received.
class RequestReader::Parser final : public http::basic_parser<true> {
public:
    explicit Parser(HttpRequest& request) : m_request(request)
    {
        body_limit(kLargestBody);
        header_limit(kLargestHead);
    }

    [[nodiscard]] int version() const { return m_version; }
    /// Whether the next bytes are lines of text: the size of a chunk, or the trailers.
    [[nodiscard]] bool isBetweenChunks() const { return chunked() && !m_inChunk; }

private:
    void on_request_impl(http::verb /*method*/, beast::string_view method, beast::string_view target, int version,
                         error_code& /*ec*/) override
    {
        m_request.method = method;
        m_request.target = target;
        m_version = version;
    }

    void on_response_impl(int /*code*/, beast::string_view /*reason*/, int /*version*/, error_code& /*ec*/) override {}

    void on_field_impl(http::field /*field*/, beast::string_view name, beast::string_view value,
                       error_code& /*ec*/) override
    {
        if (!m_headIsRead) {
            m_request.headers.emplace_back(name, value);
        }
    }

    void on_header_impl(error_code& /*ec*/) override { m_headIsRead = true; }

    void on_body_init_impl(const boost::optional<std::uint64_t>& /*length*/, error_code& /*ec*/) override {}

    std::size_t on_body_impl(beast::string_view body, error_code& /*ec*/) override { return append(body); }

    void on_chunk_header_impl(std::uint64_t size, beast::string_view /*extensions*/, error_code& /*ec*/) override
    {
        m_inChunk = size > 0;
    }

    std::size_t on_chunk_body_impl(std::uint64_t left, beast::string_view body, error_code& /*ec*/) override
    {
        m_inChunk = left > body.size();
        return append(body);
    }

    void on_finish_impl(error_code& /*ec*/) override {}

    std::size_t append(beast::string_view bytes)
    {
        m_request.body.append(bytes.data(), bytes.size());
        return bytes.size();
    }

    HttpRequest& m_request;
    int m_version = 0;
    bool m_headIsRead = false;
    bool m_inChunk = false;
};

bool LineScan::scan(std::string_view text)
{
    for (; m_at < text.size(); ++m_at) {
        const char c = text[m_at];
        const bool afterReturn = m_at > m_line && text[m_at - 1] == '\r';
        if (c == '\n' ? !afterReturn : afterReturn || (c != '\r' && IsControl(c))) {
            throw RequestFault{kBadRequest, "line without CR LF at its end, or control character"};
        }
        if (c == '\n') {
            m_lineBefore = m_line;
            m_line = ++m_at;
            return true;
        }
    }
    return false;
}

RequestReader::RequestReader() = default;

RequestReader::~RequestReader() = default;

void RequestReader::add(std::string_view bytes)
{
    m_input.erase(0, m_used);
    m_used = 0;
    m_input.append(bytes);
}

RequestReader::Progress RequestReader::read()
{
    return refusing([this] { return parse(); });
}

RequestReader::Progress RequestReader::readEnd()
{
    return refusing([this] {
        if (hasBegun()) {
            throw RequestFault{kBadRequest, "incomplete request"};
        }
        return Progress::NeedsMore;
    });
}

void RequestReader::next()
{
    m_parser.reset();
    m_request = {};
    m_lines = {};
    m_parsed = 0;
    m_skippedLine = false;
}

template <typename Action>
RequestReader::Progress RequestReader::refusing(Action action)
{
    try {
        return m_fault ? Progress::Refused : action();
    } catch (const RequestFault& fault) {
        m_fault = fault;
        return Progress::Refused;
    }
}

RequestReader::Progress RequestReader::parse()
{
    for (;;) {
        if (!m_parser) {
            if (!begin()) {
                return Progress::NeedsMore;
            }
        } else if (!m_parser->is_header_done()) {
            if (!readHead()) {
                return Progress::NeedsMore;
            }
            if (!m_parser->is_done() && rest().empty() && m_parser->version() >= kHttp11 &&
                !ExpectationOf(m_request).empty()) {
                return Progress::ExpectsContinue;
            }
        } else if (m_parser->is_done()) {
            return Progress::Complete;
        } else if (!readBody()) {
            return Progress::NeedsMore;
        }
    }
}

bool RequestReader::begin()
{
    const std::string_view input = rest();
    if (input.empty() || (!m_skippedLine && input == "\r")) {
        return false;
    }
    if (!m_skippedLine && StartsWith(input, "\r\n")) {
        m_skippedLine = true;
        m_used += 2;
        return begin();
    }
    m_parser = std::make_unique<Parser>(m_request);
    return true;
}

bool RequestReader::readHead()
{
    const std::string_view input = rest();
    for (;;) {
        const bool lineEnds = m_lines.scan(input);
        const std::string_view scanned = input.substr(0, m_lines.position());
        const bool inFirstLine = m_request.method.empty();
        if (inFirstLine) {
            readRequestLine(scanned, lineEnds);
        }
        if (scanned.size() > kLargestHead) {
            throw RequestFault{kHeadTooLarge, "head too large"};
        }
        if (!lineEnds) {
            return false;
        }
        if (!inFirstLine && m_lines.lineWasEmpty()) {
            endHead(scanned);
            return true;
        }
    }
}

void RequestReader::readRequestLine(std::string_view line, bool isComplete)
{
    const std::size_t blank = std::min(line.find(' '), line.size());
    if (!std::all_of(line.begin(), line.begin() + static_cast<std::ptrdiff_t>(blank), IsTokenChar)) {
        throw RequestFault{kBadRequest, "invalid method"};
    }
    if (line.size() > kLongestRequestLine) {
        throw RequestFault{blank < kLongestRequestLine ? kUriTooLong : kBadRequest, "request line too long"};
    }
    if (!isComplete) {
        return;
    }
    error_code error;
    m_parsed = m_parser->put(boost::asio::buffer(line.data(), line.size()), error);
    CheckRequestLine(error, m_request, line);
}

void RequestReader::endHead(std::string_view head)
{
    error_code error;
    m_parsed += m_parser->put(boost::asio::buffer(head.data() + m_parsed, head.size() - m_parsed), error);
    CheckHead(error, m_request, head, m_parser->version());
    m_used += head.size();
}

bool RequestReader::readBody()
{
    const std::string_view input = rest();
    if (input.empty()) {
        return false;
    }
    const bool isText = m_parser->isBetweenChunks();
    if (isText && !HasChunkSize(input)) {
        return false;
    }
    error_code error;
    const std::size_t count = m_parser->put(boost::asio::buffer(input.data(), input.size()), error);
    m_used += count;
    if (error == http::error::need_more) {
        CheckEndOfBody(input);
        return false;
    }
    if (error == http::error::body_limit) {
        throw RequestFault{kContentTooLarge, "body too large"};
    }
    if (error) {
        throw RequestFault{kBadRequest, "body: " + error.message()};
    }
    if (isText && count > kLargestEndOfBody) {
        throw RequestFault{kHeadTooLarge, "trailers too large"};
    }
    if (isText && HasFoldedLine(input.substr(0, count))) {
        throw RequestFault{kBadRequest, "folded header"};
    }
    return true;
}

bool RequestReader::keepsAlive() const
{
    return m_parser->keep_alive();
}

bool RequestReader::isOldVersion() const
{
    return m_parser->version() == kHttp10;
}

}  // namespace emulator
