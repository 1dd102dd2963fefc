#include "support/ExplorerTest.h"

#include <OrnGui/OrnWaitDialog.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSpinBox>
#include <QTimer>

#include <atomic>
#include <memory>

namespace {

using namespace explorer_test;
using explorer::WaitMode;
using testing_support::RawReply;
using testing_support::RawRequest;
using testing_support::RawServer;

constexpr const char* kCall = "BRMS.GetRemoteLogConfig";

/// Never replies to requests whose path contains a given text, and replies to all others.
class HoldingServer {
public:
    explicit HoldingServer(QByteArray heldPath = "/")
        : m_heldPath(std::move(heldPath)), m_server([this](const RawRequest& request) {
              const bool holds = request.target.contains(m_heldPath);
              m_requests += 1;
              return holds ? RawReply{} : Success("{}");
          })
    {}

    [[nodiscard]] int Port() const { return m_server.Port(); }
    [[nodiscard]] int Requests() const { return m_requests; }

private:
    const QByteArray m_heldPath;
    std::atomic<int> m_requests{0};
    RawServer m_server;
};

class WaitingTest : public ExplorerTest {
protected:
    void SetTimeout(int seconds) { Find<QSpinBox>("timeout").setValue(seconds); }

    /// Runs a call to which the server does not reply, and returns when the call has ended. Calls meanwhile() once
    /// the server has received the request.
    void RunAnd(const HoldingServer& server, const std::function<void()>& meanwhile)
    {
        Choose(kCall);
        ClickRun();
        const auto happening = When([&server] { return server.Requests() > 0; },
                                    [&] {
                                        EXPECT_EQ(outcomes.size(), 0U);
                                        meanwhile();
                                    });
        EXPECT_TRUE(Await([this] { return session->runner.Pending() == 0; }));
        EXPECT_FALSE(happening->isActive());
    }
};

TEST_F(WaitingTest, RefusesATimeOutAboveTheMaximum)
{
    const HoldingServer server("nowhere");
    Use(server.Port());
    Choose(kCall);
    auto& timeout = Find<QSpinBox>("timeout");
    auto& run = Find<QPushButton>("run");
    SetTimeout(3600);
    EXPECT_EQ(Run(kCall).timeoutSeconds, 3600);
    EXPECT_FALSE(Find<QLabel>("timeoutProblem").isVisible());

    ASSERT_TRUE(Activate());
    timeout.setFocus();
    timeout.selectAll();
    QTest::keyClicks(&timeout, QStringLiteral("36000"));
    EXPECT_EQ(timeout.value(), 36000) << "the typed value must be kept";
    EXPECT_TRUE(Find<QLabel>("timeoutProblem").isVisible());
    EXPECT_EQ(TextOf("timeoutProblem"), QStringLiteral("The longest time-out is 3600 s."));
    EXPECT_FALSE(run.isEnabled());
    EXPECT_EQ(run.toolTip(), TextOf("timeoutProblem"));
    Find<QWidget>("callTree").setFocus();
    Press(Qt::Key_F5);
    EXPECT_EQ(session->runner.Pending(), 0);
    EXPECT_TRUE(timeout.hasFocus()) << "F5 must move the focus to the invalid value";

    Close();
    Start();
    EXPECT_EQ(Find<QSpinBox>("timeout").value(), 3600) << "the last valid time-out must be restored";
}

TEST_F(WaitingTest, ReportsATimeOut)
{
    const HoldingServer server;
    Use(server.Port());
    SetTimeout(1);
    const CallOutcome outcome = Run(kCall);
    EXPECT_EQ(outcome.result, -101);
    EXPECT_EQ(outcome.timeoutSeconds, 1);
    EXPECT_GE(outcome.elapsedMilliseconds, 1000);
    EXPECT_LT(outcome.elapsedMilliseconds, 3000);
    EXPECT_TRUE(TextOf("resultWords").contains(QStringLiteral("in time"))) << TextOf("resultWords").toStdString();
}

TEST_F(WaitingTest, WaitDialogIsModalAndTheEventLoopKeepsRunning)
{
    const HoldingServer server;
    Use(server.Port());
    SetTimeout(1);
    int ticks = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&ticks] { ++ticks; });
    timer.start(50);
    bool shown = false;
    QObject::connect(&timer, &QTimer::timeout, &timer, [this, &shown] {
        const auto* const pDialog = Window().findChild<ORNGUI::OrnWaitDialog*>();
        shown = shown || (pDialog != nullptr && pDialog->isVisible() && pDialog->isModal());
    });
    RunAnd(server, [] {});
    EXPECT_TRUE(shown);
    EXPECT_GE(ticks, 5);
    EXPECT_EQ(outcomes.front().waitMode, WaitMode::WaitDialog);
}

TEST_F(WaitingTest, WindowTakesInputDuringACallInTheEventLoop)
{
    const HoldingServer server;
    Use(server.Port());
    Use(WaitMode::EventLoop);
    SetTimeout(1);
    RunAnd(server, [this] {
        EXPECT_EQ(Window().findChild<ORNGUI::OrnWaitDialog*>(), nullptr);
        QTest::keyClicks(&Find<QLineEdit>("callFilter"), QStringLiteral("wash"));
        EXPECT_EQ(Find<QLineEdit>("callFilter").text(), QStringLiteral("wash"));
        EXPECT_EQ(TextOf("runState").toStdString(), "1 call waiting for the server");
    });
    EXPECT_FALSE(Find<QLabel>("runState").isVisible());
}

TEST_F(WaitingTest, SecondRunCanEndWhileTheFirstWaits)
{
    const HoldingServer server("remote-log");
    Use(server.Port());
    Use(WaitMode::EventLoop);
    SetTimeout(2);
    RunAnd(server, [this] {
        Choose("BRMS.GetTimeSyncConfig");
        ClickRun();
    });
    ASSERT_EQ(outcomes.size(), 2U);
    EXPECT_EQ(outcomes.at(0).call->name, "BRMS.GetTimeSyncConfig");
    EXPECT_TRUE(outcomes.at(0).succeeded);
    EXPECT_EQ(outcomes.at(1).call->name, kCall);
    EXPECT_EQ(outcomes.at(1).result, -101);
    // The window shows the result of the chosen call.
    EXPECT_EQ(TextOf("resultWords"), QStringLiteral("Success"));
    Choose(kCall);
    EXPECT_TRUE(TextOf("resultWords").contains(QStringLiteral("in time")));
}

TEST_F(WaitingTest, SimultaneousRunsOfOneCallHaveSeparateResults)
{
    std::atomic<int> count{0};
    RawServer server([&count](const RawRequest&) {
        return ++count == 1 ? Success("{}", 1500) : testing_support::HttpReply(503, "");
    });
    Use(server.Port());
    Use(WaitMode::EventLoop);
    Choose(kCall);
    ClickRun();
    const auto secondRun = When([&count] { return count == 1; }, [this] { ClickRun(); });
    ASSERT_TRUE(AwaitRuns(2));
    EXPECT_EQ(outcomes.at(0).result, 503);
    EXPECT_EQ(outcomes.at(0).reply->status, 503);
    EXPECT_EQ(outcomes.at(1).result, 0);
    EXPECT_EQ(outcomes.at(1).reply->status, 200);
}

TEST_F(WaitingTest, ChangingTheServerDoesNotAffectARunningCall)
{
    const HoldingServer holding;
    RawServer other([](const RawRequest&) { return Success("{}"); });
    Use(holding.Port());
    const QString name = session->servers.Current().name;
    Use(WaitMode::EventLoop);
    SetTimeout(1);
    RunAnd(holding, [this, &other] { Use(other.Port()); });
    ASSERT_EQ(outcomes.size(), 1U);
    EXPECT_EQ(outcomes.front().result, -101);
    EXPECT_EQ(outcomes.front().server, name);
    EXPECT_TRUE(outcomes.front().request.url.contains(QString::number(holding.Port())));
    EXPECT_TRUE(other.TakeRequests().empty());
    EXPECT_TRUE(Run(kCall).succeeded);
    EXPECT_EQ(other.TakeRequests().size(), 1U);
}

class ClosingTest : public WaitingTest, public testing::WithParamInterface<WaitMode> {};

TEST_P(ClosingTest, CallStillTimesOutAfterTheWindowIsClosed)
{
    const HoldingServer server;
    Use(server.Port());
    Use(GetParam());
    SetTimeout(1);
    RunAnd(server, [this] {
        Window().close();
        EXPECT_FALSE(Window().isVisible());
    });
    ASSERT_EQ(outcomes.size(), 1U);
    EXPECT_EQ(outcomes.front().result, -101);
}

TEST_P(ClosingTest, CallStillTimesOutAfterALanguageChangeReplacesTheWindow)
{
    const HoldingServer server;
    Use(server.Port());
    Use(GetParam());
    SetTimeout(1);
    const QPointer<explorer::MainWindow> old = &Window();
    RunAnd(server, [this, &old] {
        emit Window().LanguageChosen(QStringLiteral("de"));
        EXPECT_NE(old, &Window());
    });
    ASSERT_EQ(outcomes.size(), 1U);
    EXPECT_EQ(outcomes.front().result, -101);
    EXPECT_TRUE(Await([&old] { return old.isNull(); }));
}

INSTANTIATE_TEST_SUITE_P(WaitModes, ClosingTest, testing::ValuesIn(kWaitModes), WaitModeName);

TEST_F(WaitingTest, StoppingTheEmulatorEndsTheWait)
{
    UseEmulator();
    QNetworkAccessManager network;
    QNetworkRequest request(
        QUrl(QStringLiteral("http://127.0.0.1:%1/emulator/v1/faults").arg(session->emulator.HttpPort())));
    request.setHeader(QNetworkRequest::ContentTypeHeader, QStringLiteral("application/json"));
    request.setRawHeader("X-Subject-Token", session->emulator.Token().toLatin1());
    const std::unique_ptr<QNetworkReply> reply(
        network.post(request, R"({"path": "/brms/api/v1.1/config/remote-log", "kind": "delay", "delayMs": 60000})"));
    ASSERT_TRUE(Await([&reply] { return reply->isFinished(); }));
    ASSERT_EQ(reply->error(), QNetworkReply::NoError) << reply->readAll().toStdString();

    Use(WaitMode::EventLoop);
    SetTimeout(60);
    Choose(kCall);
    ClickRun();
    QElapsedTimer clock;
    clock.start();
    constexpr int kUnderWay = 500;  // milliseconds
    QTimer::singleShot(kUnderWay, session.get(), [this] {
        EXPECT_EQ(session->runner.Pending(), 1);
        EXPECT_TRUE(outcomes.empty());
        session->emulator.Stop();
    });
    ASSERT_TRUE(AwaitRuns(1));
    EXPECT_GE(clock.elapsed(), kUnderWay);
    EXPECT_EQ(outcomes.front().result, -18);
    ASSERT_TRUE(Await([this] { return session->emulator.GetState() == explorer::EmulatorProcess::Stopped; }));
    EXPECT_EQ(TextOf("serverAddress"), QStringLiteral("The emulator is not running"));
}

TEST_F(WaitingTest, DeletingTheParentEndsTheWait)
{
    const HoldingServer server;
    Use(server.Port());
    auto* pParent = new QWidget;
    pParent->show();
    explorer::RunOrder order = OrderOf(kCall);
    order.waitMode = WaitMode::WaitDialog;
    order.parent = pParent;
    session->runner.Order(order);
    QElapsedTimer clock;
    const auto deletion = When([&server] { return server.Requests() == 1; },
                               [&clock, pParent] {
                                   clock.start();
                                   delete pParent;
                               });
    ASSERT_TRUE(AwaitRuns(1));
    ASSERT_TRUE(clock.isValid());
    EXPECT_LT(clock.elapsed(), 5000);  // the call's own time-out is 10 s
    EXPECT_EQ(outcomes.front().result, -101);
}

class WithoutWaitingTest : public WaitingTest {
protected:
    void SetUp() override { Use(WaitMode::WithoutWaiting); }

    [[nodiscard]] QList<QPushButton*> CancelButtons() const
    {
        QList<QPushButton*> shown;
        const auto buttons = Find<QWidget>("runningCalls").findChildren<QPushButton*>(QStringLiteral("cancelCall"));
        for (QPushButton* pButton : buttons) {
            if (pButton->isVisible()) {
                shown.append(pButton);
            }
        }
        return shown;
    }

    void Begin(const char* call)
    {
        Choose(call);
        ClickRun();
    }
};

TEST_F(WithoutWaitingTest, ShowsTheResultOfEachConcurrentCallWhenItEnds)
{
    const HoldingServer server("remote-log");
    Use(server.Port());
    EXPECT_FALSE(Find<QWidget>("runningCalls").isVisible());
    Begin(kCall);
    Begin(kCall);
    ASSERT_TRUE(Await([&server] { return server.Requests() == 2; }));
    ASSERT_EQ(CancelButtons().size(), 2);
    const QScrollBar& scrollBar = *Find<QScrollArea>("runningCalls").verticalScrollBar();
    EXPECT_TRUE(Await([&scrollBar] { return scrollBar.maximum() == 0; })) << "all running calls must be visible";
    EXPECT_EQ(TextOf("runState").toStdString(), "2 calls waiting for the server");
    EXPECT_EQ(Window().findChild<ORNGUI::OrnWaitDialog*>(), nullptr);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);

    const CallOutcome other = Run("BRMS.GetTimeSyncConfig");
    EXPECT_TRUE(other.succeeded);
    EXPECT_EQ(other.waitMode, WaitMode::WithoutWaiting);
    EXPECT_EQ(TextOf("resultWords"), QStringLiteral("Success"));
    EXPECT_EQ(CancelButtons().size(), 2);
}

TEST_F(WithoutWaitingTest, CancelButtonCancelsOnlyItsCall)
{
    const HoldingServer server("remote-log");
    Use(server.Port());
    Begin(kCall);
    ASSERT_TRUE(Await([&server] { return server.Requests() == 1; }));
    Choose("BRMS.SetRemoteLogConfig");
    MarkAllKnown();
    ClickRun();
    ASSERT_TRUE(Await([&server] { return server.Requests() == 2; }));
    ASSERT_EQ(CancelButtons().size(), 2);

    QTest::mouseClick(CancelButtons().constLast(), Qt::LeftButton);
    ASSERT_EQ(outcomes.size(), 1U);
    EXPECT_EQ(outcomes.front().call->name, "BRMS.SetRemoteLogConfig");
    EXPECT_EQ(outcomes.front().result, -101);
    EXPECT_EQ(outcomes.front().request.method, QStringLiteral("PUT"));
    EXPECT_EQ(TextOf("resultWords"), QStringLiteral("Cancelled"));
    EXPECT_EQ(session->notifications.rowCount(), 0) << "a cancelled call needs no notification";
    ASSERT_EQ(CancelButtons().size(), 1);

    QTest::mouseClick(CancelButtons().constFirst(), Qt::LeftButton);
    ASSERT_EQ(outcomes.size(), 2U);
    EXPECT_EQ(outcomes.back().call->name, kCall);
    EXPECT_EQ(session->runner.Pending(), 0);
    EXPECT_FALSE(Find<QWidget>("runningCalls").isVisible());
}

TEST_F(WithoutWaitingTest, NewWindowListsTheRunningCalls)
{
    const HoldingServer server;
    Use(server.Port());
    Begin(kCall);
    ASSERT_TRUE(Await([&server] { return server.Requests() == 1; }));
    emit Window().LanguageChosen(QStringLiteral("de"));
    ASSERT_EQ(CancelButtons().size(), 1);
    QTest::mouseClick(CancelButtons().constFirst(), Qt::LeftButton);
    EXPECT_EQ(outcomes.size(), 1U);
}

TEST_F(WithoutWaitingTest, RefusesACallWithAMissingArgument)
{
    explorer::RunOrder order = OrderOf("BRMS.GetLocalSetting");
    order.waitMode = WaitMode::WithoutWaiting;
    session->runner.Order(order);
    ASSERT_TRUE(AwaitRuns(1));
    EXPECT_FALSE(outcomes.front().succeeded);
    EXPECT_TRUE(outcomes.front().resultText.contains(QStringLiteral("settingType")));
    EXPECT_EQ(session->runner.Pending(), 0);
    EXPECT_TRUE(session->runner.WithoutWaiting().empty());
}

}  // namespace
