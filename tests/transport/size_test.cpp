// Large replies: above the size limit they end the call, below it they are read quickly and with bounded memory.
#include "Deflated.h"
#include "support/Rows.h"
#include "TransportHost.h"

#include <fstream>

using namespace testing_support;
using APIModule::CAPIModule;

namespace {

constexpr int kNetworkError = -18;
constexpr qint64 kMegabyte = 1024 * 1024;
constexpr qint64 kDefaultSize = 512 * kMegabyte;
const QByteArray kOk = "HTTP/1.1 200 OK\r\n";

/// An envelope of this size, padded with spaces.
QByteArray Envelope(int nSize)
{
    return QByteArray(R"({"code":1000,"data":{"n":1}})").leftJustified(nSize, ' ');
}

qint64 PeakOfMemory()
{
    std::ifstream status("/proc/self/status");
    std::string word;
    qint64 nKilobytes = 0;
    while (status >> word) {
        if (word == "VmHWM:") {
            status >> nKilobytes;
        }
    }
    return nKilobytes * 1024;
}

/// Resets the peak to the current size.
void ResetPeakOfMemory()
{
    std::ofstream("/proc/self/clear_refs") << "5";
}

class SizeTest : public TransportHost {
protected:
    ~SizeTest() override { CAPIModule::GetInstance().SetMaximumReplySize(kDefaultSize); }

    /// Expects one log line about the call, which names the size limit.
    void ExpectSizeLimitIsLogged()
    {
        const LogLines lines = logs.Take();
        ASSERT_EQ(lines.size(), 2U);
        EXPECT_EQ(lines[0].function, "APIModule::CAPIModule::ExecuteFuncs");
        EXPECT_EQ(lines[1].function, FunctionOf(InLoop));
        EXPECT_EQ(lines[1].level, 6);
        EXPECT_NE(lines[1].message.find("larger than"), std::string::npos) << lines[1].message;
    }
};

/// How a body is transferred.
struct Transfer {
    const char* name;
    std::function<RawReply(const QByteArray& body)> make;
};

using testing_support::operator<<;

RawReply Chunked(const QByteArray& body)
{
    QByteArray chunks;
    constexpr int kChunk = 1000;
    for (int i = 0; i < body.size(); i += kChunk) {
        const QByteArray chunk = body.mid(i, kChunk);
        chunks += QByteArray::number(chunk.size(), 16) + "\r\n" + chunk + "\r\n";
    }
    return {kOk + "Transfer-Encoding: chunked\r\n\r\n" + chunks + "0\r\n\r\n"};
}

RawReply UntilTheEnd(const QByteArray& body)
{
    return {kOk + "\r\n" + body, 0, RawReply::Close};
}

RawReply Gzipped(const QByteArray& body)
{
    return HttpReply(200, Deflated(body), "Content-Encoding: gzip\r\n");
}

const std::vector<Transfer> kTransfers = {
    {"length", [](const QByteArray& body) { return HttpReply(200, body); }},
    {"chunked", Chunked},
    {"until_the_end", UntilTheEnd},
    {"gzip", Gzipped},
    {"length_of_404", [](const QByteArray& body) { return HttpReply(404, body); }},
};

class TransferTest : public SizeTest, public testing::WithParamInterface<std::tuple<Transfer, RawServer::Scheme>> {};

TEST_P(TransferTest, IsRejectedOnlyAboveTheLimit)
{
    const auto& [transfer, scheme] = GetParam();
    constexpr int kBody = 300000;
    constexpr int kHeadAndChunks = 5000;
    Serve(transfer.make(Envelope(kBody)), scheme);
    const int nExpected = QByteArray(transfer.name).endsWith("404") ? 404 : 0;

    CAPIModule::GetInstance().SetMaximumReplySize(kBody + kHeadAndChunks);
    EXPECT_EQ(Get(QStringLiteral("/path")).code, nExpected);
    logs.Take();
    CAPIModule::GetInstance().SetMaximumReplySize(kBody - 1);
    EXPECT_EQ(Get(QStringLiteral("/path")).code, kNetworkError);
    ExpectSizeLimitIsLogged();
    CAPIModule::GetInstance().SetMaximumReplySize(kDefaultSize);
    EXPECT_EQ(Get(QStringLiteral("/path")).code, nExpected);
}

INSTANTIATE_TEST_SUITE_P(Transfers, TransferTest,
                         testing::Combine(testing::ValuesIn(kTransfers),
                                          testing::Values(RawServer::Http, RawServer::Https)),
                         RowName());

/// The server sends only the head, and the call ends without waiting for more.
TEST_F(SizeTest, IsRejectedAtOnceByItsContentLength)
{
    const RawServer& server =
        Serve(RawReply{kOk + "Content-Length: " + QByteArray::number(kDefaultSize + 1) + "\r\n\r\n"});
    EXPECT_EQ(Get(QStringLiteral("/path")).code, kNetworkError);
    ExpectSizeLimitIsLogged();
    EXPECT_TRUE(Await([&server] { return server.OpenConnectionCount() == 0; }));
}

struct Inflated {
    const char* name;
    int maximum;  ///< in megabytes
    int peak;     ///< limit for the call, in megabytes
};

class InflatedTest : public SizeTest, public testing::WithParamInterface<Inflated> {};

TEST_P(InflatedTest, GigabyteOfGzipIsRejectedWithinTheMemoryLimit)
{
    const QByteArray gzip = GzipOfMegabytes(1024);
    ASSERT_LT(gzip.size(), 2 * kMegabyte);
    Serve(HttpReply(200, gzip, "Content-Encoding: gzip\r\n"));
    CAPIModule::GetInstance().SetMaximumReplySize(GetParam().maximum * kMegabyte);
    ResetPeakOfMemory();
    const qint64 nBefore = PeakOfMemory();
    EXPECT_EQ(Get(QStringLiteral("/path")).code, kNetworkError);
    ExpectSizeLimitIsLogged();
    EXPECT_LT((PeakOfMemory() - nBefore) / kMegabyte, GetParam().peak);
}

INSTANTIATE_TEST_SUITE_P(Gzip, InflatedTest,
                         testing::Values(Inflated{"up_to_16_megabytes", 16, 100},
                                         Inflated{"up_to_the_default", 512, 1400}),
                         RowName());

/// Large heads below the size limit.
struct Head {
    const char* name;
    std::function<QByteArray()> lines;
    int emptyLinesBefore = 0;
};

std::function<QByteArray()> Lines(int nLines, const char* name, bool bNumbered)
{
    return [=] {
        QByteArray lines;
        for (int i = 0; i < nLines; ++i) {
            lines += QByteArray(name) + (bNumbered ? QByteArray::number(i) : QByteArray()) + ": a" +
                     QByteArray::number(i) + "=b\r\n";
        }
        return lines;
    };
}

const std::vector<Head> kHeads = {
    {"500_headers", Lines(500, "X-A-", true)},
    {"header_of_100000_bytes", [] { return "X-A: " + QByteArray(100000, 'x') + "\r\n"; }},
    {"header_of_10_megabytes", [] { return "X-A: " + QByteArray(10000000, 'x') + "\r\n"; }},
    {"6000_cookies", Lines(6000, "Set-Cookie", false)},
    {"50000_cookies", Lines(50000, "Set-Cookie", false)},
    {"50000_headers", Lines(50000, "X-A-", true)},
    {"50000_headers_of_one_name", Lines(50000, "X-A", false)},
    {"50000_folded_lines",
     [] {
         QByteArray lines = "X-A: 0\r\n";
         for (int i = 0; i < 50000; ++i) {
             lines += " 1\r\n";
         }
         return lines;
     }},
    {"1000000_empty_lines_before", [] { return QByteArray(); }, 1000000},
};

class HeadTest : public SizeTest, public testing::WithParamInterface<Head> {};

/// A reader with quadratic run time would exceed the time-out.
TEST_P(HeadTest, IsReadBeforeTheTimeOut)
{
    const QByteArray before = QByteArray("\r\n").repeated(GetParam().emptyLinesBefore);
    Serve(RawReply{before + kOk + GetParam().lines() + "Content-Length: 28\r\n\r\n" + Envelope(28)});
    const CallResult ended = Get(QStringLiteral("/path"));
    EXPECT_EQ(ended.code, 0);
    EXPECT_EQ(ended.tag, 1);
}

INSTANTIATE_TEST_SUITE_P(Heads, HeadTest, testing::ValuesIn(kHeads), RowName());

}  // namespace
