#pragma once

#include <QWidget>

class QLabel;
class QLineEdit;
class QPushButton;
class QSpinBox;

namespace explorer {

class Session;

/// The start options of the emulator: the length of its lists and its seed data.
class StartPage : public QWidget {
    Q_OBJECT

public:
    /// @param session must outlive the page
    explicit StartPage(Session& session, QWidget* pParent = nullptr);

private:
    void Browse();
    void Keep();
    void Update();

    Session& m_session;
    QSpinBox* m_pScale;
    QLineEdit* m_pSeed;
    QPushButton* m_pRestart;
    QLabel* m_pAddresses;
    QLabel* m_pProblem;
};

}  // namespace explorer
