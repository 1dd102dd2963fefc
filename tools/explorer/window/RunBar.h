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

    void SetReady(bool ready, const QString& why);
    void ShowPending(int calls);

signals:
    void RunRequested();

private:
    QPushButton* m_pRun;
    QComboBox* m_pWay;
    QSpinBox* m_pTimeout;
    QLabel* m_pState;
};

}  // namespace explorer
