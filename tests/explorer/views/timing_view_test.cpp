// The times of a call's runs, and the controls that repeat the call.
#include "support/Samples.h"
#include "support/Screenshots.h"
#include "support/ViewTest.h"

#include <explorer/views/TimingChart.h>
#include <explorer/views/TimingView.h>

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>

#include <QtCharts/QChart>
#include <QtCharts/QValueAxis>
#include <QtCharts/QXYSeries>

#include <vector>

using explorer::CallOutcome;
using explorer::TimingChart;
using explorer::TimingView;
using namespace QtCharts;

class TimingViewTest : public QObject {
    Q_OBJECT

private slots:
    void ShowsFiguresOfTheRuns();
    void ShowsPhasesOfTheRun();
    void ChartShowsEachRun();
    void ColoursFollowThePalette();
    void RepeatButtonRequestsRepetition();
    void ShowsProgressUntilAllRunsAreDone();
    void RequestsCancelOncePerRepetition();
    void RepeatButtonIsDisabledWithoutCall();
    void Screenshots();
};

namespace {

CallOutcome Timed(double milliseconds, bool succeeded = true)
{
    CallOutcome outcome = view_test::DeviceCategories();
    outcome.elapsedMilliseconds = milliseconds;
    outcome.succeeded = succeeded;
    return outcome;
}

void Show(TimingView& view, const std::vector<CallOutcome>& outcomes)
{
    std::vector<const explorer::RunSummary*> runs;
    runs.reserve(outcomes.size());
    for (const CallOutcome& outcome : outcomes) {
        runs.push_back(&outcome);
    }
    view.Show(runs, runs.empty() ? nullptr : runs.back());
}

QString Figure(const TimingView& view, const char* name)
{
    return view.findChild<QLabel*>(QString::fromLatin1(name))->text();
}

template <typename Widget>
Widget& Child(const TimingView& view, const char* name)
{
    return *view.findChild<Widget*>(QString::fromLatin1(name));
}

QVector<QPointF> Points(const TimingView& view, int series)
{
    const auto* pChart = view.findChild<TimingChart*>()->chart();
    const QList<QPointF> points = qobject_cast<QXYSeries*>(pChart->series().at(series))->points();
    return {points.begin(), points.end()};
}

enum Series {
    Median,
    Percentile,
    Succeeded,
    Failed
};

}  // namespace

void TimingViewTest::ShowsFiguresOfTheRuns()
{
    TimingView view;
    QCOMPARE(Figure(view, "calls"), QStringLiteral("0"));
    QCOMPARE(Figure(view, "median"), QStringLiteral("\u2013"));
    Show(view, {Timed(10), Timed(30.26, false), Timed(20)});
    QCOMPARE(Figure(view, "calls"), QStringLiteral("3"));
    QCOMPARE(Figure(view, "median"), QStringLiteral("20.0 ms"));
    QCOMPARE(Figure(view, "percentile"), QStringLiteral("30.3 ms"));
    QCOMPARE(Figure(view, "failed"), QStringLiteral("1"));
}

void TimingViewTest::ShowsPhasesOfTheRun()
{
    TimingView view;
    QCOMPARE(Figure(view, "parts"), QString());
    CallOutcome outcome = view_test::DeviceCategories();
    outcome.times = explorer::ExchangeTimes{0.5, 11.5, 12.5};
    Show(view, {outcome});
    QCOMPARE(Figure(view, "parts"),
             QStringLiteral("This run: sent after 0.5 ms, first byte after 11.5 ms, complete after 12.5 ms"));
    outcome.times->firstByte.reset();
    Show(view, {outcome});
    QCOMPARE(Figure(view, "parts"), QStringLiteral("This run: sent after 0.5 ms, no byte within 12.5 ms"));
    outcome.times.reset();
    Show(view, {outcome});
    QCOMPARE(Figure(view, "parts"), QString());
}

void TimingViewTest::ChartShowsEachRun()
{
    TimingView view;
    Show(view, {Timed(5)});
    Show(view, {Timed(10), Timed(30, false), Timed(20)});
    QCOMPARE(Points(view, Succeeded), (QVector<QPointF>{{1, 10}, {3, 20}}));
    QCOMPARE(Points(view, Failed), (QVector<QPointF>{{2, 30}}));
    QCOMPARE(Points(view, Median), (QVector<QPointF>{{0.5, 20}, {3.5, 20}}));
    QCOMPARE(Points(view, Percentile), (QVector<QPointF>{{0.5, 30}, {3.5, 30}}));
    const auto axes = view.findChild<TimingChart*>()->chart()->axes(Qt::Vertical);
    const auto* pTimes = qobject_cast<QValueAxis*>(axes.constFirst());
    QCOMPARE(pTimes->min(), 0.0);
    QVERIFY(pTimes->max() > 30);
}

void TimingViewTest::ColoursFollowThePalette()
{
    TimingView view;
    Show(view, {Timed(10)});
    const auto& chart = *view.findChild<TimingChart*>()->chart();
    for (const QPalette& palette : {view_test::LightPalette(), view_test::DarkPalette()}) {
        view.setPalette(palette);
        QCOMPARE(chart.backgroundBrush().color(), palette.color(QPalette::Window));
        QCOMPARE(chart.plotAreaBackgroundBrush().color(), palette.color(QPalette::Base));
        const auto axes = chart.axes();
        for (const auto* pAxis : axes) {
            QCOMPARE(pAxis->labelsColor(), palette.color(QPalette::WindowText));
        }
        const auto all = chart.series();
        for (const auto* pSeries : all) {
            const QColor colour = qobject_cast<const QXYSeries*>(pSeries)->color();
            QVERIFY(qAbs(colour.lightness() - palette.color(QPalette::Base).lightness()) > 60);
        }
    }
}

void TimingViewTest::RepeatButtonRequestsRepetition()
{
    TimingView view;
    QSignalSpy requests(&view, &TimingView::RepeatRequested);
    Child<QSpinBox>(view, "times").setValue(37);
    Child<QPushButton>(view, "repeat").click();
    QCOMPARE(requests.count(), 1);
    QCOMPARE(requests[0][0].toInt(), 37);
}

void TimingViewTest::ShowsProgressUntilAllRunsAreDone()
{
    TimingView view;
    auto& progress = Child<QProgressBar>(view, "progress");
    auto& repeat = Child<QPushButton>(view, "repeat");
    QVERIFY(!progress.isVisibleTo(&view));
    view.SetProgress(0, 3);
    QVERIFY(progress.isVisibleTo(&view));
    QVERIFY(Child<QPushButton>(view, "cancel").isVisibleTo(&view));
    QVERIFY(!repeat.isEnabled());
    view.SetProgress(2, 3);
    QCOMPARE(progress.value(), 2);
    QCOMPARE(progress.maximum(), 3);
    QCOMPARE(progress.text(), QStringLiteral("2 of 3"));
    view.SetProgress(3, 3);
    QVERIFY(!progress.isVisibleTo(&view));
    QVERIFY(!Child<QPushButton>(view, "cancel").isVisibleTo(&view));
    QVERIFY(repeat.isEnabled());
}

void TimingViewTest::RequestsCancelOncePerRepetition()
{
    TimingView view;
    QSignalSpy cancels(&view, &TimingView::CancelRequested);
    auto& cancel = Child<QPushButton>(view, "cancel");
    view.SetProgress(0, 3);
    cancel.click();
    view.SetProgress(1, 3);
    cancel.click();
    QCOMPARE(cancels.count(), 1);
    view.SetProgress(0, 0);
    view.SetProgress(0, 2);
    cancel.click();
    QCOMPARE(cancels.count(), 2);
}

void TimingViewTest::RepeatButtonIsDisabledWithoutCall()
{
    TimingView view;
    auto& repeat = Child<QPushButton>(view, "repeat");
    view.SetRepeatEnabled(false);
    QVERIFY(!repeat.isEnabled());
    view.SetProgress(1, 1);
    QVERIFY(!repeat.isEnabled());
    view.SetRepeatEnabled(true);
    QVERIFY(repeat.isEnabled());
}

void TimingViewTest::Screenshots()
{
    using view_test::TakeScreenshots;
    const QSize size(700, 360);
    TimingView view;
    TakeScreenshots(view, QStringLiteral("timing-empty"), size);
    Show(view, {Timed(12.4)});
    TakeScreenshots(view, QStringLiteral("timing-one"), size);
    constexpr int kRuns = 60;
    std::vector<CallOutcome> runs;
    runs.reserve(kRuns);
    for (int run = 0; run < kRuns; ++run) {
        runs.push_back(Timed(8 + (run * 37) % 23 + (run % 17 == 0 ? 60 : 0), run % 19 != 5));
    }
    Show(view, runs);
    view.SetProgress(60, 200);
    TakeScreenshots(view, QStringLiteral("timing-repeat"), size);
}

int main(int argc, char** argv)
{
    return view_test::Run<TimingViewTest>(argc, argv);
}

#include "timing_view_test.moc"
