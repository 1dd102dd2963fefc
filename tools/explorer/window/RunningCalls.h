#pragma once

#include "../core/Runner.h"

#include <QScrollArea>

class QVBoxLayout;

namespace explorer {

/// The calls that run without waiting, each with a button that cancels it. Hidden while there are none.
class RunningCalls : public QScrollArea {
    Q_OBJECT

public:
    /// @param runner must outlive the list
    explicit RunningCalls(Runner& runner, QWidget* pParent = nullptr);

protected:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

private:
    void Update();
    [[nodiscard]] QWidget* MakeRow(int number, const RunOrder& order);
    void Fit();

    Runner& m_runner;
    std::map<int, QWidget*> m_rows;
    QVBoxLayout* m_pLayout;
};

}  // namespace explorer
