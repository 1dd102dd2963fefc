#pragma once

#include <QtCharts/QChartView>
#include <QtCharts/QLineSeries>
#include <QtCharts/QScatterSeries>
#include <QtCharts/QValueAxis>

#include <deque>
#include <vector>

/// Where Qt 5 has its charts.
namespace QtCharts {}

namespace explorer {

using namespace QtCharts;

/// The elapsed times of the last calls with their median and their 95th percentile.
class TimingChart : public QChartView {
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
    void AddSeries(QAbstractSeries* pSeries, const QString& name);
    void Tell(const QPointF& point, bool entered);
    [[nodiscard]] std::vector<double> Times() const;
    /// The number of the first call that is kept.
    [[nodiscard]] int First() const { return m_added - int(m_calls.size()) + 1; }

    std::deque<Call> m_calls;
    int m_added = 0;
    QScatterSeries* m_pSucceeded;
    QScatterSeries* m_pFailed;
    QLineSeries* m_pMedian;
    QLineSeries* m_pPercentile;
    QValueAxis* m_pNumbers;
    QValueAxis* m_pTimes;
};

}  // namespace explorer
