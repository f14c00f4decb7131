// View state and units: the flat functions beside their baselines.

#include <KVCAM_API.h>
#include <UIAPICommon.h>

#include <benchmark/benchmark.h>

#include <QString>

#include <algorithm>
#include <cmath>
#include <deque>
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

void bareConversion(benchmark::State & state)
{
    double value = 254.1234;
    for (auto _ : state) {
        benchmark::DoNotOptimize(value);
        double const converted = value * 25.4;
        double const whole = std::trunc(converted);
        benchmark::DoNotOptimize(whole + std::round((converted - whole) * 1000.0) / 1000.0);
    }
}
BENCHMARK(bareConversion);

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

// The minimum for a registration: a scan of the handles, a copy of the record, three engine calls.
void bareRegistration(benchmark::State & state)
{
    std::vector<void const *> scanned;
    std::deque<Step_Config> records;
    for (auto _ : state) {
        Step_Config config;
        config.view = &handles[records.size()];
        benchmark::DoNotOptimize(std::find(scanned.begin(), scanned.end(), config.view));
        scanned.push_back(config.view);
        records.push_back(config);
        KVCAM::API::set_show_para(config.show_param);
        KVCAM::API::set_selection(config.selection);
        KVCAM::API::set_select_param(config.select_info);
    }
}
BENCHMARK(bareRegistration)->Iterations(1000);

// Continues after the 256 views above; each repetition continues where the last one ended.
void flatRegistration(benchmark::State & state)
{
    static int next = 256;
    lastOf(256);
    for (auto _ : state) {
        Step_Config config;
        config.view = &handles[next++];
        benchmark::DoNotOptimize(insertStepConfig(config));
    }
}
BENCHMARK(flatRegistration)->Iterations(1000);

} // namespace

BENCHMARK_MAIN();
