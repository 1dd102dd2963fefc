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
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [this, &timer, &requests] {
        if (requests > 0) {
            timer.stop();
            EXPECT_TRUE(outcomes.empty());
            Window().close();
        }
    });
    timer.start(10);
    QTimer::singleShot(kPatience, &timer, &QApplication::quit);
    QApplication::setQuitOnLastWindowClosed(true);
    QApplication::exec();
    EXPECT_FALSE(timer.isActive());
    EXPECT_EQ(session->runner.Pending(), 0);
    ASSERT_EQ(outcomes.size(), 1U);
    EXPECT_EQ(outcomes.front().result, -101);
    EXPECT_LT(outcomes.front().elapsedMilliseconds, kPatience / 2);
}

INSTANTIATE_TEST_SUITE_P(WaitModes, QuittingTest, testing::ValuesIn(kWaitModes), WaitModeName);

}  // namespace
