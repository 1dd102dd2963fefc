// What can happen while a call waits. Each call returns its own result in time and leaks nothing.
#include "support/Host.h"
#include "support/Rows.h"
#include "support/Waiting.h"
#include "support/Watchdog.h"

#include <OrnGui/OrnMessageNotify.h>
#include <OrnGui/OrnSingleton.h>
#include <OrnGui/OrnWaitDialog.h>

#include <QApplication>
#include <QCloseEvent>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QImage>
#include <QKeyEvent>
#include <qpa/qwindowsysteminterface.h>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <climits>
#include <functional>

using namespace testing_support;
using APIModule::CAPIModule;

namespace {

constexpr const char* kExecuteFuncs = "APIModule::CAPIModule::ExecuteFuncs";

/// Ignores the query. Replies to "/ok" at once, to "/after/<ms>" after that time, to "/<status>" with that status, and
/// to "/silent" never.
RawReply Respond(const RawRequest& request)
{
    const RawReply success = HttpReply(200, R"({"code":1000,"data":{"a":1}})");
    if (request.target.startsWith("/silent")) {
        return {};
    }
    if (request.target.startsWith("/after/")) {
        return Delayed(success, request.target.mid(7).toInt());
    }
    return request.target == "/ok" ? success : HttpReply(request.target.mid(1).toInt(), "");
}

class WaitBase : public Host {
protected:
    WaitBase() : m_server(Respond)
    {
        Use(m_server);
        m_parent = new QWidget;
        m_parent->resize(300, 200);
        m_parent->show();
    }
    ~WaitBase() override { delete m_parent; }

    HostCall Call(Waiting waiting, const QString& url, int nTimeout = 20)
    {
        HostCall call;
        call.url = url;
        call.timeout = nTimeout;
        call.uiError = QStringLiteral("No settings");
        call.successTip = QStringLiteral("Done");
        call.parse = [](const QJsonObject&) { return 0; };
        call.notifyOnFailure = false;
        call.parent = waiting == BehindDialog ? m_parent.data() : nullptr;
        return call;
    }

    LogLines TimedOut(Waiting waiting, const std::string& path) const
    {
        const std::string url = "http://127.0.0.1:" + std::to_string(m_server.Port()) + path;
        return {{kFacadeFile, kExecuteFuncs, 4, "ExecuteRequest url=" + url},
                {kFacadeFile, FunctionOf(waiting), 6, "Request time out, request url: " + url}};
    }

    QString TimeOutNotice() const { return CAPIModule::GetErroCodeInfor(QStringLiteral("No settings"), -101, true); }

    void During(int nMilliseconds, const std::function<void()>& act)
    {
        QTimer::singleShot(nMilliseconds, &m_context, act);
    }

    Watchdog m_watchdog;
    RawServer m_server;
    QPointer<QWidget> m_parent;
    QObject m_context;
};

class WaitTest : public WaitBase, public testing::WithParamInterface<Waiting> {};

INSTANTIATE_TEST_SUITE_P(Waits, WaitTest, testing::Values(InLoop, BehindDialog), RowName());

TEST_P(WaitTest, TimeOutIsPreciseAndTheEventLoopContinues)
{
    int nTicks = 0;
    QTimer ticker;
    QObject::connect(&ticker, &QTimer::timeout, [&nTicks] { ++nTicks; });
    ticker.start(10);
    QElapsedTimer elapsed;
    elapsed.start();
    EXPECT_EQ(Execute(Call(GetParam(), QStringLiteral("/silent"), 1)), -1);
    EXPECT_GE(elapsed.elapsed(), 1000);
    EXPECT_LT(elapsed.elapsed(), 3000);
    EXPECT_GE(nTicks, 30) << "the client's timers do not run";
    EXPECT_EQ(logs.Take(), TimedOut(GetParam(), "/silent"));
    EXPECT_EQ(notifications.Take(), QStringList{TimeOutNotice()});

    EXPECT_EQ(Execute(Call(GetParam(), QStringLiteral("/ok"))), 0);
    EXPECT_EQ(notifications.Take(), QStringList{QStringLiteral("Done")});
}

TEST_P(WaitTest, TimeOutLineMasksTheToken)
{
    EXPECT_EQ(Execute(Call(GetParam(), QStringLiteral("/silent?token=0123456789abc"), 0)), -1);
    EXPECT_EQ(logs.Take(), TimedOut(GetParam(), "/silent?token=**********abc"));
}

TEST_P(WaitTest, TimeOutEndsAnUpload)
{
    for (const APIModule::Method method : {APIModule::Method_Put, APIModule::Method_Post, APIModule::Method_Delete}) {
        HostCall call = Call(GetParam(), QStringLiteral("/silent"), 0);
        call.method = method;
        call.body = QString(8 * 1024 * 1024, QLatin1Char('x'));
        EXPECT_EQ(Execute(call), -1);
        During(20, [this] { delete m_parent; });
        call.timeout = 1;
        EXPECT_EQ(Execute(call), -1);
        m_parent = new QWidget;
        m_parent->show();
    }
    notifications.Take();
    EXPECT_EQ(Execute(Call(GetParam(), QStringLiteral("/ok"))), 0);
}

TEST_P(WaitTest, CaptionMayBelongToADeletedObject)
{
    class Page : public QWidget {
    public:
        QString caption = QStringLiteral("No settings, and a text long enough for the heap");
        QString tip = QStringLiteral("Done, and a text long enough for the heap");
    };
    for (const char* const target : {"/silent", "/after/300"}) {
        auto* pPage = new Page;
        pPage->show();
        During(50, [pPage] { delete pPage; });
        const HostCall call = Call(GetParam(), QLatin1String(target), 1);
        const auto pack = [&](void* pReqParamData) {
            return CAPIModule::GetInstance().GetRequestParam(pReqParamData, call.method, call.url, -1, {}, {},
                                                             call.timeout, false);
        };
        CAPIModule::GetInstance().ExecuteFuncs(pack, call.parse, pPage->caption,
                                               GetParam() == BehindDialog ? pPage : nullptr, pPage->tip, false, true);
        const QStringList notices = notifications.Take();
        ASSERT_EQ(notices.size(), 1);
        EXPECT_TRUE(notices.first().endsWith(QLatin1String("long enough for the heap")));
    }
}

/// The host may run an event loop while a line is logged.
TEST_P(WaitTest, ObserverMayRunAnEventLoop)
{
    LogLines seen;
    int nDepth = 0;
    ornl::TalPrintLog::instance().SetObserver([&](const ornl::LogRecord& record) {
        seen.push_back({record.strFile, record.strFunction, record.nLevel, record.strMessage});
        if (nDepth == 0) {
            ++nDepth;
            QEventLoop loop;
            QTimer::singleShot(400, &loop, &QEventLoop::quit);
            loop.exec();
            --nDepth;
        }
    });
    EXPECT_EQ(Execute(Call(GetParam(), QStringLiteral("/after/1200"), 1)), -1);
    EXPECT_EQ(seen, TimedOut(GetParam(), "/after/1200")) << "a reply after the time-out logs nothing";
    seen.clear();
    EXPECT_EQ(Execute(Call(GetParam(), QStringLiteral("/ok"))), 0);
    EXPECT_EQ(seen.size(), 2U);
    ornl::TalPrintLog::instance().SetObserver({});
}

TEST_P(WaitTest, ObserverMayMakeCalls)
{
    std::vector<int> results;
    bool bCalling = false;
    ornl::TalPrintLog::instance().SetObserver([&](const ornl::LogRecord&) {
        if (!bCalling) {
            bCalling = true;
            results.push_back(Execute(Call(GetParam(), QStringLiteral("/404"))));
            bCalling = false;
        }
    });
    EXPECT_EQ(Execute(Call(GetParam(), QStringLiteral("/after/100"))), 0);
    EXPECT_EQ(results, std::vector<int>(2, 404)) << "one call for each log line: sending and success";
    ornl::TalPrintLog::instance().SetObserver({});
}

TEST_P(WaitTest, CallablesAndNotificationSlotsMayMakeCalls)
{
    std::vector<int> results;
    const auto nested = [&](Waiting waiting) { results.push_back(Execute(Call(waiting, QStringLiteral("/404")))); };
    HostCall call = Call(GetParam(), QStringLiteral("/ok"));
    call.parse = [&](const QJsonObject&) {
        nested(InLoop);
        nested(BehindDialog);
        delete m_parent;
        return 0;
    };
    QObject context;
    QObject::connect(&ORNGUI::OrnSingleton<ORNGUI::OrnMessageNotify>::Instance(),
                     &ORNGUI::OrnMessageNotify::TextNotificationAdded, &context, [&] { nested(InLoop); });
    EXPECT_EQ(Execute(call), 0);
    EXPECT_EQ(results, std::vector<int>(3, 404));
}

TEST_P(WaitTest, LeaksNothing)
{
    for (const char* const target : {"/ok", "/404", "/silent", "/silent", "/silent"}) {
        Execute(Call(GetParam(), QLatin1String(target), target == std::string("/silent") ? 1 : 20));
    }
    EXPECT_TRUE(Await([this] { return m_parent->children().isEmpty(); }));
    EXPECT_TRUE(Await([this] { return m_server.OpenConnectionCount() <= 1; }))
        << "only one connection may be kept for reuse";
    const QWidgetList widgets = QApplication::allWidgets();
    for (const QWidget* pWidget : widgets) {
        EXPECT_EQ(qobject_cast<const ORNGUI::OrnWaitDialog*>(pWidget), nullptr);
    }
}

TEST_P(WaitTest, LateReplyIsIgnored)
{
    EXPECT_EQ(Execute(Call(GetParam(), QStringLiteral("/after/1300"), 1)), -1);
    EXPECT_EQ(logs.Take(), TimedOut(GetParam(), "/after/1300"));
    notifications.Take();
    QTest::qWait(600);
    EXPECT_EQ(logs.Take(), LogLines());
    EXPECT_EQ(notifications.Take(), QStringList());
}

TEST_P(WaitTest, ZeroTimeOutReturnsTimeout)
{
    for (const int nTimeout : {0, -1, INT_MIN}) {
        EXPECT_EQ(Execute(Call(GetParam(), QStringLiteral("/silent"), nTimeout)), -1);
        EXPECT_EQ(logs.Take(), TimedOut(GetParam(), "/silent"));
        EXPECT_EQ(notifications.Take(), QStringList{TimeOutNotice()});
    }
}

TEST_P(WaitTest, TimeOutBeyondTheTimerLimitIsAccepted)
{
    constexpr int kWrapsTo704Milliseconds = 4294968;
    for (const int nTimeout : {INT_MAX / 1000, INT_MAX / 1000 + 1, INT_MAX, kWrapsTo704Milliseconds}) {
        EXPECT_EQ(Execute(Call(GetParam(), QStringLiteral("/after/1000"), nTimeout)), 0);
    }
}

TEST_P(WaitTest, TenTimeOutsDoNotBlockLaterCalls)
{
    for (int i = 0; i < 10; ++i) {
        EXPECT_EQ(Execute(Call(GetParam(), QStringLiteral("/silent"), i == 0 ? 1 : 0)), -1);
    }
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(Execute(Call(GetParam(), QStringLiteral("/silent"), 1)), -1);
    }
    notifications.Take();
    EXPECT_EQ(Execute(Call(GetParam(), QStringLiteral("/ok"))), 0);
    EXPECT_EQ(notifications.Take(), QStringList{QStringLiteral("Done")});
}

TEST_F(WaitBase, TenFullTimeOutsDoNotBlockLaterCalls)
{
    for (int i = 0; i < 10; ++i) {
        EXPECT_EQ(Execute(Call(InLoop, QStringLiteral("/silent"), 1)), -1);
    }
    EXPECT_EQ(Execute(Call(InLoop, QStringLiteral("/ok"), 5)), 0);
}

/// A call during the wait of another one, with both kinds of wait for each.
class NestedTest : public WaitBase, public testing::WithParamInterface<std::tuple<Waiting, Waiting>> {
protected:
    const Waiting outer = std::get<0>(GetParam());
    const Waiting inner = std::get<1>(GetParam());
};

INSTANTIATE_TEST_SUITE_P(Waits, NestedTest,
                         testing::Combine(testing::Values(InLoop, BehindDialog), testing::Values(InLoop, BehindDialog)),
                         RowName());

TEST_P(NestedTest, InnerEndsFirst)
{
    int nInner = 99;
    During(50, [&] { nInner = Execute(Call(inner, QStringLiteral("/404"))); });
    EXPECT_EQ(Execute(Call(outer, QStringLiteral("/after/400"))), 0);
    EXPECT_EQ(nInner, 404);
}

TEST_P(NestedTest, OuterFinishesFirst)
{
    int nInner = 99;
    During(50, [&] { nInner = Execute(Call(inner, QStringLiteral("/after/600"))); });
    EXPECT_EQ(Execute(Call(outer, QStringLiteral("/after/200"))), 0);
    EXPECT_EQ(nInner, 0);
}

TEST_P(NestedTest, OuterTimesOutFirst)
{
    int nInner = 99;
    During(50, [&] { nInner = Execute(Call(inner, QStringLiteral("/after/1500"))); });
    EXPECT_EQ(Execute(Call(outer, QStringLiteral("/silent"), 1)), -1);
    EXPECT_EQ(nInner, 0);
    EXPECT_EQ(notifications.Take(), (QStringList{QStringLiteral("Done"), TimeOutNotice()}));
}

TEST_P(NestedTest, BothTimeOut)
{
    int nInner = 99;
    During(50, [&] { nInner = Execute(Call(inner, QStringLiteral("/silent"), 1)); });
    EXPECT_EQ(Execute(Call(outer, QStringLiteral("/silent"), 1)), -1);
    EXPECT_EQ(nInner, -1);
    EXPECT_EQ(notifications.Take(), (QStringList{TimeOutNotice(), TimeOutNotice()}));
    EXPECT_EQ(Execute(Call(outer, QStringLiteral("/ok"))), 0);
}

TEST_P(NestedTest, DestroyedParentEndsBoth)
{
    int nInner = 99;
    During(50, [&] { nInner = Execute(Call(inner, QStringLiteral("/after/600"))); });
    During(200, [this] { delete m_parent; });
    EXPECT_EQ(Execute(Call(outer, QStringLiteral("/after/1500"))), outer == InLoop ? 0 : -1);
    EXPECT_EQ(nInner, inner == InLoop ? 0 : -1);
}

/// An outer call whose parent was destroyed ignores a reply that arrives while the inner call still waits.
TEST_F(WaitBase, ReplyAfterDestructionOfTheParentIsIgnored)
{
    int nInner = 99;
    During(50, [&] { nInner = Execute(Call(InLoop, QStringLiteral("/after/800"))); });
    During(150, [this] { delete m_parent; });
    EXPECT_EQ(Execute(Call(BehindDialog, QStringLiteral("/after/400"))), -1);
    EXPECT_EQ(nInner, 0);
    EXPECT_EQ(notifications.Take(), (QStringList{QStringLiteral("Done"), TimeOutNotice()}));
}

TEST_F(WaitBase, DestroyedGrandparentEndsTheWait)
{
    auto* pWindow = new QWidget;
    auto* pPage = new QWidget(pWindow);
    pWindow->show();
    During(100, [&] { delete pWindow; });
    HostCall call = Call(BehindDialog, QStringLiteral("/silent"));
    call.parent = pPage;
    EXPECT_EQ(Execute(call), -1);
    EXPECT_EQ(logs.Take(), TimedOut(BehindDialog, "/silent"));
}

TEST_F(WaitBase, ReturnsTimeoutWhenTheParentIsDestroyedBeforeTheWait)
{
    HostCall call = Call(BehindDialog, QStringLiteral("/ok"));
    const auto pack = [&](void* pReqParamData) {
        delete m_parent;
        return CAPIModule::GetInstance().GetRequestParam(pReqParamData, APIModule::Method_Get, call.url, -1, {}, {}, 5,
                                                         false);
    };
    EXPECT_EQ(CAPIModule::GetInstance().ExecuteFuncs(pack, call.parse, {}, call.parent, {}, true, true), 0);
}

/// An action on the wait dialog.
struct Disturbance {
    const char* name;
    void (*act)(ORNGUI::OrnWaitDialog& dialog);
};

class DisturbanceTest : public WaitBase, public testing::WithParamInterface<Disturbance> {
protected:
    /// Disturbs the dialog of the next call.
    void Disturb()
    {
        During(100, [this] {
            auto* pDialog = qobject_cast<ORNGUI::OrnWaitDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(pDialog, nullptr);
            GetParam().act(*pDialog);
            m_bDisturbed = true;
        });
    }

    bool m_bDisturbed = false;
};

const Disturbance kHarmless[] = {
    {"escape", [](ORNGUI::OrnWaitDialog& dialog) { QTest::keyPress(&dialog, Qt::Key_Escape); }},
    {"close_button", [](ORNGUI::OrnWaitDialog& dialog) { dialog.close(); }},
    {"close_event",
     [](ORNGUI::OrnWaitDialog& dialog) {
         QCloseEvent close;
         QApplication::sendEvent(&dialog, &close);
     }},
    {"done", [](ORNGUI::OrnWaitDialog& dialog) { dialog.done(QDialog::Accepted); }},
    {"accept", [](ORNGUI::OrnWaitDialog& dialog) { dialog.accept(); }},
    {"reject", [](ORNGUI::OrnWaitDialog& dialog) { dialog.reject(); }},
    {"dialog_hidden", [](ORNGUI::OrnWaitDialog& dialog) { dialog.hide(); }},
    {"parent_hidden", [](ORNGUI::OrnWaitDialog& dialog) { dialog.parentWidget()->hide(); }},
    {"parent_closed", [](ORNGUI::OrnWaitDialog& dialog) { dialog.parentWidget()->close(); }},
};

class HarmlessTest : public DisturbanceTest {};

INSTANTIATE_TEST_SUITE_P(Disturbances, HarmlessTest, testing::ValuesIn(kHarmless), RowName());

TEST_P(HarmlessTest, DoesNotEndTheWait)
{
    Disturb();
    EXPECT_EQ(Execute(Call(BehindDialog, QStringLiteral("/after/400"))), 0);
    EXPECT_TRUE(m_bDisturbed);
    EXPECT_EQ(notifications.Take(), QStringList{QStringLiteral("Done")});
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

/// Refuses to close and thereby prevents the application from quitting.
class RefusingWindow : public QWidget {
protected:
    void closeEvent(QCloseEvent* pEvent) override { pEvent->ignore(); }
};

const Disturbance kEnds[] = {
    {"stopped", [](ORNGUI::OrnWaitDialog& dialog) { dialog.OnStopWaitImmediately(); }},
    {"hidden_and_stopped",
     [](ORNGUI::OrnWaitDialog& dialog) {
         dialog.hide();
         dialog.OnStopWaitImmediately();
     }},
    {"deleted", [](ORNGUI::OrnWaitDialog& dialog) { delete &dialog; }},
    {"deleted_later", [](ORNGUI::OrnWaitDialog& dialog) { dialog.deleteLater(); }},
    {"quit_refused",
     [](ORNGUI::OrnWaitDialog&) {
         RefusingWindow window;
         window.show();
         QEvent quit(QEvent::Quit);
         QApplication::sendEvent(qApp, &quit);
     }},
};

class EndedDialogTest : public DisturbanceTest {};

INSTANTIATE_TEST_SUITE_P(Disturbances, EndedDialogTest, testing::ValuesIn(kEnds), RowName());

TEST_P(EndedDialogTest, EndsTheWaitWithATimeOut)
{
    Disturb();
    QElapsedTimer elapsed;
    elapsed.start();
    EXPECT_EQ(Execute(Call(BehindDialog, QStringLiteral("/silent"))), -1);
    EXPECT_LT(elapsed.elapsed(), 10000) << "the call must end at once, not at its time-out";
    EXPECT_TRUE(m_bDisturbed);
    EXPECT_EQ(logs.Take(), TimedOut(BehindDialog, "/silent"));
    EXPECT_EQ(notifications.Take(), QStringList{TimeOutNotice()});
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_EQ(Execute(Call(BehindDialog, QStringLiteral("/ok"))), 0);
}

/// The inner call keeps exec() of the outer dialog from returning. A reply that arrives before it returns still counts,
/// as after a time-out.
TEST_P(EndedDialogTest, ReplyBeforeExecReturnsIsTheResult)
{
    int nInner = 99;
    During(50, [&] { nInner = Execute(Call(InLoop, QStringLiteral("/after/600"))); });
    Disturb();
    EXPECT_EQ(Execute(Call(BehindDialog, QStringLiteral("/after/300"))), 0);
    EXPECT_TRUE(m_bDisturbed);
    EXPECT_EQ(nInner, 0);
}

/// The outer dialog has ended, so the outer call returns as soon as the inner one has returned.
TEST_P(EndedDialogTest, NoReplyBeforeExecReturnsIsATimeOut)
{
    int nInner = 99;
    During(50, [&] { nInner = Execute(Call(InLoop, QStringLiteral("/after/300"))); });
    Disturb();
    QElapsedTimer elapsed;
    elapsed.start();
    EXPECT_EQ(Execute(Call(BehindDialog, QStringLiteral("/silent"))), -1);
    EXPECT_LT(elapsed.elapsed(), 10000);
    EXPECT_EQ(nInner, 0);
    EXPECT_EQ(notifications.Take(), (QStringList{QStringLiteral("Done"), TimeOutNotice()}));
}

TEST_F(WaitBase, DialogIsModalOverItsParentAndIsClosed)
{
    QPointer<QWidget> dialog;
    During(100, [&] { dialog = QApplication::activeModalWidget(); });
    QPointer<QWidget> seen;
    During(150, [&] { seen = dialog; });
    const QImage before = m_parent->grab().toImage();
    bool bCovered = false;
    During(200, [&] {
        bCovered = seen && seen->isVisible() && seen->parentWidget() == m_parent;
        EXPECT_NE(m_parent->grab().toImage().pixel(0, 0), before.pixel(0, 0)) << "the dialog must dim its parent";
    });
    EXPECT_EQ(Execute(Call(BehindDialog, QStringLiteral("/after/400"))), 0);
    EXPECT_TRUE(bCovered);
    EXPECT_TRUE(dialog.isNull());
}

/// A host that runs an event loop while the dialog is shown lets the reply finish before the wait begins.
TEST_F(WaitBase, ReplyBeforeTheWaitIsTheResult)
{
    class Filter : public QObject {
    public:
        bool eventFilter(QObject* pWatched, QEvent* pEvent) override
        {
            if (pEvent->type() == QEvent::Show && qobject_cast<ORNGUI::OrnWaitDialog*>(pWatched)) {
                ++count;
                QEventLoop loop;
                QTimer::singleShot(300, &loop, &QEventLoop::quit);
                loop.exec();
            }
            return false;
        }
        int count = 0;
    } filter;
    qApp->installEventFilter(&filter);
    EXPECT_EQ(Execute(Call(BehindDialog, QStringLiteral("/ok"))), 0);
    EXPECT_EQ(Execute(Call(BehindDialog, QStringLiteral("/silent"), 0)), -1);
    qApp->removeEventFilter(&filter);
    EXPECT_GE(filter.count, 1);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

/// A key that the user presses during a wait in the event loop.
class UserInputTest : public WaitBase, public testing::WithParamInterface<bool> {};

INSTANTIATE_TEST_SUITE_P(Waits, UserInputTest, testing::Bool(),
                         [](const auto& row) { return row.param ? "held_back" : "delivered"; });

/// Closes the toasts of earlier tests: showing or closing a window delivers pending user input.
void CloseToasts()
{
    for (bool bFound = true; bFound;) {
        bFound = false;
        const QWidgetList widgets = QApplication::topLevelWidgets();
        for (QWidget* pWidget : widgets) {
            if (pWidget->isVisible()) {
                bFound = pWidget->close() || bFound;
            }
        }
        QTest::qWait(20);
    }
}

TEST_P(UserInputTest, IsHeldBackDuringAWaitWithoutDialog)
{
    class Keys : public QWidget {
    public:
        int count = 0;

    protected:
        void keyPressEvent(QKeyEvent*) override { ++count; }
    } keys;
    CloseToasts();
    keys.show();
    keys.activateWindow();
    keys.setFocus();
    During(100, [&] {
        QWindowSystemInterface::handleKeyEvent(keys.windowHandle(), QEvent::KeyPress, Qt::Key_A, Qt::NoModifier);
    });
    HostCall call = Call(InLoop, QStringLiteral("/after/300"));
    call.excludeUserInput = GetParam();
    call.successTip.clear();  // showing a toast would deliver the key
    EXPECT_EQ(Execute(call), 0);
    EXPECT_EQ(keys.count, GetParam() ? 0 : 1);
    QTest::qWait(50);
    EXPECT_EQ(keys.count, 1) << "input that was held back is delivered afterwards";
}

TEST_F(WaitBase, ThousandCallsUseOneConnection)
{
    for (int i = 0; i < 1000; ++i) {
        ASSERT_EQ(Execute(Call(InLoop, QStringLiteral("/ok"))), 0);
    }
    EXPECT_EQ(m_server.ConnectionCount(), 1);
}

}  // namespace
