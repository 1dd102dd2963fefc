#include "EmulatorPanel.h"

#include "FaultsPage.h"
#include "RequestsPage.h"
#include "StartPage.h"
#include "StatePage.h"

#include "../../core/Session.h"
#include "../../views/Theme.h"
#include "../../views/TintedLabel.h"
#include "../../views/Widgets.h"

#include <QTabWidget>
#include <QTimer>

namespace explorer {

EmulatorPanel::EmulatorPanel(Session& session, QWidget* pParent)
    : QWidget(pParent), m_session(session), m_control(session.emulator),
      m_pStopped(Named(new TintedLabel(theme::Hint), "emulatorStopped")),
      m_pTabs(Named(new QTabWidget, "emulatorTabs")), m_pRequests(new RequestsPage(m_control)),
      m_pFaults(new FaultsPage(m_control)), m_pState(new StatePage(m_control)), m_pTimer(new QTimer(this))
{
    m_pStopped->setWordWrap(true);
    constexpr int kMargin = 9;
    m_pStopped->setContentsMargins(kMargin, kMargin, kMargin, 0);
    m_pTabs->setDocumentMode(true);
    m_pTabs->addTab(m_pRequests, tr("Re&quests"));
    m_pTabs->addTab(m_pFaults, tr("&Faults"));
    m_pTabs->addTab(m_pState, tr("St&ate"));
    m_pTabs->addTab(new StartPage(session), tr("Sta&rt"));
    Column({m_pStopped, {m_pTabs, 1}}, this)->setContentsMargins(0, 0, 0, 0);

    constexpr int kInterval = 500;  // milliseconds
    m_pTimer->setInterval(kInterval);
    m_pTimer->start();
    connect(m_pTimer, &QTimer::timeout, this, &EmulatorPanel::Refresh);
    connect(m_pTabs, &QTabWidget::currentChanged, this, &EmulatorPanel::Refresh);
    connect(&session.emulator, &EmulatorProcess::StateChanged, this, &EmulatorPanel::StateChanged);
    StateChanged();
}

void EmulatorPanel::showEvent(QShowEvent* pEvent)
{
    QWidget::showEvent(pEvent);
    Refresh();
}

void EmulatorPanel::StateChanged()
{
    const EmulatorProcess::State state = m_session.emulator.GetState();
    const bool isRunning = state == EmulatorProcess::Running;
    m_pStopped->setText(state == EmulatorProcess::Starting
                            ? tr("The emulator is starting")
                            : tr("The emulator is not running. Press its button to start it, or make a call."));
    m_pStopped->setVisible(!isRunning);
    m_pFaults->setEnabled(isRunning);
    m_pState->setEnabled(isRunning);
    if (isRunning) {  // a new emulator has none of the old data
        m_pRequests->Clear();
        m_pState->Clear();
        Refresh();
    }
}

void EmulatorPanel::Refresh()
{
    if (!isVisible() || m_session.emulator.GetState() != EmulatorProcess::Running) {
        return;
    }
    const QWidget* const pPage = m_pTabs->currentWidget();
    if (pPage == m_pRequests) {
        m_pRequests->Refresh();
    } else if (pPage == m_pFaults) {
        m_pFaults->Refresh();
    } else if (pPage == m_pState) {
        m_pState->LoadOnce();
    }
}

}  // namespace explorer
