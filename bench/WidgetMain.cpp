#include <benchmark/benchmark.h>

#include <QApplication>

// The main function of benchmarks that show widgets: with an application, and without a display unless told.
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
