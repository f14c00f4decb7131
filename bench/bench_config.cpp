#include "config/UIAPIGlobalVar.h"

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>
#include <QTemporaryDir>

#include <vector>

// Configuration start-up beside a bare parse of the same bytes, and a persisted setter beside a bare safe
// write of the same bytes.

namespace {

using KVCAM::UIAPI::UIAPIGlobalVar;

constexpr char const * fileNames[] = {"server.json", "automatrix.json", "attributes.json",
                                      "cammatenodes.json"};

QByteArray contentOf(QString const & path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void write(QString const & path, QByteArray const & bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        qFatal("cannot write %s", qUtf8Printable(path));
    }
}

QByteArray manyTemplates(int count)
{
    // The sample's templates repeated, each under its own name.
    QJsonObject top =
        QJsonDocument::fromJson(contentOf(QStringLiteral(CONFIG_SAMPLE "/automatrix.json"))).object();
    QJsonArray const samples = top["template"].toArray();
    QJsonArray all;
    for (int i = 0; i < count; ++i) {
        QJsonObject tmpl = samples.at(i % samples.size()).toObject();
        tmpl["name"] = QStringLiteral("template %1").arg(i);
        all.append(tmpl);
    }
    top["template"] = all;
    return QJsonDocument(top).toJson();
}

QByteArray manyAttributes(int count)
{
    QJsonObject top =
        QJsonDocument::fromJson(contentOf(QStringLiteral(CONFIG_SAMPLE "/attributes.json"))).object();
    QJsonArray const samples = top["TotalAttributes"].toArray();
    QJsonArray all;
    for (int i = 0; i < count; ++i) {
        QJsonObject attribute = samples.at(i % samples.size()).toObject();
        attribute["Attribute"] = attribute["Attribute"].toString() + QStringLiteral("_%1").arg(i);
        all.append(attribute);
    }
    top["TotalAttributes"] = all;
    return QJsonDocument(top).toJson();
}

/// A working directory with a configuration, current during its lifetime.
class World
{
public:
    explicit World(bool isLarge)
    {
        QDir::setCurrent(m_directory.path());
        QDir().mkdir("config");
        for (char const * name : fileNames) {
            write(QStringLiteral("config/") + name, contentOf(QStringLiteral(CONFIG_SAMPLE "/") + name));
        }
        if (isLarge) {
            write("config/automatrix.json", manyTemplates(200));
            write("config/attributes.json", manyAttributes(5000));
        }
        for (char const * name : fileNames) {
            contents.push_back(contentOf(QStringLiteral("config/") + name));
            bytes += contents.back().size();
        }
    }
    ~World() { QDir::setCurrent(QDir::rootPath()); }
    World(World const &) = delete;
    World & operator=(World const &) = delete;

    std::vector<QByteArray> contents;
    qint64 bytes = 0;

private:
    QTemporaryDir m_directory;
};

void start(benchmark::State & state, bool isLarge)
{
    World const world(isLarge);
    for (auto _ : state) {
        UIAPIGlobalVar::m_pUIAPIGlobalVarInstance = nullptr; // leaked, as in a process
        benchmark::DoNotOptimize(UIAPIGlobalVar::instance());
    }
    state.counters["bytes"] = static_cast<double>(world.bytes);
}

void bareParse(benchmark::State & state, bool isLarge)
{
    World const world(isLarge);
    for (auto _ : state) {
        for (QByteArray const & content : world.contents) {
            benchmark::DoNotOptimize(QJsonDocument::fromJson(content));
        }
    }
    state.counters["bytes"] = static_cast<double>(world.bytes);
}

// Leaks its results, like a start, so that the heap has no freed blocks to reuse.
void bareParseKept(benchmark::State & state, bool isLarge)
{
    World const world(isLarge);
    auto * kept = new std::vector<QJsonDocument>;
    kept->reserve(static_cast<std::size_t>(state.max_iterations) * world.contents.size());
    for (auto _ : state) {
        for (QByteArray const & content : world.contents) {
            kept->push_back(QJsonDocument::fromJson(content));
        }
    }
    state.counters["bytes"] = static_cast<double>(world.bytes);
}

void bareReadAndParse(benchmark::State & state, bool isLarge)
{
    World const world(isLarge);
    for (auto _ : state) {
        for (char const * name : fileNames) {
            benchmark::DoNotOptimize(QJsonDocument::fromJson(contentOf(QStringLiteral("config/") + name)));
        }
    }
    state.counters["bytes"] = static_cast<double>(world.bytes);
}

// As bareParseKept().
void bareReadAndParseKept(benchmark::State & state, bool isLarge)
{
    World const world(isLarge);
    auto * kept = new std::vector<QJsonDocument>;
    kept->reserve(static_cast<std::size_t>(state.max_iterations) * world.contents.size());
    for (auto _ : state) {
        for (char const * name : fileNames) {
            kept->push_back(QJsonDocument::fromJson(contentOf(QStringLiteral("config/") + name)));
        }
    }
    state.counters["bytes"] = static_cast<double>(world.bytes);
}

BENCHMARK_CAPTURE(start, sample, false)->Iterations(2000)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(bareParse, sample, false)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(bareParseKept, sample, false)->Iterations(2000)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(bareReadAndParse, sample, false)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(bareReadAndParseKept, sample, false)->Iterations(2000)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(start, large, true)->Iterations(50)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(bareParse, large, true)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(bareParseKept, large, true)->Iterations(50)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(bareReadAndParse, large, true)->Unit(benchmark::kMicrosecond);

void persistedSetter(benchmark::State & state)
{
    World const world(false);
    UIAPIGlobalVar::m_pUIAPIGlobalVarInstance = nullptr;
    UIAPIGlobalVar & global = *UIAPIGlobalVar::instance();
    int timeout = 0;
    for (auto _ : state) {
        global.setTimeout(++timeout);
    }
}
BENCHMARK(persistedSetter)->Unit(benchmark::kMicrosecond)->UseRealTime();

void bareSaveFile(benchmark::State & state)
{
    World const world(false);
    UIAPIGlobalVar::m_pUIAPIGlobalVarInstance = nullptr;
    UIAPIGlobalVar::instance()->setTimeout(1);
    QByteArray const saved = contentOf("config/server.json"); // what the setter writes
    for (auto _ : state) {
        QSaveFile file("config/server.json");
        if (!file.open(QIODevice::WriteOnly | QIODevice::Text) || file.write(saved) < 0 || !file.commit()) {
            state.SkipWithError("cannot save");
        }
    }
}
BENCHMARK(bareSaveFile)->Unit(benchmark::kMicrosecond)->UseRealTime();

} // namespace

int main(int argc, char ** argv)
{
    QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
