// Every status that a server can answer with. None is followed, none is asked again.
#include "FaultHost.h"

using namespace testing_support;

namespace {

/// Answers "/<status>" with that status, and tells the client to go elsewhere.
RawAnswer Respond(const RawRequest& request)
{
    const int nStatus = request.target.mid(1).toInt();
    return request.target == "/ok" || nStatus == 200
               ? SuccessAnswer()
               : HttpAnswer(nStatus, R"({"code":1000,"data":{"a":1}})", "Location: /ok\r\nRetry-After: 0\r\n");
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

class StatusTest : public FaultHost, public testing::WithParamInterface<Way> {};

TEST_P(StatusTest, IsTheResult)
{
    const Way way = GetParam();
    WarmUp();
    RawServer server(Respond, way.scheme);
    Use(server, way.scheme);
    ExpectSuccess(way);
    server.TakeRequests();
    const Census before = Census::Now();
    for (int nStatus = 200; nStatus < 600; ++nStatus) {
        SCOPED_TRACE(nStatus);
        const QString url = QStringLiteral("/%1").arg(nStatus);
        for (const bool bNotifyOnFailure : {false, true}) {
            ExpectOutcome(way, OutcomeOf(nStatus), bNotifyOnFailure, 20, url);
            const std::vector<RawRequest> requests = server.TakeRequests();
            ASSERT_EQ(requests.size(), 1U);
            EXPECT_EQ(requests.front().target, url.toLatin1());
        }
    }
    ExpectSuccess(way);
    ExpectNothingLeft(before);
}

INSTANTIATE_TEST_SUITE_P(Statuses, StatusTest, testing::ValuesIn(WaysOfAllCalls()),
                         [](const auto& row) { return NameOf(row.param); });

}  // namespace
