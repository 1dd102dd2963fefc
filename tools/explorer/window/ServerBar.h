#pragma once

#include <QWidget>

class QComboBox;
class QLabel;
class QPushButton;

namespace explorer {

class Session;

/// The server that calls go to, and the switch of the emulator.
class ServerBar : public QWidget {
    Q_OBJECT

public:
    /// @param session must outlive the bar
    explicit ServerBar(Session& session, QWidget* pParent = nullptr);

    void FocusServers();

signals:
    void EditRequested();

private:
    void ShowServers();
    void ShowState();
    void ToggleEmulator();

    Session& m_session;
    QComboBox* m_pServers;
    QLabel* m_pAddress;
    QPushButton* m_pEmulator;
};

}  // namespace explorer
