#include "SampleReplies.h"

#include "Deflated.h"

namespace testing_support {

namespace {

constexpr const char* kBody = R"({"code":1000,"data":{"a":1}})";
constexpr int kBodySize = 28;
const QByteArray kLength = "Content-Length: 28\r\n";

/// A reply of exactly these bytes.
RawReply Raw(const QByteArray& bytes, RawReply::Then then = RawReply::KeepOpen)
{
    return {bytes, 0, then};
}

/// A reply with status 200, these headers and this body.
RawReply Ok(const QByteArray& headers, const QByteArray& body = kBody, RawReply::Then then = RawReply::KeepOpen)
{
    return Raw("HTTP/1.1 200 OK\r\n" + headers + "\r\n" + body, then);
}

RawReply Status(const QByteArray& line, const QByteArray& headers = kLength, const QByteArray& body = kBody,
                RawReply::Then then = RawReply::KeepOpen)
{
    return Raw(line + "\r\n" + headers + "\r\n" + body, then);
}

RawReply Chunked(const QByteArray& chunks, RawReply::Then then = RawReply::KeepOpen,
                 const QByteArray& more = QByteArray())
{
    return Ok("Transfer-Encoding: chunked\r\n" + more, chunks, then);
}

const QByteArray kChunk = QByteArray("1c\r\n") + kBody + "\r\n";

RawReply Encoded(const QByteArray& encoding, const QByteArray& body, RawReply::Then then = RawReply::KeepOpen)
{
    return Ok("Content-Encoding: " + encoding + "\r\nContent-Length: " + QByteArray::number(body.size()) + "\r\n", body,
              then);
}

/// The same bytes, the last of them in a separate segment.
RawReply InTwo(RawReply reply, int nLast)
{
    constexpr int kPause = 20;
    reply.moreBytes = reply.bytes.right(nLast);
    reply.bytes.chop(nLast);
    reply.moreMilliseconds = kPause;
    return reply;
}

QByteArray ChunkOf(const QByteArray& bytes)
{
    return QByteArray::number(bytes.size(), 16) + "\r\n" + bytes + "\r\n";
}

}  // namespace

std::vector<SampleReply> SampleReplies()
{
    static_assert(std::char_traits<char>::length(kBody) == kBodySize);
    const QByteArray body = kBody;
    const QByteArray gzip = Deflated(body);
    const QByteArray zlib = Deflated(body, Wrapper::Zlib);
    const QByteArray bare = Deflated(body, Wrapper::None);
    QByteArray corrupt = gzip;
    corrupt.replace(12, 6, "abcdef");
    QByteArray wrongChecksum = gzip;
    wrongChecksum[wrongChecksum.size() - 6] = char(wrongChecksum.at(wrongChecksum.size() - 6) ^ 0x55);
    return {
        // Status lines
        {"plain", Ok(kLength)},
        {"status_without_reason", Status("HTTP/1.1 200")},
        {"status_with_blank_and_no_reason", Status("HTTP/1.1 200 ")},
        {"status_with_long_reason", Status("HTTP/1.1 200 " + QByteArray(3000, 'r'))},
        {"status_with_two_blanks", Status("HTTP/1.1  200 OK")},
        {"status_of_two_digits", Status("HTTP/1.1 20 OK", kLength, kBody, RawReply::Close)},
        {"status_of_four_digits", Status("HTTP/1.1 2000 OK", kLength, kBody, RawReply::Close)},
        {"status_no_number", Status("HTTP/1.1 abc OK", kLength, kBody, RawReply::Close)},
        {"status_negative", Status("HTTP/1.1 -20 OK", kLength, kBody, RawReply::Close)},
        {"status_0", Status("HTTP/1.1 000 OK", kLength, kBody, RawReply::Close)},
        {"status_600", Status("HTTP/1.1 600 Other")},
        {"status_999", Status("HTTP/1.1 999 Other")},
        {"http_1_0", Status("HTTP/1.0 200 OK", kLength, kBody, RawReply::Close)},
        {"http_1_0_kept_open", Status("HTTP/1.0 200 OK")},
        {"http_1_0_until_the_end", Status("HTTP/1.0 200 OK", "", kBody, RawReply::Close)},
        {"http_1_0_chunked",
         Status("HTTP/1.0 200 OK", "Transfer-Encoding: chunked\r\n", kChunk + "0\r\n\r\n", RawReply::Close)},
        {"http_1_2", Status("HTTP/1.2 200 OK")},
        {"http_2_0", Status("HTTP/2.0 200 OK", kLength, kBody, RawReply::Close)},
        {"http_1_0_keep_alive", Status("HTTP/1.0 200 OK", "Connection: keep-alive\r\n" + kLength)},
        {"http_0_9", Raw(kBody, RawReply::Close)},
        {"http_0_9_with_a_status", Status("HTTP/0.9 200 OK", kLength, kBody, RawReply::Close)},
        {"http_with_a_letter_for_the_major_version", Status("HTTP/x.1 200 OK", kLength, kBody, RawReply::Close)},
        {"http_with_a_letter_for_the_minor_version", Status("HTTP/1.x 200 OK", kLength, kBody, RawReply::Close)},
        {"http_without_a_dot", Status("HTTP/1-1 200 OK", kLength, kBody, RawReply::Close)},
        {"http_without_a_blank", Status("HTTP/1.1x200 OK", kLength, kBody, RawReply::Close)},
        {"http_in_small_letters", Status("http/1.1 200 OK", kLength, kBody, RawReply::Close)},
        {"http_without_version", Status("HTTP 200 OK", kLength, kBody, RawReply::Close)},
        {"other_protocol", Raw("220 mail ready\r\n\r\n", RawReply::Close)},
        {"nothing", Raw("", RawReply::Close)},
        {"nothing_but_an_empty_line", Raw("\r\n", RawReply::Close)},
        {"empty_line_before_the_status", Raw("\r\nHTTP/1.1 200 OK\r\n" + kLength + "\r\n" + kBody)},
        {"three_empty_lines_before_the_status", Raw("\r\n\r\n\r\nHTTP/1.1 200 OK\r\n" + kLength + "\r\n" + kBody)},
        {"blanks_before_the_status", Raw("  HTTP/1.1 200 OK\r\n" + kLength + "\r\n" + kBody, RawReply::Close)},
        {"line_feeds_alone", Raw("HTTP/1.1 200 OK\nContent-Length: 28\n\n" + body)},
        {"line_feeds_mixed", Raw("HTTP/1.1 200 OK\r\nContent-Length: 28\n\r\n" + body)},
        {"carriage_returns_alone", Raw("HTTP/1.1 200 OK\rContent-Length: 28\r\r" + body, RawReply::Close)},
        // Statuses with special rules
        {"100_before_200", Raw("HTTP/1.1 100 Continue\r\n\r\nHTTP/1.1 200 OK\r\n" + kLength + "\r\n" + body)},
        {"100_with_headers_before_200",
         Raw("HTTP/1.1 100 Continue\r\nX-A: 1\r\n\r\nHTTP/1.1 200 OK\r\n" + kLength + "\r\n" + body)},
        {"100_three_times_before_200",
         Raw("HTTP/1.1 100 Continue\r\n\r\nHTTP/1.1 100 Continue\r\n\r\nHTTP/1.1 100 Continue\r\n\r\n"
             "HTTP/1.1 200 OK\r\n" +
             kLength + "\r\n" + body)},
        {"100_and_the_end", Raw("HTTP/1.1 100 Continue\r\n\r\n", RawReply::Close)},
        {"101", Raw("HTTP/1.1 101 Switching Protocols\r\nUpgrade: x\r\nConnection: Upgrade\r\n\r\n")},
        {"102_before_200", Raw("HTTP/1.1 102 Processing\r\n\r\nHTTP/1.1 200 OK\r\n" + kLength + "\r\n" + body)},
        {"103_before_200",
         Raw("HTTP/1.1 103 Early Hints\r\nLink: </a>\r\n\r\nHTTP/1.1 200 OK\r\n" + kLength + "\r\n" + body)},
        {"199", Raw("HTTP/1.1 199 Other\r\n\r\n")},
        {"204", Status("HTTP/1.1 204 No Content", "", "")},
        {"204_with_length_0", Status("HTTP/1.1 204 No Content", "Content-Length: 0\r\n", "")},
        {"204_with_length_and_no_body", Status("HTTP/1.1 204 No Content", kLength, "")},
        {"204_with_body", Status("HTTP/1.1 204 No Content")},
        {"205_with_length_0", Status("HTTP/1.1 205 Reset Content", "Content-Length: 0\r\n", "")},
        {"304", Status("HTTP/1.1 304 Not Modified", "", "")},
        {"304_with_length_and_no_body", Status("HTTP/1.1 304 Not Modified", kLength, "")},
        {"304_with_body", Status("HTTP/1.1 304 Not Modified")},
        {"206", Status("HTTP/1.1 206 Partial Content", kLength + "Content-Range: bytes 0-27/100\r\n")},
        {"301", Status("HTTP/1.1 301 Moved", kLength + "Location: /other\r\n")},
        {"302_to_elsewhere", Status("HTTP/1.1 302 Found", kLength + "Location: http://other.invalid/\r\n")},
        {"307_without_location", Status("HTTP/1.1 307 Temporary Redirect")},
        {"400", Status("HTTP/1.1 400 Bad Request")},
        {"401_without_challenge", Status("HTTP/1.1 401 Unauthorized")},
        {"401_basic", Status("HTTP/1.1 401 Unauthorized", kLength + "WWW-Authenticate: Basic realm=\"x\"\r\n")},
        {"401_digest",
         Status("HTTP/1.1 401 Unauthorized", kLength + "WWW-Authenticate: Digest realm=\"x\", nonce=\"1\"\r\n")},
        {"401_bearer", Status("HTTP/1.1 401 Unauthorized", kLength + "WWW-Authenticate: Bearer\r\n")},
        {"401_ntlm", Status("HTTP/1.1 401 Unauthorized", kLength + "WWW-Authenticate: NTLM\r\n")},
        {"401_without_body", Status("HTTP/1.1 401 Unauthorized", "Content-Length: 0\r\n", "")},
        {"401_truncated", Status("HTTP/1.1 401 Unauthorized", "Content-Length: 100\r\n", kBody, RawReply::Close)},
        {"402", Status("HTTP/1.1 402 Payment Required")},
        {"403", Status("HTTP/1.1 403 Forbidden")},
        {"404", Status("HTTP/1.1 404 Not Found")},
        {"404_without_reason", Status("HTTP/1.1 404")},
        {"404_without_body", Status("HTTP/1.1 404 Not Found", "Content-Length: 0\r\n", "")},
        {"405", Status("HTTP/1.1 405 Method Not Allowed")},
        {"407_without_challenge", Status("HTTP/1.1 407 Proxy Authentication Required")},
        {"407_basic",
         Status("HTTP/1.1 407 Proxy Authentication Required", kLength + "Proxy-Authenticate: Basic realm=\"x\"\r\n")},
        {"408", Status("HTTP/1.1 408 Request Timeout", kLength + "Connection: close\r\n", kBody, RawReply::Close)},
        {"409", Status("HTTP/1.1 409 Conflict")},
        {"410", Status("HTTP/1.1 410 Gone")},
        {"418", Status("HTTP/1.1 418 Teapot")},
        {"429", Status("HTTP/1.1 429 Too Many Requests", kLength + "Retry-After: 0\r\n")},
        {"500", Status("HTTP/1.1 500 Internal Server Error")},
        {"501", Status("HTTP/1.1 501 Not Implemented")},
        {"502", Status("HTTP/1.1 502 Bad Gateway")},
        {"503", Status("HTTP/1.1 503 Service Unavailable")},
        {"599", Status("HTTP/1.1 599 Other")},
        // Header lines
        {"header_folded", Ok("X-A: one\r\n two\r\n\tthree\r\n" + kLength)},
        {"header_folded_first", Ok(" X-A: one\r\n" + kLength)},
        {"header_without_blank", Ok("X-A:one\r\n" + kLength)},
        {"header_with_blanks_around_the_value", Ok("X-A:   one two \t \r\n" + kLength)},
        {"header_with_blank_before_the_colon", Ok("X-A : one\r\n" + kLength)},
        {"header_length_with_blank_before_the_colon", Ok("Content-Length : 28\r\n")},
        {"header_without_colon", Ok("X-A one\r\n" + kLength)},
        {"header_without_colon_last", Ok(kLength + "X-A one\r\n")},
        {"header_with_empty_name", Ok(": one\r\n" + kLength)},
        {"header_with_empty_value", Ok("X-A:\r\nX-B: \r\n" + kLength)},
        {"header_with_colons_in_the_value", Ok("X-A: a:b: c\r\n" + kLength)},
        {"header_with_a_zero_byte", Ok(QByteArray("X-A: a\0b\r\n", 10) + kLength)},
        {"header_with_a_carriage_return", Ok("X-A: a\rb\r\n" + kLength)},
        {"header_beyond_ascii", Ok("X-A: \xC3\xBC\xFF\r\n" + kLength)},
        {"header_names_of_mixed_case", Ok("x-lower: 1\r\nX-UPPER: 2\r\ncOnTeNt-LeNgTh: 28\r\n")},
        {"header_twice", Ok("X-A: one\r\nX-B: b\r\nX-A: two\r\n" + kLength)},
        {"header_twice_of_different_case", Ok("X-A: one\r\nx-a: two\r\n" + kLength)},
        {"header_twice_one_empty", Ok("X-A:\r\nX-A: two\r\n" + kLength)},
        {"cookie", Ok("Set-Cookie: a=1; Path=/\r\n" + kLength)},
        {"cookies", Ok("Set-Cookie: a=1\r\nSet-Cookie: b=2; HttpOnly\r\n" + kLength)},
        {"headers_500", Ok([] {
             QByteArray headers;
             for (int i = 0; i < 500; ++i) {
                 headers += "X-" + QByteArray::number(i) + ": " + QByteArray::number(i) + "\r\n";
             }
             return headers + kLength;
         }())},
        {"header_of_100000_bytes", Ok("X-A: " + QByteArray(100000, 'x') + "\r\n" + kLength)},
        {"date_and_type", Ok("Date: Sat, 01 Jan 2022 00:00:00 GMT\r\nContent-Type: application/json\r\n"
                             "Last-Modified: Sat, 01 Jan 2022 00:00:00 GMT\r\n" +
                             kLength)},
        // Connection
        {"connection_close", Ok("Connection: close\r\n" + kLength, kBody, RawReply::Close)},
        {"connection_close_kept_open", Ok("Connection: close\r\n" + kLength)},
        {"connection_keep_alive", Ok("Connection: Keep-Alive\r\nKeep-Alive: timeout=5, max=100\r\n" + kLength)},
        {"connection_odd", Ok("Connection: close, keep-alive, x\r\nConnection: TE\r\n" + kLength)},
        {"connection_upgrade", Ok("Connection: upgrade\r\nUpgrade: h2c\r\n" + kLength)},
        {"proxy_connection_close", Ok("Proxy-Connection: close\r\n" + kLength)},
        // Lengths
        {"length_0", Ok("Content-Length: 0\r\n", "")},
        {"length_too_small", Ok("Content-Length: 5\r\n")},
        {"length_too_large", Ok("Content-Length: 50\r\n", kBody, RawReply::Close)},
        {"length_too_large_reset", Ok("Content-Length: 50\r\n", kBody, RawReply::Reset)},
        {"length_too_large_404", Status("HTTP/1.1 404 Not Found", "Content-Length: 50\r\n", kBody, RawReply::Close)},
        {"length_negative", Ok("Content-Length: -5\r\n", kBody, RawReply::Close)},
        {"length_no_number", Ok("Content-Length: all\r\n", kBody, RawReply::Close)},
        {"length_empty", Ok("Content-Length:\r\n", kBody, RawReply::Close)},
        {"length_with_plus", Ok("Content-Length: +28\r\n", kBody, RawReply::Close)},
        {"length_with_trailing_text", Ok("Content-Length: 28 bytes\r\n", kBody, RawReply::Close)},
        {"length_hexadecimal", Ok("Content-Length: 0x1c\r\n", kBody, RawReply::Close)},
        {"length_with_zeros", Ok("Content-Length: 00000000000000000000028\r\n", kBody, RawReply::Close)},
        {"length_beyond_64_bits", Ok("Content-Length: 99999999999999999999\r\n", kBody, RawReply::Close)},
        {"length_beyond_63_bits", Ok("Content-Length: 9223372036854775808\r\n", kBody, RawReply::Close)},
        {"length_twice_the_same", Ok(kLength + kLength, kBody, RawReply::Close)},
        {"length_twice_joined", Ok("Content-Length: 28, 28\r\n", kBody, RawReply::Close)},
        {"length_twice_different", Ok("Content-Length: 28\r\nContent-Length: 5\r\n", kBody, RawReply::Close)},
        {"without_length", Ok("", kBody, RawReply::Close)},
        {"without_length_reset", Ok("", kBody, RawReply::Reset)},
        {"without_length_and_body", Ok("", "", RawReply::Close)},
        {"without_length_404", Status("HTTP/1.1 404 Not Found", "", kBody, RawReply::Close)},
        // Chunks
        {"chunked", Chunked(kChunk + "0\r\n\r\n")},
        {"chunked_in_two", Chunked("5\r\n{\"cod\r\n17\r\ne\":1000,\"data\":{\"a\":1}}\r\n0\r\n\r\n")},
        {"chunked_upper_case", Ok("TRANSFER-ENCODING: Chunked\r\n", kChunk + "0\r\n\r\n")},
        {"chunked_size_in_capitals", Chunked("1C\r\n" + body + "\r\n0\r\n\r\n")},
        {"chunked_size_with_zeros", Chunked("0000001c\r\n" + body + "\r\n000\r\n\r\n")},
        {"chunked_size_with_blanks", Chunked("1c  \r\n" + body + "\r\n0\r\n\r\n")},
        {"chunked_size_after_blank", Chunked(" 1c\r\n" + body + "\r\n0\r\n\r\n")},
        {"chunked_size_with_0x", Chunked("0x1c\r\n" + body + "\r\n0\r\n\r\n", RawReply::Close)},
        {"chunked_with_extension", Chunked("1c;name=value\r\n" + body + "\r\n0;last\r\n\r\n")},
        {"chunked_with_trailer", Chunked(kChunk + "0\r\nX-Trailer: 1\r\n\r\n", RawReply::KeepOpen)},
        {"chunked_with_trailer_of_length", Chunked(kChunk + "0\r\nContent-Length: 3\r\n\r\n", RawReply::KeepOpen)},
        {"chunked_beside_a_length", Chunked(kChunk + "0\r\n\r\n", RawReply::KeepOpen, "Content-Length: 500\r\n")},
        {"chunked_with_line_feeds", Chunked("1c\n" + body + "\n0\n\n", RawReply::Close)},
        {"chunked_empty", Chunked("0\r\n\r\n")},
        {"chunked_last_line_missing", Chunked(kChunk + "0\r\n", RawReply::Close)},
        {"chunked_last_missing", Chunked(kChunk, RawReply::Close)},
        {"chunked_truncated", Chunked("ff\r\n{\"code\":1000,", RawReply::Close)},
        {"chunked_truncated_reset", Chunked("ff\r\n{\"code\":1000,", RawReply::Reset)},
        {"chunked_truncated_in_the_size", Chunked("1", RawReply::Close)},
        {"chunked_truncated_404",
         Status("HTTP/1.1 404 Not Found", "Transfer-Encoding: chunked\r\n", "ff\r\n{\"code\":1000,", RawReply::Close)},
        {"chunked_last_missing_404",
         Status("HTTP/1.1 404 Not Found", "Transfer-Encoding: chunked\r\n", kChunk, RawReply::Close)},
        {"chunked_size_no_number", Chunked("xyz\r\n" + body + "\r\n0\r\n\r\n", RawReply::Close)},
        {"chunked_size_negative", Chunked("-5\r\n" + body + "\r\n0\r\n\r\n", RawReply::Close)},
        {"chunked_size_beyond_64_bits", Chunked("fffffffffffffffff\r\n" + body + "\r\n0\r\n\r\n", RawReply::Close)},
        {"chunked_size_too_small", Chunked("5\r\n" + body + "\r\n0\r\n\r\n", RawReply::Close)},
        {"chunked_with_trailing_bytes", Chunked(kChunk + "0\r\n\r\nHTTP/1.1 200 OK\r\nContent-Length: 2\r\n\r\n{}")},
        {"transfer_identity", Ok("Transfer-Encoding: identity\r\n" + kLength)},
        {"transfer_gzip_chunked", Ok("Transfer-Encoding: gzip, chunked\r\n", ChunkOf(gzip) + "0\r\n\r\n")},
        {"transfer_unknown", Ok("Transfer-Encoding: x-other\r\n" + kLength)},
        {"transfer_unknown_without_length", Ok("Transfer-Encoding: x-other\r\n", kBody, RawReply::Close)},
        // Encodings
        {"gzip", Encoded("gzip", gzip)},
        {"gzip_in_capitals", Encoded("GZIP", gzip)},
        {"x_gzip", Encoded("x-gzip", gzip)},
        {"gzip_twice", Encoded("gzip, gzip", Deflated(gzip))},
        {"gzip_chunked", Chunked(ChunkOf(gzip.left(20)) + ChunkOf(gzip.mid(20)) + "0\r\n\r\n", RawReply::KeepOpen,
                                 "Content-Encoding: gzip\r\n")},
        {"gzip_after_its_first_byte", InTwo(Encoded("gzip", gzip), gzip.size() - 1)},
        {"gzip_of_one_byte", Encoded("gzip", gzip.left(1))},
        {"gzip_with_trailing_bytes_in_a_chunk",
         Chunked(ChunkOf(gzip) + ChunkOf("rest") + "0\r\n\r\n", RawReply::KeepOpen, "Content-Encoding: gzip\r\n")},
        {"gzip_until_the_end", Ok("Content-Encoding: gzip\r\n", gzip, RawReply::Close)},
        {"gzip_of_empty_body", Encoded("gzip", Deflated(""))},
        {"gzip_without_bytes", Encoded("gzip", "")},
        {"gzip_with_trailing_bytes", Encoded("gzip", gzip + "rest")},
        {"gzip_of_two_members", Encoded("gzip", Deflated(body.left(10)) + Deflated(body.mid(10)))},
        {"gzip_truncated_within_its_length", Encoded("gzip", gzip.left(20))},
        {"gzip_truncated_before_the_checksum", Encoded("gzip", gzip.left(gzip.size() - 8))},
        {"gzip_truncated_by_the_end",
         Ok("Content-Encoding: gzip\r\nContent-Length: " + QByteArray::number(gzip.size()) + "\r\n", gzip.left(20),
            RawReply::Close)},
        {"gzip_truncated_by_the_end_404",
         Status("HTTP/1.1 404 Not Found",
                "Content-Encoding: gzip\r\nContent-Length: " + QByteArray::number(gzip.size()) + "\r\n", gzip.left(20),
                RawReply::Close)},
        {"gzip_404",
         Status("HTTP/1.1 404 Not Found",
                "Content-Encoding: gzip\r\nContent-Length: " + QByteArray::number(gzip.size()) + "\r\n", gzip)},
        {"gzip_corrupt", Encoded("gzip", corrupt)},
        {"gzip_corrupt_404",
         Status("HTTP/1.1 404 Not Found",
                "Content-Encoding: gzip\r\nContent-Length: " + QByteArray::number(corrupt.size()) + "\r\n", corrupt)},
        {"gzip_with_wrong_checksum", Encoded("gzip", wrongChecksum)},
        {"gzip_of_something_else", Encoded("gzip", body)},
        {"deflate", Encoded("deflate", zlib)},
        {"deflate_without_wrapper", Encoded("deflate", bare)},
        {"deflate_of_something_else", Encoded("deflate", body)},
        {"deflate_with_wrong_header_checksum", Encoded("deflate", QByteArray(zlib).replace(1, 1, "\x02"))},
        {"deflate_with_first_magic_byte_of_gzip", Encoded("deflate", QByteArray(gzip).replace(1, 1, "\x02"))},
        {"deflate_truncated", Encoded("deflate", zlib.left(15))},
        {"encoding_identity", Encoded("identity", body)},
        {"encoding_unknown", Encoded("x-other", body)},
        {"encoding_br", Encoded("br", body)},
        {"encoding_empty", Encoded("", body)},
        // Ends within the head
        {"truncated_in_the_status", Raw("HTTP/1.1 2", RawReply::Close)},
        {"truncated_after_the_status", Raw("HTTP/1.1 200 OK\r\n", RawReply::Close)},
        {"truncated_in_a_header", Raw("HTTP/1.1 200 OK\r\nContent-Le", RawReply::Close)},
        {"truncated_before_the_empty_line", Raw("HTTP/1.1 200 OK\r\n" + kLength, RawReply::Close)},
        {"reset_before_a_byte", Raw("", RawReply::Reset)},
        {"reset_in_the_head", Raw("HTTP/1.1 200 OK\r\nContent-Le", RawReply::Reset)},
        {"reset_after_the_reply", Ok(kLength, kBody, RawReply::Reset)},
    };
}

}  // namespace testing_support
