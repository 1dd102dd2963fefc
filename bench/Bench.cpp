#include "Bench.h"

#include <QApplication>

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <iostream>

namespace bench {

void Fail(const std::string& why)
{
    std::cerr << why << std::endl;
    std::_Exit(EXIT_FAILURE);
}

void Require(bool isSame, const std::string& what)
{
    if (!isSame) {
        Fail("not the same: " + what);
    }
}

}  // namespace bench

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");  // the same with a screen and without
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
