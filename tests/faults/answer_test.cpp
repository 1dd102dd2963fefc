// Replies that are truncated or malformed, or that reject the caller.
#include "FaultMatrix.h"

using namespace testing_support;

namespace {

const QByteArray kBody = R"({"code":1000,"data":{"a":1}})";

RawAnswer Raw(const QByteArray& bytes, RawAnswer::Then then = RawAnswer::KeepOpen)
{
    return {bytes, 0, then};
}

/// A reply that ends within its body.
RawAnswer Cut(int status, RawAnswer::Then then = RawAnswer::Close)
{
    return Raw("HTTP/1.1 " + QByteArray::number(status) + " Reason\r\nContent-Length: 1000\r\n\r\n{\"code\":1000}",
               then);
}

RawAnswer WithHeaders(const QByteArray& headers, const QByteArray& body, RawAnswer::Then then = RawAnswer::KeepOpen)
{
    return Raw("HTTP/1.1 200 OK\r\n" + headers + "\r\n" + body, then);
}

RawAnswer Chunked(const QByteArray& chunks, RawAnswer::Then then = RawAnswer::KeepOpen)
{
    return WithHeaders("Transfer-Encoding: chunked\r\n", chunks, then);
}

/// The body as one chunk, without the last one.
QByteArray Chunk()
{
    return QByteArray::number(kBody.size(), 16) + "\r\n" + kBody + "\r\n";
}

RawAnswer Gzipped(const QByteArray& body)
{
    return HttpAnswer(200, body, "Content-Encoding: gzip\r\n");
}

/// {"code":1000,"data":{"a":1}}
QByteArray Gzip()
{
    return QByteArray::fromHex(
        "1f8b0800000000000203ab564ace4f4955b232343030d0514a492c4954b2aa56021286b5b50085f97ac71c000000");
}

/// A reply that is shorter than its Content-Length.
RawAnswer GzippedAndClosed()
{
    RawAnswer answer = Gzipped(Gzip());
    answer.bytes.chop(20);
    answer.then = RawAnswer::Close;
    return answer;
}

RawAnswer OfStatus404(RawAnswer answer)
{
    answer.bytes.replace(answer.bytes.indexOf("200"), 3, "404");
    return answer;
}

Outcome CutShort()
{
    return NetworkFails("2", "Connection closed");
}

const std::vector<Fault> kFaults = {
    {"closed_before_the_reply", Answers(Raw("", RawAnswer::Close)), NetworkFails("2", "Connection closed")},
    {"closed_in_the_status_line", Answers(Raw("HTTP/1.1 2", RawAnswer::Close)), NetworkFails("2", "Connection closed")},
    {"closed_after_the_status_line", Answers(Raw("HTTP/1.1 200 OK\r\n", RawAnswer::Close)),
     NetworkFails("2", "Connection closed")},
    {"closed_in_the_headers", Answers(Raw("HTTP/1.1 200 OK\r\nContent-Le", RawAnswer::Close)),
     NetworkFails("2", "Connection closed")},
    {"closed_in_the_body", Answers(Cut(200)), NetworkFails()},
    {"closed_in_the_body_later", Answers(Cut(200, RawAnswer::CloseLater)), NetworkFails()},
    {"closed_in_the_body_of_201", Answers(Cut(201)), NetworkFails()},
    {"closed_in_the_body_of_302", Answers(Cut(302)), NetworkFails()},
    {"closed_in_the_body_of_302_later", Answers(Cut(302, RawAnswer::CloseLater)), NetworkFails()},
    {"closed_in_the_body_of_404", Answers(Cut(404)), NetworkFails()},
    {"closed_in_the_body_of_404_later", Answers(Cut(404, RawAnswer::CloseLater)), NetworkFails()},
    {"closed_in_the_body_of_500", Answers(Cut(500)), NetworkFails()},
    {"reset_before_the_reply", Answers(Raw("", RawAnswer::Reset)), NetworkFails()},
    {"reset_after_the_status_line", Answers(Raw("HTTP/1.1 200 OK\r\n", RawAnswer::Reset)), NetworkFails()},
    {"reset_in_the_body", Answers(Cut(200, RawAnswer::Reset)), NetworkFails()},
    {"not_http", Answers(Raw("220 mail ready\r\n\r\n", RawAnswer::Close)), NetworkFails("2")},
    {"length_too_short", Answers(WithHeaders("Content-Length: 5\r\n", kBody)), EnvelopeFails(-1)},
    {"length_too_long", Answers(WithHeaders("Content-Length: 50\r\n", kBody, RawAnswer::Close)), NetworkFails()},
    {"length_too_long_not_chunked",
     Answers(WithHeaders("Transfer-Encoding: identity\r\nContent-Length: 50\r\n", kBody, RawAnswer::Close)),
     NetworkFails()},
    {"length_negative", Answers(WithHeaders("Content-Length: -5\r\n", kBody, RawAnswer::Close)), Succeeds()},
    {"length_not_a_number", Answers(WithHeaders("Content-Length: all\r\n", kBody, RawAnswer::Close)), Succeeds()},
    {"without_length", Answers(WithHeaders("", kBody, RawAnswer::Close)), Succeeds()},
    {"chunked", Answers(Chunked(Chunk() + "0\r\n\r\n")), Succeeds()},
    {"chunked_beside_a_length",
     Answers(WithHeaders("Transfer-Encoding: chunked\r\nContent-Length: 500\r\n", Chunk() + "0\r\n\r\n")), Succeeds()},
    {"chunk_size_not_a_number", Answers(Chunked("xyz\r\n" + kBody + "\r\n0\r\n\r\n")), EnvelopeFails(-1)},
    {"chunk_size_negative", Answers(Chunked("-5\r\n" + kBody + "\r\n0\r\n\r\n")), EnvelopeFails(-1)},
    {"chunk_size_beyond_64_bits", Answers(Chunked("fffffffffffffffff\r\n" + kBody + "\r\n0\r\n\r\n")),
     EnvelopeFails(-1)},
    {"chunk_longer_than_its_size", Answers(Chunked("5\r\n" + kBody + "\r\n0\r\n\r\n", RawAnswer::Close)),
     EnvelopeFails(-1)},
    {"chunk_cut", Answers(Chunked("ff\r\n{\"code\":1000,", RawAnswer::Close)), CutShort()},
    {"chunk_cut_later", Answers(Chunked("ff\r\n{\"code\":1000,", RawAnswer::CloseLater)), CutShort()},
    {"chunk_cut_of_404", Answers(OfStatus404(Chunked("ff\r\n{\"code\":1000,", RawAnswer::Close))), CutShort()},
    {"chunk_last_missing", Answers(Chunked(Chunk(), RawAnswer::Close)), CutShort()},
    {"chunk_last_missing_of_404", Answers(OfStatus404(Chunked(Chunk(), RawAnswer::Close))), CutShort()},
    {"gzip", Answers(Gzipped(Gzip())), Succeeds()},
    {"gzip_named_but_not_used", Answers(Gzipped(kBody)), NetworkFails("399", "Data corrupted")},
    {"gzip_cut", Answers(Gzipped(Gzip().left(20))), NetworkFails("399", "Data corrupted")},
    {"gzip_cut_of_404", Answers(OfStatus404(Gzipped(Gzip().left(20)))), NetworkFails("399", "Data corrupted")},
    {"gzip_cut_before_its_sum", Answers(Gzipped(Gzip().chopped(8))), NetworkFails("399", "Data corrupted")},
    {"gzip_cut_until_the_end", Answers(WithHeaders("Content-Encoding: gzip\r\n", Gzip().left(20), RawAnswer::Close)),
     CutShort()},
    {"gzip_closed", Answers(GzippedAndClosed()), CutShort()},
    {"gzip_closed_of_404", Answers(OfStatus404(GzippedAndClosed())), CutShort()},
    {"gzip_garbled", Answers(Gzipped(Gzip().replace(12, 6, "abcdef"))), NetworkFails("399", "Data corrupted")},
    {"gzip_empty", Answers(Gzipped("")), EnvelopeFails(-1)},
    {"401_without_challenge", Answers(HttpAnswer(401, "{}")), AsksForAuthentication()},
    {"401_basic", Answers(HttpAnswer(401, "{}", "WWW-Authenticate: Basic realm=\"x\"\r\n")), AsksForAuthentication()},
    {"401_digest", Answers(HttpAnswer(401, "{}", "WWW-Authenticate: Digest realm=\"x\", nonce=\"1\"\r\n")),
     AsksForAuthentication()},
    {"401_bearer", Answers(HttpAnswer(401, "{}", "WWW-Authenticate: Bearer\r\n")), AsksForAuthentication()},
    {"407_basic", Answers(HttpAnswer(407, "{}", "Proxy-Authenticate: Basic realm=\"x\"\r\n")), StatusFails(407)},
};

INSTANTIATE_TEST_SUITE_P(Answers, FaultMatrix, testing::ValuesIn(Matrix(kFaults)), RowName());

}  // namespace
