#pragma once

#include <QEventLoop>
#include <QPointer>

class QWidget;

namespace ORNGUI {
class OrnWaitDialog;
}

namespace APIModule {

/// The wait of one request, in a local event loop or behind a modal wait dialog.
///
/// Whatever runs meanwhile may delete the parent or the dialog, stop the dialog, start further waits or end the
/// application. A wait inside another one delays the end of the outer one; nothing else does.
class Wait {
public:
    /// A wait in a local event loop.
    explicit Wait(QEventLoop::ProcessEventsFlags flags);

    /// A wait behind a modal dialog over @p parent. It ends when the parent or the dialog is destroyed, and when the
    /// dialog returns from exec() for any other reason.
    explicit Wait(QWidget& parent);

    ~Wait();

    Wait(const Wait&) = delete;
    Wait& operator=(const Wait&) = delete;

    /// Runs the event loop until End(), or until the dialog returns or the application quits. Returns at once while
    /// the application is quitting: Qt starts no nested loop then.
    void Run();

    /// Ends the wait, also one that has not begun.
    void End();

    /// Whether the parent is gone: what comes after that is no result of the call.
    bool IsOrphaned() const { return m_bOrphaned; }

    /// Lives as long as the wait: a context for connections that end it.
    QObject* Context() { return &m_loop; }

private:
    QEventLoop m_loop;
    QEventLoop::ProcessEventsFlags m_flags = QEventLoop::AllEvents;
    QPointer<ORNGUI::OrnWaitDialog> m_pDialog;
    bool m_bEnded = false;
    bool m_bOrphaned = false;
};

}  // namespace APIModule
