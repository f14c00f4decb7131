#include <benchmark/benchmark.h>

#include <QApplication>

// main() for benchmarks with widgets: creates an application, offscreen unless told otherwise.
int main(int argc, char ** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication const application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
}
