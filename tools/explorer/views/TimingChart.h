#pragma once

#include <QtCharts/QChartView>

#include <deque>
#include <vector>

QT_CHARTS_BEGIN_NAMESPACE
class QLineSeries;
class QScatterSeries;
class QValueAxis;
QT_CHARTS_END_NAMESPACE

namespace explorer {

/// The elapsed times of the last calls with their median and their 95th percentile.
class TimingChart : public QtCharts::QChartView {
    Q_OBJECT

public:
    static constexpr int kKept = 100;

    struct Call {
        QString name;
        double milliseconds;
        bool succeeded;
    };

    explicit TimingChart(QWidget* pParent = nullptr);

    void Add(const Call& call);
    void Clear();

    [[nodiscard]] const std::deque<Call>& Calls() const { return m_calls; }
    [[nodiscard]] double Median() const;
    [[nodiscard]] double Percentile95() const;

protected:
    void changeEvent(QEvent* pEvent) override;

private:
    void Draw();
    void Colour();
    void AddSeries(QtCharts::QAbstractSeries* pSeries, const QString& name);
    void Tell(const QPointF& point, bool entered);
    [[nodiscard]] std::vector<double> Times() const;
    /// The number of the first call that is kept.
    [[nodiscard]] int First() const { return m_added - int(m_calls.size()) + 1; }

    std::deque<Call> m_calls;
    int m_added = 0;
    QtCharts::QScatterSeries* m_pSucceeded;
    QtCharts::QScatterSeries* m_pFailed;
    QtCharts::QLineSeries* m_pMedian;
    QtCharts::QLineSeries* m_pPercentile;
    QtCharts::QValueAxis* m_pNumbers;
    QtCharts::QValueAxis* m_pTimes;
};

}  // namespace explorer
