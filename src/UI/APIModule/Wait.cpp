#include "Wait_p.h"

#include <OrnGui/OrnWaitDialog.h>

#include <QCoreApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>

namespace APIModule {

namespace {

/// Discards user input to all windows of the application during its lifetime, like a modal dialog. Closing a window is
/// allowed, because Qt 6 does not distinguish a close by the user from one by the program.
class InputBarrier final : public QObject {
public:
    InputBarrier() { QCoreApplication::instance()->installEventFilter(this); }

    bool eventFilter(QObject* /*pWatched*/, QEvent* pEvent) override
    {
        switch (pEvent->type()) {
        case QEvent::ShortcutOverride:
            pEvent->accept();  // or Qt looks for a shortcut
            return true;
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::MouseMove:
        case QEvent::Wheel:
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
        case QEvent::Shortcut:
        case QEvent::ContextMenu:
        case QEvent::TouchBegin:
        case QEvent::TouchUpdate:
        case QEvent::TouchEnd:
        case QEvent::TouchCancel:
        case QEvent::TabletPress:
        case QEvent::TabletMove:
        case QEvent::TabletRelease:
        case QEvent::NativeGesture:
        case QEvent::InputMethod:
        case QEvent::DragEnter:
        case QEvent::DragMove:
        case QEvent::Drop:
            return true;
        default:
            return false;
        }
    }
};

}  // namespace

Wait::Wait(QEventLoop::ProcessEventsFlags flags) : m_flags(flags) {}

Wait::Wait(QWidget& parent, std::chrono::milliseconds delay) : m_delay(delay)
{
    QObject::connect(&parent, &QObject::destroyed, &m_loop, [this] {
        m_bBroken = true;
        End();
    });
    if (delay.count() > 0) {
        m_pParent = &parent;
    } else {
        MakeDialog(parent);
    }
}

Wait::~Wait()
{
    delete m_pDialog;
}

void Wait::MakeDialog(QWidget& parent)
{
    m_pDialog = new ORNGUI::OrnWaitDialog(&parent, true);
    QObject::connect(m_pDialog, &QObject::destroyed, &m_loop, [this] {
        m_pDialog.clear();  // its dialog part is already destroyed
        m_bBroken = true;
        End();
    });
}

void Wait::Run()
{
    if (m_bEnded) {
        return;
    }
    if (m_pDialog || WaitForDialog()) {
        m_pDialog->exec();
        m_bBroken = m_bBroken || !m_bEnded;
    } else if (!m_bEnded && m_delay.count() == 0) {
        m_loop.exec(m_flags);
    }
}

/// @return whether the dialog is due
bool Wait::WaitForDialog()
{
    if (!m_pParent) {
        return false;
    }
    const InputBarrier barrier;
    bool bOver = false;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &m_loop, [&] {
        bOver = true;
        m_loop.quit();
    });
    timer.setSingleShot(true);
    timer.start(m_delay);
    m_loop.exec();
    if (m_bEnded || !bOver) {
        return false;
    }
    MakeDialog(*m_pParent);
    return true;
}

void Wait::End()
{
    if (m_bEnded) {
        return;
    }
    m_bEnded = true;
    if (m_pDialog) {
        m_pDialog->OnStopWaitImmediately();
    }
    m_loop.quit();
}

}  // namespace APIModule
