#include "TimingChart.h"

#include "Statistics.h"
#include "Theme.h"

#include <QCursor>
#include <QEvent>
#include <QGraphicsLayout>
#include <QLocale>
#include <QToolTip>

#include <algorithm>
#include <cmath>
#include <utility>

namespace explorer {

namespace {

/// The step between the labels for a number of runs.
double IntervalFor(int numbers)
{
    constexpr int kFewLabels = 12;
    for (const int interval : {1, 2, 5}) {
        if (numbers <= interval * kFewLabels) {
            return interval;
        }
    }
    constexpr int kWidest = 10;
    return kWidest;
}

}  // namespace

TimingChart::TimingChart(QWidget* pParent)
    : QChartView(new QChart, pParent), m_pSucceeded(new QScatterSeries), m_pFailed(new QScatterSeries),
      m_pMedian(new QLineSeries), m_pPercentile(new QLineSeries), m_pNumbers(new QValueAxis), m_pTimes(new QValueAxis)
{
    m_pNumbers->setTitleText(tr("Call"));
    m_pNumbers->setLabelFormat(QStringLiteral("%d"));
    m_pNumbers->setTickInterval(1);
    m_pNumbers->setTickType(QValueAxis::TicksDynamic);
    m_pNumbers->setGridLineVisible(false);
    m_pTimes->setTitleText(tr("Milliseconds"));
    m_pTimes->setLabelFormat(QStringLiteral("%g"));
    chart()->addAxis(m_pNumbers, Qt::AlignBottom);
    chart()->addAxis(m_pTimes, Qt::AlignLeft);
    AddSeries(m_pMedian, tr("Median"));
    AddSeries(m_pPercentile, tr("95th percentile"));
    AddSeries(m_pSucceeded, tr("Succeeded"));
    AddSeries(m_pFailed, tr("Failed"));

    constexpr double kPoint = 8;
    for (QScatterSeries* pSeries : {m_pSucceeded, m_pFailed}) {
        pSeries->setMarkerSize(kPoint);
        connect(pSeries, &QScatterSeries::hovered, this, &TimingChart::ShowDetails);
    }
    m_pFailed->setMarkerShape(QScatterSeries::MarkerShapeRectangle);  // distinguishable without colour

    chart()->legend()->setAlignment(Qt::AlignBottom);
    chart()->legend()->setMarkerShape(QLegend::MarkerShapeFromSeries);
    chart()->layout()->setContentsMargins(0, 0, 0, 0);
    chart()->setMargins(QMargins(0, 0, 0, 0));
    chart()->setBackgroundRoundness(0);
    setRenderHint(QPainter::Antialiasing);
    setFrameShape(QFrame::NoFrame);
    Colour();
}

void TimingChart::Show(std::vector<Call> calls)
{
    m_calls = std::move(calls);
    Draw();
}

double TimingChart::Median() const
{
    return explorer::Median(Times());
}

double TimingChart::Percentile95() const
{
    constexpr double kShare = 0.95;
    return Percentile(Times(), kShare);
}

void TimingChart::changeEvent(QEvent* pEvent)
{
    QChartView::changeEvent(pEvent);
    if (pEvent->type() == QEvent::PaletteChange) {
        Colour();
    }
}

void TimingChart::Draw()
{
    QVector<QPointF> succeeded;
    QVector<QPointF> failed;
    double longest = 0;
    for (std::size_t index = 0; index < m_calls.size(); ++index) {
        const Call& call = m_calls[index];
        (call.succeeded ? succeeded : failed).append({1 + double(index), call.milliseconds});
        longest = std::max(longest, call.milliseconds);
    }
    m_pSucceeded->replace(succeeded);
    m_pFailed->replace(failed);

    constexpr double kHalf = 0.5;
    const double left = 1 - kHalf;
    const double right = std::max(double(m_calls.size()), 1.0) + kHalf;
    m_pMedian->replace(QVector<QPointF>{{left, Median()}, {right, Median()}});
    m_pPercentile->replace(QVector<QPointF>{{left, Percentile95()}, {right, Percentile95()}});

    constexpr double kRoomAbove = 1.1;
    m_pNumbers->setRange(left, right);
    m_pNumbers->setTickInterval(IntervalFor(int(m_calls.size())));
    m_pNumbers->setTickAnchor(0);
    m_pTimes->setRange(0, std::max(longest * kRoomAbove, 1.0));
    m_pTimes->applyNiceNumbers();
}

void TimingChart::Colour()
{
    const QPalette colours = palette();
    const QColor& text = colours.color(QPalette::WindowText);
    const QColor& base = colours.color(QPalette::Base);
    setBackgroundBrush(colours.color(QPalette::Window));
    chart()->setBackgroundBrush(colours.color(QPalette::Window));
    chart()->setPlotAreaBackgroundBrush(base);
    chart()->setPlotAreaBackgroundVisible();
    chart()->legend()->setLabelColor(text);
    for (QValueAxis* pAxis : {m_pNumbers, m_pTimes}) {
        pAxis->setLabelsColor(text);
        pAxis->setTitleBrush(text);
        pAxis->setLinePenColor(theme::Hint(colours));
        pAxis->setGridLineColor(theme::Grid(colours));
        pAxis->setLabelsFont(font());
        pAxis->setTitleFont(font());
    }
    chart()->legend()->setFont(font());

    m_pSucceeded->setColor(theme::Succeeded(colours));
    m_pSucceeded->setBorderColor(base);
    m_pFailed->setColor(theme::Error(colours));
    m_pFailed->setBorderColor(base);
    constexpr double kWidth = 2;
    m_pMedian->setPen(QPen(theme::Median(colours), kWidth));
    m_pPercentile->setPen(QPen(theme::Percentile(colours), kWidth, Qt::DashLine));
}

void TimingChart::AddSeries(QAbstractSeries* pSeries, const QString& name)
{
    pSeries->setName(name);
    chart()->addSeries(pSeries);
    pSeries->attachAxis(m_pNumbers);
    pSeries->attachAxis(m_pTimes);
}

void TimingChart::ShowDetails(const QPointF& point, bool entered)
{
    const int index = int(std::lround(point.x())) - 1;
    if (!entered || index < 0 || index >= int(m_calls.size())) {
        QToolTip::hideText();
        return;
    }
    const Call& call = m_calls[std::size_t(index)];
    QToolTip::showText(QCursor::pos(), tr("%1: %2 ms").arg(call.name, locale().toString(call.milliseconds, 'f', 1)),
                       this);
}

std::vector<double> TimingChart::Times() const
{
    std::vector<double> times;
    times.reserve(m_calls.size());
    for (const Call& call : m_calls) {
        times.push_back(call.milliseconds);
    }
    return times;
}

}  // namespace explorer
