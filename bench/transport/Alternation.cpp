#include "Alternation.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <memory>

namespace bench {
namespace {

double Median(std::vector<double> values)
{
    const auto middle = values.begin() + std::ptrdiff_t(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

Values Medians(const std::vector<Values>& rounds)
{
    Values medians;
    for (const auto& [counter, first] : rounds.front()) {
        std::vector<double> values;
        values.reserve(rounds.size());
        for (const Values& round : rounds) {
            values.push_back(round.at(counter));
        }
        medians[counter] = Median(std::move(values));
    }
    return medians;
}

class Alternation {
public:
    Alternation(int nRounds, std::vector<Contender> contenders)
        : m_nRounds(nRounds), m_contenders(std::move(contenders)), m_progress(m_contenders.size())
    {}

    void Report(benchmark::State& state, std::size_t nContender)
    {
        Values values = MediansOf(nContender, state.max_iterations);
        constexpr double kLongEnough = 1;  // for benchmarks that do not measure time
        const auto time = values.extract(kSeconds);
        const double seconds = time ? time.mapped() * double(state.max_iterations) : kLongEnough;
        while (state.KeepRunningBatch(state.max_iterations)) {
            state.SetIterationTime(seconds);
        }
        state.counters.insert(values.begin(), values.end());
    }

private:
    static constexpr std::size_t kAtATime = 2;

    struct Progress {
        benchmark::IterationCount nIterations = 0;
        std::size_t nRepetition = 0;
    };

    /// A growing number of iterations means that Google Benchmark still calibrates the same repetition.
    Values MediansOf(std::size_t nContender, benchmark::IterationCount nIterations)
    {
        Progress& progress = m_progress[nContender];
        if (progress.nIterations == nIterations) {
            ++progress.nRepetition;
        }
        progress.nIterations = nIterations;
        while (m_medians.size() <= progress.nRepetition) {
            Measure();
        }
        return m_medians[progress.nRepetition][nContender];
    }

    void Measure()
    {
        std::vector<std::vector<Values>> values(m_contenders.size());
        for (std::size_t nFirst = 0; nFirst < m_contenders.size(); nFirst += kAtATime) {
            const std::size_t nEnd = std::min(nFirst + kAtATime, m_contenders.size());
            for (int i = 0; i < m_nRounds; ++i) {
                for (std::size_t nContender = nFirst; nContender < nEnd; ++nContender) {
                    values[nContender].push_back(m_contenders[nContender].measure());
                }
            }
        }
        std::vector<Values>& medians = m_medians.emplace_back();
        std::transform(values.begin(), values.end(), std::back_inserter(medians), Medians);
    }

    const int m_nRounds;
    const std::vector<Contender> m_contenders;
    std::vector<Progress> m_progress;
    std::vector<std::vector<Values>> m_medians;  // one row for each repetition
};

}  // namespace

Values Time(const std::function<void()>& work)
{
    QElapsedTimer clock;
    clock.start();
    work();
    constexpr double kPerSecond = 1e9;
    return {{kSeconds, double(clock.nsecsElapsed()) / kPerSecond}};
}

std::vector<double> Lateness(int nInterval, const std::function<void()>& work)
{
    std::vector<double> lateness;
    QElapsedTimer clock;
    QTimer timer;
    timer.setTimerType(::Qt::PreciseTimer);
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
        constexpr double kNanoPerMilli = 1e6;
        lateness.push_back(double(clock.nsecsElapsed()) / kNanoPerMilli - nInterval);
        clock.start();
    });
    timer.start(nInterval);
    clock.start();
    work();
    std::sort(lateness.begin(), lateness.end());
    return lateness;
}

Values Stall(const std::function<void()>& work)
{
    constexpr int kTick = 1;
    const auto all = [&work] {
        work();
        Idle(2 * kTick);  // for the tick that the end of the work delayed
    };
    return {{"stall_ms", Lateness(kTick, all).back()}};
}

void Idle(int nMilliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(nMilliseconds, ::Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

void RegisterAlternating(const std::string& work, int nRounds, std::vector<Contender> contenders)
{
    std::vector<std::string> names;
    names.reserve(contenders.size());
    for (const Contender& contender : contenders) {
        names.push_back(contender.name);
    }
    const auto pAlternation = std::make_shared<Alternation>(nRounds, std::move(contenders));
    for (std::size_t nContender = 0; nContender < names.size(); ++nContender) {
        benchmark::RegisterBenchmark((work + '/' + names[nContender]).c_str(), [=](benchmark::State& state) {
            pAlternation->Report(state, nContender);
        })->UseManualTime();
    }
}

}  // namespace bench
