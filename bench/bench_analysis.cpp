#include "analysis/AnalysisReport.h"
#include "analysis/Unified_AnalysisResult.h"
#include "uiapi/UIAPICommonPara.h"

#include <benchmark/benchmark.h>
#include <json/reader.h>
#include <json/writer.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>
#include <QTemporaryDir>

#include <algorithm>
#include <array>
#include <cstdint>
#include <map>
#include <random>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// Baselines: filing beside copying the entries and sorting their keys, the summary beside the same document
// with bare jsoncpp, a report beside its numbers alone, the range files beside a bare parse, a query beside a
// copy of its answer.

namespace {

using namespace KVCAM::UIAPI;

using SignalReplies = std::map<std::string, std::map<signal_layers_checks_items, signal_check_result>>;

constexpr auto lines = static_cast<signal_layers_checks_items>(46);

// Kinds: the same for all entries, or cycling. Every entry has eight points, enough for the key of each kind.
std::vector<check_info> entries(std::size_t count, bool isMixed)
{
    std::mt19937 random(7);
    std::uniform_int_distribution<int> size(50, 5000000);
    std::vector<check_info> made(count);
    for (std::size_t i = 0; i < count; ++i) {
        made[i].type = isMixed ? static_cast<int>(std::array{0, 1, 2, 3, 5}[i % 5]) : 1;
        made[i].points = {1, 2, size(random), 4, size(random), 6, size(random), 8};
    }
    return made;
}

SignalReplies oneItem(std::vector<check_info> list)
{
    SignalReplies replies;
    replies["top"][lines].lists[0] = std::move(list);
    return replies;
}

void file(benchmark::State & state, bool isMixed)
{
    SignalReplies replies = oneItem(entries(static_cast<std::size_t>(state.range(0)), isMixed));
    for (auto _ : state) {
        Unified_AnalysisResult::instance()->setSignalLayerCheckResult(replies);
    }
    state.SetComplexityN(state.range(0));
}

// The copy replaces the previous one, as filing does.
void copyAndSortKeys(benchmark::State & state)
{
    SignalReplies const replies = oneItem(entries(static_cast<std::size_t>(state.range(0)), false));
    std::vector<check_info> const & list = replies.at("top").at(lines).lists[0];
    std::vector<check_info> held;
    for (auto _ : state) {
        std::vector<check_info> copy = list;
        std::vector<int> keys;
        keys.reserve(copy.size());
        for (check_info const & entry : copy) {
            keys.push_back(entry.points[4]);
        }
        std::sort(keys.begin(), keys.end());
        benchmark::DoNotOptimize(keys.data());
        held = std::move(copy);
    }
    state.SetComplexityN(state.range(0));
}

BENCHMARK_CAPTURE(file, one_kind, false)
    ->Arg(10000)
    ->Arg(100000)
    ->Arg(1000000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oNLogN);
BENCHMARK_CAPTURE(file, mixed_kinds, true)
    ->Arg(10000)
    ->Arg(100000)
    ->Arg(1000000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oNLogN);
BENCHMARK(copyAndSortKeys)
    ->Arg(10000)
    ->Arg(100000)
    ->Arg(1000000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oNLogN);

std::string layerName(std::int64_t number)
{
    return "layer_" + std::to_string(number);
}

// Files `count` layers with ten entries each and drops what an earlier row filed.
void fileLayers(std::int64_t count)
{
    SignalReplies replies;
    std::vector<layer_info> rows;
    std::map<unified_check_items, std::map<std::string, unified_check_result>> rest;
    for (std::int64_t i = 0; i < count; ++i) {
        for (int const item : {46, 12, 33}) {
            replies[layerName(i)][static_cast<signal_layers_checks_items>(item)].lists[0] =
                entries(10, false);
        }
        rest[UNIFIED_SLOTS][layerName(i)].groups[3] = entries(10, false);
        rows.push_back({"board", "signal", layerName(count - i), "POS", static_cast<int>(count - i)});
    }
    Unified_AnalysisResult & result = *Unified_AnalysisResult::instance();
    std::map<unified_check_items, std::map<std::string, unified_check_result>> nothing;
    for (unified_check_items const item : {UNIFIED_LINES, UNIFIED_SMD_TO_SMD, UNIFIED_ANNULAR_RINGS}) {
        nothing[item].clear();
    }
    result.setRestResult(nothing);
    result.setSignalLayerCheckResult(replies);
    result.setRestResult(rest);
    result.setLayerInfo(rows);
}

void summary(benchmark::State & state)
{
    fileLayers(state.range(0));
    std::string text;
    for (auto _ : state) {
        Unified_AnalysisResult::instance()->jsonoutput(text);
    }
    state.counters["bytes"] = static_cast<double>(text.size());
}

struct PlainRow
{
    std::string key;
    std::string name;
    std::string unit;
    std::vector<std::pair<std::string, std::string>> result;
};

// The contents of the summary as plain data.
std::vector<PlainRow> plainRows()
{
    std::string text;
    Unified_AnalysisResult::instance()->jsonoutput(text);
    Json::Value document;
    std::istringstream(text) >> document;
    std::vector<PlainRow> rows;
    for (Json::Value const & element : document) {
        Json::Value const & content = *element.begin();
        PlainRow & row = rows.emplace_back();
        row.key = element.getMemberNames().front();
        row.name = content["name"].asString();
        row.unit = content["unit"].asString();
        if (content["result"].isArray()) {
            for (Json::Value const & entry : content["result"]) {
                row.result.emplace_back(entry["layername"].asString(), entry["value"].asString());
            }
        }
    }
    return rows;
}

#if defined(__GNUC__)
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
#elif defined(_MSC_VER)
#pragma warning(disable : 4996)
#endif

void bareJsoncpp(benchmark::State & state)
{
    fileLayers(state.range(0));
    std::vector<PlainRow> const rows = plainRows();
    std::string text;
    for (auto _ : state) {
        Json::Value document(Json::arrayValue);
        for (PlainRow const & row : rows) {
            Json::Value result(Json::arrayValue);
            for (auto const & [layer, value] : row.result) {
                Json::Value entry;
                entry["layername"] = layer;
                entry["value"] = value;
                result.append(std::move(entry));
            }
            Json::Value content;
            content["name"] = row.name;
            content["unit"] = row.unit;
            content["result"] = std::move(result);
            Json::Value element;
            element[row.key] = std::move(content);
            document.append(std::move(element));
        }
        text = Json::StyledWriter().write(document);
    }
    state.counters["bytes"] = static_cast<double>(text.size());
}

BENCHMARK(summary)->Arg(16)->Arg(1000)->Unit(benchmark::kMicrosecond);
BENCHMARK(bareJsoncpp)->Arg(16)->Arg(1000)->Unit(benchmark::kMicrosecond);

void query(benchmark::State & state)
{
    fileLayers(state.range(0));
    for (auto _ : state) {
        std::vector<std::pair<std::string, std::vector<check_info>>> out;
        Unified_AnalysisResult::instance()->getUnifiedResult(UNIFIED_LINES, 0, out);
        benchmark::DoNotOptimize(out.data());
    }
    state.SetComplexityN(state.range(0));
}

void bareCopy(benchmark::State & state)
{
    fileLayers(state.range(0));
    std::vector<std::pair<std::string, std::vector<check_info>>> answer;
    Unified_AnalysisResult::instance()->getUnifiedResult(UNIFIED_LINES, 0, answer);
    for (auto _ : state) {
        auto copy = answer;
        benchmark::DoNotOptimize(copy.data());
    }
}

BENCHMARK(query)->Arg(16)->Arg(1000)->Unit(benchmark::kMicrosecond);
BENCHMARK(bareCopy)->Arg(16)->Arg(1000)->Unit(benchmark::kMicrosecond);

// --- Reports -----------------------------------------------------------------------------------------

// Spacings all over a board, between some thousand nets.
Ext::AnalysisReport report(std::int64_t count)
{
    std::mt19937 random(7);
    std::uniform_int_distribution<int> place(0, 400000);
    std::uniform_int_distribution<int> gap(50, 200);
    std::vector<check_info> list(static_cast<std::size_t>(count));
    for (check_info & each : list) {
        int const x = place(random);
        int const y = place(random);
        int const distance = gap(random);
        each = {2, distance * 10 / 254, {x, y, x + distance, y, distance}};
    }
    Ext::AnalysisReport made;
    made.setJobStep("board", "pcb");
    made.setLevels("SignalLayerRanges", {{"Lines", 3, 4, 5}});
    made.setNetLookup([](std::string_view, int, std::string const &, int, std::size_t index) {
        return Ext::EntryNets{"NET_" + std::to_string(index % 4999), "GND"};
    });
    made.addSignal(oneItem(std::move(list)));
    return made;
}

void writeText(benchmark::State & state, Ext::ReportFormat format)
{
    Ext::AnalysisReport const made = report(state.range(0));
    QByteArray text;
    for (auto _ : state) {
        text = Ext::reportText(made, format);
    }
    state.counters["bytes"] = static_cast<double>(text.size());
}

// The same numbers, printed without names, ids or texts around them.
void bareNumbers(benchmark::State & state)
{
    Ext::AnalysisReport const made = report(state.range(0));
    for (auto _ : state) {
        QByteArray text;
        for (Ext::ReportEntry const & entry : made.categories().front().entries) {
            for (double const value : {entry.measured->toMicrometres(), entry.measured->toMil(),
                                       entry.position->x, entry.position->y, entry.places[0].x,
                                       entry.places[0].y, entry.places[1].x, entry.places[1].y}) {
                text += QByteArray::number(value, 'g', QLocale::FloatingPointShortest) + ' ';
            }
        }
        benchmark::DoNotOptimize(text.data());
    }
}

BENCHMARK_CAPTURE(writeText, json, Ext::ReportFormat::Json)
    ->Arg(100000)
    ->Arg(1000000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(writeText, csv, Ext::ReportFormat::Csv)
    ->Arg(100000)
    ->Arg(1000000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(bareNumbers)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond);

// --- Range files --------------------------------------------------------------------------------------

/// A working directory with a range file for every table, current during its lifetime.
class World
{
public:
    explicit World(bool hasRanges)
    {
        QDir::setCurrent(m_directory.path());
        if (!hasRanges) {
            return;
        }
        QDir().mkpath("config/ranges/all");
        for (std::string const & table : Ext::categoryTables()) {
            write(QString::fromStdString(table));
        }
    }
    ~World() { QDir::setCurrent(QDir::rootPath()); }
    World(World const &) = delete;
    World & operator=(World const &) = delete;

    std::vector<QByteArray> contents;
    std::vector<QString> paths;
    qint64 bytes = 0;

private:
    void write(QString const & table)
    {
        QJsonArray list;
        for (int i = 0; i < 100; ++i) {
            std::string const name = UIAPICommonPara::instance()->getRangesName(table.toStdString(), i);
            if (!name.empty()) {
                list.append(QJsonObject{{"name", QString::fromStdString(name)},
                                        {"RedLv", "3.5"},
                                        {"YellowLv", "4"},
                                        {"GreenLv", "5.25"}});
            }
        }
        paths.push_back("config/ranges/all/" + table + ".json");
        contents.push_back(QJsonDocument(QJsonObject{{"rangesList", list}}).toJson());
        bytes += contents.back().size();
        QFile file(paths.back());
        if (!file.open(QIODevice::WriteOnly) || file.write(contents.back()) < 0) {
            qFatal("cannot write %s", qUtf8Printable(paths.back()));
        }
    }

    QTemporaryDir m_directory;
};

void start(benchmark::State & state, bool hasRanges)
{
    World const world(hasRanges);
    for (auto _ : state) {
        UIAPICommonPara::m_pUIAPICommonParaInstance = nullptr; // leaked, as in a process
        benchmark::DoNotOptimize(UIAPICommonPara::instance());
    }
    state.counters["bytes"] = static_cast<double>(world.bytes);
}

void bareParse(benchmark::State & state)
{
    World const world(true);
    for (auto _ : state) {
        for (QByteArray const & content : world.contents) {
            benchmark::DoNotOptimize(QJsonDocument::fromJson(content));
        }
    }
    state.counters["bytes"] = static_cast<double>(world.bytes);
}

void bareReadAndParse(benchmark::State & state)
{
    World const world(true);
    for (auto _ : state) {
        for (QString const & path : world.paths) {
            QFile file(path);
            file.open(QIODevice::ReadOnly);
            benchmark::DoNotOptimize(QJsonDocument::fromJson(file.readAll()));
        }
    }
    state.counters["bytes"] = static_cast<double>(world.bytes);
}

// Leaks its results, like a start, so that the heap has no freed blocks to reuse.
void bareReadAndParseKept(benchmark::State & state)
{
    World const world(true);
    auto * kept = new std::vector<QJsonDocument>;
    kept->reserve(static_cast<std::size_t>(state.max_iterations) * world.paths.size());
    for (auto _ : state) {
        for (QString const & path : world.paths) {
            QFile file(path);
            file.open(QIODevice::ReadOnly);
            kept->push_back(QJsonDocument::fromJson(file.readAll()));
        }
    }
    state.counters["bytes"] = static_cast<double>(world.bytes);
}

BENCHMARK_CAPTURE(start, without_ranges, false)->Iterations(500)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(start, with_14_range_files, true)->Iterations(500)->Unit(benchmark::kMicrosecond);
BENCHMARK(bareParse)->Unit(benchmark::kMicrosecond);
BENCHMARK(bareReadAndParse)->Unit(benchmark::kMicrosecond);
BENCHMARK(bareReadAndParseKept)->Iterations(500)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char ** argv)
{
    QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
