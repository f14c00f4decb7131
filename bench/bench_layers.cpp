// Layer filters and the reference table beside their baselines: fetching the engine's matrix and looking at
// each layer once, or the bare containers.

#include <KVCAM_API.h>
#include <UIAPICommon.h>

#include <benchmark/benchmark.h>

#include <QByteArray>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <map>
#include <string>
#include <vector>

using namespace KVCAM::UIAPI;

namespace {

/// Writes and opens a job in which half of the layers are board signal layers; returns its name.
std::string openJob(int layers)
{
    std::string const name = "job" + std::to_string(layers);
    if (KVCAM::API::is_job_opened(name)) {
        return name;
    }
    QByteArray matrix = "STEP {\n    COL=1\n    NAME=PCB\n}\n";
    for (int i = 1; i <= layers; ++i) {
        QByteArray const number = QByteArray::number(i);
        matrix += "LAYER {\n    ROW=" + number +
                  "\n    CONTEXT=BOARD\n    TYPE=" + (i % 2 == 0 ? "SIGNAL" : "DIELECTRIC") + "\n    NAME=L" +
                  number + "\n    POLARITY=" + (i % 3 == 0 ? "NEGATIVE" : "POSITIVE") + "\n}\n";
    }
    QString const folder = QString::fromStdString(name);
    QFile file(folder + "/matrix/matrix");
    bool const isWritten = QDir().mkpath(folder + "/matrix") && QDir().mkpath(folder + "/steps/pcb/layers") &&
                           file.open(QIODevice::WriteOnly) && file.write(matrix) == matrix.size();
    file.close();
    if (!isWritten || !KVCAM::API::open_job(".", name)) {
        qFatal("cannot make a job");
    }
    return name;
}

QMap<QString, QString> const allFour{
    {"type", "signal|mixed"}, {"context", "board"}, {"side", "inner|bottom"}, {"pos", "positive"}};

void filter(benchmark::State & state)
{
    QString const job = QString::fromStdString(openJob(int(state.range(0))));
    std::vector<std::string> names;
    for (auto _ : state) {
        names.clear();
        UIAPICommonPara::instance()->selectLayersByType(job, names, allFour);
    }
    state.counters["selected"] = double(names.size());
}

void explain(benchmark::State & state)
{
    QString const job = QString::fromStdString(openJob(int(state.range(0))));
    for (auto _ : state) {
        benchmark::DoNotOptimize(Ext::explainLayerFilter(job, allFour));
    }
}

// The predicate as hosts call it, for the last layer in the comparison.
void side(benchmark::State & state)
{
    std::vector<std::string> board;
    for (int i = 0; i < int(state.range(0)); ++i) {
        board.push_back("L" + std::to_string(i));
    }
    layer_info layer;
    layer.name = board.end()[-2];
    QVector<QString> words{"top", "bottom", "inner"};
    for (auto _ : state) {
        benchmark::DoNotOptimize(UIAPICommonPara::instance()->SideLayersFilter(layer, words, board));
    }
}

void bareMatrix(benchmark::State & state)
{
    std::string const job = openJob(int(state.range(0)));
    for (auto _ : state) {
        std::vector<std::string> steps;
        std::vector<layer_info> layers;
        KVCAM::API::get_matrix(job, steps, layers);
        benchmark::DoNotOptimize(layers.data());
    }
}

void bareMatrixAndLook(benchmark::State & state)
{
    std::string const job = openJob(int(state.range(0)));
    std::vector<std::string> names;
    for (auto _ : state) {
        std::vector<std::string> steps;
        std::vector<layer_info> layers;
        KVCAM::API::get_matrix(job, steps, layers);
        names.clear();
        for (layer_info const & layer : layers) {
            if (layer.type == "signal" && layer.context == "board" && layer.polarity == "POS") {
                names.push_back(layer.name);
            }
        }
    }
    state.counters["selected"] = double(names.size());
}

BENCHMARK(filter)->Arg(16)->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond);
BENCHMARK(side)->Arg(16)->Arg(5000)->Unit(benchmark::kMicrosecond);
BENCHMARK(bareMatrixAndLook)->Arg(16)->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond);
BENCHMARK(bareMatrix)->Arg(16)->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond);
BENCHMARK(explain)->Arg(16)->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond);

constexpr int jobCount = 1000;

std::string jobName(int number)
{
    return "a job of the usual length " + std::to_string(number);
}

std::vector<ReferenceLayerInfo> const records{{jobName(1), "pcb", {"top", "bottom", "l2_gnd"}},
                                              {jobName(2), "panel", {"top"}}};

void fillTable()
{
    for (int i = 0; i < jobCount; ++i) {
        for (char const * step : {"pcb", "panel", "array"}) {
            setReferenceLayerInfo(jobName(i), step, records);
        }
    }
}

void referenceGet(benchmark::State & state)
{
    fillTable();
    int number = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(getReferenceLayerInfo(jobName(number++ % jobCount), "panel"));
    }
}

void bareMapGet(benchmark::State & state)
{
    std::map<std::string, std::map<std::string, std::vector<ReferenceLayerInfo>>> table;
    for (int i = 0; i < jobCount; ++i) {
        for (char const * step : {"pcb", "panel", "array"}) {
            table[jobName(i)][step] = records;
        }
    }
    int number = 0;
    for (auto _ : state) {
        std::vector<ReferenceLayerInfo> copy = table.at(jobName(number++ % jobCount)).at("panel");
        benchmark::DoNotOptimize(copy.data());
    }
}

void referenceSet(benchmark::State & state)
{
    fillTable();
    int number = 0;
    for (auto _ : state) {
        setReferenceLayerInfo(jobName(number++ % jobCount), "panel", records);
    }
}

// Renames there and back, so that the table does not change.
void referenceRename(benchmark::State & state)
{
    fillTable();
    int number = 0;
    for (auto _ : state) {
        std::string const owner = jobName(number++ % jobCount);
        renameReferenceLayer(owner, records[0].job, "pcb", "top", "other");
        renameReferenceLayer(owner, records[0].job, "pcb", "other", "top");
    }
}

void compareRename(benchmark::State & state)
{
    fillTable();
    int number = 0;
    for (auto _ : state) {
        std::string const owner = jobName(number++ % jobCount);
        renameCompareJob(owner, "other");
        renameCompareJob("other", owner);
    }
}

BENCHMARK(referenceGet);
BENCHMARK(bareMapGet);
BENCHMARK(referenceSet);
BENCHMARK(referenceRename);
BENCHMARK(compareRename);

} // namespace

int main(int argc, char ** argv)
{
    QCoreApplication application(argc, argv);
    QTemporaryDir const directory;
    if (!directory.isValid() || !QDir::setCurrent(directory.path())) {
        return 2;
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    QDir::setCurrent(QDir::rootPath());
    return 0;
}
