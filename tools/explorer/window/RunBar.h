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

/// The options of a run, and the button that starts it.
class RunBar : public QWidget {
    Q_OBJECT

public:
    /// @param settings stores the options; must outlive the bar
    explicit RunBar(QSettings& settings, QWidget* pParent = nullptr);

    [[nodiscard]] WaitMode ChosenWaitMode() const;
    /// Nothing for the time-out of the call.
    [[nodiscard]] std::optional<int> TimeoutSeconds() const;
    /// Shows the user an option that is invalid.
    /// @return false if there is one
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
    QComboBox* m_pWaitMode;
    QSpinBox* m_pTimeout;
    QLabel* m_pState;
    QLabel* m_pProblem;
};

}  // namespace explorer
