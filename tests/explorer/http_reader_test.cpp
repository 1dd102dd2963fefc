#include <explorer/core/HttpReader.h>

#include <support/Rows.h>

#include <gtest/gtest.h>
#include <zlib.h>

#include <string>

namespace {

using explorer::HttpMessage;
using explorer::HttpReader;

QByteArray Gzip(const QByteArray& text)
{
    constexpr int kGzip = 16 + MAX_WBITS;
    z_stream stream{};
    deflateInit2(&stream, Z_DEFAULT_COMPRESSION, Z_DEFLATED, kGzip, 8, Z_DEFAULT_STRATEGY);
    QByteArray input = text;
    QByteArray output(1024, '\0');
    stream.next_in = reinterpret_cast<Bytef*>(input.data());
    stream.avail_in = static_cast<uInt>(input.size());
    stream.next_out = reinterpret_cast<Bytef*>(output.data());
    stream.avail_out = static_cast<uInt>(output.size());
    deflate(&stream, Z_FINISH);
    output.truncate(static_cast<int>(stream.total_out));
    deflateEnd(&stream);
    return output;
}

struct Row {
    std::string name;
    HttpReader::Kind kind;
    QByteArray bytes;
    bool ends;  // the sender closed the connection
    QByteArray startLine;
    QByteArray body;
    bool complete;
};

const Row kRows[] = {
    {"RequestWithoutBody", HttpReader::Requests, "GET /a HTTP/1.1\r\nHost: h\r\n\r\n", false, "GET /a HTTP/1.1", "",
     true},
    {"RequestWithBody", HttpReader::Requests, "PUT /a HTTP/1.1\r\nContent-Length: 4\r\n\r\n{ } ", false,
     "PUT /a HTTP/1.1", "{ } ", true},
    {"HeadAlone", HttpReader::Replies, "HTTP/1.1 200 OK\r\nContent-Length: 4\r\n\r\n", false, "HTTP/1.1 200 OK", "",
     false},
    {"NoWholeHead", HttpReader::Replies, "HTTP/1.1 200 OK\r\nContent-Le", false, "", "", false},
    {"Empty", HttpReader::Replies, "HTTP/1.1 200 OK\r\nContent-Length: 0\r\n\r\n", false, "HTTP/1.1 200 OK", "", true},
    {"CutShort", HttpReader::Replies, "HTTP/1.1 200 OK\r\nContent-Length: 9\r\n\r\nabc", true, "HTTP/1.1 200 OK", "abc",
     false},
    {"NameOfLengthInCapitals", HttpReader::Replies, "HTTP/1.1 200 OK\r\nCONTENT-LENGTH: 3\r\n\r\nabc", false,
     "HTTP/1.1 200 OK", "abc", true},
    {"UntilTheEnd", HttpReader::Replies, "HTTP/1.1 200 OK\r\n\r\nabc", true, "HTTP/1.1 200 OK", "abc", true},
    {"UntilAnEndThatDidNotCome", HttpReader::Replies, "HTTP/1.1 200 OK\r\n\r\nabc", false, "HTTP/1.1 200 OK", "abc",
     false},
    {"Chunks", HttpReader::Replies,
     "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n3\r\nabc\r\nA;x=1\r\n0123456789\r\n0\r\n\r\n", false,
     "HTTP/1.1 200 OK", "abc0123456789", true},
    {"ChunksWithTrailer", HttpReader::Replies,
     "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n1\r\na\r\n0\r\nX: y\r\n\r\n", false, "HTTP/1.1 200 OK", "a",
     true},
    {"ChunksCutShort", HttpReader::Replies, "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n3\r\nabc\r\n", true,
     "HTTP/1.1 200 OK", "abc", false},
    {"ChunkWithoutSize", HttpReader::Replies, "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\nzz\r\nabc\r\n",
     true, "HTTP/1.1 200 OK", "", false},
    {"NoContent", HttpReader::Replies, "HTTP/1.1 204 No Content\r\n\r\n", false, "HTTP/1.1 204 No Content", "", true},
    {"BehindContinue", HttpReader::Replies,
     "HTTP/1.1 100 Continue\r\n\r\nHTTP/1.1 200 OK\r\nContent-Length: 1\r\n\r\nx", false, "HTTP/1.1 200 OK", "x", true},
};

class HttpReaderTest : public testing::TestWithParam<Row> {
protected:
    static void Check(const HttpReader& reader)
    {
        const HttpMessage& message = *reader.Current();
        EXPECT_EQ(message.startLine, GetParam().startLine);
        EXPECT_EQ(message.body, GetParam().body);
        EXPECT_EQ(message.complete, GetParam().complete);
    }
};

TEST_P(HttpReaderTest, ReadsWhatComesAtOnce)
{
    HttpReader reader(GetParam().kind);
    reader.Feed(GetParam().bytes);
    if (GetParam().ends) {
        reader.End();
    }
    Check(reader);
}

TEST_P(HttpReaderTest, ReadsWhatComesByteByByte)
{
    HttpReader reader(GetParam().kind);
    for (const char byte : GetParam().bytes) {
        reader.Feed(QByteArray(1, byte));
    }
    if (GetParam().ends) {
        reader.End();
    }
    Check(reader);
}

INSTANTIATE_TEST_SUITE_P(Messages, HttpReaderTest, testing::ValuesIn(kRows), testing_support::RowName());

TEST(HttpReaderSequenceTest, ReadsOneMessageBehindTheOther)
{
    HttpReader reader(HttpReader::Replies);
    reader.Feed("HTTP/1.1 200 OK\r\nContent-Length: 1\r\n\r\n1HTTP/1.1 404 No\r\nContent-Length: 1\r\n\r\n2");
    const auto first = reader.Current();
    reader.Next();
    EXPECT_EQ(first->body, "1");
    EXPECT_EQ(reader.Current()->SecondWord(), "404");
    EXPECT_EQ(reader.Current()->body, "2");
}

TEST(HttpMessageTest, UndoesTheCompressionThatItNames)
{
    HttpMessage message;
    message.body = Gzip("{\"code\": 1000}");
    EXPECT_EQ(message.DecodedBody(), message.body);
    message.headers = {{QStringLiteral("content-encoding"), QStringLiteral("GZIP")}};
    EXPECT_EQ(message.DecodedBody(), "{\"code\": 1000}");
}

}  // namespace
