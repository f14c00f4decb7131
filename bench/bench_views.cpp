// View state and units: the flat functions beside what they cannot beat.

#include <UIAPICommon.h>

#include <benchmark/benchmark.h>

#include <QString>

#include <algorithm>
#include <vector>

using namespace KVCAM::UIAPI;

namespace {

char handles[1 << 22];

// Registers views until there are `count`; returns the last of them.
void const * lastOf(int count)
{
    static int registered = 0;
    for (; registered < count; ++registered) {
        Step_Config config;
        config.view = &handles[registered];
        config.show_param.unit = 1;
        insertStepConfig(config);
    }
    return &handles[count - 1];
}

void bareScan(benchmark::State & state)
{
    std::vector<void const *> pointers;
    for (int i = 0; i < state.range(0); ++i) {
        pointers.push_back(&handles[i]);
    }
    void const * wanted = pointers.back();
    for (auto _ : state) {
        benchmark::DoNotOptimize(wanted);
        benchmark::DoNotOptimize(std::find(pointers.begin(), pointers.end(), wanted));
    }
}
BENCHMARK(bareScan)->Arg(1)->Arg(16)->Arg(256);

void flatGetUnit(benchmark::State & state)
{
    void const * const view = lastOf(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        benchmark::DoNotOptimize(getUnit(view));
    }
}
BENCHMARK(flatGetUnit)->Arg(1)->Arg(16)->Arg(256);

void flatGetUnitData(benchmark::State & state)
{
    void const * const view = lastOf(1);
    double value = 254.1234;
    for (auto _ : state) {
        benchmark::DoNotOptimize(value);
        benchmark::DoNotOptimize(getUnitData(view, value));
    }
}
BENCHMARK(flatGetUnitData);

void bareNumberText(benchmark::State & state)
{
    double value = 254.1234;
    for (auto _ : state) {
        benchmark::DoNotOptimize(value);
        benchmark::DoNotOptimize(QString::number(value * 25.4, 'f', 2));
    }
}
BENCHMARK(bareNumberText);

void flatGetUnitJudgeString(benchmark::State & state)
{
    void const * const view = lastOf(1);
    double value = 254.1234;
    for (auto _ : state) {
        benchmark::DoNotOptimize(value);
        benchmark::DoNotOptimize(getUnitJudgeString(view, value, 2));
    }
}
BENCHMARK(flatGetUnitJudgeString);

void bareFixedText(benchmark::State & state)
{
    double value = 100.5;
    for (auto _ : state) {
        benchmark::DoNotOptimize(value);
        benchmark::DoNotOptimize(QString::number(value, 'f', 6));
    }
}
BENCHMARK(bareFixedText);

void flatDoubleToString(benchmark::State & state)
{
    double value = 100.5;
    for (auto _ : state) {
        benchmark::DoNotOptimize(value);
        benchmark::DoNotOptimize(doubleToString(value));
    }
}
BENCHMARK(flatDoubleToString);

// Registration appends, looks the handle up among those before it, and pushes three records: the figure is
// for the views up to the 1000th.
void flatRegistration(benchmark::State & state)
{
    int next = 300;
    for (auto _ : state) {
        Step_Config config;
        config.view = &handles[next++];
        benchmark::DoNotOptimize(insertStepConfig(config));
    }
}
BENCHMARK(flatRegistration)->Iterations(700);

} // namespace

BENCHMARK_MAIN();
