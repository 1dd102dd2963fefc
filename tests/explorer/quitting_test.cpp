// Each test case runs in a separate process: once the application has quit, calls no longer wait.
#include "support/ExplorerTest.h"

#include <QSpinBox>
#include <QTimer>

#include <atomic>

namespace {

using namespace explorer_test;
using explorer::WaitMode;
using testing_support::RawReply;
using testing_support::RawRequest;
using testing_support::RawServer;

class QuittingTest : public ExplorerTest, public testing::WithParamInterface<WaitMode> {};

TEST_P(QuittingTest, ClosingTheLastWindowDuringACallEndsTheCallAndTheProgram)
{
    std::atomic<int> requests{0};
    const RawServer server([&requests](const RawRequest&) {
        ++requests;
        return RawReply{};
    });
    Use(server.Port());
    Use(GetParam());
    constexpr int kLong = 600;  // seconds
    Find<QSpinBox>("timeout").setValue(kLong);
    Choose("BRMS.GetRemoteLogConfig");
    ClickRun();
    const auto closing = When([&requests] { return requests > 0; },
                              [this] {
                                  EXPECT_TRUE(outcomes.empty());
                                  Window().close();
                              });
    QTimer::singleShot(kPatience, session.get(), &QApplication::quit);
    QApplication::setQuitOnLastWindowClosed(true);
    QApplication::exec();
    EXPECT_FALSE(closing->isActive());
    EXPECT_EQ(session->runner.Pending(), 0);
    ASSERT_EQ(outcomes.size(), 1U);
    EXPECT_EQ(outcomes.front().result, -101);
    EXPECT_LT(outcomes.front().elapsedMilliseconds, kPatience / 2);
}

INSTANTIATE_TEST_SUITE_P(WaitModes, QuittingTest, testing::ValuesIn(kWaitModes), WaitModeName);

}  // namespace
