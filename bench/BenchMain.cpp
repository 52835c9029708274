// The one entry of all benchmarks: a QGuiApplication on the offscreen platform, so that fonts and
// images work without a display, then Google Benchmark.
#include <QGuiApplication>
#include <benchmark/benchmark.h>

#include <cstdlib>

int main(int argc, char** argv) {
    if (!std::getenv("QT_QPA_PLATFORM")) setenv("QT_QPA_PLATFORM", "offscreen", 1);
    QGuiApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
