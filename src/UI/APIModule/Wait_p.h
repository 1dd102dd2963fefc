#pragma once

#include <QEventLoop>
#include <QPointer>

#include <chrono>

class QWidget;

namespace ORNGUI {
class OrnWaitDialog;
}

namespace APIModule {

/// The wait of one request, in a local event loop or behind a modal wait dialog. This is the only place of the library
/// that runs an event loop.
///
/// Code that runs meanwhile may delete the parent or the dialog, stop the dialog, start further waits or quit the
/// application. Only a nested wait delays the end of the outer one.
class Wait {
public:
    /// A wait in a local event loop.
    explicit Wait(QEventLoop::ProcessEventsFlags flags);

    /// A wait behind a modal dialog over @p parent. It ends when the parent or the dialog is destroyed, and when the
    /// dialog returns from exec() for any other reason.
    ///
    /// @param delay until the dialog appears; until then user input to all windows is discarded
    explicit Wait(QWidget& parent, std::chrono::milliseconds delay = std::chrono::milliseconds(0));

    ~Wait();

    Wait(const Wait&) = delete;
    Wait& operator=(const Wait&) = delete;

    /// Runs the event loop until End(), or until the dialog returns or the application quits. Returns at once while
    /// the application is quitting, because Qt runs no nested loop then.
    void Run();

    /// Ends the wait, even before Run().
    void End();

    /// Whether the parent or the dialog was destroyed, or the dialog stopped.
    bool IsBroken() const { return m_bBroken; }

    /// Context for connections that end the wait; exists as long as the wait.
    QObject* Context() { return &m_loop; }

private:
    void MakeDialog(QWidget& parent);
    bool WaitForDialog();

    QEventLoop m_loop;
    QEventLoop::ProcessEventsFlags m_flags = QEventLoop::AllEvents;
    QPointer<ORNGUI::OrnWaitDialog> m_pDialog;
    QPointer<QWidget> m_pParent;  ///< parent of the dialog, which is created later
    std::chrono::milliseconds m_delay{};
    bool m_bEnded = false;
    bool m_bBroken = false;
};

}  // namespace APIModule
