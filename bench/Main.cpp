#include "Bench.h"

#include <QApplication>

#include <benchmark/benchmark.h>

#include <cstdlib>

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");  // gives the same results with and without a screen
    }
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return EXIT_FAILURE;
    }
    bench::RegisterBenchmarks();
    constexpr int kNothingToRun = 2;
    return benchmark::RunSpecifiedBenchmarks() > 0 ? EXIT_SUCCESS : kNothingToRun;
}
