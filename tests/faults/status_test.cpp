// Every HTTP status. No redirect is followed and no request repeated.
#include "FaultHost.h"
#include "support/Rows.h"

using namespace testing_support;

namespace {

/// Replies to "/<status>" with that status and a redirect.
RawReply Respond(const RawRequest& request)
{
    const int nStatus = request.target.mid(1).toInt();
    return request.target == "/ok" || nStatus == 200
               ? SuccessReply()
               : HttpReply(nStatus, R"({"code":1000,"data":{"a":1}})", "Location: /ok\r\nRetry-After: 0\r\n");
}

Outcome OutcomeOf(int nStatus)
{
    switch (nStatus) {
    case 200:
        return Succeeds();
    case 401:
        return AsksForAuthentication();
    default:
        return StatusFails(nStatus);
    }
}

class StatusTest : public FaultHost, public testing::WithParamInterface<CallMode> {};

TEST_P(StatusTest, ReturnsHttpStatus)
{
    const CallMode mode = GetParam();
    WarmUp();
    RawServer& server = Serve(Respond, mode.scheme);
    ExpectSuccess(mode);
    server.TakeRequests();
    const Census before = Census::Now();
    for (int nStatus = 200; nStatus < 600; ++nStatus) {
        SCOPED_TRACE(nStatus);
        const QString url = QStringLiteral("/%1").arg(nStatus);
        for (const bool bNotifyOnFailure : {false, true}) {
            ExpectOutcome(mode, OutcomeOf(nStatus), bNotifyOnFailure, 20, url);
            const std::vector<RawRequest> requests = server.TakeRequests();
            ASSERT_EQ(requests.size(), 1U);
            EXPECT_EQ(requests.front().target, url.toLatin1());
        }
    }
    ExpectSuccess(mode);
    ExpectNoLeaks(before);
}

INSTANTIATE_TEST_SUITE_P(Statuses, StatusTest, testing::ValuesIn(AllCallModes()), RowName());

}  // namespace
