// Makes calls of all families to an emulator that fails at random, for a given time or number of calls.
#include "Soak.h"

#include <faults/Census.h>

#include <CLI/CLI.hpp>

#include <QApplication>
#include <QElapsedTimer>
#include <QTimer>

#include <cstdio>
#include <exception>
#include <iostream>

namespace {

struct Options {
    std::size_t seconds = 0;
    std::size_t calls = 100'000;
    soak::Random::result_type seed = std::random_device()();
    bool showLog = false;
};

/// Samples the process a hundred times during a run.
class Schedule {
public:
    explicit Schedule(const Options& options) : m_options(options) { m_time.start(); }

    [[nodiscard]] double Progress(const soak::Tally& tally) const
    {
        constexpr double kMilliseconds = 1000;
        return m_options.seconds > 0
                   ? static_cast<double>(m_time.elapsed()) / kMilliseconds / static_cast<double>(m_options.seconds)
                   : static_cast<double>(tally.Calls()) / static_cast<double>(m_options.calls);
    }

    void SampleWhenDue(soak::Tally& tally)
    {
        constexpr double kStep = 0.01;
        const double progress = Progress(tally);
        if (progress >= m_next && progress < 1) {
            tally.Sample(progress);
            m_next = progress + kStep;
        }
    }

private:
    const Options m_options;
    QElapsedTimer m_time;
    double m_next = 0;
};

int Run(const Options& options)
{
    std::cout << "soak: seed " << options.seed << std::endl;
    e2e::EmulatorProcess platform({});
    soak::Tally tally;
    soak::Soak soak(platform, options.seed, tally);
    Schedule schedule(options);
    std::exception_ptr failure;

    // Runs from the application's event loop, like the calls of a client.
    QTimer steps;
    QObject::connect(&steps, &QTimer::timeout, &steps, [&] {
        steps.stop();
        try {
            schedule.SampleWhenDue(tally);
            soak.Step();
        } catch (...) {
            failure = std::current_exception();
        }
        if (failure || schedule.Progress(tally) >= 1) {
            QCoreApplication::quit();
        } else {
            steps.start();
        }
    });
    steps.start();
    QCoreApplication::exec();
    if (failure) {
        std::rethrow_exception(failure);
    }
    tally.PrintTables();
    return tally.IsGood(catalogue::Calls().size()) ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv)
{
    constexpr int kWrongUse = 2;
    Options options;
    CLI::App app{
        "soak: makes calls of all families against an emulator that fails at random, and checks that each ends "
        "as expected and that nothing leaks.",
        "soak"};
    CLI::Option* pSeconds = app.add_option("SECONDS", options.seconds, "How long")->check(CLI::PositiveNumber);
    app.add_option("--calls", options.calls, "How many calls, if no time is given")
        ->check(CLI::PositiveNumber)
        ->excludes(pSeconds)
        ->capture_default_str();
    app.add_option("--seed", options.seed, "Repeats a run (default: random)");
    app.add_flag("--log", options.showLog, "Show the log on standard error");
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? 0 : kWrongUse;
    }
    if (!options.showLog && std::freopen("/dev/null", "w", stderr) == nullptr) {
        return kWrongUse;
    }

    testing_support::CountObjects();
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    try {
        return Run(options);
    } catch (const std::exception& error) {
        std::cout << "soak: " << error.what() << std::endl;
        return 1;
    }
}
