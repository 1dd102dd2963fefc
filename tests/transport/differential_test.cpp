// Compares the library's HTTP implementation with Qt's: both give the same result for a reply, except for a list of
// intended differences.
#include "SampleReplies.h"
#include "support/Rows.h"
#include "support/Watchdog.h"

#include <http/AccessManager.h>
#include <http/Reply.h>

#include <QElapsedTimer>
#include <QEventLoop>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QThread>
#include <QTimer>

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <utility>

using namespace testing_support;

namespace {

using Pairs = QList<QNetworkReply::RawHeaderPair>;

/// The result of a request: a complete reply with any status but 401, or the error.
struct Read {
    bool answered = false;
    int status = 0;
    QByteArray body;
    Pairs headers;
    int error = 0;
    QByteArray text;
};

/// The result on one line.
std::string Shown(const Read& read)
{
    QByteArray shown =
        read.answered ? QByteArray::number(read.status) : "error " + QByteArray::number(read.error) + ' ' + read.text;
    if (read.answered) {
        for (const auto& header : read.headers) {
            shown += " [" + header.first + ": " + header.second + ']';
        }
        shown += ' ' + read.body;
    }
    std::string line;
    for (const char c : std::as_const(shown)) {
        const bool bPlain = c >= ' ' && c <= '~';
        line += bPlain ? std::string(1, c) : '<' + QByteArray(1, c).toHex().toStdString() + '>';
    }
    return line;
}

/// The errors that Qt reports for statuses of 400 and above.
bool IsOfStatus(QNetworkReply::NetworkError error)
{
    return error == QNetworkReply::ProxyAuthenticationRequiredError ||
           (error >= QNetworkReply::ContentAccessDenied && error <= QNetworkReply::UnknownContentError &&
            error != QNetworkReply::AuthenticationRequiredError) ||
           error == QNetworkReply::ProtocolInvalidOperationError || error >= QNetworkReply::InternalServerError;
}

Read Taken(QNetworkReply& reply, const Pairs& headers)
{
    const QVariant status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute);
    const QNetworkReply::NetworkError error = reply.error();
    Read read;
    read.answered = status.isValid() && (error == QNetworkReply::NoError || IsOfStatus(error));
    read.status = status.toInt();
    read.headers = headers;
    read.body = reply.readAll();
    read.error = error;
    read.text = reply.errorString().toUtf8();
    return read;
}

QNetworkRequest RequestTo(const RawServer& server, RawServer::Scheme scheme)
{
    QNetworkRequest request(QUrl((scheme == RawServer::Http ? QStringLiteral("http") : QStringLiteral("https")) +
                                 QStringLiteral("://127.0.0.1:%1/path").arg(server.Port())));
    QSslConfiguration configuration = request.sslConfiguration();
    configuration.setPeerVerifyMode(QSslSocket::VerifyNone);
    request.setSslConfiguration(configuration);
    request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
    return request;
}

/// @return whether the reply ended
bool WaitFor(const QNetworkReply& reply)
{
    constexpr int kLongEnoughMs = 5000;
    QEventLoop loop;
    QObject::connect(&reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
    QTimer::singleShot(kLongEnoughMs, &loop, &QEventLoop::quit);
    if (!reply.isFinished()) {
        loop.exec();
    }
    return reply.isFinished();
}

std::string ByQt(const RawServer& server, RawServer::Scheme scheme)
{
    QNetworkAccessManager manager;
    const std::unique_ptr<QNetworkReply> pReply(manager.get(RequestTo(server, scheme)));
    return WaitFor(*pReply) ? Shown(Taken(*pReply, pReply->rawHeaderPairs())) : "no end";
}

/// Qt's result can depend on packet boundaries and on when its second thread notices the end of the connection.
/// @return the first of a few results that is @p wanted, or the last one
std::string ByQt(const RawServer& server, RawServer::Scheme scheme,
                 const std::function<bool(const std::string&)>& wanted)
{
    constexpr int kTries = 5;
    std::string result;
    for (int i = 0; i < kTries && (i == 0 || !wanted(result)); ++i) {
        result = ByQt(server, scheme);
    }
    return result;
}

std::string ByLibrary(const RawServer& server, RawServer::Scheme scheme)
{
    using namespace APIModule::http;
    AccessManager manager;
    const std::unique_ptr<QNetworkReply> pReply(manager.get(RequestTo(server, scheme)));
    return WaitFor(*pReply) ? Shown(Taken(*pReply, static_cast<Reply&>(*pReply).Headers())) : "no end";
}

/// The library's result for a reply, where it differs from Qt's, and the reason.
struct Difference {
    const char* library;
    const char* reason;
    bool always = true;  ///< false if Qt's result depends on packet boundaries
};

constexpr const char* kClosed = "error 2 Connection closed";
constexpr const char* kCorrupt = "error 399 Data corrupted";

constexpr const char* kNoFinalStatus =
    "after an invalid status below 200 the call and its connection end, because what follows is unknown";
constexpr const char* kHeaderPosition = "a repeated header is listed at its first position, by Qt at its last";
constexpr const char* kTruncated = "a truncated reply is an error, with Qt only if it notices the end in time";
constexpr const char* kKeepsLength = "Qt removes the length of a compressed body";
constexpr const char* kIncompleteBody = "an incomplete compressed body is an error, with Qt only a corrupt one";

const std::map<std::string, Difference>& Differences()
{
    static const std::map<std::string, Difference> differences = {
        {"status_of_two_digits", {R"(20 [Content-Length: 28] )", kNoFinalStatus}},
        {"status_negative", {R"(-20 [Content-Length: 28] )", kNoFinalStatus}},
        {"status_0", {R"(0 [Content-Length: 28] )", kNoFinalStatus}},
        {"header_folded_first",
         {R"(200 [Content-Length: 28] {"code":1000,"data":{"a":1}})",
          "a folded line without a line before it is ignored"}},
        {"header_without_colon",
         {R"(200 [Content-Length: 28] {"code":1000,"data":{"a":1}})",
          "Qt reads the next line as its value, so the length is lost and the reply never ends"}},
        {"header_with_empty_name",
         {R"(200 [: one] [Content-Length: 28] {"code":1000,"data":{"a":1}})",
          "Qt omits the header, which no caller reads"}},
        {"header_twice",
         {R"(200 [X-A: one, two] [X-B: b] [Content-Length: 28] {"code":1000,"data":{"a":1}})", kHeaderPosition}},
        {"header_twice_of_different_case",
         {R"(200 [X-A: one, two] [Content-Length: 28] {"code":1000,"data":{"a":1}})", kHeaderPosition}},
        {"header_twice_one_empty",
         {R"(200 [X-A: , two] [Content-Length: 28] {"code":1000,"data":{"a":1}})",
          "Qt drops an empty value before another one"}},
        {"chunked_with_line_feeds",
         {R"(200 [Transfer-Encoding: chunked] {"code":1000,"data":{"a":1}})",
          "both accept bare line feeds in the head, only the library accepts them in chunks"}},
        {"length_beyond_63_bits",
         {R"(200 [Content-Length: 9223372036854775808] {"code":1000,"data":{"a":1}})",
          "a length that is too large is ignored, by Qt only if the reply and its end arrive together", false}},
        {"401_truncated", {kClosed, kTruncated, false}},
        {"length_too_large_404", {kClosed, kTruncated, false}},
        {"chunked_last_line_missing", {kClosed, kTruncated, false}},
        {"chunked_last_missing", {kClosed, kTruncated, false}},
        {"chunked_truncated", {kClosed, kTruncated, false}},
        {"chunked_truncated_reset", {kClosed, kTruncated, false}},
        {"chunked_truncated_in_the_size", {kClosed, kTruncated, false}},
        {"chunked_truncated_404", {kClosed, kTruncated, false}},
        {"chunked_last_missing_404", {kClosed, kTruncated, false}},
        {"gzip", {R"(200 [Content-Encoding: gzip] [Content-Length: 46] {"code":1000,"data":{"a":1}})", kKeepsLength}},
        {"gzip_after_its_first_byte",
         {R"(200 [Content-Encoding: gzip] [Content-Length: 46] {"code":1000,"data":{"a":1}})", kKeepsLength}},
        {"gzip_in_capitals",
         {R"(200 [Content-Encoding: GZIP] [Content-Length: 46] {"code":1000,"data":{"a":1}})", kKeepsLength}},
        {"gzip_of_empty_body", {R"(200 [Content-Encoding: gzip] [Content-Length: 20] )", kKeepsLength}},
        {"gzip_without_bytes", {R"(200 [Content-Encoding: gzip] [Content-Length: 0] )", kKeepsLength}},
        {"gzip_with_trailing_bytes",
         {R"(200 [Content-Encoding: gzip] [Content-Length: 50] {"code":1000,"data":{"a":1}})", kKeepsLength}},
        {"gzip_of_two_members", {R"(200 [Content-Encoding: gzip] [Content-Length: 66] {"code":10)", kKeepsLength}},
        {"gzip_404",
         {R"(404 [Content-Encoding: gzip] [Content-Length: 46] {"code":1000,"data":{"a":1}})", kKeepsLength}},
        {"deflate",
         {R"(200 [Content-Encoding: deflate] [Content-Length: 34] {"code":1000,"data":{"a":1}})", kKeepsLength}},
        {"deflate_without_wrapper",
         {R"(200 [Content-Encoding: deflate] [Content-Length: 28] {"code":1000,"data":{"a":1}})", kKeepsLength}},
        {"gzip_of_one_byte", {kCorrupt, kIncompleteBody}},
        {"gzip_truncated_within_its_length", {kCorrupt, kIncompleteBody}},
        {"gzip_truncated_before_the_checksum", {kCorrupt, kIncompleteBody}},
        {"gzip_of_something_else", {kCorrupt, kIncompleteBody}},
        {"deflate_of_something_else", {kCorrupt, kIncompleteBody}},
        {"deflate_truncated", {kCorrupt, kIncompleteBody}},
        {"gzip_truncated_by_the_end", {kClosed, "Qt removes the length, so it does not notice the missing bytes"}},
        {"gzip_truncated_by_the_end_404", {kClosed, "Qt removes the length, so it does not notice the missing bytes"}},
    };
    return differences;
}

int ThreadCount()
{
    const std::filesystem::directory_iterator threads("/proc/self/task");
    return int(std::distance(begin(threads), end(threads)));
}

class Differential : public testing::TestWithParam<std::tuple<SampleReply, RawServer::Scheme>> {
protected:
    /// Waits for the thread of Qt's network manager, which outlives the manager for a moment. At the end of the process
    /// it would free memory that OpenSSL frees as well.
    ~Differential() override
    {
        QElapsedTimer elapsed;
        for (elapsed.start(); ThreadCount() > m_nThreads && elapsed.elapsed() < 1000;) {
            QThread::msleep(1);
        }
    }

private:
    const Watchdog m_watchdog;
    const int m_nThreads = ThreadCount();
};

TEST_P(Differential, ReadsRepliesLikeQtExceptForTheListedDifferences)
{
    const auto& [sample, scheme] = GetParam();
    const RawServer server([bytes = sample.reply](const RawRequest&) { return bytes; }, scheme);
    const std::string library = ByLibrary(server, scheme);
    const auto difference = Differences().find(sample.name);
    if (difference == Differences().end()) {
        EXPECT_EQ(library, ByQt(server, scheme, [&](const std::string& qt) { return qt == library; }));
        return;
    }
    EXPECT_EQ(library, difference->second.library) << difference->second.reason;
    if (difference->second.always) {
        EXPECT_NE(library, ByQt(server, scheme, [&](const std::string& qt) { return qt != library; }))
            << "no longer differs: " << difference->second.reason;
    }
}

INSTANTIATE_TEST_SUITE_P(Replies, Differential,
                         testing::Combine(testing::ValuesIn(SampleReplies()),
                                          testing::Values(RawServer::Http, RawServer::Https)),
                         RowName());

/// The list contains no difference for a reply that is not tested.
TEST(Differences, ListOnlyTestedReplies)
{
    for (const auto& [name, difference] : Differences()) {
        bool bFound = false;
        for (const SampleReply& sample : SampleReplies()) {
            bFound = bFound || name == sample.name;
        }
        EXPECT_TRUE(bFound) << name;
    }
}

}  // namespace
