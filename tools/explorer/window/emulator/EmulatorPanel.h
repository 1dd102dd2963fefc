#pragma once

#include "../../core/EmulatorControl.h"

#include <QWidget>

class QLabel;
class QTabWidget;
class QTimer;

namespace explorer {

class FaultsPage;
class RequestsPage;
class Session;
class StatePage;

/// The emulator that this program starts: its requests, faults, state and start options.
class EmulatorPanel : public QWidget {
    Q_OBJECT

public:
    /// @param session must outlive the panel
    explicit EmulatorPanel(Session& session, QWidget* pParent = nullptr);

protected:
    void showEvent(QShowEvent* pEvent) override;

private:
    void StateChanged();
    void Refresh();

    Session& m_session;
    EmulatorControl m_control;
    QLabel* m_pStopped;
    QTabWidget* m_pTabs;
    RequestsPage* m_pRequests;
    FaultsPage* m_pFaults;
    StatePage* m_pState;
    QTimer* m_pTimer;
};

}  // namespace explorer
