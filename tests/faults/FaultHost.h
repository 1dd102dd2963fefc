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

/// The envelope code of a success.
constexpr int kSuccess = 1000;
/// The code of a time-out.
constexpr int kTimedOut = -101;

/// The function that runs a call.
enum class Runner {
    ExecuteFuncs,
    Run,
    Start
};

/// How the call is made when the fault occurs.
struct CallMode {
    Waiting waiting;
    RawServer::Scheme scheme;
    APIModule::Method method;
    Runner runner = Runner::ExecuteFuncs;
};

/// ExecuteFuncs with both kinds of wait, with GET and POST, over each scheme.
std::vector<CallMode> CallModes(const std::vector<RawServer::Scheme>& schemes = {RawServer::Http, RawServer::Https});
/// The same, and typed calls over each scheme: one that waits and one that is started.
std::vector<CallMode> AllCallModes(const std::vector<RawServer::Scheme>& schemes = {RawServer::Http, RawServer::Https});
std::string NameOf(const CallMode& mode);

/// What a call returns to the host, and the log line about it.
struct Outcome {
    int code;           ///< the result, or the code that is notified instead
    bool answered;      ///< whether a reply arrived; its failure is notified only on request
    int level;          ///< level of the log line
    std::string line;   ///< text of the log line, "%1" for the URL; empty when there is none
    bool isComplete;    ///< whether the text is the complete line or its beginning
    bool shown = true;  ///< whether notifications are possible
};

Outcome Succeeds();
Outcome EnvelopeFails(int code);
Outcome StatusFails(int status);
Outcome TimesOut();
/// A started call that the host cancels. It writes no line.
Outcome IsCancelled();
/// A failure of the network. Qt's code and text are not compared where they depend on packet boundaries.
Outcome NetworkFails(const std::string& qtCode = {}, const std::string& qtText = {});
Outcome AsksForAuthentication();

/// The same for a host that called UnInit during the call.
Outcome WithoutNotification(Outcome outcome);

/// A successful reply with data.
RawReply SuccessReply();

/// By how much a wait exceeds its time-out, measured in ticks of the event loop rather than in real time, so that a
/// stalled machine does not count as a late wait.
class Lateness {
public:
    explicit Lateness(int nSeconds);
    int Milliseconds() const { return m_nTicks * kTickMs; }

private:
    static constexpr int kTickMs = 10;
    QTimer m_timer;
    int m_nTicks = -1;
};

/// A host that makes calls to faulty servers.
class FaultHost : public Host {
protected:
    FaultHost();
    ~FaultHost() override;

    /// A call that uses every option of a call.
    HostCall Call(const CallMode& mode, const QString& url, int nTimeout);

    /// Runs a call and checks that it ends in time, with this outcome.
    void ExpectOutcome(const CallMode& mode, const Outcome& outcome, bool bNotifyOnFailure, int nTimeout = 20,
                       const QString& url = QStringLiteral("/path"));

    /// Makes a further call to the current server and checks that it succeeds.
    void ExpectSuccess(const CallMode& mode);

    /// Makes calls of each kind, so that Qt creates the objects that it creates once in a process.
    void WarmUp();

    /// Checks that no objects or sockets leak, ignoring toasts.
    static void ExpectNoLeaks(const Census& before);

    QPointer<QWidget> m_parent{new QWidget};

private:
    /// What the host observed of a call, typed or not.
    struct Seen {
        int result;  ///< of ExecuteFuncs, or the code of a typed call
        int parsed;
        QStringList notices;
    };
    Seen RunCall(const CallMode& mode, HostCall call);
    Seen RunTyped(const CallMode& mode, const HostCall& call);

    Watchdog m_watchdog;
};

}  // namespace testing_support
