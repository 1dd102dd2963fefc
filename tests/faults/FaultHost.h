#pragma once

#include "Census.h"
#include "support/Host.h"
#include "support/Waiting.h"
#include "support/Watchdog.h"

#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <string>
#include <vector>

namespace testing_support {

/// The code of an envelope that tells of success.
constexpr int kSuccess = 1000;
/// The code of a time-out.
constexpr int kTimedOut = -101;

/// What runs a call.
enum class Runner {
    ExecuteFuncs,
    Run,
    Start
};

/// In which of the ways a call meets a fault.
struct Way {
    Waiting waiting;
    RawServer::Scheme scheme;
    APIModule::Method method;
    Runner runner = Runner::ExecuteFuncs;
};

/// ExecuteFuncs in both ways of waiting, with GET and POST, over each of the schemes.
std::vector<Way> Ways(const std::vector<RawServer::Scheme>& schemes = {RawServer::Http, RawServer::Https});
/// The same, and typed calls: waited for in one way over each scheme, and started.
std::vector<Way> WaysOfAllCalls(const std::vector<RawServer::Scheme>& schemes = {RawServer::Http, RawServer::Https});
std::string NameOf(const Way& way);

/// What the host gets for a call, and what the line of the wait says.
struct Outcome {
    int code;           ///< result, or what is notified instead
    bool answered;      ///< whether an answer came, whose failure is notified only when the caller asked for it
    int level;          ///< of the line
    std::string line;   ///< its text, "%1" for the URL; empty when there is no line
    bool isWhole;       ///< whether that is all of the line, or how it starts
    bool shown = true;  ///< whether anything can be notified
};

Outcome Succeeds();
Outcome EnvelopeFails(int code);
Outcome StatusFails(int status);
Outcome TimesOut();
/// A call of Start() that the host ends. It writes no line.
Outcome IsCancelled();
/// A failure of the network. Qt's code and text are left open where they depend on how the bytes fall into packets.
Outcome NetworkFails(const std::string& qtCode = {}, const std::string& qtText = {});
Outcome AsksForAuthentication();

/// The same for a host that ended use during the call.
Outcome Unseen(Outcome outcome);

/// An answer that is a success, with data.
RawAnswer SuccessAnswer();

/// By how much a wait outlasts its time-out, in the time of its own event loop: a machine that stands still for a
/// moment makes no wait late.
class Lateness {
public:
    explicit Lateness(int nSeconds);
    int Milliseconds() const { return m_nTicks * kTickMs; }

private:
    static constexpr int kTickMs = 10;
    QTimer m_timer;
    int m_nTicks = -1;
};

/// A host whose calls meet faults.
class FaultHost : public Host {
protected:
    FaultHost();
    ~FaultHost() override;

    /// A call that does all that a call can.
    HostCall Call(const Way& way, const QString& url, int nTimeout);

    /// Runs a call in time, and looks at what came of it.
    void ExpectOutcome(const Way& way, const Outcome& outcome, bool bNotifyOnFailure, int nTimeout = 20,
                       const QString& url = QStringLiteral("/path"));

    /// The next call over the same library, to whichever server is in use.
    void ExpectSuccess(const Way& way);

    /// Makes what Qt makes once in a process, at the first calls of each kind.
    void WarmUp();

    /// Waits until the condition holds. @return whether it does
    static bool Await(const std::function<bool()>& condition);

    /// Looks that nothing stays behind beyond what was there, toasts aside.
    static void ExpectNothingLeft(const Census& before);

    QPointer<QWidget> m_parent{new QWidget};

private:
    /// What came of a call, typed or not.
    struct Seen {
        int result;  ///< of ExecuteFuncs; of a typed call the code
        int parsed;
        QStringList notices;
    };
    Seen RunCall(const Way& way, HostCall call);
    Seen RunTyped(const Way& way, const HostCall& call);

    Watchdog m_watchdog;
};

}  // namespace testing_support
