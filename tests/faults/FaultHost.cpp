#include "FaultHost.h"

#include <Call.h>

#include <QApplication>
#include <QEventLoop>
#include <QHostInfo>
#include <QNetworkProxyFactory>
#include <QNetworkProxyQuery>
#include <QTest>
#include <QThreadPool>
#include <QUrl>

#include <algorithm>
#include <array>
#include <utility>

namespace testing_support {

using APIModule::CAPIModule;

namespace {

QString Notice(int code)
{
    return CAPIModule::GetErroCodeInfor(QStringLiteral("No settings"), code, true);
}

/// Whether this is the log line that the outcome expects.
bool Matches(const LogLine& line, const Outcome& outcome, const CallMode& mode, const std::string& url)
{
    const std::string function = mode.runner == Runner::Start ? "APIModule::Start" : FunctionOf(mode.waiting);
    std::string text = outcome.line;
    const std::size_t nPlace = text.find("%1");
    if (nPlace != std::string::npos) {
        text.replace(nPlace, 2, url);
    }
    const bool bText = outcome.isComplete ? line.message == text
                                          : line.message.rfind(text, 0) == 0 && line.message.size() > text.size();
    return bText && line.file == kFacadeFile && line.function == function && line.level == outcome.level;
}

/// Whether the line is about something that the host did during the call.
bool IsHostLine(const LogLine& line)
{
    return line.function == "APIModule::CAPIModule::Init" || line.function == "APIModule::CAPIModule::UnInit";
}

Outcome Unreadable(int code, const std::string& qtCode, const std::string& qtText)
{
    std::string line = "Request failed, an internal network error occurred, qt network error code: ";
    if (!qtCode.empty()) {
        line += qtCode + ", network error info: " + qtText;
    }
    return {code, false, 6, line, !qtText.empty()};
}

}  // namespace

std::vector<CallMode> CallModes(const std::vector<RawServer::Scheme>& schemes)
{
    std::vector<CallMode> modes;
    for (const Waiting waiting : {InLoop, BehindDialog}) {
        for (const RawServer::Scheme scheme : schemes) {
            for (const APIModule::Method method : {APIModule::Method_Get, APIModule::Method_Post}) {
                modes.push_back({waiting, scheme, method});
            }
        }
    }
    return modes;
}

std::vector<CallMode> AllCallModes(const std::vector<RawServer::Scheme>& schemes)
{
    std::vector<CallMode> modes = CallModes(schemes);
    for (const RawServer::Scheme scheme : schemes) {
        const Waiting waiting = scheme == RawServer::Http ? InLoop : BehindDialog;
        modes.push_back({waiting, scheme, APIModule::Method_Get, Runner::Run});
        modes.push_back({InLoop, scheme, APIModule::Method_Post, Runner::Start});
    }
    return modes;
}

std::string NameOf(const CallMode& mode)
{
    constexpr std::array<const char*, 3> kRunners{"", "run_", "start_"};
    return kRunners.at(std::size_t(mode.runner)) + NameOf(mode.waiting) + '_' + NameOf(mode.scheme) +
           (mode.method == APIModule::Method_Get ? "_get" : "_post");
}

Outcome Succeeds()
{
    return EnvelopeFails(kSuccess);
}

Outcome EnvelopeFails(int code)
{
    return {code, true, 4, "Request success.", true};
}

Outcome StatusFails(int status)
{
    return {status, true, 6, "Request failed, http status Code: " + std::to_string(status) + ", request url: %1", true};
}

Outcome TimesOut()
{
    return {kTimedOut, false, 6, "Request time out, request url: %1", true};
}

Outcome IsCancelled()
{
    return {kTimedOut, false, 6, "", true};
}

Outcome NetworkFails(const std::string& qtCode, const std::string& qtText)
{
    return Unreadable(-18, qtCode, qtText);
}

Outcome AsksForAuthentication()
{
    return Unreadable(7000, "204", "");
}

Outcome WithoutNotification(Outcome outcome)
{
    outcome.shown = false;
    return outcome;
}

RawReply SuccessReply()
{
    return HttpReply(200, R"({"code":1000,"data":{"a":1}})");
}

Lateness::Lateness(int nSeconds)
{
    m_timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] {
        ++m_nTicks;
        m_timer.start(kTickMs);
    });
    m_timer.start(nSeconds * 1000);
}

FaultHost::FaultHost()
{
    m_parent->resize(300, 200);
    m_parent->show();
}

FaultHost::~FaultHost()
{
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (QWidget* pWidget : widgets) {
        pWidget->close();  // closes toasts, so that queued ones are shown and closed as well
    }
    delete m_parent;
}

void FaultHost::WarmUp()
{
    static bool s_bDone = false;
    if (std::exchange(s_bDone, true)) {
        return;
    }
    for (const CallMode& mode : CallModes()) {
        const RawServer server([](const RawRequest&) { return SuccessReply(); }, mode.scheme);
        Use(server, mode.scheme);
        ExpectSuccess(mode);
    }
    // Created once by Qt: for the first large reply, the first change of focus, and the first named server.
    QThreadPool::globalInstance();
    QGuiApplication::inputMethod();
    QNetworkProxyFactory::proxyForQuery(QNetworkProxyQuery(QUrl(QStringLiteral("http://no-such-host.invalid"))));
    QHostInfo::lookupHost(QStringLiteral("localhost"), QCoreApplication::instance(), [](const QHostInfo&) {});
    QTest::qWait(100);
}

HostCall FaultHost::Call(const CallMode& mode, const QString& url, int nTimeout)
{
    HostCall call;
    call.method = mode.method;
    call.url = url;
    call.body = QStringLiteral("{\"k\":1}");
    call.timeout = nTimeout;
    call.parse = [](const QJsonObject&) { return 0; };
    call.uiError = QStringLiteral("No settings");
    call.parent = mode.waiting == BehindDialog ? m_parent.data() : nullptr;
    call.successTip = QStringLiteral("Done");
    call.notifyOnFailure = false;
    return call;
}

namespace {

struct Parsed {
    int times = 0;
};

int PackHostCall(void* pReqParamData, const HostCall& call, int nServerId)
{
    return CAPIModule::GetInstance().GetRequestParam(pReqParamData, call.method, call.url, nServerId, call.body,
                                                     call.sequence, call.timeout, call.compress);
}

int CountParse(const QJsonObject& /*data*/, Parsed& parsed)
{
    ++parsed.times;
    return 0;
}

constexpr APIModule::Call<&PackHostCall, &CountParse> TypedHostCall;

}  // namespace

FaultHost::Seen FaultHost::RunCall(const CallMode& mode, HostCall call)
{
    if (mode.runner != Runner::ExecuteFuncs) {
        return RunTyped(mode, call);
    }
    int nParsed = 0;
    call.parse = [&nParsed](const QJsonObject&) {
        ++nParsed;
        return 0;
    };
    const int nResult = Execute(call);
    return {nResult, nParsed, notifications.Take()};
}

FaultHost::Seen FaultHost::RunTyped(const CallMode& mode, const HostCall& call)
{
    APIModule::Outcome<Parsed> ended;
    if (mode.runner == Runner::Run) {
        ended = APIModule::Run(TypedHostCall(call), call.parent);
    } else {
        QEventLoop loop;
        Start(TypedHostCall(call), &loop, [&](const APIModule::Outcome<Parsed>& outcome) {
            ended = outcome;
            loop.quit();
        });
        loop.exec();
    }
    EXPECT_EQ(notifications.Take(), QStringList());
    CAPIModule::GetInstance().NotifyOutcome(ended, call.uiError, call.successTip);
    EXPECT_EQ(bool(ended), ended.End() == APIModule::CallEnd::Success);
    return {ended.Code(), ended->times, notifications.Take()};
}

void FaultHost::ExpectOutcome(const CallMode& mode, const Outcome& outcome, bool bNotifyOnFailure, int nTimeout,
                              const QString& url)
{
    HostCall call = Call(mode, url, nTimeout);
    call.notifyOnFailure = bNotifyOnFailure;
    const bool bTyped = mode.runner != Runner::ExecuteFuncs;
    const std::string fullUrl = NameOf(mode.scheme) + "://" + users.servers[1].host + ':' +
                                std::to_string(users.servers[1].port) + url.toStdString();
    logs.Take();
    notifications.Take();

    const Lateness lateness(nTimeout);
    const Seen seen = RunCall(mode, call);

    EXPECT_LT(lateness.Milliseconds(), 100);
    LogLines lines = logs.Take();
    lines.erase(std::remove_if(lines.begin(), lines.end(), IsHostLine), lines.end());

    const bool bSuccess = outcome.code == kSuccess;
    const bool bNotified = !bSuccess && (bTyped || bNotifyOnFailure || !outcome.answered);
    const QString notice = bSuccess ? QStringLiteral("Done") : Notice(outcome.code);
    EXPECT_EQ(seen.result, bSuccess ? 0 : bNotified && !bTyped ? -1 : outcome.code);
    EXPECT_EQ(seen.parsed, bSuccess ? 1 : 0);
    EXPECT_EQ(seen.notices, outcome.shown && (bSuccess || bNotified) ? QStringList{notice} : QStringList());

    const bool bUnknownCode = bNotified && notice == call.uiError;
    const bool bLine = !outcome.line.empty();
    ASSERT_EQ(lines.size(), 1U + (bLine ? 1U : 0U) + (bUnknownCode ? 1U : 0U));
    EXPECT_EQ(lines[0],
              (LogLine{kFacadeFile, "APIModule::CAPIModule::ExecuteFuncs", 4, "ExecuteRequest url=" + fullUrl}));
    if (!bLine) {
        return;
    }
    EXPECT_TRUE(Matches(lines[1], outcome, mode, fullUrl)) << lines[1] << "\nexpected: " << outcome.line;
    if (bUnknownCode) {
        EXPECT_EQ(lines[2], (LogLine{kFacadeFile, "APIModule::CAPIModule::GetErroCodeInfor", 6,
                                     "Error code is not exist, strUIError=No settings, errorCode=" +
                                         std::to_string(outcome.code)}));
    }
}

void FaultHost::ExpectSuccess(const CallMode& mode)
{
    ExpectOutcome(mode, Succeeds(), true, 20, QStringLiteral("/ok"));
}

void FaultHost::ExpectNoLeaks(const Census& before)
{
    EXPECT_TRUE(Await([&before] { return Census::Now().IsWithin(before); }))
        << "before: " << before << "\nnow: " << Census::Now();
}

}  // namespace testing_support
