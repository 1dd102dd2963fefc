// The times of a call's runs, and the controls that repeat the call.
#include "support/Samples.h"
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
using view_test::Child;
using namespace QtCharts;

namespace {

CallOutcome Timed(double milliseconds, bool succeeded = true)
{
    CallOutcome outcome = view_test::DeviceCategories();
    outcome.elapsedMilliseconds = milliseconds;
    outcome.succeeded = succeeded;
    return outcome;
}

enum Series {
    Median,
    Percentile,
    Succeeded,
    Failed
};

class TimingViewTest : public testing::Test {
protected:
    void Show(const std::vector<CallOutcome>& outcomes)
    {
        std::vector<const explorer::RunSummary*> runs;
        runs.reserve(outcomes.size());
        for (const CallOutcome& outcome : outcomes) {
            runs.push_back(&outcome);
        }
        view.Show(runs, runs.empty() ? nullptr : runs.back());
    }

    [[nodiscard]] QString Figure(const char* name) const { return Child<QLabel>(view, name).text(); }

    [[nodiscard]] QChart& Chart() const { return *view.findChild<TimingChart*>()->chart(); }
    [[nodiscard]] QVector<QPointF> Points(Series series) const
    {
        const QList<QPointF> points = qobject_cast<QXYSeries*>(Chart().series().at(series))->points();
        return {points.begin(), points.end()};
    }

    TimingView view;
};

TEST_F(TimingViewTest, ShowsFiguresOfTheRuns)
{
    EXPECT_EQ(Figure("calls"), QStringLiteral("0"));
    EXPECT_EQ(Figure("median"), QStringLiteral("\u2013"));
    Show({Timed(10), Timed(30.26, false), Timed(20)});
    EXPECT_EQ(Figure("calls"), QStringLiteral("3"));
    EXPECT_EQ(Figure("median"), QStringLiteral("20.0 ms"));
    EXPECT_EQ(Figure("percentile"), QStringLiteral("30.3 ms"));
    EXPECT_EQ(Figure("failed"), QStringLiteral("1"));
}

TEST_F(TimingViewTest, ShowsPhasesOfTheRun)
{
    EXPECT_EQ(Figure("parts"), QString());
    CallOutcome outcome = view_test::DeviceCategories();
    outcome.times = explorer::ExchangeTimes{0.5, 11.5, 12.5};
    Show({outcome});
    EXPECT_EQ(Figure("parts"),
              QStringLiteral("This run: sent after 0.5 ms, first byte after 11.5 ms, complete after 12.5 ms"));
    outcome.times->firstByte.reset();
    Show({outcome});
    EXPECT_EQ(Figure("parts"), QStringLiteral("This run: sent after 0.5 ms, no byte within 12.5 ms"));
    outcome.times.reset();
    Show({outcome});
    EXPECT_EQ(Figure("parts"), QString());
}

TEST_F(TimingViewTest, ChartShowsEachRun)
{
    Show({Timed(5)});
    Show({Timed(10), Timed(30, false), Timed(20)});
    EXPECT_EQ(Points(Succeeded), (QVector<QPointF>{{1, 10}, {3, 20}}));
    EXPECT_EQ(Points(Failed), (QVector<QPointF>{{2, 30}}));
    EXPECT_EQ(Points(Median), (QVector<QPointF>{{0.5, 20}, {3.5, 20}}));
    EXPECT_EQ(Points(Percentile), (QVector<QPointF>{{0.5, 30}, {3.5, 30}}));
    const auto axes = Chart().axes(Qt::Vertical);
    const auto* pTimes = qobject_cast<QValueAxis*>(axes.constFirst());
    EXPECT_EQ(pTimes->min(), 0.0);
    EXPECT_TRUE(pTimes->max() > 30);
}

TEST_F(TimingViewTest, ColoursFollowThePalette)
{
    Show({Timed(10)});
    const QChart& chart = Chart();
    for (const QPalette& palette : {view_test::LightPalette(), view_test::DarkPalette()}) {
        view.setPalette(palette);
        EXPECT_EQ(chart.backgroundBrush().color(), palette.color(QPalette::Window));
        EXPECT_EQ(chart.plotAreaBackgroundBrush().color(), palette.color(QPalette::Base));
        const auto axes = chart.axes();
        for (const auto* pAxis : axes) {
            EXPECT_EQ(pAxis->labelsColor(), palette.color(QPalette::WindowText));
        }
        const auto all = chart.series();
        for (const auto* pSeries : all) {
            const QColor colour = qobject_cast<const QXYSeries*>(pSeries)->color();
            EXPECT_TRUE(qAbs(colour.lightness() - palette.color(QPalette::Base).lightness()) > 60);
        }
    }
}

TEST_F(TimingViewTest, RepeatButtonRequestsRepetition)
{
    QSignalSpy requests(&view, &TimingView::RepeatRequested);
    Child<QSpinBox>(view, "times").setValue(37);
    Child<QPushButton>(view, "repeat").click();
    ASSERT_EQ(requests.count(), 1);
    EXPECT_EQ(requests[0][0].toInt(), 37);
}

TEST_F(TimingViewTest, ShowsProgressUntilAllRunsAreDone)
{
    auto& progress = Child<QProgressBar>(view, "progress");
    auto& repeat = Child<QPushButton>(view, "repeat");
    EXPECT_FALSE(progress.isVisibleTo(&view));
    view.SetProgress(0, 3);
    EXPECT_TRUE(progress.isVisibleTo(&view));
    EXPECT_TRUE(Child<QPushButton>(view, "cancel").isVisibleTo(&view));
    EXPECT_FALSE(repeat.isEnabled());
    view.SetProgress(2, 3);
    EXPECT_EQ(progress.value(), 2);
    EXPECT_EQ(progress.maximum(), 3);
    EXPECT_EQ(progress.text(), QStringLiteral("2 of 3"));
    view.SetProgress(3, 3);
    EXPECT_FALSE(progress.isVisibleTo(&view));
    EXPECT_FALSE(Child<QPushButton>(view, "cancel").isVisibleTo(&view));
    EXPECT_TRUE(repeat.isEnabled());
}

TEST_F(TimingViewTest, RequestsCancelOncePerRepetition)
{
    QSignalSpy cancels(&view, &TimingView::CancelRequested);
    auto& cancel = Child<QPushButton>(view, "cancel");
    view.SetProgress(0, 3);
    cancel.click();
    view.SetProgress(1, 3);
    cancel.click();
    ASSERT_EQ(cancels.count(), 1);
    view.SetProgress(0, 0);
    view.SetProgress(0, 2);
    cancel.click();
    ASSERT_EQ(cancels.count(), 2);
}

TEST_F(TimingViewTest, RepeatButtonIsDisabledWithoutCall)
{
    auto& repeat = Child<QPushButton>(view, "repeat");
    view.SetRepeatEnabled(false);
    EXPECT_FALSE(repeat.isEnabled());
    view.SetProgress(1, 1);
    EXPECT_FALSE(repeat.isEnabled());
    view.SetRepeatEnabled(true);
    EXPECT_TRUE(repeat.isEnabled());
}

TEST_F(TimingViewTest, Screenshots)
{
    using view_test::TakeScreenshots;
    const QSize size(700, 360);
    TakeScreenshots(view, QStringLiteral("timing-empty"), size);
    Show({Timed(12.4)});
    TakeScreenshots(view, QStringLiteral("timing-one"), size);
    constexpr int kRuns = 60;
    std::vector<CallOutcome> runs;
    runs.reserve(kRuns);
    for (int run = 0; run < kRuns; ++run) {
        runs.push_back(Timed(8 + (run * 37) % 23 + (run % 17 == 0 ? 60 : 0), run % 19 != 5));
    }
    Show(runs);
    view.SetProgress(60, 200);
    TakeScreenshots(view, QStringLiteral("timing-repeat"), size);
}

}  // namespace
