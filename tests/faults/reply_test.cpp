// Replies that are truncated or malformed, or that reject the caller.
#include "FaultMatrix.h"

using namespace testing_support;

namespace {

const QByteArray kBody = R"({"code":1000,"data":{"a":1}})";

RawReply Raw(const QByteArray& bytes, RawReply::Then then = RawReply::KeepOpen)
{
    return {bytes, 0, then};
}

/// A reply that ends within its body.
RawReply Truncated(int status, RawReply::Then then = RawReply::Close)
{
    return Raw("HTTP/1.1 " + QByteArray::number(status) + " Reason\r\nContent-Length: 1000\r\n\r\n{\"code\":1000}",
               then);
}

RawReply WithHeaders(const QByteArray& headers, const QByteArray& body, RawReply::Then then = RawReply::KeepOpen)
{
    return Raw("HTTP/1.1 200 OK\r\n" + headers + "\r\n" + body, then);
}

RawReply Chunked(const QByteArray& chunks, RawReply::Then then = RawReply::KeepOpen)
{
    return WithHeaders("Transfer-Encoding: chunked\r\n", chunks, then);
}

/// The body as one chunk, without the last one.
QByteArray Chunk()
{
    return QByteArray::number(kBody.size(), 16) + "\r\n" + kBody + "\r\n";
}

RawReply Gzipped(const QByteArray& body)
{
    return HttpReply(200, body, "Content-Encoding: gzip\r\n");
}

/// {"code":1000,"data":{"a":1}}
QByteArray Gzip()
{
    return QByteArray::fromHex(
        "1f8b0800000000000203ab564ace4f4955b232343030d0514a492c4954b2aa56021286b5b50085f97ac71c000000");
}

/// A reply that is shorter than its Content-Length.
RawReply GzippedAndClosed()
{
    RawReply reply = Gzipped(Gzip());
    reply.bytes.chop(20);
    reply.then = RawReply::Close;
    return reply;
}

RawReply OfStatus404(RawReply reply)
{
    reply.bytes.replace(reply.bytes.indexOf("200"), 3, "404");
    return reply;
}

Outcome CutShort()
{
    return NetworkFails("2", "Connection closed");
}

const std::vector<Fault> kFaults = {
    {"closed_before_the_reply", RepliesWith(Raw("", RawReply::Close)), NetworkFails("2", "Connection closed")},
    {"closed_in_the_status_line", RepliesWith(Raw("HTTP/1.1 2", RawReply::Close)),
     NetworkFails("2", "Connection closed")},
    {"closed_after_the_status_line", RepliesWith(Raw("HTTP/1.1 200 OK\r\n", RawReply::Close)),
     NetworkFails("2", "Connection closed")},
    {"closed_in_the_headers", RepliesWith(Raw("HTTP/1.1 200 OK\r\nContent-Le", RawReply::Close)),
     NetworkFails("2", "Connection closed")},
    {"closed_in_the_body", RepliesWith(Truncated(200)), NetworkFails()},
    {"closed_in_the_body_later", RepliesWith(Truncated(200, RawReply::CloseLater)), NetworkFails()},
    {"closed_in_the_body_of_201", RepliesWith(Truncated(201)), NetworkFails()},
    {"closed_in_the_body_of_302", RepliesWith(Truncated(302)), NetworkFails()},
    {"closed_in_the_body_of_302_later", RepliesWith(Truncated(302, RawReply::CloseLater)), NetworkFails()},
    {"closed_in_the_body_of_404", RepliesWith(Truncated(404)), NetworkFails()},
    {"closed_in_the_body_of_404_later", RepliesWith(Truncated(404, RawReply::CloseLater)), NetworkFails()},
    {"closed_in_the_body_of_500", RepliesWith(Truncated(500)), NetworkFails()},
    {"reset_before_the_reply", RepliesWith(Raw("", RawReply::Reset)), NetworkFails()},
    {"reset_after_the_status_line", RepliesWith(Raw("HTTP/1.1 200 OK\r\n", RawReply::Reset)), NetworkFails()},
    {"reset_in_the_body", RepliesWith(Truncated(200, RawReply::Reset)), NetworkFails()},
    {"not_http", RepliesWith(Raw("220 mail ready\r\n\r\n", RawReply::Close)), NetworkFails("2")},
    {"length_too_short", RepliesWith(WithHeaders("Content-Length: 5\r\n", kBody)), EnvelopeFails(-1)},
    {"length_too_long", RepliesWith(WithHeaders("Content-Length: 50\r\n", kBody, RawReply::Close)), NetworkFails()},
    {"length_too_long_not_chunked",
     RepliesWith(WithHeaders("Transfer-Encoding: identity\r\nContent-Length: 50\r\n", kBody, RawReply::Close)),
     NetworkFails()},
    {"length_negative", RepliesWith(WithHeaders("Content-Length: -5\r\n", kBody, RawReply::Close)), Succeeds()},
    {"length_not_a_number", RepliesWith(WithHeaders("Content-Length: all\r\n", kBody, RawReply::Close)), Succeeds()},
    {"without_length", RepliesWith(WithHeaders("", kBody, RawReply::Close)), Succeeds()},
    {"chunked", RepliesWith(Chunked(Chunk() + "0\r\n\r\n")), Succeeds()},
    {"chunked_beside_a_length",
     RepliesWith(WithHeaders("Transfer-Encoding: chunked\r\nContent-Length: 500\r\n", Chunk() + "0\r\n\r\n")),
     Succeeds()},
    {"chunk_size_not_a_number", RepliesWith(Chunked("xyz\r\n" + kBody + "\r\n0\r\n\r\n")), EnvelopeFails(-1)},
    {"chunk_size_negative", RepliesWith(Chunked("-5\r\n" + kBody + "\r\n0\r\n\r\n")), EnvelopeFails(-1)},
    {"chunk_size_beyond_64_bits", RepliesWith(Chunked("fffffffffffffffff\r\n" + kBody + "\r\n0\r\n\r\n")),
     EnvelopeFails(-1)},
    {"chunk_longer_than_its_size", RepliesWith(Chunked("5\r\n" + kBody + "\r\n0\r\n\r\n", RawReply::Close)),
     EnvelopeFails(-1)},
    {"chunk_truncated", RepliesWith(Chunked("ff\r\n{\"code\":1000,", RawReply::Close)), CutShort()},
    {"chunk_truncated_later", RepliesWith(Chunked("ff\r\n{\"code\":1000,", RawReply::CloseLater)), CutShort()},
    {"chunk_truncated_of_404", RepliesWith(OfStatus404(Chunked("ff\r\n{\"code\":1000,", RawReply::Close))), CutShort()},
    {"chunk_last_missing", RepliesWith(Chunked(Chunk(), RawReply::Close)), CutShort()},
    {"chunk_last_missing_of_404", RepliesWith(OfStatus404(Chunked(Chunk(), RawReply::Close))), CutShort()},
    {"gzip", RepliesWith(Gzipped(Gzip())), Succeeds()},
    {"gzip_named_but_not_used", RepliesWith(Gzipped(kBody)), NetworkFails("399", "Data corrupted")},
    {"gzip_truncated", RepliesWith(Gzipped(Gzip().left(20))), NetworkFails("399", "Data corrupted")},
    {"gzip_truncated_of_404", RepliesWith(OfStatus404(Gzipped(Gzip().left(20)))),
     NetworkFails("399", "Data corrupted")},
    {"gzip_truncated_before_the_checksum", RepliesWith(Gzipped(Gzip().chopped(8))),
     NetworkFails("399", "Data corrupted")},
    {"gzip_truncated_until_the_end",
     RepliesWith(WithHeaders("Content-Encoding: gzip\r\n", Gzip().left(20), RawReply::Close)), CutShort()},
    {"gzip_closed", RepliesWith(GzippedAndClosed()), CutShort()},
    {"gzip_closed_of_404", RepliesWith(OfStatus404(GzippedAndClosed())), CutShort()},
    {"gzip_corrupt", RepliesWith(Gzipped(Gzip().replace(12, 6, "abcdef"))), NetworkFails("399", "Data corrupted")},
    {"gzip_empty", RepliesWith(Gzipped("")), EnvelopeFails(-1)},
    {"401_without_challenge", RepliesWith(HttpReply(401, "{}")), AsksForAuthentication()},
    {"401_basic", RepliesWith(HttpReply(401, "{}", "WWW-Authenticate: Basic realm=\"x\"\r\n")),
     AsksForAuthentication()},
    {"401_digest", RepliesWith(HttpReply(401, "{}", "WWW-Authenticate: Digest realm=\"x\", nonce=\"1\"\r\n")),
     AsksForAuthentication()},
    {"401_bearer", RepliesWith(HttpReply(401, "{}", "WWW-Authenticate: Bearer\r\n")), AsksForAuthentication()},
    {"407_basic", RepliesWith(HttpReply(407, "{}", "Proxy-Authenticate: Basic realm=\"x\"\r\n")), StatusFails(407)},
};

INSTANTIATE_TEST_SUITE_P(Replies, FaultMatrix, testing::ValuesIn(Matrix(kFaults)), RowName());

}  // namespace
