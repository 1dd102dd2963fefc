#pragma once

#include "../CallOutcome.h"
#include "Servers.h"

#include <catalogue/Run.h>

#include <Call.h>

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <functional>
#include <map>
#include <memory>
#include <optional>

namespace explorer {

/// A call to make.
struct RunOrder {
    const catalogue::Call* call = nullptr;
    QJsonObject arguments;
    Server server;                           ///< the current server of the user manager
    std::optional<int> timeoutSeconds = {};  ///< replaces that of the call
    WaitMode waitMode = WaitMode::EventLoop;
    QPointer<QWidget> parent = {};                          ///< under the wait dialog
    std::function<void(const CallOutcome&)> finished = {};  ///< called after Runner::Finished
};

/// Makes calls through the library, each from the event loop, so that no code of a window is on the stack while a call
/// waits. Calls can be ordered while others wait. A call that waits then runs inside the wait of the other one; a call
/// without waiting runs beside it.
class Runner : public QObject {
    Q_OBJECT

public:
    explicit Runner(QObject* parent = nullptr);
    ~Runner() override;

    void Order(const RunOrder& order);

    /// Repeats the call, one run after the other, while input is processed. Only one repetition runs at a time.
    void Repeat(const RunOrder& order, int count);
    /// Stops after the current run.
    void CancelRepeat();

    /// The request that an order would send. Sends nothing.
    [[nodiscard]] static RequestDraft Draft(const RunOrder& order);

    /// Cancels a call that runs without waiting. Its outcome follows at once. Ignored if the call has ended.
    void Cancel(int number);

    /// The number of calls that were ordered and have not ended.
    [[nodiscard]] int Pending() const { return m_pending; }
    [[nodiscard]] bool IsRepeating() const { return m_bRepeats; }

    /// The calls that run without waiting, by number.
    [[nodiscard]] std::map<int, RunOrder> WithoutWaiting() const;

Q_SIGNALS:
    void Started(const catalogue::Call* call);
    void Finished(const explorer::CallOutcome& outcome);
    /// The library is about to notify the user of an outcome.
    void Notifying(bool succeeded);
    /// The server did not accept the session token of a call.
    void TokenRefused(const QString& serverId, const QString& token);
    /// WithoutWaiting() has changed.
    void WithoutWaitingChanged();
    void RepeatProgress(int done, int total);
    /// After the last repetition or a cancellation.
    void RepeatEnded();

private:
    struct ActiveRun;
    struct Running {
        RunOrder order;
        std::shared_ptr<ActiveRun> pRun;
        APIModule::CallHandle handle;
    };

    void Wait(const RunOrder& order);
    void Begin(const RunOrder& order);
    void Announce(const RunOrder& order, const CallOutcome& outcome);
    void End(int number, const std::function<CallOutcome(ActiveRun&)>& conclude);
    CallOutcome Run(const RunOrder& order);
    void Check(const RunOrder& order, const RunSummary& run, const QString& token);
    void RepeatFrom(const RunOrder& order, int done);
    void Post(std::function<void()> step);

    std::map<int, Running> m_running;
    int m_lastNumber = 0;
    int m_pending = 0;
    bool m_bRepeats = false;
    int m_repeats = 0;  // requested
};

}  // namespace explorer
