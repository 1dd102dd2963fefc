// What a host may do in the event loop while a call waits. The call returns its result and leaks nothing.
#include "FaultHost.h"
#include "support/Rows.h"

#include <QElapsedTimer>
#include <QSemaphore>

#include <algorithm>
#include <memory>
#include <random>

using namespace testing_support;
using APIModule::CAPIModule;

namespace {

/// A host that can also replace its user manager.
class EventHost : public FaultHost {
public:
    void ReplaceUserManager()
    {
        m_pReplacement = std::make_unique<UserManager>();
        m_pReplacement->servers = users.servers;
        CAPIModule::GetInstance().UnInit();
        CAPIModule::GetInstance().Init(m_pReplacement.get());
    }
    void UnInit()
    {
        CAPIModule::GetInstance().UnInit();
        m_pReplacement.reset();
    }
    void InitAgain()
    {
        UnInit();
        CAPIModule::GetInstance().Init(&users);
    }
    QWidget* Parent() { return m_parent; }
    UserManager& Users() { return users; }

private:
    std::unique_ptr<UserManager> m_pReplacement;
};

/// An event that occurs once the server has received the request.
struct Event {
    const char* name;
    std::function<void(EventHost&)> act;
    bool callsUnInit = false;  ///< no notifications are shown after the event
    bool endsDialog = false;   ///< ends a wait with a dialog with the result of a time-out
    bool endsStarted = false;  ///< cancels calls of Start()
};

const std::vector<Event> kEvents = {
    {"nothing", [](EventHost&) {}},
    {"parent_deleted", [](EventHost& host) { delete host.Parent(); }, false, true},
    {"parent_deleted_later", [](EventHost& host) { host.Parent()->deleteLater(); }, false, true},
    {"parent_closed", [](EventHost& host) { host.Parent()->close(); }},
    {"parent_hidden", [](EventHost& host) { host.Parent()->hide(); }},
    {"un_init", [](EventHost& host) { host.UnInit(); }, true, false, true},
    {"un_init_and_parent_deleted",
     [](EventHost& host) {
         host.UnInit();
         delete host.Parent();
     },
     true, true, true},
    {"init_again", [](EventHost& host) { host.InitAgain(); }, false, false, true},
    {"another_user_manager", [](EventHost& host) { host.ReplaceUserManager(); }, false, false, true},
    {"language", [](EventHost&) { CAPIModule::GetInstance().SetLanguage("de"); }},
    {"https_mode_on", [](EventHost&) { CAPIModule::GetInstance().SetHttpsMode(1); }},
    {"https_mode_off", [](EventHost&) { CAPIModule::GetInstance().SetHttpsMode(0); }},
    {"server_gone", [](EventHost& host) { host.Users().servers.clear(); }},
    {"current_server_changed", [](EventHost& host) { host.Users().currentServerId = 77; }},
};

struct EventCase {
    std::string name;
    Event event;
    CallMode mode;
    bool answered;
};

using testing_support::operator<<;

/// With a reply, each event in each call mode. Without one, each event over HTTP, once for each kind of wait.
std::vector<EventCase> Cases()
{
    std::vector<EventCase> cases;
    for (const Event& event : kEvents) {
        for (const CallMode& mode : AllCallModes()) {
            cases.push_back({event.name + ("_answered_" + NameOf(mode)), event, mode, true});
            const bool bOnce = mode.runner == Runner::Start || mode.method == APIModule::Method_Get;
            if (mode.scheme == RawServer::Http && bOnce) {
                cases.push_back({event.name + ("_silent_" + NameOf(mode)), event, mode, false});
            }
        }
    }
    return cases;
}

class EventTest : public EventHost, public testing::WithParamInterface<EventCase> {
protected:
    ~EventTest() override { InitAgain(); }
};

TEST_P(EventTest, DoesNotChangeTheResultOfTheCall)
{
    const auto& [name, event, mode, answered] = GetParam();
    WarmUp();
    const Census before = Census::Now();
    {
        QObject context;
        QSemaphore happened;
        const auto act = [&, act = event.act] {
            act(*this);
            happened.release();
        };
        // The reply waits for the event, which happens during the wait.
        const auto respond = [&, bAnswered = answered](const RawRequest& request) {
            if (request.target == "/ok") {
                return SuccessReply();
            }
            QMetaObject::invokeMethod(&context, act, Qt::QueuedConnection);
            happened.acquire();
            return bAnswered ? SuccessReply() : RawReply{};
        };
        RawServer server(respond, mode.scheme);
        Use(server, mode.scheme);

        const bool bEnded = event.endsDialog && mode.waiting == BehindDialog;
        const bool bCancelled = event.endsStarted && mode.runner == Runner::Start;
        const Outcome outcome = bCancelled ? IsCancelled() : answered && !bEnded ? Succeeds() : TimesOut();
        QElapsedTimer elapsed;
        elapsed.start();
        ExpectOutcome(mode, event.callsUnInit ? WithoutNotification(outcome) : outcome, false,
                      bEnded || answered ? 20 : 1);
        if (bEnded) {
            EXPECT_LT(elapsed.elapsed(), 10000) << "the call must end at once, not at its time-out";
        }
        EXPECT_EQ(server.TakeRequests().size(), 1U);

        InitAgain();
        users.currentServerId = 1;
        Use(server, mode.scheme);
        if (!m_parent) {
            m_parent = new QWidget;
            m_parent->show();
        }
        ExpectSuccess(mode);
    }
    ExpectNoLeaks(before);
}

INSTANTIATE_TEST_SUITE_P(Events, EventTest, testing::ValuesIn(Cases()), RowName());

/// Ten nested calls, which end in an order drawn from the seed. Some end without a reply, others because their parent
/// is destroyed.
class NestedTest : public FaultHost, public testing::WithParamInterface<unsigned> {
protected:
    struct End {
        const char* path;
        int result;
        int code;  ///< the notified code
    };

    void Nest(std::size_t nDepth);
    int RunOne(std::size_t nDepth);

    std::mt19937 m_random{GetParam()};
    std::unique_ptr<RawServer> m_servers[2];
    std::vector<int> m_delays;
    std::vector<int> m_results;
    std::vector<int> m_expected;
    QStringList m_notices;
    QObject m_context;
};

constexpr std::size_t kDepth = 10;
constexpr int kStepMs = 30;

/// Replies to "/<what>/<ms>" after that time.
RawReply RespondLater(const RawRequest& request)
{
    const QList<QByteArray> words = request.target.split('/');
    RawReply reply = SuccessReply();
    if (words.value(1) == "404") {
        reply = HttpReply(404, "");
    } else if (words.value(1) == "closed") {
        reply = {"", 0, RawReply::Close};
    } else if (words.value(1) == "silent") {
        return {};
    }
    reply.delayMilliseconds = words.value(2).toInt();
    return reply;
}

int NestedTest::RunOne(std::size_t nDepth)
{
    static constexpr End kEnds[] = {
        {"ok", 0, 0}, {"404", 404, 0}, {"closed", -1, -18}, {"silent", -1, kTimedOut}, {"orphaned", -1, kTimedOut}};
    const auto modes = CallModes();
    CallMode mode = modes[m_random() % modes.size()];
    const End& end = kEnds[m_random() % std::size(kEnds)];
    const bool bOrphaned = qstrcmp(end.path, "orphaned") == 0;
    if (bOrphaned) {
        mode.waiting = BehindDialog;
    }
    Use(*m_servers[mode.scheme], mode.scheme);
    HostCall call = Call(mode, QStringLiteral("/%1/%2").arg(QLatin1String(end.path)).arg(m_delays[nDepth]),
                         qstrcmp(end.path, "silent") == 0 ? 1 : 20);
    std::unique_ptr<QWidget> parent;
    if (mode.waiting == BehindDialog) {
        parent = std::make_unique<QWidget>();
        parent->show();
        call.parent = parent.get();
    }
    if (bOrphaned) {
        call.url.prepend(QStringLiteral("/silent"));
        QTimer::singleShot(m_delays[nDepth], &m_context, [&parent] { parent.reset(); });
    }
    m_expected.push_back(end.result);
    if (end.code != 0) {
        m_notices.append(CAPIModule::GetErroCodeInfor(call.uiError, end.code, true));
    } else if (end.result == 0) {
        m_notices.append(call.successTip);
    }
    return Execute(call);
}

void NestedTest::Nest(std::size_t nDepth)
{
    if (nDepth + 1 < kDepth) {
        QTimer::singleShot(0, &m_context, [this, nDepth] { Nest(nDepth + 1); });
    }
    const std::size_t nIndex = m_expected.size();
    m_results.resize(kDepth);
    m_results[nIndex] = RunOne(nDepth);
}

TEST_P(NestedTest, EachCallHasItsOwnResult)
{
    WarmUp();
    const Census before = Census::Now();
    for (const RawServer::Scheme scheme : {RawServer::Http, RawServer::Https}) {
        m_servers[scheme] = std::make_unique<RawServer>(RespondLater, scheme);
    }
    for (std::size_t i = 0; i < kDepth; ++i) {
        m_delays.push_back(kStepMs * int(i + 1));
    }
    std::shuffle(m_delays.begin(), m_delays.end(), m_random);
    notifications.Take();

    Nest(0);

    EXPECT_EQ(m_results, m_expected);
    QStringList notices = notifications.Take();
    notices.sort();
    m_notices.sort();
    EXPECT_EQ(notices, m_notices);
    for (const CallMode& mode : CallModes()) {
        Use(*m_servers[mode.scheme], mode.scheme);
        ExpectSuccess(mode);
    }
    for (auto& server : m_servers) {
        server.reset();
    }
    ExpectNoLeaks(before);
}

INSTANTIATE_TEST_SUITE_P(Seeds, NestedTest, testing::Range(1U, 13U));

}  // namespace
