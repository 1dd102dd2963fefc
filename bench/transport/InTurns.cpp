#include "InTurns.h"

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

class InTurns {
public:
    InTurns(int nRounds, std::vector<Turn> turns)
        : m_nRounds(nRounds), m_turns(std::move(turns)), m_progress(m_turns.size())
    {}

    void Report(benchmark::State& state, std::size_t nTurn)
    {
        Values values = MediansOf(nTurn, state.max_iterations);
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
    Values MediansOf(std::size_t nTurn, benchmark::IterationCount nIterations)
    {
        Progress& progress = m_progress[nTurn];
        if (progress.nIterations == nIterations) {
            ++progress.nRepetition;
        }
        progress.nIterations = nIterations;
        while (m_medians.size() <= progress.nRepetition) {
            Measure();
        }
        return m_medians[progress.nRepetition][nTurn];
    }

    void Measure()
    {
        std::vector<std::vector<Values>> values(m_turns.size());
        for (std::size_t nFirst = 0; nFirst < m_turns.size(); nFirst += kAtATime) {
            const std::size_t nEnd = std::min(nFirst + kAtATime, m_turns.size());
            for (int i = 0; i < m_nRounds; ++i) {
                for (std::size_t nTurn = nFirst; nTurn < nEnd; ++nTurn) {
                    values[nTurn].push_back(m_turns[nTurn].measure());
                }
            }
        }
        std::vector<Values>& medians = m_medians.emplace_back();
        std::transform(values.begin(), values.end(), std::back_inserter(medians), Medians);
    }

    const int m_nRounds;
    const std::vector<Turn> m_turns;
    std::vector<Progress> m_progress;
    std::vector<std::vector<Values>> m_medians;  // one row for each repetition
};

}  // namespace

void RegisterInTurns(const std::string& work, int nRounds, std::vector<Turn> turns)
{
    std::vector<std::string> contenders;
    contenders.reserve(turns.size());
    for (const Turn& turn : turns) {
        contenders.push_back(turn.contender);
    }
    const auto pInTurns = std::make_shared<InTurns>(nRounds, std::move(turns));
    for (std::size_t nTurn = 0; nTurn < contenders.size(); ++nTurn) {
        benchmark::RegisterBenchmark((work + '/' + contenders[nTurn]).c_str(), [=](benchmark::State& state) {
            pInTurns->Report(state, nTurn);
        })->UseManualTime();
    }
}

}  // namespace bench
