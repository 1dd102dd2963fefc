#pragma once

#include "../CallOutcome.h"

#include <QWidget>

#include <optional>

class QComboBox;
class QLabel;
class QPushButton;
class QSettings;
class QSpinBox;

namespace explorer {

/// How a call is run, and the button that runs it.
class RunBar : public QWidget {
    Q_OBJECT

public:
    /// @param settings keeps the choices; must outlive the bar
    explicit RunBar(QSettings& settings, QWidget* pParent = nullptr);

    [[nodiscard]] Way ChosenWay() const;
    /// Nothing for the call's own.
    [[nodiscard]] std::optional<int> TimeoutSeconds() const;
    /// Leads the user to a choice that cannot be used.
    /// @return false when there is one
    [[nodiscard]] bool Check();

    void SetReady(bool ready, const QString& why);
    void ShowPending(int calls);

signals:
    void RunRequested();

private:
    [[nodiscard]] QString Problem() const;
    void Update();

    bool m_bReady = false;
    QString m_notReadyWhy;
    int m_pending = 0;
    QPushButton* m_pRun;
    QComboBox* m_pWay;
    QSpinBox* m_pTimeout;
    QLabel* m_pState;
    QLabel* m_pProblem;
};

}  // namespace explorer
