// What the emulator takes for HTTP and what it refuses, as RFC 9110 and 9112 have it.
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
/// A request that is right and the last one of its connection.
const std::string kNext = kGet + "Connection: close\r\n\r\n";

std::size_t Count(const std::string& text, const std::string& part)
{
    std::size_t count = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) {
        ++count;
    }
    return count;
}

enum class Pieces {
    Whole,
    Bytes
};

/// All that comes back until the emulator closes.
std::string Exchanged(int port, const std::string& text, Pieces pieces)
{
    RawConnection connection(port);
    if (pieces == Pieces::Whole) {
        connection.send(text);
    } else {
        for (const char c : text) {
            connection.send({&c, 1});
        }
    }
    return connection.receiveUntil({});
}

std::string NameOf(Pieces pieces)
{
    return pieces == Pieces::Whole ? "Whole" : "Bytes";
}

struct BadHttp {
    const char* name;
    std::string text;
    int status;
};

class BadHttpTest : public EmulatorTableTest, public testing::WithParamInterface<std::tuple<BadHttp, Pieces>> {
protected:
    BadHttpTest() { m_platform.clearRequests(); }
};

struct GoodHttp {
    const char* name;
    std::string text;  ///< kNext follows
    int code;          ///< of the envelope
};

class GoodHttpTest : public EmulatorTableTest, public testing::WithParamInterface<std::tuple<GoodHttp, Pieces>> {
protected:
    GoodHttpTest() { m_platform.clearRequests(); }
};

}  // namespace

TEST_P(BadHttpTest, IsRefusedAndNothingAfterItIsRead)
{
    const auto& [row, pieces] = GetParam();
    const std::string reply = Exchanged(m_platform.httpPort(), row.text + kNext, pieces);
    EXPECT_EQ(reply.substr(0, 12), "HTTP/1.1 " + std::to_string(row.status)) << reply;
    EXPECT_EQ(Count(reply, "HTTP/1.1 "), 1U) << reply;
    EXPECT_NE(reply.find("\r\nConnection: close\r\n"), std::string::npos) << reply;
    EXPECT_NE(reply.find("{\"error\":\""), std::string::npos) << reply;
    EXPECT_TRUE(m_platform.requests().empty()) << "nothing is served";
}

INSTANTIATE_TEST_SUITE_P(
    Http, BadHttpTest,
    testing::Combine(
        testing::Values(
            BadHttp{"NoRequestLine", "HELLO\r\n\r\n", 400}, BadHttp{"TwoEmptyLinesFirst", "\r\n\r\n" + kGet, 400},
            BadHttp{"NoVersion", "GET /\r\n\r\n", 400}, BadHttp{"NoTarget", "GET HTTP/1.1\r\nHost: a\r\n\r\n", 400},
            BadHttp{"BlankInTarget", "GET /a b HTTP/1.1\r\nHost: a\r\n\r\n", 400},
            BadHttp{"TwoBlanksBeforeTarget", "GET  / HTTP/1.1\r\nHost: a\r\n\r\n", 400},
            BadHttp{"BlankFirst", " GET / HTTP/1.1\r\nHost: a\r\n\r\n", 400},
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
            BadHttp{"ReturnWithoutLineFeed", kGet + "X: a\rb\r\n\r\n", 400},
            BadHttp{"ZeroInHeader", kGet + std::string("X: a\0b\r\n\r\n", 10), 400},
            BadHttp{"ControlInHeader", kGet + "X: a\x1b\r\n\r\n", 400},
            BadHttp{"FoldedHeader", kGet + "X: a\r\n b\r\n\r\n", 400},
            BadHttp{"FoldedWithTab", kGet + "X: a\r\n\tb\r\n\r\n", 400},
            BadHttp{"FoldedFirst", "GET / HTTP/1.1\r\n X: a\r\nHost: a\r\n\r\n", 400},
            BadHttp{"FoldedAtTheEnd", kGet + "X: a\r\n \r\n\r\n", 400},
            BadHttp{"BlankBeforeColon", kGet + "X : a\r\n\r\n", 400},
            BadHttp{"TabBeforeColon", kGet + "X\t: a\r\n\r\n", 400}, BadHttp{"NoColon", kGet + "X\r\n\r\n", 400},
            BadHttp{"NoName", kGet + ": a\r\n\r\n", 400}, BadHttp{"NameInBrackets", kGet + "(X): a\r\n\r\n", 400},

            BadHttp{"HostMissing", "GET / HTTP/1.1\r\n" + kToken + "\r\n", 400},
            BadHttp{"HostTwice", kGet + "Host: a\r\n\r\n", 400},
            BadHttp{"OtherHostTwice", kGet + "host: b\r\n\r\n", 400},
            BadHttp{"HostTwiceInOldVersion", "GET / HTTP/1.0\r\nHost: a\r\nHost: a\r\n\r\n", 400},
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
            BadHttp{"LengthOfNoNumber", kPost + "Content-Length: 99999999999999999999999\r\n\r\n", 413},
            BadHttp{"LengthBesideCoding", kPost + "Content-Length: 5\r\nTransfer-Encoding: chunked\r\n\r\n0\r\n\r\n",
                    400},
            BadHttp{"CodingBesideLength", kPost + "Transfer-Encoding: chunked\r\nContent-Length: 5\r\n\r\n0\r\n\r\n",
                    400},
            BadHttp{"UnknownCoding", kPost + "Transfer-Encoding: gzip\r\n\r\n", 501},
            BadHttp{"UnknownCodingFirst", kPost + "Transfer-Encoding: gzip, chunked\r\n\r\n0\r\n\r\n", 501},
            BadHttp{"UnknownCodingLast", kPost + "Transfer-Encoding: chunked, gzip\r\n\r\n0\r\n\r\n", 501},
            BadHttp{"CodingOfSimilarName", kPost + "Transfer-Encoding: xchunked\r\n\r\n0\r\n\r\n", 501},
            BadHttp{"CodingTwice", kPost + "Transfer-Encoding: chunked, chunked\r\n\r\n0\r\n\r\n", 400},
            BadHttp{"CodingInTwoHeaders",
                    kPost + "Transfer-Encoding: chunked\r\nTransfer-Encoding: chunked\r\n\r\n0\r\n\r\n", 400},
            BadHttp{"CodingEmpty", kPost + "Transfer-Encoding:\r\n\r\n", 400},
            BadHttp{"CodingInOldVersion", "POST / HTTP/1.0\r\nTransfer-Encoding: chunked\r\n\r\n0\r\n\r\n", 400},
            BadHttp{"UnknownExpectation", kPost + "Expect: a-cake\r\nContent-Length: 2\r\n\r\n{}", 417},

            BadHttp{"NoLineEndAfterChunk", kPost + "Transfer-Encoding: chunked\r\n\r\n2\r\n{}0\r\n\r\n", 400},
            BadHttp{"ChunkLongerThanItsSize", kPost + "Transfer-Encoding: chunked\r\n\r\n2\r\n{}}\r\n0\r\n\r\n", 400},
            BadHttp{"ChunkSizeNoNumber", kPost + "Transfer-Encoding: chunked\r\n\r\nx\r\n{}\r\n0\r\n\r\n", 400},
            BadHttp{"ChunkSizeNegative", kPost + "Transfer-Encoding: chunked\r\n\r\n-2\r\n{}\r\n0\r\n\r\n", 400},
            BadHttp{"ChunkSizeOfNoNumber",
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
        testing::Values(Pieces::Whole, Pieces::Bytes)),
    [](const auto& row) { return std::get<0>(row.param).name + NameOf(std::get<1>(row.param)); });

TEST_P(GoodHttpTest, IsServedAndTheNextRequestIsRead)
{
    const auto& [row, pieces] = GetParam();
    const std::string replies = Exchanged(m_platform.httpPort(), row.text + kNext, pieces);
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
            GoodHttp{"ServerAsTarget", "OPTIONS * HTTP/1.1\r\nHost: a\r\n" + kToken + "\r\n", 1001},
            GoodHttp{"TargetOfGreatestLength",
                     "GET /" + std::string(emulator::kLongestTarget - 1, 'a') + " HTTP/1.1\r\nHost: a\r\n" + kToken +
                         "\r\n",
                     1001},
            GoodHttp{"HeaderNamesInLowerCase",
                     "GET " + kPath + " HTTP/1.1\r\nhost: a\r\nx-subject-token: emulator-token\r\n\r\n", 1000},
            GoodHttp{"HeaderWithoutBlank",
                     "GET " + kPath + " HTTP/1.1\r\nHost:\r\nX-Subject-Token:emulator-token\r\n\r\n", 1000},
            GoodHttp{"HeaderWithManyBlanks", kGet + "X: \t a \t \r\n\r\n", 1000},
            GoodHttp{"HeaderOfManyBytes", kGet + "X: " + std::string(100'000, 'a') + "\r\n\r\n", 1000},
            GoodHttp{"HeaderInOtherCharacters", kGet + "X: \xc3\xbc\xff\r\n\r\n", 1000},
            GoodHttp{"SameLengthTwice", kPost + "Content-Length: 0\r\nContent-Length: 0\r\n\r\n", 1000},
            GoodHttp{"LengthWithZeros", kPost + "Content-Length: 00000000000000000000002\r\n\r\n{}", 1003},
            GoodHttp{"OldVersion", "GET " + kPath + " HTTP/1.0\r\nConnection: keep-alive\r\n" + kToken + "\r\n", 1000},
            GoodHttp{"NoChunk", kPost + "Transfer-Encoding: chunked\r\n\r\n0\r\n\r\n", 1000},
            GoodHttp{"Chunks", kPost + "Transfer-Encoding: chunked\r\n\r\n1\r\n{\r\n01\r\n}\r\n000\r\n\r\n", 1003},
            GoodHttp{"ChunkExtension", kPost + "Transfer-Encoding: Chunked\r\n\r\n2;a=b;c=\"d\"\r\n{}\r\n0;e\r\n\r\n",
                     1003},
            GoodHttp{"Trailers", kPost + "Transfer-Encoding: chunked\r\n\r\n2\r\n{}\r\n0\r\nX: a\r\nY: b\r\n\r\n",
                     1003}),
        testing::Values(Pieces::Whole, Pieces::Bytes)),
    [](const auto& row) { return std::get<0>(row.param).name + NameOf(std::get<1>(row.param)); });

class HttpTest : public EmulatorTest {
protected:
    std::string reply(const std::string& text) const { return SendRaw(m_platform.httpPort(), text); }
};

TEST_F(HttpTest, RecordsTheHeadersThatWereSentInTheirOrder)
{
    reply("GET " + kPath + " HTTP/1.1\r\nz: 1\r\nHOST:  a \r\nZ: 2\r\nEmpty:\r\nz: 1\r\nConnection: close\r\n\r\n");
    const std::vector<std::pair<std::string, std::string>> sent = {
        {"z", "1"}, {"HOST", "a"}, {"Z", "2"}, {"Empty", ""}, {"z", "1"}, {"Connection", "close"}};
    ASSERT_EQ(m_platform.requests().size(), 1U);
    EXPECT_EQ(m_platform.requests().front().headers, sent);
}

TEST_F(HttpTest, RecordsNoTrailerAmongTheHeaders)
{
    reply(kPost + "Transfer-Encoding: chunked\r\nConnection: close\r\n\r\n2\r\n{}\r\n0\r\nX: a\r\n\r\n");
    ASSERT_EQ(m_platform.requests().size(), 1U);
    const RecordedRequest request = m_platform.requests().front();
    EXPECT_EQ(request.headers.size(), 4U);
    EXPECT_EQ(request.header("X"), "");
    EXPECT_EQ(request.body, "{}");
}

TEST_F(HttpTest, RecordsAnAbsoluteTargetAsItCameAndServesItsPath)
{
    m_platform.addFault(emulator::Fault::FromJson({{"kind", "envelope"}, {"path", kPath + "?a="}, {"code", 7}}));
    const std::string target = "http://127.0.0.1:80" + kPath + "?a=b";
    reply("GET " + target + " HTTP/1.1\r\nHost: a\r\nConnection: close\r\n\r\n");
    ASSERT_EQ(m_platform.requests().size(), 1U);
    const RecordedRequest request = m_platform.requests().front();
    EXPECT_EQ(request.target, target);
    EXPECT_EQ(request.path, kPath);
    EXPECT_EQ(request.query, (std::vector<std::pair<std::string, std::string>>{{"a", "b"}}));
    EXPECT_EQ(request.code, 7) << "the fault fits";
}

TEST_F(HttpTest, AnswersRequestsThatComeTogetherInTheirOrder)
{
    std::string many;
    for (int i = 0; i < 100; ++i) {
        many += "GET /" + std::to_string(i) + " HTTP/1.1\r\nHost: a\r\n" + kToken + "\r\n";
    }
    const std::string replies = reply(many + kNext);
    std::size_t at = 0;
    for (int i = 0; i < 100; ++i) {
        at = replies.find("no service at /" + std::to_string(i) + "\"", at);
        ASSERT_NE(at, std::string::npos) << i;
    }
    EXPECT_NE(replies.find("\"code\":1000", at), std::string::npos);
}

TEST_F(HttpTest, AnswerToHeadHasNoBody)
{
    const std::string replies = reply("HEAD " + kPath + " HTTP/1.1\r\nHost: a\r\n" + kToken + "\r\n" + kNext);
    const std::size_t end = replies.find("\r\n\r\n");
    ASSERT_NE(end, std::string::npos);
    EXPECT_EQ(replies.substr(end + 4, 8), "HTTP/1.1") << replies;
    EXPECT_EQ(m_platform.requests().front().code, 1002);
}

TEST_F(HttpTest, OldVersionIsClosedUnlessItAsksToStay)
{
    const std::string old = "GET " + kPath + " HTTP/1.0\r\n" + kToken;
    EXPECT_NE(reply(old + "\r\n").find("\r\nConnection: close\r\n"), std::string::npos);
    const std::string both = reply(old + "Connection: keep-alive\r\n\r\n" + old + "\r\n");
    EXPECT_NE(both.find("\r\nConnection: keep-alive\r\n"), std::string::npos) << both;
    EXPECT_EQ(Count(both, "HTTP/1.1 200"), 2U) << both;
}

TEST_F(HttpTest, ClientThatExpectsToBeToldGetsToSendItsBody)
{
    RawConnection connection(m_platform.httpPort());
    connection.send(kPost + "Expect: 100-Continue\r\nContent-Length: 2\r\n\r\n");
    EXPECT_EQ(connection.receiveUntil("\r\n\r\n"), "HTTP/1.1 100 Continue\r\n\r\n");
    connection.send("{}");
    EXPECT_NE(connection.receiveUntil("}").find("body: not expected"), std::string::npos);
    connection.send(kPost + "Expect: 100-continue\r\nTransfer-Encoding: chunked\r\n\r\n");
    EXPECT_EQ(connection.receiveUntil("\r\n\r\n"), "HTTP/1.1 100 Continue\r\n\r\n");
    connection.send("0\r\n\r\n");
    EXPECT_NE(connection.receiveUntil("}").find("\"code\":1000"), std::string::npos);
}

TEST_F(HttpTest, ClientThatSendsItsBodyAtOnceIsNotToldTo)
{
    const std::string expecting = "Expect: 100-continue\r\nConnection: close\r\n";
    EXPECT_EQ(reply(kPost + expecting + "Content-Length: 2\r\n\r\n{}").find("100 Continue"), std::string::npos);
    EXPECT_EQ(reply(kPost + expecting + "Content-Length: 0\r\n\r\n").find("100 Continue"), std::string::npos);
    const std::string huge = reply(kPost + expecting + "Content-Length: 99999999999\r\n\r\n");
    EXPECT_EQ(huge.substr(0, 12), "HTTP/1.1 413") << "before anything of the body came";
}

TEST_F(HttpTest, WhatIsNoHttpIsClosedThoughItNeverEnds)
{
    const std::string hello = {0x16, 0x03, 0x01, 0x02, 0x00, 0x01, 0x00, 0x01, '\xfc', 0x03, 0x03};
    std::string junk;
    for (int i = 255; i >= 0; --i) {
        junk += static_cast<char>(i);
    }
    for (const std::string& text : {hello, junk, std::string(1, '\0'), std::string("GET / HTTP/1.1\n")}) {
        EXPECT_EQ(reply(text).substr(0, 12), "HTTP/1.1 400");
        RawConnection(m_platform.httpsPort()).send(text);
    }
    EXPECT_EQ(SendRaw(m_platform.httpsPort(), junk).find("HTTP"), std::string::npos);
    EXPECT_EQ(ClientOf(m_platform)->get(kPath).code(), 1000);
    EXPECT_EQ(ClientOf(m_platform, TestClient::Scheme::Https)->get(kPath).code(), 1000);
}

TEST_F(HttpTest, RequestThatEndsEarlyIsRefused)
{
    for (const std::string& text : {std::string("GET / HT"), kGet, kPost + "Content-Length: 5\r\n\r\n{}",
                                    kPost + "Transfer-Encoding: chunked\r\n\r\n2\r\n{}\r\n"}) {
        EXPECT_EQ(SendRaw(m_platform.httpPort(), text, true).substr(0, 12), "HTTP/1.1 400") << text;
    }
    EXPECT_EQ(SendRaw(m_platform.httpPort(), "", true), "") << "no request is none that ends early";
    EXPECT_TRUE(m_platform.requests().empty());
}

TEST_F(HttpTest, ClientThatSendsAllTheSameReadsWhyItIsRefused)
{
    RawConnection connection(m_platform.httpPort());
    connection.send(kPost + "Content-Length: 99999999999\r\n\r\n");
    const std::string block(1024UL * 1024, 'x');
    for (int i = 0; i < 16; ++i) {
        connection.send(block);
    }
    EXPECT_EQ(connection.receiveUntil({}).substr(0, 12), "HTTP/1.1 413");
    EXPECT_FALSE(connection.isReset());
}

TEST_F(HttpTest, ClientThatEndsItsSideIsAnswered)
{
    EXPECT_NE(SendRaw(m_platform.httpPort(), kGet + "\r\n", true).find("\"code\":1000"), std::string::npos);
}

TEST_F(HttpTest, HeadersOfAFaultReplaceThoseOfTheServer)
{
    emulator::Fault fault;
    fault.kind = emulator::Fault::Kind::Status;
    fault.status = 299;
    fault.headers = {{"content-type", "text/plain"}, {"Connection", "close"}, {"X", "a\r\nY: b"}};
    fault.body = "text";
    m_platform.addFault(fault);
    const std::string answer = reply(kGet + "\r\n");
    EXPECT_EQ(answer,
              "HTTP/1.1 299 \r\ncontent-type: text/plain\r\nConnection: close\r\nContent-Length: 4\r\n\r\ntext");
}

TEST_F(HttpTest, LengthThatAFaultGivesIsSentAndTheConnectionClosed)
{
    m_platform.addFault(emulator::Fault::FromJson(
        {{"kind", "status"}, {"status", 200}, {"headers", {{"Content-Length", "9"}}}, {"body", "text"}}));
    const std::string answer = reply(kGet + "\r\n");
    EXPECT_EQ(Count(answer, "Content-Length"), 1U) << answer;
    EXPECT_NE(answer.find("Content-Length: 9\r\n"), std::string::npos) << answer;
    EXPECT_EQ(answer.substr(answer.find("\r\n\r\n") + 4), "text");
}
