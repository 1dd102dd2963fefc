// Typed calls: their outcomes compared with those of ExecuteFuncs, calls without a wait, and what observers receive.
#include "support/Host.h"
#include "support/Rows.h"
#include "support/Watchdog.h"

#include <BRMS/BRMSCalls.h>
#include <DMS/DMSCalls.h>
#include <OBMS/OBMSCalls.h>
#include <ObservedExchange.h>
#include <OrnGui/OrnWaitDialog.h>
#include <public/CommonFunc.h>
#include <ServerTrust.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <qpa/qwindowsysteminterface.h>
#include <QThread>
#include <QThreadPool>
#include <QTimer>
#include <QWindow>

#include <atomic>
#include <functional>
#include <memory>
#include <optional>
#include <thread>
#include <vector>

using namespace testing_support;
using namespace APIModule;

namespace {

struct Number {
    int a = -1;
    std::string b;
    QThread* thread = nullptr;  ///< the thread that read the record
};

std::atomic<int> g_parseMilliseconds{0};  ///< duration of a Parse
std::atomic<int> g_parsing{0};            ///< Parses in progress
std::atomic<int> g_parsed{0};             ///< Parses that ended

int PackPath(void* pReqParamData, const std::string& path, int nServerId)
{
    return CAPIModule::GetInstance().GetRequestParam(pReqParamData, Method_Get, QString::fromStdString(path), nServerId,
                                                     QString(), QString(), 20, false);
}

int ParseNumber(const QJsonObject& data, Number& number)
{
    number.thread = QThread::currentThread();
    ++g_parsing;
    QThread::msleep(static_cast<unsigned long>(g_parseMilliseconds.load()));
    --g_parsing;
    ++g_parsed;
    if (CCommonFunc::GetJsonValue(data, QStringLiteral("a"), number.a) != 0) {
        return -1;
    }
    return CCommonFunc::GetJsonValue(data, QStringLiteral("b"), number.b);
}

int PackAppended(void* pReqParamData, std::string& path, int nServerId)
{
    path += "/more";
    return PackPath(pReqParamData, path, nServerId);
}

int PackAndUnInit(void* pReqParamData, const std::string& path, int nServerId)
{
    const int nResult = PackPath(pReqParamData, path, nServerId);
    CAPIModule::GetInstance().UnInit();
    return nResult;
}

int ParseFlag(const QJsonObject& data, bool& bFlag)
{
    return CCommonFunc::GetJsonValue(data, QStringLiteral("flag"), bFlag);
}

constexpr Call<&PackPath, &ParseNumber> GetNumber;
constexpr Call<&PackPath, &ParseFlag> GetFlag;
constexpr Call<&PackPath> Touch;
constexpr Call<&PackAppended> Append;
constexpr Call<&PackAndUnInit> Leave;

constexpr const char* kCompleteReply = R"({"code":1000,"desc":"fine","data":{"a":1,"b":"x","totalCount":7}})";

/// How the test waits for the end of a request.
enum class WaitMode {
    Loop,
    Dialog,
    Started
};

std::string NameOf(WaitMode mode)
{
    return mode == WaitMode::Loop ? "loop" : mode == WaitMode::Dialog ? "dialog" : "started";
}

class TypedCall : public Host {
protected:
    ~TypedCall() override
    {
        g_parseMilliseconds = 0;
        g_parsed = 0;
        CAPIModule& module = CAPIModule::GetInstance();
        module.SetCallTimeout(std::nullopt);
        module.SetWaitDialogDelay(std::chrono::milliseconds(300));
        module.SetExchangeObserver(nullptr);
        module.SetServerTrust({});
        module.SetMaximumReplySize(512LL * 1024 * 1024);
    }

    template <typename Request>
    auto OutcomeOf(WaitMode mode, const Request& request)
    {
        using Result = decltype(APIModule::Run(request));
        if (mode != WaitMode::Started) {
            return APIModule::Run(request, mode == WaitMode::Dialog ? &m_parent : nullptr);
        }
        Result result;
        bool bCalled = false;
        Start(request, &m_parent, [&](const Result& outcome) {
            EXPECT_FALSE(bCalled);
            bCalled = true;
            result = outcome;
        });
        EXPECT_FALSE(bCalled) << "the function must not be called inside Start()";
        EXPECT_TRUE(Await([&] { return bCalled; }));
        return result;
    }

    QWidget m_parent;

private:
    const Watchdog m_watchdog;
};

struct EndRow {
    std::string name;
    RawReply reply;
    CallEnd end;
    int code;
    const char* serverText = "";
    const char* key = "";
    int a = -1;  ///< field of the record after reading as much as possible
};

using testing_support::operator<<;

const std::vector<EndRow> kEnds = {
    {"success", HttpReply(200, kCompleteReply), CallEnd::Success, 0, "fine", "", 1},
    {"success_without_data", HttpReply(200, R"({"code":1000})"), CallEnd::Success, 0},
    {"refused", HttpReply(200, R"({"code":2001,"desc":"no such thing","data":{"a":1}})"), CallEnd::Refused, 2001,
     "no such thing"},
    {"refused_with_0", HttpReply(200, R"({"code":0,"data":{"a":1}})"), CallEnd::Refused, 0},
    {"refused_without_code", HttpReply(200, R"({"data":{"a":1}})"), CallEnd::Refused, 0},
    {"refused_with_null", HttpReply(200, R"({"code":null})"), CallEnd::Refused, -1},
    {"not_json", HttpReply(200, "<html>"), CallEnd::UnreadableReply, -1},
    {"empty_body", HttpReply(200, ""), CallEnd::UnreadableReply, -1},
    {"key_missing", HttpReply(200, R"({"code":1000,"data":{"a":5}})"), CallEnd::UnreadableReply, 3101, "", "b", 5},
    {"status_404", HttpReply(404, ""), CallEnd::HttpStatus, 404},
    {"status_401", HttpReply(401, ""), CallEnd::NotAuthenticated, 7000},
    {"closed", {"", 0, RawReply::Close}, CallEnd::NoConnection, -18},
    {"silent", {}, CallEnd::TimedOut, -101},
};

class EndTest : public TypedCall,
                public testing::WithParamInterface<std::tuple<EndRow, WaitMode, RawServer::Scheme>> {};

TEST_P(EndTest, ReportsTheReasonAndNotifiesLikeExecuteFuncs)
{
    const auto& [row, mode, scheme] = GetParam();
    Serve(row.reply, scheme);
    const auto request =
        GetNumber("/path").Within(std::chrono::milliseconds(row.end == CallEnd::TimedOut ? 300 : 20000));
    logs.Take();
    const Outcome<Number> outcome = OutcomeOf(mode, request);
    const LogLines lines = logs.Take();
    EXPECT_EQ(bool(outcome), row.end == CallEnd::Success);
    EXPECT_EQ(outcome.End(), row.end);
    EXPECT_EQ(outcome.Code(), row.code);
    EXPECT_EQ(outcome.ServerText(), QString::fromUtf8(row.serverText));
    EXPECT_EQ(outcome.UnreadableKey(), QString::fromUtf8(row.key));
    EXPECT_EQ(outcome->a, row.end == CallEnd::Success ? row.a : -1);
    EXPECT_EQ(outcome.Incomplete().a, row.a);
    EXPECT_EQ(outcome.Text().isEmpty(), row.end == CallEnd::Success);
    EXPECT_EQ(logs.Take(), LogLines()) << "Text() must not log";
    EXPECT_EQ(notifications.Take(), QStringList());
    if (row.end == CallEnd::Success && row.a == 1) {
        EXPECT_EQ(outcome.Data().value(QStringLiteral("totalCount")).toInt(), 7);
    }

    CAPIModule::GetInstance().NotifyOutcome(outcome, QStringLiteral("No settings"), QStringLiteral("Done"));
    const QStringList ofOutcome = notifications.Take();
    logs.Take();
    HostCall call;
    call.parent = mode == WaitMode::Dialog ? &m_parent : nullptr;
    call.timeout = row.end == CallEnd::TimedOut ? 1 : 20;
    call.uiError = QStringLiteral("No settings");
    call.successTip = QStringLiteral("Done");
    Number number;
    call.parse = [&number](const QJsonObject& data) { return ParseNumber(data, number); };
    Execute(call);
    EXPECT_EQ(notifications.Take(), ofOutcome);
    LogLines ofExecuteFuncs = logs.Take();
    ofExecuteFuncs.erase(
        std::remove_if(ofExecuteFuncs.begin(), ofExecuteFuncs.end(),
                       [](const LogLine& line) { return line.function == "APIModule::CAPIModule::GetErroCodeInfor"; }),
        ofExecuteFuncs.end());
    if (mode == WaitMode::Started) {
        for (LogLine& line : ofExecuteFuncs) {
            if (line.function == "APIModule::CAPIModulePrivate::ExecuteRequestWithoutWaitDlg") {
                line.function = "APIModule::Start";
            }
        }
    }
    EXPECT_EQ(lines, ofExecuteFuncs);
}

INSTANTIATE_TEST_SUITE_P(Ends, EndTest,
                         testing::Combine(testing::ValuesIn(kEnds),
                                          testing::Values(WaitMode::Loop, WaitMode::Dialog, WaitMode::Started),
                                          testing::Values(RawServer::Http, RawServer::Https)),
                         RowName());

class WaitModeTest : public TypedCall, public testing::WithParamInterface<WaitMode> {};

INSTANTIATE_TEST_SUITE_P(WaitModes, WaitModeTest, testing::Values(WaitMode::Loop, WaitMode::Dialog, WaitMode::Started),
                         RowName());

TEST_P(WaitModeTest, EndsAsNotPackedWhenThePackFails)
{
    users.servers.clear();
    const Outcome<Number> outcome = OutcomeOf(GetParam(), GetNumber("/path"));
    EXPECT_EQ(outcome.End(), CallEnd::NotPacked);
    EXPECT_EQ(outcome.Code(), -1);
    CAPIModule::GetInstance().NotifyOutcome(outcome, QStringLiteral("No settings"));
    EXPECT_EQ(notifications.Take(), QStringList());
}

TEST_P(WaitModeTest, EndsAsInvalidRequestWhenItCannotBeSent)
{
    Serve(HttpReply(200, kCompleteReply));
    users.servers[1].host = "user@127.0.0.1";
    const Outcome<Number> outcome = OutcomeOf(GetParam(), GetNumber("/path"));
    EXPECT_EQ(outcome.End(), CallEnd::InvalidRequest);
    EXPECT_EQ(outcome.Code(), -4);
}

TEST_P(WaitModeTest, EndsAsReplyTooLarge)
{
    Serve(HttpReply(200, QByteArray(5000, ' ')));
    CAPIModule::GetInstance().SetMaximumReplySize(4000);
    const Outcome<Number> outcome = OutcomeOf(GetParam(), GetNumber("/path"));
    EXPECT_EQ(outcome.End(), CallEnd::ReplyTooLarge);
    EXPECT_EQ(outcome.Code(), -18);
}

TEST_P(WaitModeTest, EndsAsServerNotTrustedBeforeAnythingIsSent)
{
    Serve(HttpReply(200, kCompleteReply), RawServer::Https);
    ServerTrust trust;
    trust.bSystemAuthorities = true;
    CAPIModule::GetInstance().SetServerTrust(trust);
    const Outcome<Number> outcome = OutcomeOf(GetParam(), GetNumber("/path"));
    EXPECT_EQ(outcome.End(), CallEnd::ServerNotTrusted);
    EXPECT_EQ(outcome.Code(), -18);
    EXPECT_EQ(m_pServer->TakeRequests().size(), 0U);
}

TEST_P(WaitModeTest, RunsAStoredRequestAgainAndOnOtherServers)
{
    Serve(HttpReply(200, kCompleteReply));
    RawServer other([](const RawRequest&) { return HttpReply(200, R"({"code":1000,"data":{"a":2,"b":""}})"); });
    users.servers[2] = users.servers[1];
    users.servers[2].port = other.Port();
    const Request<Number> request = GetNumber("/path");
    const Request<Number> copy = request.OnServer(2);
    EXPECT_EQ(OutcomeOf(GetParam(), request)->a, 1);
    EXPECT_EQ(OutcomeOf(GetParam(), copy)->a, 2);
    EXPECT_EQ(OutcomeOf(GetParam(), copy)->a, 2);
    EXPECT_EQ(OutcomeOf(GetParam(), request)->a, 1);
    EXPECT_EQ(m_pServer->TakeRequests().size(), 2U);
    EXPECT_EQ(other.TakeRequests().size(), 2U);
}

TEST_P(WaitModeTest, HasNoRecordForACallWithoutOne)
{
    Serve(HttpReply(200, kCompleteReply));
    const Outcome<NoRecord> outcome = OutcomeOf(GetParam(), Touch("/path"));
    EXPECT_TRUE(outcome);
    EXPECT_EQ(outcome.Data().value(QStringLiteral("a")).toInt(), 1);
}

TEST_P(WaitModeTest, UsesTheDefaultTimeOutInMilliseconds)
{
    Serve(RawReply{});
    CAPIModule::GetInstance().SetCallTimeout(std::chrono::milliseconds(50));
    QElapsedTimer elapsed;
    elapsed.start();
    EXPECT_EQ(OutcomeOf(GetParam(), GetNumber("/path")).End(), CallEnd::TimedOut);
    EXPECT_GE(elapsed.elapsed(), 50);
}

QByteArray LargeReply(int nCode = 1000)
{
    return R"({"code":)" + QByteArray::number(nCode) + R"(,"data":{"a":1,"b":")" + QByteArray(300 * 1024, 'x') +
           R"("}})";
}

TEST_P(WaitModeTest, ReadsALargeReplyOnAnotherThreadWhileTheEventLoopRuns)
{
    Serve([](const RawRequest& request) {
        return HttpReply(200, request.target == "/large" ? LargeReply() : QByteArray(kCompleteReply));
    });
    EXPECT_EQ(OutcomeOf(GetParam(), GetNumber("/small"))->thread, QThread::currentThread());
    g_parseMilliseconds = 300;
    int nTicks = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&nTicks] { ++nTicks; });
    timer.start(10);
    logs.Take();
    // The time-out expires while the record is read, when it no longer applies.
    const auto outcome = OutcomeOf(GetParam(), GetNumber("/large").Within(std::chrono::milliseconds(200)));
    EXPECT_EQ(outcome.End(), CallEnd::Success);
    EXPECT_NE(outcome->thread, QThread::currentThread());
    EXPECT_EQ(outcome->b.size(), 300U * 1024);
    EXPECT_GE(nTicks, 5);
    ASSERT_EQ(logs.Take().size(), 2U);
}

TEST_P(WaitModeTest, LogsTheReadingOfALargeReply)
{
    Serve([](const RawRequest&) {
        return HttpReply(200, R"({"code":1000,"data":{"a":1,"c":")" + QByteArray(300 * 1024, 'x') + R"("}})");
    });
    logs.Take();
    const auto outcome = OutcomeOf(GetParam(), GetNumber("/large"));
    EXPECT_EQ(outcome.End(), CallEnd::UnreadableReply);
    EXPECT_EQ(outcome.Code(), 3101);
    EXPECT_EQ(outcome.UnreadableKey(), QStringLiteral("b"));
    EXPECT_EQ(outcome.Incomplete().a, 1);
    const LogLines lines = logs.Take();
    ASSERT_EQ(lines.size(), 3U);
    EXPECT_EQ(lines[1].message, "Request success.");
    EXPECT_EQ(lines[2].message, "Invalid key: [b], jsonObject does not contain the key.");
}

TEST_P(WaitModeTest, JudgesALargeReplyAsASmallOne)
{
    const QByteArray padding = ",\"padding\":\"" + QByteArray(300 * 1024, 'x') + "\"}";
    QByteArray reply;
    Serve([&reply](const RawRequest&) { return HttpReply(200, reply); });

    reply = LargeReply(1001);
    const auto refused = OutcomeOf(GetParam(), GetNumber("/large"));
    EXPECT_EQ(refused.End(), CallEnd::Refused);
    EXPECT_EQ(refused.Code(), 1001);
    EXPECT_EQ(refused.Incomplete().a, -1);

    reply = R"({"code":1000,"data":{})" + padding;
    const auto empty = OutcomeOf(GetParam(), GetNumber("/large"));
    EXPECT_EQ(empty.End(), CallEnd::Success);
    EXPECT_EQ(empty->a, -1);

    reply = LargeReply();
    EXPECT_EQ(OutcomeOf(GetParam(), Touch("/large")).End(), CallEnd::Success);
}

TEST_P(WaitModeTest, ObserversReceiveTheExchange)
{
    Serve(HttpReply(200, kCompleteReply, "X-More: one\r\n"));
    std::vector<ObservedExchange> seen;
    CAPIModule::GetInstance().SetExchangeObserver([&](const ObservedExchange& exchange) { seen.push_back(exchange); });
    std::vector<ObservedExchange> ofRequest;
    const Outcome<Number> outcome =
        OutcomeOf(GetParam(), GetNumber("/path?token=0123456789x").Observed([&](const ObservedExchange& exchange) {
            ofRequest.push_back(exchange);
        }));
    ASSERT_TRUE(outcome);
    ASSERT_EQ(seen.size(), 1U);
    ASSERT_EQ(ofRequest.size(), 1U);
    const ObservedExchange& exchange = seen.front();
    EXPECT_EQ(exchange.method, "GET");
    EXPECT_EQ(exchange.url, QStringLiteral("http://127.0.0.1:%1/path?token=**********x").arg(m_pServer->Port()));
    EXPECT_EQ(exchange.requestBody, QByteArray());
    EXPECT_EQ(exchange.nStatus, 200);
    EXPECT_EQ(exchange.responseBody, kCompleteReply);
    EXPECT_TRUE(exchange.responseHeaders.contains({"X-More", "one"}));
    EXPECT_EQ(exchange.error, QString());
    ASSERT_TRUE(exchange.firstByte);
    EXPECT_LE(exchange.sentAfter, *exchange.firstByte);
    EXPECT_LE(*exchange.firstByte, exchange.finishedAfter);

    const RawRequest received = m_pServer->TakeRequests().front();
    ObservedExchange::Headers sent = received.headers;
    for (auto& header : sent) {
        if (header.first == "X-Subject-Token") {
            header.second = "******";
        }
    }
    EXPECT_EQ(exchange.requestHeaders, sent);
}

TEST_P(WaitModeTest, ObserverReceivesAnExchangeThatTimedOut)
{
    Serve(RawReply{});
    std::vector<ObservedExchange> seen;
    CAPIModule::GetInstance().SetExchangeObserver([&](const ObservedExchange& exchange) { seen.push_back(exchange); });
    EXPECT_EQ(OutcomeOf(GetParam(), GetNumber("/path").Within(std::chrono::milliseconds(100))).End(),
              CallEnd::TimedOut);
    ASSERT_EQ(seen.size(), 1U);
    EXPECT_EQ(seen[0].nStatus, -1);
    EXPECT_EQ(seen[0].error, QStringLiteral("Request time out"));
    EXPECT_FALSE(seen[0].firstByte);
    EXPECT_FALSE(seen[0].requestHeaders.isEmpty());
}

TEST_F(TypedCall, ObserverSeesTheBodyOfAWriteOfExecuteFuncs)
{
    Serve(HttpReply(200, kCompleteReply));
    std::vector<ObservedExchange> seen;
    CAPIModule::GetInstance().SetExchangeObserver([&](const ObservedExchange& exchange) { seen.push_back(exchange); });
    HostCall call;
    call.method = Method_Delete;
    call.body = QStringLiteral("{\"x\":1}");
    EXPECT_EQ(Execute(call), 0);
    ASSERT_EQ(seen.size(), 1U);
    EXPECT_EQ(seen[0].method, "DELETE");
    EXPECT_EQ(seen[0].requestBody, "{\"x\":1}");
}

TEST_F(TypedCall, ObserverDeletingTheParentEndsTheCallWithoutSuccess)
{
    Serve(HttpReply(200, kCompleteReply));
    for (const int nDelay : {0, 10000}) {
        CAPIModule::GetInstance().SetWaitDialogDelay(std::chrono::milliseconds(nDelay));
        auto* const pWindow = new QWidget;
        logs.Take();
        const auto outcome = APIModule::Run(
            GetNumber("/path").Observed([pWindow](const ObservedExchange&) { delete pWindow; }), pWindow);
        EXPECT_EQ(outcome.End(), CallEnd::Cancelled);
        EXPECT_EQ(outcome.Code(), -101);
        const LogLines lines = logs.Take();
        ASSERT_EQ(lines.size(), 2U);
        EXPECT_EQ(lines[1].message.substr(0, 16), "Request time out");
    }
}

TEST_F(TypedCall, ThrowingObserverIsHarmless)
{
    Serve(HttpReply(200, kCompleteReply));
    CAPIModule::GetInstance().SetExchangeObserver([](const ObservedExchange&) { throw std::runtime_error("no"); });
    EXPECT_TRUE(APIModule::Run(GetNumber("/path")));
    EXPECT_EQ(logs.Take().at(1).message, "Call observer failed! observer threw an exception: no");
}

TEST_F(TypedCall, TextContainsTheNumberOfAnUnknownCode)
{
    Serve(HttpReply(200, R"({"code":987654321})"));
    EXPECT_EQ(APIModule::Run(GetNumber("/path")).Text(), QStringLiteral("Operation failed (987654321)"));
}

TEST_F(TypedCall, OutcomeOfABoolConvertsToSuccessNotToItsValue)
{
    Serve(HttpReply(200, R"({"code":1000,"data":{"flag":false}})"));
    const Outcome<bool> outcome = APIModule::Run(GetFlag("/path"));
    EXPECT_TRUE(outcome);
    EXPECT_FALSE(*outcome);
}

TEST_F(TypedCall, PackReceivesAFreshCopyOfItsArgumentsInEveryRun)
{
    Serve(HttpReply(200, kCompleteReply));
    const auto request = Append("/path");
    EXPECT_TRUE(APIModule::Run(request));
    EXPECT_TRUE(APIModule::Run(request));
    const std::vector<RawRequest> requests = m_pServer->TakeRequests();
    ASSERT_EQ(requests.size(), 2U);
    EXPECT_EQ(requests[0].target, "/path/more");
    EXPECT_EQ(requests[1].target, "/path/more");
}

TEST_F(TypedCall, DefaultOutcomeIsNotPacked)
{
    const Outcome<Number> none;
    EXPECT_FALSE(none);
    EXPECT_EQ(none.End(), CallEnd::NotPacked);
    EXPECT_EQ(none->a, -1);
    EXPECT_EQ(none.Incomplete().a, -1);
    EXPECT_EQ(none.Data(), QJsonObject());
}

bool HasWaitDialog()
{
    const QWidgetList widgets = QApplication::topLevelWidgets();
    return std::any_of(widgets.begin(), widgets.end(), [](QWidget* pWidget) {
        return qobject_cast<ORNGUI::OrnWaitDialog*>(pWidget) && pWidget->isVisible();
    });
}

TEST_F(TypedCall, WaitDialogAppearsOnlyAfterItsDelay)
{
    Serve([](const RawRequest& request) {
        return Delayed(HttpReply(200, kCompleteReply), request.target == "/slow" ? 1000 : 0);
    });
    m_parent.show();
    bool bSeen = false;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &poll, [&bSeen] { bSeen = bSeen || HasWaitDialog(); });
    poll.start(1);
    CAPIModule::GetInstance().SetWaitDialogDelay(std::chrono::seconds(30));
    EXPECT_TRUE(APIModule::Run(GetNumber("/slow"), &m_parent));
    EXPECT_FALSE(bSeen);
    CAPIModule::GetInstance().SetWaitDialogDelay(std::chrono::milliseconds(100));
    EXPECT_TRUE(APIModule::Run(GetNumber("/slow"), &m_parent));
    EXPECT_TRUE(bSeen);
    EXPECT_FALSE(HasWaitDialog());
}

/// A window that counts key presses.
class Counting : public QWidget {
public:
    int nKeys = 0;

protected:
    void keyPressEvent(QKeyEvent* /*pEvent*/) override { ++nKeys; }
};

TEST_F(TypedCall, InputIsDiscardedBeforeTheDialogAppearsAndNotDeliveredLater)
{
    Serve(Delayed(HttpReply(200, kCompleteReply), 300));
    CAPIModule::GetInstance().SetWaitDialogDelay(std::chrono::seconds(30));
    Counting window;
    window.show();
    const auto press = [&window] {
        QWindow* const pWindow = window.windowHandle();
        QWindowSystemInterface::handleKeyEvent(pWindow, QEvent::KeyPress, Qt::Key_A, Qt::NoModifier);
        QWindowSystemInterface::flushWindowSystemEvents();
    };
    QTimer::singleShot(50, &window, press);
    EXPECT_TRUE(APIModule::Run(GetNumber("/path"), &m_parent));
    EXPECT_EQ(window.nKeys, 0);
    QCoreApplication::processEvents();
    EXPECT_EQ(window.nKeys, 0);
    press();
    EXPECT_EQ(window.nKeys, 1);
}

TEST_F(TypedCall, DestroyedContextEndsAStartedCall)
{
    Serve(RawReply{});
    auto pContext = std::make_unique<QObject>();
    bool bCalled = false;
    const CallHandle handle =
        Start(GetNumber("/path"), pContext.get(), [&](const Outcome<Number>&) { bCalled = true; });
    EXPECT_TRUE(Await([&] { return m_pServer->OpenConnectionCount() == 1; }));
    pContext.reset();
    EXPECT_FALSE(handle.IsRunning());
    EXPECT_TRUE(Await([&] { return m_pServer->OpenConnectionCount() == 0; }));
    EXPECT_FALSE(bCalled);
}

TEST_F(TypedCall, DestroyedParentEndsTheCallBeforeAndAfterTheDialogIsShown)
{
    Serve(RawReply{});
    for (const auto delay : {std::chrono::milliseconds(0), std::chrono::milliseconds(10000)}) {
        auto* const pWindow = new QWidget;
        CAPIModule::GetInstance().SetWaitDialogDelay(delay);
        QTimer::singleShot(50, pWindow, [pWindow] { delete pWindow; });
        const auto outcome = APIModule::Run(GetNumber("/path"), pWindow);
        EXPECT_EQ(outcome.End(), CallEnd::Cancelled);
        EXPECT_EQ(outcome.Code(), -101);
    }
    EXPECT_TRUE(Await([&] { return m_pServer->OpenConnectionCount() == 0; }));
}

TEST_F(TypedCall, WaitDialogDelayBeyondTheTimerLimitShowsNoDialog)
{
    Serve(Delayed(HttpReply(200, kCompleteReply), 200));
    m_parent.show();
    bool bSeen = false;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &poll, [&bSeen] { bSeen = bSeen || HasWaitDialog(); });
    poll.start(1);
    // 2^32 ms and 10 ms more: converted to int, it would be a delay of 10 ms.
    CAPIModule::GetInstance().SetWaitDialogDelay(std::chrono::milliseconds((1LL << 32) + 10));
    EXPECT_TRUE(APIModule::Run(GetNumber("/path"), &m_parent));
    EXPECT_FALSE(bSeen);
}

TEST_F(TypedCall, ReceiverDestroyedDuringParsingIsNotCalled)
{
    Serve(HttpReply(200, LargeReply()));
    g_parseMilliseconds = 300;
    auto pContext = std::make_unique<QObject>();
    bool bCalled = false;
    const CallHandle handle =
        Start(GetNumber("/path"), pContext.get(), [&](const Outcome<Number>&) { bCalled = true; });
    EXPECT_TRUE(Await([] { return g_parsing.load() == 1; }));
    pContext.reset();
    EXPECT_FALSE(handle.IsRunning());
    EXPECT_TRUE(Await([] { return g_parsing.load() == 0; }));
    QCoreApplication::processEvents();
    EXPECT_FALSE(bCalled);
}

TEST_F(TypedCall, CancelAfterParsingCallsNothing)
{
    Serve(HttpReply(200, LargeReply()));
    g_parseMilliseconds = 300;
    bool bCalled = false;
    CallHandle handle = Start(GetNumber("/path"), &m_parent, [&](const Outcome<Number>&) { bCalled = true; });
    EXPECT_TRUE(Await([] { return g_parsing.load() == 1; }));
    QThreadPool::globalInstance()->waitForDone();  // the record waits in the event queue
    handle.Cancel();
    QCoreApplication::processEvents();
    EXPECT_FALSE(bCalled);
}

TEST_F(TypedCall, WaitStoppedDuringParsingEndsAtOnceWithoutSuccess)
{
    Serve(HttpReply(200, LargeReply()));
    g_parseMilliseconds = 2000;
    CAPIModule::GetInstance().SetWaitDialogDelay(std::chrono::milliseconds(0));
    auto* const pWindow = new QWidget;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &poll, [&poll, pWindow] {
        if (g_parsing == 1) {
            poll.stop();
            delete pWindow;
        }
    });
    poll.start(10);
    logs.Take();
    const auto outcome = APIModule::Run(GetNumber("/path"), pWindow);
    EXPECT_EQ(g_parsing, 1) << "must not wait for the reading to finish";
    EXPECT_EQ(outcome.Code(), -101);
    const LogLines lines = logs.Take();
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[1].message.substr(0, 16), "Request time out");
}

TEST_F(TypedCall, CancelClosesTheConnectionAndPreventsTheCallback)
{
    Serve(RawReply{});
    bool bCalled = false;
    CallHandle handle = Start(GetNumber("/path"), &m_parent, [&](const Outcome<Number>&) { bCalled = true; });
    EXPECT_TRUE(handle.IsRunning());
    EXPECT_TRUE(Await([&] { return m_pServer->OpenConnectionCount() == 1; }));
    CallHandle copy = handle;
    copy.Cancel();
    EXPECT_FALSE(handle.IsRunning());
    handle.Cancel();
    EXPECT_TRUE(Await([&] { return m_pServer->OpenConnectionCount() == 0; }));
    EXPECT_FALSE(bCalled);
    CallHandle().Cancel();
}

TEST_F(TypedCall, CancelInsideACallbackOrAnObserverIsSafe)
{
    Serve(HttpReply(200, kCompleteReply));
    CallHandle first;
    CallHandle second;
    int nCalled = 0;
    const auto cancelBoth = [&](const Outcome<Number>&) {
        ++nCalled;
        first.Cancel();
        second.Cancel();
    };
    first = Start(GetNumber("/path"), &m_parent, cancelBoth);
    second = Start(GetNumber("/path"), &m_parent, cancelBoth);
    EXPECT_TRUE(Await([&] { return !first.IsRunning() && !second.IsRunning(); }));
    QCoreApplication::processEvents();
    EXPECT_EQ(nCalled, 1);

    CallHandle observed;
    bool bCalled = false;
    observed = Start(GetNumber("/path").Observed([&](const ObservedExchange&) { observed.Cancel(); }), &m_parent,
                     [&](const Outcome<Number>&) { bCalled = true; });
    EXPECT_TRUE(Await([&] { return !observed.IsRunning(); }));
    EXPECT_FALSE(bCalled);
    EXPECT_TRUE(APIModule::Run(GetNumber("/path")));
}

TEST_F(TypedCall, DestroyingTheHandleDoesNotCancel)
{
    Serve(HttpReply(200, kCompleteReply));
    bool bCalled = false;
    {
        const CallHandle handle =
            Start(GetNumber("/path"), &m_parent, [&](const Outcome<Number>& outcome) { bCalled = bool(outcome); });
    }
    EXPECT_TRUE(Await([&] { return bCalled; }));
}

TEST_F(TypedCall, UnInitInsideThePackCancelsAStartedCall)
{
    Serve(HttpReply(200, kCompleteReply));
    EXPECT_TRUE(APIModule::Run(Touch("/path")));
    m_pServer->TakeRequests();
    std::optional<CallEnd> end;
    Start(Leave("/path"), &m_parent, [&](const auto& outcome) { end = outcome.End(); });
    EXPECT_TRUE(Await([&] { return end.has_value(); }));
    EXPECT_EQ(*end, CallEnd::Cancelled);
    EXPECT_EQ(m_pServer->TakeRequests().size(), 0U);
    CAPIModule::GetInstance().Init(&users);
}

TEST_F(TypedCall, PackRunsInsideStart)
{
    Serve(HttpReply(200, kCompleteReply));
    users.servers[1].token = "first";
    bool bCalled = false;
    Start(GetNumber("/path"), &m_parent, [&](const Outcome<Number>&) { bCalled = true; });
    users.servers[1].token = "second";
    EXPECT_TRUE(Await([&] { return bCalled; }));
    EXPECT_EQ(m_pServer->TakeRequests().front().Value("X-Subject-Token"), "first");
}

TEST_F(TypedCall, QueueingDoesNotCountTowardsTheTimeOut)
{
    Serve(Delayed(HttpReply(200, kCompleteReply), 300));
    int nSucceeded = 0;
    int nEnded = 0;
    for (int i = 0; i < 30; ++i) {
        Start(GetNumber("/path").Within(std::chrono::milliseconds(1500)), &m_parent,
              [&](const Outcome<Number>& outcome) {
                  ++nEnded;
                  nSucceeded += outcome ? 1 : 0;
              });
    }
    // A waiting call finds a free connection.
    EXPECT_TRUE(APIModule::Run(GetNumber("/path").Within(std::chrono::milliseconds(1500))));
    EXPECT_LT(nEnded, 30);
    EXPECT_TRUE(Await([&] { return nEnded == 30; }));
    EXPECT_EQ(nSucceeded, 30);
    EXPECT_LE(m_pServer->ConnectionCount(), 6);
}

TEST_F(TypedCall, ThousandConcurrentCallsEndOnceEach)
{
    Serve(HttpReply(200, kCompleteReply));
    std::vector<int> ended(1000, 0);
    for (int& nEnded : ended) {
        Start(GetNumber("/path"), &m_parent,
              [&nEnded](const Outcome<Number>& outcome) { nEnded += outcome ? 1 : 1000; });
    }
    EXPECT_TRUE(Await([&] { return std::count(ended.begin(), ended.end(), 1) == 1000; }));
    EXPECT_EQ(m_pServer->TakeRequests().size(), 1000U);
}

TEST_F(TypedCall, CallsCanBeStartedInsideAWaitAndFromACallback)
{
    Serve([](const RawRequest& request) {
        return Delayed(HttpReply(200, kCompleteReply), request.target == "/slow" ? 300 : 0);
    });
    int nEnded = 0;
    QTimer::singleShot(0, &m_parent, [&] {
        Start(GetNumber("/path"), &m_parent, [&](const Outcome<Number>&) {
            ++nEnded;
            Start(GetNumber("/path"), &m_parent, [&](const Outcome<Number>&) {
                ++nEnded;
                EXPECT_TRUE(APIModule::Run(GetNumber("/path")));
            });
        });
    });
    EXPECT_TRUE(APIModule::Run(GetNumber("/slow")));
    EXPECT_EQ(nEnded, 2);
}

TEST_F(TypedCall, UnInitCancelsAndDeliversStartedCalls)
{
    Serve(RawReply{});
    std::vector<CallEnd> ends;
    for (int i = 0; i < 8; ++i) {
        Start(GetNumber("/path"), &m_parent, [&](const Outcome<Number>& outcome) { ends.push_back(outcome.End()); });
    }
    CAPIModule::GetInstance().UnInit();
    EXPECT_TRUE(ends.empty());
    EXPECT_TRUE(Await([&] { return ends.size() == 8; }));
    EXPECT_EQ(ends, std::vector<CallEnd>(8, CallEnd::Cancelled));
    CAPIModule::GetInstance().Init(&users);
}

TEST_F(TypedCall, UnInitOnAnotherThreadEndsStartedCallsOnTheirThread)
{
    Serve(RawReply{});
    std::vector<CallEnd> ends;
    QThread* pThread = nullptr;
    for (int i = 0; i < 8; ++i) {
        Start(GetNumber("/path"), &m_parent, [&](const Outcome<Number>& outcome) {
            pThread = QThread::currentThread();
            ends.push_back(outcome.End());
        });
    }
    std::thread([] { CAPIModule::GetInstance().UnInit(); }).join();
    EXPECT_TRUE(ends.empty());
    EXPECT_TRUE(Await([&] { return ends.size() == 8; }));
    EXPECT_EQ(ends, std::vector<CallEnd>(8, CallEnd::Cancelled));
    EXPECT_EQ(pThread, QThread::currentThread());
    CAPIModule::GetInstance().Init(&users);
}

TEST_F(TypedCall, RunReturnsNotPackedAndStartDoesNothingOnAnotherThread)
{
    Serve(HttpReply(200, kCompleteReply));
    logs.Take();
    bool bCalled = false;
    CallEnd end = CallEnd::Success;
    std::thread([&] {
        end = APIModule::Run(GetNumber("/path")).End();
        Start(GetNumber("/path"), &m_parent, [&](const Outcome<Number>&) { bCalled = true; });
    }).join();
    EXPECT_EQ(end, CallEnd::NotPacked);
    const LogLines lines = logs.Take();
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[0].message, "Run failed! wrong thread or no application.");
    EXPECT_EQ(lines[1].message, "Start failed! wrong thread, no application or no context.");
    EXPECT_EQ(m_pServer->TakeRequests().size(), 0U);
    EXPECT_FALSE(bCalled);
}

TEST_F(TypedCall, PreviewShowsWhatRunSendsAndSendsNothing)
{
    Serve(HttpReply(200, kCompleteReply));
    const auto request = BRMS::SetTimeSyncConfig(TimeSyncConfig());
    logs.Take();
    const std::optional<ObservedExchange> shown = Preview(request);
    EXPECT_EQ(logs.Take(), LogLines());
    EXPECT_EQ(m_pServer->ConnectionCount(), 0);
    ASSERT_TRUE(shown);

    ObservedExchange sent;
    APIModule::Run(request.Observed([&sent](const ObservedExchange& exchange) { sent = exchange; }));
    EXPECT_EQ(shown->method, sent.method);
    EXPECT_EQ(shown->url, sent.url);
    EXPECT_EQ(shown->requestHeaders, sent.requestHeaders);
    EXPECT_EQ(shown->requestBody, sent.requestBody);
    EXPECT_FALSE(shown->requestBody.isEmpty());
    EXPECT_EQ(shown->nStatus, -1);
}

TEST_F(TypedCall, PreviewOfAnInvalidRequestLogsTheReasonAndReturnsNothing)
{
    Serve(HttpReply(200, kCompleteReply));
    users.servers[1].host = "user@127.0.0.1";
    logs.Take();
    EXPECT_FALSE(Preview(GetNumber("/path")));
    EXPECT_EQ(logs.Take().size(), 1U);
    users.servers.clear();
    EXPECT_FALSE(Preview(GetNumber("/path")));
    std::thread([] { EXPECT_FALSE(Preview(GetNumber("/path"))); }).join();
    const LogLines lines = logs.Take();
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_EQ(lines[0].message, "Preview failed! wrong thread or no application.");
}

TEST_F(TypedCall, ThrowingFunctionIsHarmless)
{
    Serve(HttpReply(200, kCompleteReply));
    logs.Take();
    const CallHandle handle =
        Start(GetNumber("/path"), &m_parent, [](const Outcome<Number>&) { throw std::runtime_error("no"); });
    EXPECT_TRUE(Await([&] { return !handle.IsRunning(); }));
    EXPECT_TRUE(APIModule::Run(GetNumber("/path")));
    EXPECT_EQ(logs.Take().at(2).message, "Call finished failed! finished threw an exception: no");
}

}  // namespace
