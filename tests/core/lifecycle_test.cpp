// The library and the lifetime of the application object. Each test runs in a separate process.
#include "support/Host.h"
#include "support/Rows.h"
#include "support/TestApplication.h"
#include "support/Waiting.h"

#include <Call.h>
#include <OrnGui/OrnWaitDialog.h>

#include <QElapsedTimer>
#include <QThread>
#include <QTimer>

#include <algorithm>
#include <atomic>
#include <functional>
#include <thread>
#include <utility>
#include <vector>

using namespace testing_support;
using APIModule::CAPIModule;

namespace {

constexpr const char* kExecuteFuncs = "APIModule::CAPIModule::ExecuteFuncs";
constexpr const char* kGetRequestParam = "APIModule::CAPIModule::GetRequestParam";

int g_argc = 1;
char g_name[] = "lifecycle_test";
char* g_argv[] = {g_name, nullptr};

RawReply Respond(const RawRequest& request)
{
    return request.target == "/silent" ? RawReply{} : HttpReply(200, R"({"code":1000})");
}

HostCall Call(const QString& url, int nTimeout = 20)
{
    HostCall call;
    call.url = url;
    call.timeout = nTimeout;
    call.notifyOnFailure = true;
    return call;
}

QStringList TimeOutNotice()
{
    return {CAPIModule::GetErroCodeInfor(QString(), -101, true)};
}

/// A host without an application object; each test creates the ones that it needs.
class Lifecycle : public Host {
protected:
    /// The thread of a server needs the application object as well.
    class Server : public RawServer {
    public:
        explicit Server(Lifecycle& host) : RawServer(Respond) { host.Use(*this); }
    };
};

TEST_F(Lifecycle, CallsFailWithoutAnApplicationObject)
{
    EXPECT_EQ(Execute(Call(QStringLiteral("/ok"))), -1);
    EXPECT_EQ(logs.Take(),
              (LogLines{{kFacadeFile, kExecuteFuncs, 6, "ExecuteFuncs failed! wrong thread or no application."}}));
    EXPECT_EQ(CAPIModule::GetInstance().ExecuteFuncs({}, {}, {}, nullptr, {}, true, true), -1);
    EXPECT_EQ(logs.Take(),
              (LogLines{{kFacadeFile, kExecuteFuncs, 6, "ExecuteFuncs failed! wrong thread or no application."}}));
    EXPECT_EQ(CAPIModule::GetInstance().GetRequestParam(nullptr, APIModule::Method_Get, {}, -1, {}, {}, 1, false), -1);
    EXPECT_EQ(logs.Take(), (LogLines{{kFacadeFile, kGetRequestParam, 6,
                                      "GetRequestParam failed! wrong thread or no application."}}));
    EXPECT_EQ(notifications.Take(), QStringList());
}

TEST_F(Lifecycle, WorksWhenTheApplicationIsCreatedAfterTheInstance)
{
    const QCoreApplication application(g_argc, g_argv);
    const Server server(*this);
    EXPECT_EQ(Execute(Call(QStringLiteral("/ok"))), 0);
    EXPECT_EQ(CAPIModule::GetInstance().thread(), QThread::currentThread());
}

TEST_F(Lifecycle, WorksUnderConsecutiveApplications)
{
    for (int i = 0; i < 3; ++i) {
        {
            const QCoreApplication application(g_argc, g_argv);
            const Server server(*this);
            EXPECT_EQ(Execute(Call(QStringLiteral("/ok"))), 0);
        }
        EXPECT_EQ(Execute(Call(QStringLiteral("/ok"))), -1);
    }
    for (int i = 0; i < 2; ++i) {
        TestApplication application(g_argc, g_argv);
        const Server server(*this);
        QWidget parent;
        HostCall call = Call(QStringLiteral("/ok"));
        call.parent = &parent;
        EXPECT_EQ(Execute(call), 0);
    }
}

TEST_F(Lifecycle, CallOnAnotherThreadIsRejected)
{
    const QCoreApplication application(g_argc, g_argv);
    const Server server(*this);
    EXPECT_EQ(Execute(Call(QStringLiteral("/ok"))), 0);
    logs.Take();
    std::thread([] {
        EXPECT_EQ(Execute(Call(QStringLiteral("/ok"))), -1);
        EXPECT_EQ(CAPIModule::GetInstance().GetRequestParam(nullptr, APIModule::Method_Get, {}, -1, {}, {}, 1, false),
                  -1);
    }).join();
    EXPECT_EQ(
        logs.Take(),
        (LogLines{{kFacadeFile, kExecuteFuncs, 6, "ExecuteFuncs failed! wrong thread or no application."},
                  {kFacadeFile, kGetRequestParam, 6, "GetRequestParam failed! wrong thread or no application."}}));
    EXPECT_EQ(notifications.Take(), QStringList());
    EXPECT_EQ(Execute(Call(QStringLiteral("/ok"))), 0);
}

// Without the fixture, which would create the instance first.
TEST(Instance, IsTheSameForManyThreads)
{
    const QCoreApplication application(g_argc, g_argv);
    std::atomic<int> waiting{8};
    std::vector<CAPIModule*> instances(8);
    std::vector<std::thread> threads;
    threads.reserve(instances.size());
    for (CAPIModule*& pInstance : instances) {
        threads.emplace_back([&] {
            --waiting;
            while (waiting > 0) {
            }
            pInstance = &CAPIModule::GetInstance();
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    for (const CAPIModule* pInstance : instances) {
        EXPECT_EQ(pInstance, &CAPIModule::GetInstance());
    }
    EXPECT_EQ(CAPIModule::GetInstance().thread(), QThread::currentThread());

    UserManager users;
    RawServer server(Respond);
    users.servers[1].port = server.Port();
    CAPIModule::GetInstance().Init(&users);
    CAPIModule::GetInstance().SetHttpsMode(0);
    EXPECT_EQ(Execute(Call(QStringLiteral("/ok"))), 0);
    CAPIModule::GetInstance().UnInit();
}

TEST(Instance, MovesToTheThreadOfALaterApplication)
{
    CAPIModule& facade = CAPIModule::GetInstance();
    const QCoreApplication application(g_argc, g_argv);
    EXPECT_EQ(&facade, &CAPIModule::GetInstance());
    EXPECT_EQ(facade.thread(), QThread::currentThread());
}

TEST(Instance, CanBeCreatedOnAThreadThatEndedBeforeTheApplication)
{
    std::thread([] { CAPIModule::GetInstance().SetLanguage("de"); }).join();
    const QCoreApplication application(g_argc, g_argv);
    UserManager users;
    RawServer server(Respond);
    users.servers[1].port = server.Port();
    CAPIModule::GetInstance().Init(&users);
    CAPIModule::GetInstance().SetHttpsMode(0);
    EXPECT_EQ(Execute(Call(QStringLiteral("/ok"))), 0);
    EXPECT_EQ(server.TakeRequests().at(0).Value("Accept-Language"), "de");
    EXPECT_EQ(CAPIModule::GetInstance().thread(), QThread::currentThread());
    CAPIModule::GetInstance().UnInit();
}

/// The end of the application during both kinds of wait.
class EndTest : public Lifecycle, public testing::WithParamInterface<Waiting> {
protected:
    int Run(const QString& url, int nTimeout = 20)
    {
        QWidget parent;
        parent.show();
        HostCall call = Call(url, nTimeout);
        call.parent = GetParam() == BehindDialog ? &parent : nullptr;
        return Execute(call);
    }
};

INSTANTIATE_TEST_SUITE_P(Waits, EndTest, testing::Values(InLoop, BehindDialog), RowName());

TEST_P(EndTest, QuitEndsTheWaitAndCallsUntilExecReturns)
{
    TestApplication application(g_argc, g_argv);
    const Server server(*this);
    int nDuring = 99;
    int nAfter = 99;
    QElapsedTimer elapsed;
    elapsed.start();
    QTimer::singleShot(0, &application, [&] {
        QTimer::singleShot(100, &application, &QCoreApplication::quit);
        nDuring = Run(QStringLiteral("/silent"));
        EXPECT_GE(elapsed.elapsed(), 90);
        EXPECT_EQ(notifications.Take(), TimeOutNotice());
        nAfter = Run(QStringLiteral("/silent"));
    });
    QApplication::exec();
    EXPECT_LT(elapsed.elapsed(), 10000) << "both calls must end long before their 20 s";
    EXPECT_EQ(nDuring, -1);
    EXPECT_EQ(nAfter, -1);
    EXPECT_EQ(notifications.Take(), TimeOutNotice());
    const LogLines lines = logs.Take();
    EXPECT_EQ(std::count_if(
                  lines.begin(), lines.end(),
                  [](const LogLine& line) { return line.message.rfind("Request time out, request url: ", 0) == 0; }),
              2);
    EXPECT_EQ(Run(QStringLiteral("/ok")), 0) << "after exec";
}

TEST_P(EndTest, CallsWorkInEveryAboutToQuitSlotAndAfterExec)
{
    TestApplication application(g_argc, g_argv);
    std::vector<int> results;
    const auto call = [&] { results.push_back(Run(QStringLiteral("/ok"))); };
    QObject::connect(&application, &QCoreApplication::aboutToQuit, &application, call);
    const Server server(*this);
    EXPECT_EQ(Run(QStringLiteral("/ok")), 0) << "before exec, the first use of the library";
    QObject::connect(&application, &QCoreApplication::aboutToQuit, &application, call);
    QTimer::singleShot(0, &application, [&] {
        QObject::connect(&application, &QCoreApplication::aboutToQuit, &application, call);
        QCoreApplication::quit();
    });
    QApplication::exec();
    EXPECT_EQ(results, std::vector<int>(3, 0));
    EXPECT_EQ(Run(QStringLiteral("/ok")), 0);
    EXPECT_EQ(notifications.Take(), QStringList());
}

TEST_P(EndTest, CallsWorkInEveryExecOfARestartingHost)
{
    TestApplication application(g_argc, g_argv);
    const Server server(*this);
    std::vector<int> results;
    const auto call = [&] { results.push_back(Run(QStringLiteral("/ok"))); };
    QObject::connect(&application, &QCoreApplication::aboutToQuit, &application, call);
    int nRestarts = 2;
    do {
        QTimer::singleShot(0, &application, [&] {
            call();
            QCoreApplication::quit();
        });
        QApplication::exec();
        call();
    } while (nRestarts-- > 0);
    EXPECT_EQ(results, std::vector<int>(9, 0));
}

TEST_P(EndTest, CallsWorkUnderALaterApplication)
{
    for (int i = 0; i < 2; ++i) {
        TestApplication application(g_argc, g_argv);
        const Server server(*this);
        EXPECT_EQ(Run(QStringLiteral("/ok")), 0);
        QTimer::singleShot(0, &application, &QCoreApplication::quit);
        QApplication::exec();
    }
}

TEST_P(EndTest, TimeOutAppliesInAnAboutToQuitSlot)
{
    TestApplication application(g_argc, g_argv);
    const Server server(*this);
    int nResult = 99;
    qint64 nWaited = 0;
    QObject::connect(&application, &QCoreApplication::aboutToQuit, &application, [&] {
        QElapsedTimer elapsed;
        elapsed.start();
        nResult = Run(QStringLiteral("/silent"), 1);
        nWaited = elapsed.elapsed();
    });
    QTimer::singleShot(0, &application, &QCoreApplication::quit);
    QApplication::exec();
    EXPECT_EQ(nResult, -1);
    EXPECT_GE(nWaited, 1000);
    EXPECT_EQ(notifications.Take(), TimeOutNotice());
}

TEST_P(EndTest, SecondQuitEndsACallInAnAboutToQuitSlot)
{
    TestApplication application(g_argc, g_argv);
    const Server server(*this);
    std::vector<int> results;
    QElapsedTimer elapsed;
    elapsed.start();
    bool bEntered = false;
    QObject::connect(&application, &QCoreApplication::aboutToQuit, &application, [&] {
        if (std::exchange(bEntered, true)) {
            return;  // recent versions of Qt emit the signal at every exit
        }
        QTimer::singleShot(100, &application, [] { QCoreApplication::exit(); });
        results.push_back(Run(QStringLiteral("/silent")));
        results.push_back(Run(QStringLiteral("/silent")));
    });
    QTimer::singleShot(0, &application, &QCoreApplication::quit);
    QApplication::exec();
    EXPECT_EQ(results, std::vector<int>(2, -1));
    EXPECT_LT(elapsed.elapsed(), 10000) << "both calls must end long before their 20 s";
}

/// Without a running loop, aboutToQuit is not emitted, and the next exec() clears the request to exit.
TEST_P(EndTest, ExitWithoutARunningLoopEndsCallsUntilTheNextExec)
{
    TestApplication application(g_argc, g_argv);
    const Server server(*this);
    QElapsedTimer elapsed;
    elapsed.start();
    QCoreApplication::exit();
    EXPECT_EQ(Run(QStringLiteral("/silent")), -1);
    EXPECT_LT(elapsed.elapsed(), 10000);
    EXPECT_EQ(notifications.Take(), TimeOutNotice());
    int nInside = 99;
    QTimer::singleShot(0, &application, [&] {
        nInside = Run(QStringLiteral("/ok"));
        QCoreApplication::quit();
    });
    QApplication::exec();
    EXPECT_EQ(nInside, 0);
    EXPECT_EQ(Run(QStringLiteral("/ok")), 0);
}

/// Without windows there is no dialog.
TEST_F(Lifecycle, CallsWorkAboutToQuitAndAfterExecWithoutWindows)
{
    QCoreApplication application(g_argc, g_argv);
    const Server server(*this);
    int nAbout = 99;
    QObject::connect(&application, &QCoreApplication::aboutToQuit, &application,
                     [&] { nAbout = Execute(Call(QStringLiteral("/ok"))); });
    QTimer::singleShot(0, &application, &QCoreApplication::quit);
    QCoreApplication::exec();
    EXPECT_EQ(nAbout, 0);
    EXPECT_EQ(Execute(Call(QStringLiteral("/ok"))), 0);
}

TEST_P(EndTest, QuitEndsTenNestedCalls)
{
    TestApplication application(g_argc, g_argv);
    const Server server(*this);
    std::vector<int> results;
    std::function<void(int)> nest = [&](int nDepth) {
        QTimer::singleShot(0, &application, [&nest, nDepth] {
            if (nDepth < 10) {
                nest(nDepth + 1);
            } else {
                QCoreApplication::quit();
            }
        });
        results.push_back(Run(QStringLiteral("/silent")));
    };
    QTimer::singleShot(0, &application, [&nest] { nest(1); });
    QApplication::exec();
    EXPECT_EQ(results, std::vector<int>(10, -1));
    EXPECT_EQ(notifications.Take().size(), 10);
}

TEST_P(EndTest, CallsAreRejectedAfterTheApplicationIsDestroyed)
{
    auto application = std::make_unique<TestApplication>(g_argc, g_argv);
    auto server = std::make_unique<Server>(*this);
    EXPECT_EQ(Run(QStringLiteral("/ok")), 0);
    EXPECT_EQ(Run(QStringLiteral("/silent"), 0), -1);
    server.reset();
    EXPECT_EQ(Run(QStringLiteral("/ok")), -1) << "must be rejected";
    application.reset();
}

/// The host makes a last call in its clean-up, which runs after the library's.
TEST_F(Lifecycle, CallDuringDestructionOfTheApplicationIsRejected)
{
    static int s_nResult = 99;
    qAddPostRoutine([] { s_nResult = Execute(Call(QStringLiteral("/ok"))); });
    {
        TestApplication application(g_argc, g_argv);
        const Server server(*this);
        EXPECT_EQ(Execute(Call(QStringLiteral("/ok"))), 0);
    }
    EXPECT_EQ(s_nResult, -1);
    EXPECT_EQ(notifications.Take(), QStringList{CAPIModule::GetErroCodeInfor(QString(), -4, true)});
}

int PackSilent(void* pReqParamData, int nServerId)
{
    return CAPIModule::GetInstance().GetRequestParam(pReqParamData, APIModule::Method_Get, QStringLiteral("/silent"),
                                                     nServerId, {}, {}, 20, false);
}

constexpr APIModule::Call<&PackSilent> Silent;

/// Returns a function that appends how the call ended.
auto NoteIn(std::vector<APIModule::CallEnd>& ends)
{
    return [&ends](const APIModule::Outcome<APIModule::NoRecord>& outcome) { ends.push_back(outcome.End()); };
}

TEST_F(Lifecycle, QuitDeliversStartedCallsAsApplicationEnding)
{
    QCoreApplication application(g_argc, g_argv);
    const Server server(*this);
    std::vector<APIModule::CallEnd> ends;
    for (int i = 0; i < 7; ++i) {
        Start(Silent(), &application, NoteIn(ends));
    }
    QTimer::singleShot(50, &application, &QCoreApplication::quit);
    QCoreApplication::exec();
    EXPECT_EQ(ends, std::vector<APIModule::CallEnd>(7, APIModule::CallEnd::ApplicationEnding));
}

TEST_F(Lifecycle, StartedCallsAreDeliveredBeforeTheApplicationIsDestroyed)
{
    std::vector<APIModule::CallEnd> ends;
    {
        QCoreApplication application(g_argc, g_argv);
        const Server server(*this);
        QObject::connect(&application, &QCoreApplication::aboutToQuit, &application,
                         [&] { Start(Silent(), &application, NoteIn(ends)); });
        QTimer::singleShot(0, &application, &QCoreApplication::quit);
        QCoreApplication::exec();
        Start(Silent(), &application, NoteIn(ends));
        EXPECT_TRUE(ends.empty());
    }
    EXPECT_EQ(ends, std::vector<APIModule::CallEnd>(2, APIModule::CallEnd::ApplicationEnding));
}

/// A host that starts each call again when it ends.
struct Retrying {
    QObject* pContext;
    int& nEnded;

    void operator()(const APIModule::Outcome<APIModule::NoRecord>& outcome) const
    {
        EXPECT_EQ(outcome.End(), APIModule::CallEnd::ApplicationEnding);
        ++nEnded;
        Start(Silent(), pContext, *this);
    }
};

TEST_F(Lifecycle, CallsStartedDuringDestructionOfTheApplicationAreDropped)
{
    int nEnded = 0;
    {
        QCoreApplication application(g_argc, g_argv);
        const Server server(*this);
        for (int i = 0; i < 12; ++i) {
            Start(Silent(), &application, Retrying{&application, nEnded});
        }
    }
    EXPECT_EQ(nEnded, 12);
    QCoreApplication next(g_argc, g_argv);
    const Server server(*this);
    EXPECT_EQ(Execute(Call(QStringLiteral("/ok"))), 0);
}

TEST_F(Lifecycle, StartedCallsContinueInASecondExec)
{
    QCoreApplication application(g_argc, g_argv);
    const Server server(*this);
    QTimer::singleShot(0, &application, &QCoreApplication::quit);
    QCoreApplication::exec();
    std::vector<APIModule::CallEnd> ends;
    Start(Silent().Within(std::chrono::milliseconds(50)), &application,
          [&](const APIModule::Outcome<APIModule::NoRecord>& outcome) {
              ends.push_back(outcome.End());
              QCoreApplication::quit();
          });
    QCoreApplication::exec();
    EXPECT_EQ(ends, std::vector<APIModule::CallEnd>{APIModule::CallEnd::TimedOut});
}

TEST_P(EndTest, QuitDuringRunEndsItAsApplicationEnding)
{
    TestApplication application(g_argc, g_argv);
    const Server server(*this);
    QWidget parent;
    parent.show();
    for (const int nDelay : {0, 10000}) {
        CAPIModule::GetInstance().SetWaitDialogDelay(std::chrono::milliseconds(nDelay));
        APIModule::Outcome<APIModule::NoRecord> outcome;
        QTimer::singleShot(0, &application, [&] {
            QTimer::singleShot(100, &application, &QCoreApplication::quit);
            outcome = APIModule::Run(Silent(), GetParam() == BehindDialog ? &parent : nullptr);
        });
        QApplication::exec();
        EXPECT_EQ(outcome.End(), APIModule::CallEnd::ApplicationEnding);
        EXPECT_EQ(outcome.Code(), -101);
    }
    CAPIModule::GetInstance().SetWaitDialogDelay(std::chrono::milliseconds(300));
}

TEST_F(Lifecycle, StoppedDialogEndsRunAsCancelled)
{
    const TestApplication application(g_argc, g_argv);
    const Server server(*this);
    CAPIModule::GetInstance().SetWaitDialogDelay(std::chrono::milliseconds(0));
    QWidget parent;
    QTimer::singleShot(100, &application, [] {
        const QWidgetList widgets = QApplication::topLevelWidgets();
        for (QWidget* pWidget : widgets) {
            if (auto* const pDialog = qobject_cast<ORNGUI::OrnWaitDialog*>(pWidget)) {
                pDialog->OnStopWaitImmediately();
            }
        }
    });
    EXPECT_EQ(APIModule::Run(Silent(), &parent).End(), APIModule::CallEnd::Cancelled);
    CAPIModule::GetInstance().SetWaitDialogDelay(std::chrono::milliseconds(300));
}

TEST_F(Lifecycle, RunAfterQuitEndsAsApplicationEnding)
{
    QCoreApplication application(g_argc, g_argv);
    const Server server(*this);
    APIModule::Outcome<APIModule::NoRecord> outcome;
    QTimer::singleShot(0, &application, [&] {
        QCoreApplication::quit();
        outcome = APIModule::Run(Silent());
    });
    QCoreApplication::exec();
    EXPECT_EQ(outcome.End(), APIModule::CallEnd::ApplicationEnding);
    EXPECT_EQ(outcome.Code(), -101);
}

}  // namespace

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
