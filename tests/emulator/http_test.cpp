// Which HTTP requests the emulator accepts and which it rejects, following RFC 9110 and RFC 9112.
#include "EmulatorTest.h"

#include <RequestReader.h>

#include <algorithm>
#include <string>
#include <vector>

namespace {

using emulator::RecordedRequest;

const std::string kPath = "/brms/api/v1.1/config/time-sync";
const std::string kImmediate = "/brms/api/v1.1/config/time-sync/immediate";
const std::string kToken = "X-Subject-Token: emulator-token\r\n";
const std::string kGet = "GET " + kPath + " HTTP/1.1\r\nHost: a\r\n" + kToken;
const std::string kPost = "POST " + kImmediate + " HTTP/1.1\r\nHost: a\r\n" + kToken;
/// A valid request that asks to close its connection.
const std::string kNext = kGet + "Connection: close\r\n\r\n";

std::size_t Count(const std::string& text, const std::string& part)
{
    std::size_t count = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) {
        ++count;
    }
    return count;
}

/// Sends the text, at once or byte by byte, and returns everything received until the emulator closes the connection.
std::string Exchanged(int port, const std::string& text, bool byteByByte)
{
    RawConnection connection(port);
    const std::size_t size = byteByByte ? 1 : text.size();
    for (std::size_t at = 0; at < text.size(); at += size) {
        connection.send(std::string_view(text).substr(at, size));
    }
    return connection.receiveUntil({});
}

/// Names a test after its row and the delivery.
constexpr auto RowAndDelivery = [](const auto& test) {
    const auto& [row, byteByByte] = test.param;
    return row.name + std::string(byteByByte ? "ByteByByte" : "AtOnce");
};

struct BadHttp {
    const char* name;
    std::string text;
    int status;
};

class BadHttpTest : public EmulatorTableTest, public testing::WithParamInterface<std::tuple<BadHttp, bool>> {};

struct GoodHttp {
    const char* name;
    std::string text;  ///< sent before kNext
    int code;          ///< expected in the envelope
};

class GoodHttpTest : public EmulatorTableTest, public testing::WithParamInterface<std::tuple<GoodHttp, bool>> {};

}  // namespace

TEST_P(BadHttpTest, IsRejectedAndEndsTheConnection)
{
    const auto& [row, byteByByte] = GetParam();
    const std::string reply = Exchanged(m_platform.httpPort(), row.text + kNext, byteByByte);
    EXPECT_EQ(reply.substr(0, 12), "HTTP/1.1 " + std::to_string(row.status)) << reply;
    EXPECT_EQ(Count(reply, "HTTP/1.1 "), 1U) << reply;
    EXPECT_NE(reply.find("\r\nConnection: close\r\n"), std::string::npos) << reply;
    EXPECT_NE(reply.find("{\"error\":\""), std::string::npos) << reply;
    EXPECT_TRUE(m_platform.requests().empty()) << "no request is served";
}

INSTANTIATE_TEST_SUITE_P(
    Http, BadHttpTest,
    testing::Combine(
        testing::Values(
            BadHttp{"NoRequestLine", "HELLO\r\n\r\n", 400}, BadHttp{"TwoEmptyLinesFirst", "\r\n\r\n" + kGet, 400},
            BadHttp{"NoVersion", "GET /\r\n\r\n", 400}, BadHttp{"NoTarget", "GET HTTP/1.1\r\nHost: a\r\n\r\n", 400},
            BadHttp{"SpaceInTarget", "GET /a b HTTP/1.1\r\nHost: a\r\n\r\n", 400},
            BadHttp{"TwoSpacesBeforeTarget", "GET  / HTTP/1.1\r\nHost: a\r\n\r\n", 400},
            BadHttp{"SpaceFirst", " GET / HTTP/1.1\r\nHost: a\r\n\r\n", 400},
            BadHttp{"VersionInLowerCase", "GET / http/1.1\r\nHost: a\r\n\r\n", 400},
            BadHttp{"OtherVersion", "GET / HTTP/2.0\r\nHost: a\r\n\r\n", 505},
            BadHttp{"PrefaceOfHttp2", "PRI * HTTP/2.0\r\n\r\nSM\r\n\r\n", 505},
            BadHttp{"UnknownMethod", "BREW / HTTP/1.1\r\nHost: a\r\n\r\n", 501},
            BadHttp{"MethodInLowerCase", "get / HTTP/1.1\r\nHost: a\r\n\r\n", 501},
            BadHttp{"Tunnel", "CONNECT a:1 HTTP/1.1\r\nHost: a\r\n\r\n", 501},
            BadHttp{"TargetTooLong", "GET /" + std::string(emulator::kLongestTarget, 'a') + " HTTP/1.1\r\nHost: a\r\n",
                    414},
            BadHttp{"TargetWithoutEnd", "GET /" + std::string(2 * emulator::kLongestTarget, 'a'), 414},
            BadHttp{"MethodWithoutEnd", std::string(2 * emulator::kLongestTarget, 'a'), 400},
            BadHttp{"HeadersTooLarge", kGet + "X: " + std::string(emulator::kLargestHead, 'a') + "\r\n\r\n", 431},

            BadHttp{"LineFeedAfterRequestLine", "GET / HTTP/1.1\nHost: a\r\n\r\n", 400},
            BadHttp{"LineFeedsOnly", "GET / HTTP/1.1\nHost: a\n\n", 400},
            BadHttp{"LineFeedAfterHeader", kGet + "X: a\nY: b\r\n\r\n", 400},
            BadHttp{"LineFeedAtTheEnd", kGet + "\n", 400},
            BadHttp{"CarriageReturnWithoutLineFeed", kGet + "X: a\rb\r\n\r\n", 400},
            BadHttp{"NulInHeader", kGet + std::string("X: a\0b\r\n\r\n", 10), 400},
            BadHttp{"ControlCharacterInHeader", kGet + "X: a\x1b\r\n\r\n", 400},
            BadHttp{"FoldedHeader", kGet + "X: a\r\n b\r\n\r\n", 400},
            BadHttp{"FoldedWithTab", kGet + "X: a\r\n\tb\r\n\r\n", 400},
            BadHttp{"FoldedFirst", "GET / HTTP/1.1\r\n X: a\r\nHost: a\r\n\r\n", 400},
            BadHttp{"FoldedAtTheEnd", kGet + "X: a\r\n \r\n\r\n", 400},
            BadHttp{"SpaceBeforeColon", kGet + "X : a\r\n\r\n", 400},
            BadHttp{"TabBeforeColon", kGet + "X\t: a\r\n\r\n", 400}, BadHttp{"NoColon", kGet + "X\r\n\r\n", 400},
            BadHttp{"NoName", kGet + ": a\r\n\r\n", 400}, BadHttp{"NameInBrackets", kGet + "(X): a\r\n\r\n", 400},

            BadHttp{"HostMissing", "GET / HTTP/1.1\r\n" + kToken + "\r\n", 400},
            BadHttp{"HostTwice", kGet + "Host: a\r\n\r\n", 400},
            BadHttp{"OtherHostTwice", kGet + "host: b\r\n\r\n", 400},
            BadHttp{"HostTwiceInHttp10", "GET / HTTP/1.0\r\nHost: a\r\nHost: a\r\n\r\n", 400},
            BadHttp{"HostWithPath", "GET / HTTP/1.1\r\nHost: a/b\r\n\r\n", 400},

            BadHttp{"TwoLengths", kPost + "Content-Length: 2\r\nContent-Length: 3\r\n\r\n{}", 400},
            BadHttp{"TwoLengthsInOneHeader", kPost + "Content-Length: 2, 3\r\n\r\n{}", 400},
            BadHttp{"LengthWithPlus", kPost + "Content-Length: +5\r\n\r\n12345", 400},
            BadHttp{"LengthNegative", kPost + "Content-Length: -5\r\n\r\n12345", 400},
            BadHttp{"LengthHexadecimal", kPost + "Content-Length: 0x5\r\n\r\n12345", 400},
            BadHttp{"LengthWithLetters", kPost + "Content-Length: 5a\r\n\r\n12345", 400},
            BadHttp{"LengthEmpty", kPost + "Content-Length:\r\n\r\n", 400},
            BadHttp{"LengthAboveTheLimit",
                    kPost + "Content-Length: " + std::to_string(emulator::kLargestBody + 1) + "\r\n\r\n", 413},
            BadHttp{"LengthOverflows", kPost + "Content-Length: 99999999999999999999999\r\n\r\n", 413},
            BadHttp{"LengthAndCoding", kPost + "Content-Length: 5\r\nTransfer-Encoding: chunked\r\n\r\n0\r\n\r\n", 400},
            BadHttp{"CodingAndLength", kPost + "Transfer-Encoding: chunked\r\nContent-Length: 5\r\n\r\n0\r\n\r\n", 400},
            BadHttp{"UnknownCoding", kPost + "Transfer-Encoding: gzip\r\n\r\n", 501},
            BadHttp{"UnknownCodingFirst", kPost + "Transfer-Encoding: gzip, chunked\r\n\r\n0\r\n\r\n", 501},
            BadHttp{"UnknownCodingLast", kPost + "Transfer-Encoding: chunked, gzip\r\n\r\n0\r\n\r\n", 501},
            BadHttp{"CodingOfSimilarName", kPost + "Transfer-Encoding: xchunked\r\n\r\n0\r\n\r\n", 501},
            BadHttp{"CodingTwice", kPost + "Transfer-Encoding: chunked, chunked\r\n\r\n0\r\n\r\n", 400},
            BadHttp{"CodingInTwoHeaders",
                    kPost + "Transfer-Encoding: chunked\r\nTransfer-Encoding: chunked\r\n\r\n0\r\n\r\n", 400},
            BadHttp{"CodingEmpty", kPost + "Transfer-Encoding:\r\n\r\n", 400},
            BadHttp{"CodingInHttp10", "POST / HTTP/1.0\r\nTransfer-Encoding: chunked\r\n\r\n0\r\n\r\n", 400},
            BadHttp{"UnknownExpectation", kPost + "Expect: a-cake\r\nContent-Length: 2\r\n\r\n{}", 417},

            BadHttp{"NoLineEndAfterChunk", kPost + "Transfer-Encoding: chunked\r\n\r\n2\r\n{}0\r\n\r\n", 400},
            BadHttp{"ChunkLongerThanItsSize", kPost + "Transfer-Encoding: chunked\r\n\r\n2\r\n{}}\r\n0\r\n\r\n", 400},
            BadHttp{"ChunkSizeNotNumber", kPost + "Transfer-Encoding: chunked\r\n\r\nx\r\n{}\r\n0\r\n\r\n", 400},
            BadHttp{"ChunkSizeNegative", kPost + "Transfer-Encoding: chunked\r\n\r\n-2\r\n{}\r\n0\r\n\r\n", 400},
            BadHttp{"ChunkSizeOverflows",
                    kPost + "Transfer-Encoding: chunked\r\n\r\n11111111111111111\r\n{}\r\n0\r\n\r\n", 400},
            BadHttp{"ChunkAboveTheLimit", kPost + "Transfer-Encoding: chunked\r\n\r\nfffffffff\r\n{}\r\n0\r\n\r\n",
                    413},
            BadHttp{"LineFeedAfterChunkSize", kPost + "Transfer-Encoding: chunked\r\n\r\n2\n{}\n0\n\n", 400},
            BadHttp{"LineFeedAfterTrailer", kPost + "Transfer-Encoding: chunked\r\n\r\n0\r\nX: a\n\r\n", 400},
            BadHttp{"FoldedTrailer", kPost + "Transfer-Encoding: chunked\r\n\r\n0\r\nX: a\r\n b\r\n\r\n", 400},
            BadHttp{"TrailersTooLarge",
                    kPost +
                        "Transfer-Encoding: chunked\r\n\r\n0\r\nX: " + std::string(emulator::kLargestEndOfBody, 'a'),
                    431},
            BadHttp{"LengthInTrailer", kPost + "Transfer-Encoding: chunked\r\n\r\n0\r\nContent-Length: 2\r\n\r\n",
                    400}),
        testing::Bool()),
    RowAndDelivery);

TEST_P(GoodHttpTest, IsServedAndKeepsTheConnection)
{
    const auto& [row, byteByByte] = GetParam();
    const std::string replies = Exchanged(m_platform.httpPort(), row.text + kNext, byteByByte);
    EXPECT_EQ(Count(replies, "HTTP/1.1 200 OK\r\n"), 2U) << replies;
    ASSERT_EQ(m_platform.requests().size(), 2U);
    EXPECT_EQ(m_platform.requests().front().code, row.code) << replies;
    EXPECT_EQ(m_platform.requests().back().code, 1000) << replies;
}

INSTANTIATE_TEST_SUITE_P(
    Http, GoodHttpTest,
    testing::Combine(
        testing::Values(
            GoodHttp{"EmptyLineFirst", "\r\n" + kGet + "\r\n", 1000},
            GoodHttp{"EmptyLineAfterBody", kPost + "Content-Length: 0\r\n\r\n\r\n", 1000},
            GoodHttp{"AbsoluteTarget", "GET http://any:1" + kPath + " HTTP/1.1\r\nHost: a\r\n" + kToken + "\r\n", 1000},
            GoodHttp{"AbsoluteTargetWithoutPath", "GET http://any HTTP/1.1\r\nHost: a\r\n" + kToken + "\r\n", 1001},
            GoodHttp{"AsteriskAsTarget", "OPTIONS * HTTP/1.1\r\nHost: a\r\n" + kToken + "\r\n", 1001},
            GoodHttp{"LongestTarget",
                     "GET /" + std::string(emulator::kLongestTarget - 1, 'a') + " HTTP/1.1\r\nHost: a\r\n" + kToken +
                         "\r\n",
                     1001},
            GoodHttp{"HeaderNamesInLowerCase",
                     "GET " + kPath + " HTTP/1.1\r\nhost: a\r\nx-subject-token: emulator-token\r\n\r\n", 1000},
            GoodHttp{"HeaderWithoutSpace",
                     "GET " + kPath + " HTTP/1.1\r\nHost:\r\nX-Subject-Token:emulator-token\r\n\r\n", 1000},
            GoodHttp{"HeaderWithManySpaces", kGet + "X: \t a \t \r\n\r\n", 1000},
            GoodHttp{"LongHeader", kGet + "X: " + std::string(100'000, 'a') + "\r\n\r\n", 1000},
            GoodHttp{"HeaderWithNonAsciiBytes", kGet + "X: \xc3\xbc\xff\r\n\r\n", 1000},
            GoodHttp{"SameLengthTwice", kPost + "Content-Length: 0\r\nContent-Length: 0\r\n\r\n", 1000},
            GoodHttp{"LengthWithZeros", kPost + "Content-Length: 00000000000000000000002\r\n\r\n{}", 1003},
            GoodHttp{"Http10", "GET " + kPath + " HTTP/1.0\r\nConnection: keep-alive\r\n" + kToken + "\r\n", 1000},
            GoodHttp{"LastChunkOnly", kPost + "Transfer-Encoding: chunked\r\n\r\n0\r\n\r\n", 1000},
            GoodHttp{"Chunks", kPost + "Transfer-Encoding: chunked\r\n\r\n1\r\n{\r\n01\r\n}\r\n000\r\n\r\n", 1003},
            GoodHttp{"ChunkExtension", kPost + "Transfer-Encoding: Chunked\r\n\r\n2;a=b;c=\"d\"\r\n{}\r\n0;e\r\n\r\n",
                     1003},
            GoodHttp{"Trailers", kPost + "Transfer-Encoding: chunked\r\n\r\n2\r\n{}\r\n0\r\nX: a\r\nY: b\r\n\r\n",
                     1003}),
        testing::Bool()),
    RowAndDelivery);

class HttpTest : public EmulatorTest {
protected:
    std::string replyTo(const std::string& text) const { return SendRaw(m_platform.httpPort(), text); }
};

TEST_F(HttpTest, RecordsHeadersInOrder)
{
    replyTo("GET " + kPath + " HTTP/1.1\r\nz: 1\r\nHOST:  a \r\nZ: 2\r\nEmpty:\r\nz: 1\r\nConnection: close\r\n\r\n");
    const std::vector<std::pair<std::string, std::string>> sent = {
        {"z", "1"}, {"HOST", "a"}, {"Z", "2"}, {"Empty", ""}, {"z", "1"}, {"Connection", "close"}};
    ASSERT_EQ(m_platform.requests().size(), 1U);
    EXPECT_EQ(m_platform.requests().front().headers, sent);
}

TEST_F(HttpTest, DoesNotRecordTrailersAsHeaders)
{
    replyTo(kPost + "Transfer-Encoding: chunked\r\nConnection: close\r\n\r\n2\r\n{}\r\n0\r\nX: a\r\n\r\n");
    ASSERT_EQ(m_platform.requests().size(), 1U);
    const RecordedRequest request = m_platform.requests().front();
    EXPECT_EQ(request.headers.size(), 4U);
    EXPECT_EQ(request.header("X"), "");
    EXPECT_EQ(request.body, "{}");
}

TEST_F(HttpTest, RecordsAbsoluteTargetUnchangedAndServesItsPath)
{
    AddFault(m_platform, {{"kind", "envelope"}, {"path", kPath + "?a="}, {"code", 7}});
    const std::string target = "http://127.0.0.1:80" + kPath + "?a=b";
    replyTo("GET " + target + " HTTP/1.1\r\nHost: a\r\nConnection: close\r\n\r\n");
    ASSERT_EQ(m_platform.requests().size(), 1U);
    const RecordedRequest request = m_platform.requests().front();
    EXPECT_EQ(request.target, target);
    EXPECT_EQ(request.path, kPath);
    EXPECT_EQ(request.query, (std::vector<std::pair<std::string, std::string>>{{"a", "b"}}));
    EXPECT_EQ(request.code, 7) << "the fault matches";
}

TEST_F(HttpTest, AnswersPipelinedRequestsInOrder)
{
    std::string many;
    for (int i = 0; i < 100; ++i) {
        many += "GET /" + std::to_string(i) + " HTTP/1.1\r\nHost: a\r\n" + kToken + "\r\n";
    }
    const std::string replies = replyTo(many + kNext);
    std::size_t at = 0;
    for (int i = 0; i < 100; ++i) {
        at = replies.find("no service at /" + std::to_string(i) + "\"", at);
        ASSERT_NE(at, std::string::npos) << i;
    }
    EXPECT_NE(replies.find("\"code\":1000", at), std::string::npos);
}

TEST_F(HttpTest, ReplyToHeadHasNoBody)
{
    const std::string replies = replyTo("HEAD " + kPath + " HTTP/1.1\r\nHost: a\r\n" + kToken + "\r\n" + kNext);
    const std::size_t end = replies.find("\r\n\r\n");
    ASSERT_NE(end, std::string::npos);
    EXPECT_EQ(replies.substr(end + 4, 8), "HTTP/1.1") << replies;
    EXPECT_EQ(m_platform.requests().front().code, 1002);
}

TEST_F(HttpTest, Http10ConnectionIsClosedUnlessKeptAlive)
{
    const std::string old = "GET " + kPath + " HTTP/1.0\r\n" + kToken;
    EXPECT_NE(replyTo(old + "\r\n").find("\r\nConnection: close\r\n"), std::string::npos);
    const std::string both = replyTo(old + "Connection: keep-alive\r\n\r\n" + old + "\r\n");
    EXPECT_NE(both.find("\r\nConnection: keep-alive\r\n"), std::string::npos) << both;
    EXPECT_EQ(Count(both, "HTTP/1.1 200"), 2U) << both;
}

TEST_F(HttpTest, SendsContinueWhenClientWaitsForIt)
{
    RawConnection connection(m_platform.httpPort(), kPost + "Expect: 100-Continue\r\nContent-Length: 2\r\n\r\n");
    EXPECT_EQ(connection.receiveUntil("\r\n\r\n"), "HTTP/1.1 100 Continue\r\n\r\n");
    connection.send("{}");
    EXPECT_NE(connection.receiveUntil("}").find("body: not expected"), std::string::npos);
    connection.send(kPost + "Expect: 100-continue\r\nTransfer-Encoding: chunked\r\n\r\n");
    EXPECT_EQ(connection.receiveUntil("\r\n\r\n"), "HTTP/1.1 100 Continue\r\n\r\n");
    connection.send("0\r\n\r\n");
    EXPECT_NE(connection.receiveUntil("}").find("\"code\":1000"), std::string::npos);
}

TEST_F(HttpTest, SendsNoContinueWhenBodyArrivesAtOnce)
{
    const std::string expecting = "Expect: 100-continue\r\nConnection: close\r\n";
    EXPECT_EQ(replyTo(kPost + expecting + "Content-Length: 2\r\n\r\n{}").find("100 Continue"), std::string::npos);
    EXPECT_EQ(replyTo(kPost + expecting + "Content-Length: 0\r\n\r\n").find("100 Continue"), std::string::npos);
    const std::string huge = replyTo(kPost + expecting + "Content-Length: 99999999999\r\n\r\n");
    EXPECT_EQ(huge.substr(0, 12), "HTTP/1.1 413") << "before any of the body arrives";
}

TEST_F(HttpTest, EndlessInputThatIsNotHttpIsClosed)
{
    const std::string hello = {0x16, 0x03, 0x01, 0x02, 0x00, 0x01, 0x00, 0x01, '\xfc', 0x03, 0x03};
    std::string junk;
    for (int i = 255; i >= 0; --i) {
        junk += static_cast<char>(i);
    }
    for (const std::string& text : {hello, junk, std::string(1, '\0'), std::string("GET / HTTP/1.1\n")}) {
        EXPECT_EQ(replyTo(text).substr(0, 12), "HTTP/1.1 400");
        RawConnection(m_platform.httpsPort(), text);
    }
    EXPECT_EQ(SendRaw(m_platform.httpsPort(), junk).find("HTTP"), std::string::npos);
    EXPECT_EQ(ClientOf(m_platform)->get(kPath).code(), 1000);
    EXPECT_EQ(ClientOf(m_platform, TestClient::Scheme::Https)->get(kPath).code(), 1000);
}

TEST_F(HttpTest, TruncatedRequestIsRejected)
{
    for (const std::string& text : {std::string("GET / HT"), kGet, kPost + "Content-Length: 5\r\n\r\n{}",
                                    kPost + "Transfer-Encoding: chunked\r\n\r\n2\r\n{}\r\n"}) {
        EXPECT_EQ(SendRaw(m_platform.httpPort(), text, true).substr(0, 12), "HTTP/1.1 400") << text;
    }
    EXPECT_EQ(SendRaw(m_platform.httpPort(), "", true), "") << "closing without a request is not an error";
    EXPECT_TRUE(m_platform.requests().empty());
}

TEST_F(HttpTest, ClientThatKeepsSendingReceivesTheRejection)
{
    RawConnection connection(m_platform.httpPort(), kPost + "Content-Length: 99999999999\r\n\r\n");
    const std::string block(1024UL * 1024, 'x');
    for (int i = 0; i < 16; ++i) {
        connection.send(block);
    }
    EXPECT_EQ(connection.receiveUntil({}).substr(0, 12), "HTTP/1.1 413");
    EXPECT_FALSE(connection.isReset());
}

TEST_F(HttpTest, HalfClosedConnectionReceivesReply)
{
    EXPECT_NE(SendRaw(m_platform.httpPort(), kGet + "\r\n", true).find("\"code\":1000"), std::string::npos);
}

TEST_F(HttpTest, HeadersOfAFaultReplaceServerHeaders)
{
    emulator::Fault fault;
    fault.kind = emulator::Fault::Kind::Status;
    fault.status = 299;
    fault.headers = {{"content-type", "text/plain"}, {"Connection", "close"}, {"X", "a\r\nY: b"}};
    fault.body = "text";
    m_platform.addFault(fault);
    const std::string reply = replyTo(kGet + "\r\n");
    EXPECT_EQ(reply, "HTTP/1.1 299 \r\ncontent-type: text/plain\r\nConnection: close\r\nContent-Length: 4\r\n\r\ntext");
}

TEST_F(HttpTest, ContentLengthOfAFaultIsSentAndClosesTheConnection)
{
    AddFault(m_platform,
             {{"kind", "status"}, {"status", 200}, {"headers", {{"Content-Length", "9"}}}, {"body", "text"}});
    const std::string reply = replyTo(kGet + "\r\n");
    EXPECT_EQ(Count(reply, "Content-Length"), 1U) << reply;
    EXPECT_NE(reply.find("Content-Length: 9\r\n"), std::string::npos) << reply;
    EXPECT_EQ(reply.substr(reply.find("\r\n\r\n") + 4), "text");
}
