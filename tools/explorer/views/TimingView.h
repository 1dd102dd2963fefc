#pragma once

#include <QList>
#include <QString>
#include <QWidget>

#include <vector>

class QLabel;
class QProgressBar;
class QPushButton;
class QSpinBox;
class QStackedWidget;

namespace explorer {

struct RunSummary;
class TimingChart;

/// The times of the runs of a call, and the controls that repeat the current call.
class TimingView : public QWidget {
    Q_OBJECT

public:
    explicit TimingView(QWidget* pParent = nullptr);

    /// Shows the figures of these runs and the phases of one of them, which may be null.
    void Show(const std::vector<const RunSummary*>& runs, const RunSummary* pShown);

    /// Shows the progress of a repetition, which is over when all runs are done.
    void SetProgress(int done, int total);
    /// Whether there is a call to repeat.
    void SetRepeatEnabled(bool enabled);

signals:
    void RepeatRequested(int times);
    void CancelRequested();

private:
    QLayout* MakeFigures();
    QLayout* MakeRepeat();
    void ShowFigures();
    void ShowParts(const RunSummary* pShown);
    void UpdateRepeat();

    TimingChart* m_pChart;
    QStackedWidget* m_pPages;
    QLabel* m_pCalls;
    QLabel* m_pMedian;
    QLabel* m_pPercentile;
    QLabel* m_pFailed;
    QLabel* m_pParts;
    QSpinBox* m_pTimes;
    QPushButton* m_pRepeat;
    QProgressBar* m_pProgress;
    QPushButton* m_pCancel;
    bool m_canRepeat = true;
    bool m_isRunning = false;
};

}  // namespace explorer
