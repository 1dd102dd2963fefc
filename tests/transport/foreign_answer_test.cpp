// Bytes that arrive after a reply: from servers that reply twice, send a body with a status that has none, or send a
// Content-Length that is too small. No call receives the reply to another.
#include "support/Rows.h"
#include "TransportHost.h"

#include <QThread>

#include <functional>

using namespace testing_support;

namespace {

const QByteArray kForeign = TaggedAnswer(999999).bytes;

/// What the server sends instead of @p own, the plain reply to a request.
struct Foreign {
    const char* name;
    std::function<RawAnswer(const RawAnswer& own)> make;
    int code;  ///< result of the request that receives it
};

RawAnswer WithMore(const QByteArray& bytes, const QByteArray& more, int nMilliseconds = 0)
{
    RawAnswer answer{bytes};
    answer.moreBytes = more;
    answer.moreMilliseconds = nMilliseconds;
    return answer;
}

/// A separate head before the reply, which follows at once, in another segment, or some time later.
std::function<RawAnswer(const RawAnswer&)> HeadBefore(const QByteArray& head, int nMilliseconds = -1)
{
    return [head, nMilliseconds](const RawAnswer& own) {
        return nMilliseconds < 0 ? RawAnswer{head + own.bytes} : WithMore(head, own.bytes, nMilliseconds);
    };
}

/// The reply, followed by another one.
std::function<RawAnswer(const RawAnswer&)> TwoAnswers(int nMilliseconds = -1)
{
    return [nMilliseconds](const RawAnswer& own) {
        return nMilliseconds < 0 ? RawAnswer{own.bytes + kForeign} : WithMore(own.bytes, kForeign, nMilliseconds);
    };
}

/// A reply whose Content-Length omits the second half of its body, which contains another reply.
std::function<RawAnswer(const RawAnswer&)> LengthTooSmall(int nMilliseconds = -1)
{
    return [nMilliseconds](const RawAnswer& own) {
        const QByteArray head = "HTTP/1.1 200 OK\r\nContent-Length: 5\r\n\r\n{\"cod";
        const QByteArray rest = "e\":1000}" + own.bytes;
        return nMilliseconds < 0 ? RawAnswer{head + rest} : WithMore(head, rest, nMilliseconds);
    };
}

const QByteArray kBodyless = "Content-Length: 28\r\n\r\n{\"code\":1000,\"data\":{\"n\":9}}";
constexpr int kLaterMs = 3;

const std::vector<Foreign> kForeigns = {
    {"100_after", [](const RawAnswer& own) { return WithMore(own.bytes, "HTTP/1.1 100 Continue\r\n\r\n"); }, 0},
    {"101", HeadBefore("HTTP/1.1 101 Switching Protocols\r\n\r\n"), 101},
    {"102", HeadBefore("HTTP/1.1 102 Processing\r\n\r\n"), 102},
    {"102_later", HeadBefore("HTTP/1.1 102 Processing\r\n\r\n", kLaterMs), 102},
    {"103", HeadBefore("HTTP/1.1 103 Early Hints\r\nLink: </a>\r\n\r\n"), 103},
    {"103_later", HeadBefore("HTTP/1.1 103 Early Hints\r\nLink: </a>\r\n\r\n", kLaterMs), 103},
    {"204_with_body", HeadBefore("HTTP/1.1 204 No Content\r\n" + kBodyless), 204},
    {"204_and_a_reply_later", HeadBefore("HTTP/1.1 204 No Content\r\n\r\n", kLaterMs), 204},
    {"304_with_body", HeadBefore("HTTP/1.1 304 Not Modified\r\n" + kBodyless), 304},
    {"304_and_a_reply_later", HeadBefore("HTTP/1.1 304 Not Modified\r\n\r\n", kLaterMs), 304},
    {"two_answers", TwoAnswers(), 0},
    {"two_answers_in_segments", TwoAnswers(0), 0},
    {"two_answers_the_second_later", TwoAnswers(kLaterMs), 0},
    {"length_too_small", LengthTooSmall(), -1},
    {"length_too_small_in_segments", LengthTooSmall(0), -1},
    {"length_too_small_the_rest_later", LengthTooSmall(kLaterMs), -1},
};

/// How the host waits until the foreign bytes have arrived.
enum Between {
    EventLoop,
    Sleep
};

struct ForeignCase {
    std::string name;
    Foreign foreign;
    RawServer::Scheme scheme;
    Between between;
};

void PrintTo(const ForeignCase& row, std::ostream* pStream)
{
    *pStream << row.name;
}

std::vector<ForeignCase> Cases()
{
    std::vector<ForeignCase> cases;
    for (const Foreign& foreign : kForeigns) {
        for (const RawServer::Scheme scheme : {RawServer::Http, RawServer::Https}) {
            for (const Between between : {EventLoop, Sleep}) {
                cases.push_back({foreign.name + std::string(scheme == RawServer::Http ? "_http" : "_https") +
                                     (between == EventLoop ? "_loop" : "_sleep"),
                                 foreign, scheme, between});
            }
        }
    }
    return cases;
}

class ForeignAnswer : public TransportHost, public testing::WithParamInterface<ForeignCase> {};

TEST_P(ForeignAnswer, IsNotReceivedByAnotherCall)
{
    const auto& [name, foreign, scheme, between] = GetParam();
    const int nCalls = 8 * Times();
    std::shared_ptr<void> handle;
    std::mutex mutex;
    const RawServer server(
        [&, make = foreign.make](const RawRequest& request) {
            RawAnswer answer = TaggedAnswer(TagOf(request.target));
            if (request.target.startsWith("/foreign/")) {
                answer = make(answer);
                const std::lock_guard<std::mutex> lock(mutex);
                answer.done = std::move(handle);
            }
            return answer;
        },
        scheme);
    Use(server, scheme);
    constexpr APIModule::Method kMethods[] = {APIModule::Method_Get, APIModule::Method_Post, APIModule::Method_Put,
                                              APIModule::Method_Delete};
    int nForeign = 0;
    for (int i = 0; i < nCalls / 2; ++i) {
        const Signal sent;
        {
            const std::lock_guard<std::mutex> lock(mutex);
            handle = sent.Handle();
        }
        const Ended first = Get(QStringLiteral("/foreign/%1").arg(2 * i));
        EXPECT_EQ(first.code, foreign.code);
        nForeign += first.parsed && first.tag != 2 * i ? 1 : 0;
        if (between == EventLoop) {
            ASSERT_TRUE(Await([&sent] { return sent.WasRaised(); }));
        }
        while (!sent.WasRaised()) {
            QThread::usleep(100);
        }
        const Ended second = Run(kMethods[i % 4], QStringLiteral("/own/%1").arg(2 * i + 1), QStringLiteral("{}"));
        EXPECT_EQ(second.code, 0);
        nForeign += second.parsed && second.tag != 2 * i + 1 ? 1 : 0;
    }
    EXPECT_EQ(nForeign, 0) << "of " << nCalls << " calls";
}

INSTANTIATE_TEST_SUITE_P(Calls, ForeignAnswer, testing::ValuesIn(Cases()), RowName());

}  // namespace
