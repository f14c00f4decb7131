#include "analysis/ReportComparison.h"
#include "analysis/ReportReader.h"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <random>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

// Baselines: comparing beside making the ids of both reports and finding them in a hash table, reading beside
// one pass over the bytes.

namespace {

using namespace KVCAM::UIAPI;

constexpr char const * table = "SignalLayerRanges";

// Spacings on eight layers between five hundred nets, all with a colour.
Ext::AnalysisReport reportOf(std::int64_t count, double shift)
{
    std::mt19937 random(7);
    std::uniform_int_distribution<int> place(0, 300000);
    std::uniform_int_distribution<int> value(50, 150);
    std::vector<Ext::ReportEntry> entries(static_cast<std::size_t>(count));
    for (std::size_t i = 0; i < entries.size(); ++i) {
        KVCAM::API::point const at{place(random) + shift, static_cast<double>(place(random))};
        entries[i].layer = "layer_" + std::to_string(i % 8);
        entries[i].measured = Ext::Length::fromMicrometres(value(random));
        entries[i].position = KVCAM::API::point{at.x + 30, at.y};
        entries[i].places = {at, {at.x + 60, at.y}};
        entries[i].nets = {"NET_" + std::to_string(i % 500), "GND"};
    }
    Ext::AnalysisReport report;
    report.setLevelUnit(Ext::Unit::Millimetre);
    report.setLevels(table, {{"Circuit to circuit", 100, 120, 150}});
    report.addEntries(table, 3, std::move(entries));
    return report;
}

// Without a shift all ids are equal; with one all violations are found by their places.
void compare(benchmark::State & state, double shift)
{
    Ext::AnalysisReport const before = reportOf(state.range(0), 0);
    Ext::AnalysisReport const after = reportOf(state.range(0), shift);
    for (auto _ : state) {
        benchmark::DoNotOptimize(Ext::compareReports(before, after));
    }
}

void bareIds(benchmark::State & state)
{
    Ext::AnalysisReport const before = reportOf(state.range(0), 0);
    Ext::AnalysisReport const after = reportOf(state.range(0), 0);
    for (auto _ : state) {
        std::unordered_map<std::string, std::size_t> known;
        for (std::string & id : Ext::violationIds(before.categories()[0])) {
            known.emplace(std::move(id), known.size());
        }
        std::size_t found = 0;
        for (std::string const & id : Ext::violationIds(after.categories()[0])) {
            found += known.count(id);
        }
        benchmark::DoNotOptimize(found);
    }
}

void read(benchmark::State & state)
{
    QByteArray const text = Ext::reportText(reportOf(state.range(0), 0), Ext::ReportFormat::Json);
    for (auto _ : state) {
        Ext::AnalysisReport report;
        benchmark::DoNotOptimize(Ext::parseReport(text, report).ok);
    }
    state.counters["bytes"] = text.size();
}

void barePass(benchmark::State & state)
{
    QByteArray const text = Ext::reportText(reportOf(state.range(0), 0), Ext::ReportFormat::Json);
    for (auto _ : state) {
        benchmark::DoNotOptimize(text.count('"'));
    }
    state.counters["bytes"] = text.size();
}

BENCHMARK_CAPTURE(compare, equal_ids, 0.0)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(compare, all_moved, 20.0)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(bareIds)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(read)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(barePass)->Arg(100000)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
