// The checks of the default engine on boards of 1,000 to 1,000,000 features, beside reading the same files,
// the minimum for any measurement. Boards: pads, tracks and holes spread evenly; the same crowded into a
// thousandth of the area with a few outliers; all pads and holes around one place; so close together that
// each has a spacing; close together in the openings of one plane; inside an outline with as many edges.

#include <EmbeddedChecks.h>
#include <EmbeddedEngine.h>
#include <KVCAM_API.h>

#include <benchmark/benchmark.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <cmath>
#include <random>
#include <string>

using namespace KVCAM;

namespace {

enum Spread
{
    Even,
    Crowded,
    Piled,
    Close,
    Plane,
    Outline
};

void write(QString const & path, QByteArray const & bytes)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        std::abort();
    }
}

QByteArray layer(int row, char const * type, char const * name)
{
    return "LAYER {\nROW=" + QByteArray::number(row) + "\nCONTEXT=BOARD\nTYPE=" + type + "\nNAME=" + name +
           "\nPOLARITY=POSITIVE\n}\n";
}

// A plane around them all, with a square opening for each cell: about as many edges as features.
QByteArray plane(int cells, double pitch)
{
    auto const contour = [](double low, double bottom, double side, char const * kind) {
        auto const at = [](double x, double y) {
            return QByteArray::number(x, 'f', 4) + ' ' + QByteArray::number(y, 'f', 4);
        };
        return "OB " + at(low, bottom) + ' ' + kind + "\nOS " + at(low + side, bottom) + "\nOS " +
               at(low + side, bottom + side) + "\nOS " + at(low, bottom + side) + "\nOE\n";
    };
    QByteArray text = "S P 0\n" + contour(-5, -5, cells * pitch + 10, "I");
    for (int cell = 0; cell < cells * cells; ++cell) {
        // The via of the cell is one millimetre up and to the right.
        text += contour(cell % cells * pitch + 0.6, cell / cells * pitch + 0.6, 0.8, "H");
    }
    return text + "SE\n";
}

// A square whose right side has teeth.
QByteArray outline(int edges, double size)
{
    QByteArray text = "S P 0\nOB -5 -5 I\n";
    for (int i = 0; i < edges; ++i) {
        text += "OS " + QByteArray::number(size + i % 2, 'f', 4) + ' ' +
                QByteArray::number(-5 + (size + 5) * i / edges, 'f', 4) + '\n';
    }
    return text + "OS -5 " + QByteArray::number(size, 'f', 4) + "\nOE\nSE\n";
}

// A layer of `count` features, a third each SMD pads, via pads and tracks; the via holes are on a separate
// layer.
void writeBoard(QString const & folder, int count, Spread spread)
{
    std::mt19937 random(1);
    auto const cells = static_cast<int>(std::ceil(std::sqrt(count / 3.0)));
    double const pitch = spread == Crowded || spread == Piled ? 2.0 / 30 : spread == Even ? 2.0 : 1.7;
    QByteArray copper = "UNITS=MM\n";
    for (int size = 0; size < 100; ++size) {
        copper += '$' + QByteArray::number(size) + " rect" + QByteArray::number(300 + size) + "x600\n";
    }
    copper += "$100 r600\n$101 r150\n@0 .smd\n";
    QByteArray drill = "UNITS=MM\n$0 r300\n@0 .drill\n";
    for (int i = 0; i < count / 3; ++i) {
        bool const far = spread == Crowded && i % 1000 == 0;
        double const x = spread == Piled ? 0 : far ? i * 1000.0 : i % cells * pitch;
        double const y = spread == Piled ? 0 : i / cells * pitch;
        QByteArray const place = QByteArray::number(x, 'f', 4) + ' ' + QByteArray::number(y, 'f', 4);
        QByteArray const via = QByteArray::number(x + 1, 'f', 4) + ' ' + QByteArray::number(y + 1, 'f', 4);
        copper += "P " + place + ' ' + QByteArray::number(static_cast<int>(random() % 100)) + " P 0 8 " +
                  QByteArray::number(static_cast<int>(random() % 360)) + " ;0\n";
        copper += "P " + via + " 100 P 0 0\n";
        copper += "L " + place + ' ' + via + " 101 P 0\n";
        drill += "P " + via + " 0 P 0 0 ;0=2\n";
    }
    double const size = cells * pitch + 10;
    if (spread == Plane) {
        copper += plane(cells, pitch);
    } else if (spread == Outline) {
        write(folder + "/steps/pcb/profile", "UNITS=MM\n" + outline(count, size));
    }
    write(folder + "/matrix/matrix",
          "STEP {\nCOL=1\nNAME=PCB\n}\n" + layer(1, "SIGNAL", "TOP") + layer(2, "DRILL", "DRILL"));
    write(folder + "/steps/pcb/layers/top/features", copper);
    write(folder + "/steps/pcb/layers/drill/features", drill);
}

// The folder of the job "board".
std::string boardFolder(benchmark::State const & state)
{
    static QTemporaryDir const world;
    QString const folder = world.path() + QString("/%1-%2").arg(state.range(0)).arg(state.range(1));
    if (!QFileInfo::exists(folder)) {
        writeBoard(folder + "/board", static_cast<int>(state.range(0)), static_cast<Spread>(state.range(1)));
    }
    return folder.toStdString();
}

void readFiles(benchmark::State & state)
{
    std::string const folder = boardFolder(state);
    for (auto _ : state) {
        API::open_job(folder, "board");
        benchmark::DoNotOptimize(Embedded::isCutToTables("board", "pcb", "top"));
        benchmark::DoNotOptimize(Embedded::isCutToTables("board", "pcb", "drill"));
    }
}

void runChecks(benchmark::State & state)
{
    API::open_job(boardFolder(state), "board");
    benchmark::DoNotOptimize(Embedded::isCutToTables("board", "pcb", "top"));
    Embedded::CheckResults results;
    for (auto _ : state) {
        if (!Embedded::runChecks("board", "pcb", results)) {
            state.SkipWithError(Embedded::lastError().c_str());
        }
    }
    state.counters["perFeature"] =
        benchmark::Counter(static_cast<double>(state.range(0)),
                           benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

} // namespace

BENCHMARK(readFiles)
    ->Unit(benchmark::kMillisecond)
    ->ArgNames({"features", "spread"})
    ->ArgsProduct({{1'000, 10'000, 100'000, 1'000'000}, {Even}});
BENCHMARK(runChecks)
    ->Unit(benchmark::kMillisecond)
    ->ArgNames({"features", "spread"})
    ->ArgsProduct({{1'000, 10'000, 100'000}, {Even, Crowded, Piled}})
    ->ArgsProduct({{10'000, 100'000, 1'000'000}, {Close}})
    ->ArgsProduct({{10'000, 100'000}, {Plane, Outline}});

BENCHMARK_MAIN();
