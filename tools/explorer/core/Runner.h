#pragma once

#include "../CallOutcome.h"
#include "Servers.h"
#include "TrafficTap.h"

#include <catalogue/Run.h>

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <functional>
#include <optional>

namespace explorer {

/// A call that is to be made.
struct RunOrder {
    const catalogue::Call* call = nullptr;
    QJsonObject arguments;
    Server server;                           ///< that the user manager knows as the current one
    std::optional<int> timeoutSeconds = {};  ///< instead of the call's own
    QPointer<QWidget> parent = {};  ///< under the wait dialog; without one the event loop waits and input goes on
};

/// Makes calls through the library, each from the event loop, so that nothing of a window is on the stack while a call
/// waits. Calls may be ordered while others wait; they run inside the wait of those.
class Runner : public QObject {
    Q_OBJECT

public:
    explicit Runner(TrafficTap& tap, QObject* parent = nullptr);

    void Order(const RunOrder& order);

    /// Makes the call so many times, one after the other. Input goes on meanwhile. One repetition is made at a time.
    void Repeat(const RunOrder& order, int count);
    /// No further repetition begins.
    void CancelRepeat();

    /// Calls that were ordered and have not ended.
    [[nodiscard]] int Pending() const { return m_pending; }
    [[nodiscard]] bool IsRepeating() const { return m_bRepeats; }

Q_SIGNALS:
    void Started(const catalogue::Call* call);
    void Finished(const explorer::CallOutcome& outcome);
    void RepeatProgress(int done, int total);
    /// After the last repetition or a cancellation.
    void RepeatEnded();

private:
    CallOutcome Run(const RunOrder& order);
    void RepeatFrom(const RunOrder& order, int done);
    void Post(std::function<void()> step);
    static QString Judge(const catalogue::Outcome& ran, const QString& caption);

    TrafficTap& m_tap;
    int m_pending = 0;
    bool m_bRepeats = false;
    int m_repeats = 0;  // asked for
};

}  // namespace explorer
