#include "Wait_p.h"

#include <OrnGui/OrnWaitDialog.h>

#include <QWidget>

namespace APIModule {

Wait::Wait(QEventLoop::ProcessEventsFlags flags) : m_flags(flags) {}

Wait::Wait(QWidget& parent) : m_pDialog(new ORNGUI::OrnWaitDialog(&parent, true))
{
    QObject::connect(&parent, &QObject::destroyed, &m_loop, [this] {
        m_bOrphaned = true;
        End();
    });
    QObject::connect(m_pDialog, &QObject::destroyed, &m_loop, [this] {
        m_pDialog.clear();  // no dialog any more, but a mere widget
        End();
    });
}

Wait::~Wait()
{
    delete m_pDialog;
}

void Wait::Run()
{
    if (m_bEnded) {
        return;
    }
    if (m_pDialog) {
        m_pDialog->exec();
    } else {
        m_loop.exec(m_flags);
    }
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
