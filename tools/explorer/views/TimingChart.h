#pragma once

#include <QtCharts/QChartView>
#include <QtCharts/QLineSeries>
#include <QtCharts/QScatterSeries>
#include <QtCharts/QValueAxis>

#include <vector>

/// The namespace of the charts in Qt 5.
namespace QtCharts {}

namespace explorer {

using namespace QtCharts;

/// The elapsed times of calls with their median and their 95th percentile.
class TimingChart : public QChartView {
    Q_OBJECT

public:
    struct Call {
        QString name;  ///< shown at the point
        double milliseconds;
        bool succeeded;
    };

    explicit TimingChart(QWidget* pParent = nullptr);

    void Show(std::vector<Call> calls);

    [[nodiscard]] const std::vector<Call>& Calls() const { return m_calls; }
    [[nodiscard]] double Median() const;
    [[nodiscard]] double Percentile95() const;

protected:
    void changeEvent(QEvent* pEvent) override;

private:
    void Draw();
    void Colour();
    void AddSeries(QAbstractSeries* pSeries, const QString& name);
    void ShowDetails(const QPointF& point, bool entered);
    [[nodiscard]] std::vector<double> Times() const;

    std::vector<Call> m_calls;
    QScatterSeries* m_pSucceeded;
    QScatterSeries* m_pFailed;
    QLineSeries* m_pMedian;
    QLineSeries* m_pPercentile;
    QValueAxis* m_pNumbers;
    QValueAxis* m_pTimes;
};

}  // namespace explorer
