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

/// A call that is to be made.
struct RunOrder {
    const catalogue::Call* call = nullptr;
    QJsonObject arguments;
    Server server;                           ///< that the user manager knows as the current one
    std::optional<int> timeoutSeconds = {};  ///< instead of the call's own
    Way way = Way::EventLoop;
    QPointer<QWidget> parent = {};                          ///< under the wait dialog
    std::function<void(const CallOutcome&)> finished = {};  ///< after Runner::Finished
};

/// Makes calls through the library, each from the event loop, so that nothing of a window is on the stack while a call
/// waits. Calls may be ordered while others wait: those that wait run inside the wait of the others, those without
/// waiting beside them.
class Runner : public QObject {
    Q_OBJECT

public:
    explicit Runner(QObject* parent = nullptr);
    ~Runner() override;

    void Order(const RunOrder& order);

    /// Makes the call so many times, one after the other. Input goes on meanwhile. One repetition is made at a time.
    void Repeat(const RunOrder& order, int count);
    /// No further repetition begins.
    void CancelRepeat();

    /// What an order would send. Nothing is sent.
    [[nodiscard]] static RequestDraft Draft(const RunOrder& order);

    /// Ends a call that runs without waiting, which has its outcome at once. Nothing happens when it has ended.
    void Cancel(int number);

    /// Calls that were ordered and have not ended.
    [[nodiscard]] int Pending() const { return m_pending; }
    [[nodiscard]] bool IsRepeating() const { return m_bRepeats; }

    /// The orders of the calls that run without waiting, by their numbers.
    [[nodiscard]] std::map<int, RunOrder> WithoutWaiting() const;

Q_SIGNALS:
    void Started(const catalogue::Call* call);
    void Finished(const explorer::CallOutcome& outcome);
    /// The library is about to notify the user of an outcome.
    void Notifying(bool succeeded);
    /// The server knows no session of the token that a call was made with.
    void TokenRefused(const QString& serverId, const QString& token);
    /// WithoutWaiting() has changed.
    void WithoutWaitingChanged();
    void RepeatProgress(int done, int total);
    /// After the last repetition or a cancellation.
    void RepeatEnded();

private:
    struct Course;
    struct Running {
        RunOrder order;
        std::shared_ptr<Course> pCourse;
        APIModule::CallHandle handle;
    };

    void Wait(const RunOrder& order);
    void Begin(const RunOrder& order);
    void Announce(const RunOrder& order, const CallOutcome& outcome);
    void End(int number, const std::function<CallOutcome(Course&)>& conclude);
    CallOutcome Run(const RunOrder& order);
    void Check(const RunOrder& order, const RunSummary& run, const QString& token);
    void RepeatFrom(const RunOrder& order, int done);
    void Post(std::function<void()> step);

    std::map<int, Running> m_running;
    int m_lastNumber = 0;
    int m_pending = 0;
    bool m_bRepeats = false;
    int m_repeats = 0;  // asked for
};

}  // namespace explorer
