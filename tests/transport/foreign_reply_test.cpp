// Bytes that arrive after a reply: from servers that reply twice, send a body with a status that has none, or send a
// Content-Length that is too small. No call receives the reply to another.
#include "support/Rows.h"
#include "TransportHost.h"

#include <functional>

using namespace testing_support;

namespace {

const QByteArray kForeign = TaggedReply(999999).bytes;

/// What the server sends instead of @p own, the plain reply to a request.
struct ForeignBytes {
    const char* name;
    std::function<RawReply(const RawReply& own)> make;
    int code;  ///< result of the request that receives it
};

RawReply WithMore(const QByteArray& bytes, const QByteArray& more, int nMilliseconds = 0)
{
    RawReply reply{bytes};
    reply.moreBytes = more;
    reply.moreMilliseconds = nMilliseconds;
    return reply;
}

/// A separate head before the reply, which follows at once, in another segment, or some time later.
std::function<RawReply(const RawReply&)> HeadBefore(const QByteArray& head, int nMilliseconds = -1)
{
    return [head, nMilliseconds](const RawReply& own) {
        return nMilliseconds < 0 ? RawReply{head + own.bytes} : WithMore(head, own.bytes, nMilliseconds);
    };
}

/// The reply, followed by another one.
std::function<RawReply(const RawReply&)> TwoReplies(int nMilliseconds = -1)
{
    return [nMilliseconds](const RawReply& own) {
        return nMilliseconds < 0 ? RawReply{own.bytes + kForeign} : WithMore(own.bytes, kForeign, nMilliseconds);
    };
}

/// A reply whose Content-Length omits the second half of its body, which contains another reply.
std::function<RawReply(const RawReply&)> LengthTooSmall(int nMilliseconds = -1)
{
    return [nMilliseconds](const RawReply& own) {
        const QByteArray head = "HTTP/1.1 200 OK\r\nContent-Length: 5\r\n\r\n{\"cod";
        const QByteArray rest = "e\":1000}" + own.bytes;
        return nMilliseconds < 0 ? RawReply{head + rest} : WithMore(head, rest, nMilliseconds);
    };
}

const QByteArray kBodyless = "Content-Length: 28\r\n\r\n{\"code\":1000,\"data\":{\"n\":9}}";
constexpr int kLaterMs = 3;

const std::vector<ForeignBytes> kForeignBytes = {
    {"100_after", [](const RawReply& own) { return WithMore(own.bytes, "HTTP/1.1 100 Continue\r\n\r\n"); }, 0},
    {"101", HeadBefore("HTTP/1.1 101 Switching Protocols\r\n\r\n"), 101},
    {"102", HeadBefore("HTTP/1.1 102 Processing\r\n\r\n"), 102},
    {"102_later", HeadBefore("HTTP/1.1 102 Processing\r\n\r\n", kLaterMs), 102},
    {"103", HeadBefore("HTTP/1.1 103 Early Hints\r\nLink: </a>\r\n\r\n"), 103},
    {"103_later", HeadBefore("HTTP/1.1 103 Early Hints\r\nLink: </a>\r\n\r\n", kLaterMs), 103},
    {"204_with_body", HeadBefore("HTTP/1.1 204 No Content\r\n" + kBodyless), 204},
    {"204_and_a_reply_later", HeadBefore("HTTP/1.1 204 No Content\r\n\r\n", kLaterMs), 204},
    {"304_with_body", HeadBefore("HTTP/1.1 304 Not Modified\r\n" + kBodyless), 304},
    {"304_and_a_reply_later", HeadBefore("HTTP/1.1 304 Not Modified\r\n\r\n", kLaterMs), 304},
    {"two_replies", TwoReplies(), 0},
    {"two_replies_in_segments", TwoReplies(0), 0},
    {"two_replies_the_second_later", TwoReplies(kLaterMs), 0},
    {"length_too_small", LengthTooSmall(), -1},
    {"length_too_small_in_segments", LengthTooSmall(0), -1},
    {"length_too_small_the_rest_later", LengthTooSmall(kLaterMs), -1},
};

using testing_support::operator<<;

class ForeignReply : public TransportHost,
                     public testing::WithParamInterface<std::tuple<ForeignBytes, RawServer::Scheme, Pause>> {};

TEST_P(ForeignReply, IsNotReceivedByAnotherCall)
{
    const auto& [foreign, scheme, pause] = GetParam();
    const int nCalls = 8 * Times();
    std::atomic<int> sent{0};
    const RawServer server(
        [&, make = foreign.make](const RawRequest& request) {
            RawReply reply = TaggedReply(TagOf(request.target));
            if (request.target.startsWith("/foreign/")) {
                reply = make(reply);
                reply.done = CountedIn(sent);
            }
            return reply;
        },
        scheme);
    Use(server, scheme);
    constexpr APIModule::Method kMethods[] = {APIModule::Method_Get, APIModule::Method_Post, APIModule::Method_Put,
                                              APIModule::Method_Delete};
    int nForeign = 0;
    for (int i = 0; i < nCalls / 2; ++i) {
        const CallResult first = Get(QStringLiteral("/foreign/%1").arg(2 * i));
        EXPECT_EQ(first.code, foreign.code);
        nForeign += first.parsed && first.tag != 2 * i ? 1 : 0;
        AwaitCount(sent, i + 1, pause);
        const CallResult second = Run(kMethods[i % 4], QStringLiteral("/own/%1").arg(2 * i + 1), QStringLiteral("{}"));
        EXPECT_EQ(second.code, 0);
        nForeign += second.parsed && second.tag != 2 * i + 1 ? 1 : 0;
    }
    EXPECT_EQ(nForeign, 0) << "of " << nCalls << " calls";
}

INSTANTIATE_TEST_SUITE_P(Calls, ForeignReply,
                         testing::Combine(testing::ValuesIn(kForeignBytes),
                                          testing::Values(RawServer::Http, RawServer::Https),
                                          testing::Values(Pause::Loop, Pause::Sleep)),
                         RowName());

}  // namespace
