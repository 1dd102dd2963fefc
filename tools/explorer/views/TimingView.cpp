#include "TimingView.h"

#include "Theme.h"
#include "TimingChart.h"
#include "TintedLabel.h"
#include "Widgets.h"

#include <explorer/CallOutcome.h>

#include <QGridLayout>
#include <QLabel>
#include <QLocale>
#include <QProgressBar>
#include <QPushButton>
#include <QSpinBox>
#include <QStackedWidget>

#include <algorithm>

namespace explorer {
namespace {

QLabel* MakeFigure(const QString& objectName)
{
    auto* pFigure = new QLabel;
    QFont font = pFigure->font();
    constexpr double kLarger = 1.3;
    font.setPointSizeF(font.pointSizeF() * kLarger);
    font.setBold(true);
    pFigure->setFont(font);
    pFigure->setObjectName(objectName);
    return pFigure;
}

}  // namespace

TimingView::TimingView(QWidget* pParent)
    : QWidget(pParent), m_pChart(new TimingChart), m_pPages(new QStackedWidget),
      m_pCalls(MakeFigure(QStringLiteral("calls"))), m_pMedian(MakeFigure(QStringLiteral("median"))),
      m_pPercentile(MakeFigure(QStringLiteral("percentile"))), m_pFailed(MakeFigure(QStringLiteral("failed"))),
      m_pParts(Named(new TintedLabel(theme::Hint), "parts")), m_pTimes(Named(new QSpinBox, "times")),
      m_pRepeat(Named(new QPushButton(tr("Re&peat")), "repeat")), m_pProgress(Named(new QProgressBar, "progress")),
      m_pCancel(Named(new QPushButton(tr("C&ancel")), "cancel"))
{
    m_pPages->addWidget(MakeHint(tr("Run a call to see how long it takes.")));
    m_pPages->addWidget(m_pChart);

    Column({MakeFigures(), m_pParts, {m_pPages, 1}, MakeRepeat()}, this);

    connect(m_pRepeat, &QPushButton::clicked, this, [this] { emit RepeatRequested(m_pTimes->value()); });
    connect(m_pCancel, &QPushButton::clicked, this, [this] {
        m_pCancel->setEnabled(false);  // until the run has ended
        emit CancelRequested();
    });
    ShowFigures();
    SetProgress(0, 0);
}

void TimingView::Show(const std::vector<const RunSummary*>& runs, const RunSummary* pShown)
{
    std::vector<TimingChart::Call> calls;
    calls.reserve(runs.size());
    for (const RunSummary* pRun : runs) {
        calls.push_back(
            {pRun->started.toString(QStringLiteral("HH:mm:ss.zzz")), pRun->elapsedMilliseconds, pRun->succeeded});
    }
    m_pChart->Show(std::move(calls));
    ShowFigures();
    ShowParts(pShown);
}

void TimingView::SetProgress(int done, int total)
{
    const bool isRunning = done < total;
    if (isRunning && !m_isRunning) {
        m_pCancel->setEnabled(true);
    }
    m_isRunning = isRunning;
    m_pProgress->setMaximum(std::max(total, 1));
    m_pProgress->setValue(done);
    m_pProgress->setFormat(tr("%1 of %2").arg(done).arg(total));
    m_pProgress->setVisible(isRunning);
    m_pCancel->setVisible(isRunning);
    UpdateRepeat();
}

void TimingView::SetRepeatEnabled(bool enabled)
{
    m_canRepeat = enabled;
    UpdateRepeat();
}

QLayout* TimingView::MakeFigures()
{
    auto* pFigures = new QGridLayout;
    constexpr int kBetween = 28;
    pFigures->setHorizontalSpacing(kBetween);
    pFigures->setVerticalSpacing(0);
    auto add = [pFigures, column = 0](const QString& caption, QLabel* pFigure) mutable {
        auto* pCaption = new TintedLabel(theme::Hint);
        pCaption->setWordWrap(false);
        pCaption->setText(caption);
        pFigures->addWidget(pCaption, 0, column);
        pFigures->addWidget(pFigure, 1, column);
        ++column;
    };
    add(tr("Runs"), m_pCalls);
    add(tr("Median"), m_pMedian);
    add(tr("95th percentile"), m_pPercentile);
    add(tr("Failed"), m_pFailed);
    pFigures->setColumnStretch(pFigures->columnCount(), 1);
    return pFigures;
}

QLayout* TimingView::MakeRepeat()
{
    constexpr int kMost = 10000;
    constexpr int kUsual = 20;
    m_pTimes->setRange(2, kMost);
    m_pTimes->setValue(kUsual);
    m_pTimes->setSuffix(tr(" times"));
    m_pTimes->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);

    return Row({LabelFor(m_pTimes, tr("Ru&n the call")), m_pTimes, m_pRepeat, {m_pProgress, 1}, m_pCancel, Stretch()});
}

void TimingView::ShowFigures()
{
    const auto& calls = m_pChart->Calls();
    const bool isEmpty = calls.empty();
    const auto time = [isEmpty](double milliseconds) {
        return isEmpty ? QStringLiteral("\u2013") : tr("%1 ms").arg(QLocale().toString(milliseconds, 'f', 1));
    };
    m_pCalls->setText(QString::number(calls.size()));
    m_pMedian->setText(time(m_pChart->Median()));
    m_pPercentile->setText(time(m_pChart->Percentile95()));
    m_pFailed->setText(
        QString::number(std::count_if(calls.begin(), calls.end(), [](const auto& call) { return !call.succeeded; })));
    m_pPages->setCurrentIndex(isEmpty ? 0 : 1);
}

void TimingView::ShowParts(const RunSummary* pShown)
{
    if (pShown == nullptr || !pShown->times) {
        m_pParts->clear();
        return;
    }
    const auto time = [](double milliseconds) { return QLocale().toString(milliseconds, 'f', 1); };
    const ExchangeTimes& times = *pShown->times;
    m_pParts->setText(
        times.firstByte
            //: Times in milliseconds
            ? tr("This run: sent after %1 ms, first byte after %2 ms, complete after %3 ms")
                  .arg(time(times.sent), time(*times.firstByte), time(times.finished))
            //: Times in milliseconds
            : tr("This run: sent after %1 ms, no byte within %2 ms").arg(time(times.sent), time(times.finished)));
}

void TimingView::UpdateRepeat()
{
    m_pRepeat->setEnabled(m_canRepeat && !m_isRunning);
    m_pTimes->setEnabled(!m_isRunning);
}

}  // namespace explorer
