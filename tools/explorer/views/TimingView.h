#pragma once

#include <QList>
#include <QString>
#include <QWidget>

class QLabel;
class QProgressBar;
class QPushButton;
class QSpinBox;
class QStackedWidget;

namespace explorer {

struct CallOutcome;
class TimingChart;

/// How long the last calls took, and a run that repeats the current call.
class TimingView : public QWidget {
    Q_OBJECT

public:
    explicit TimingView(QWidget* pParent = nullptr);

    void Add(const CallOutcome& outcome);
    void Clear();

    /// Shows how far a repeated run is; it is over when all is done.
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
    void ShowLast(const CallOutcome& outcome);
    void UpdateRepeat();

    TimingChart* m_pChart;
    QStackedWidget* m_pPages;
    QLabel* m_pCalls;
    QLabel* m_pMedian;
    QLabel* m_pPercentile;
    QLabel* m_pFailed;
    QLabel* m_pLast;
    QPushButton* m_pClear;
    QSpinBox* m_pTimes;
    QPushButton* m_pRepeat;
    QProgressBar* m_pProgress;
    QPushButton* m_pCancel;
    bool m_canRepeat = true;
    bool m_isRunning = false;
};

}  // namespace explorer
