// The workbench's board picture of a layer with 100,000 features: tracks, vias and pads, as on a large board.
// Measures reading the layer's shapes, painting the whole layer at several zooms, and how long one wheel step
// blocks the event loop; another thread then paints. Small layers made to stop the program are read and
// painted as well: a surface of 32,000 random corners, and 3,000 different thermals and moires.

#include "board/BoardView.h"

#include <KVCAM_API.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QPixmap>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QWheelEvent>

#include <benchmark/benchmark.h>

#include <utility>

using namespace Workbench;

namespace {

constexpr int features = 100000;

void write(QString const & path, QByteArray const & content)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    file.open(QIODevice::WriteOnly);
    file.write(content);
}

// 400 mm x 250 mm of three-segment tracks with a via or a pad at each end.
QByteArray board()
{
    QByteArray text = "UNITS=MM\n$0 r150\n$1 r500\n$2 rect300x1200xr60\n$3 s250\n";
    for (int i = 0; i < features / 5; ++i) {
        double const x = i % 200 * 2.0;
        double const y = i / 200 * 2.5;
        auto const line = [&text](double x1, double y1, double x2, double y2) {
            text += QString("L %1 %2 %3 %4 0 P 0\n").arg(x1).arg(y1).arg(x2).arg(y2).toLatin1();
        };
        line(x, y, x + 1, y);
        line(x + 1, y, x + 1.4, y + 0.4);
        line(x + 1.4, y + 0.4, x + 1.4, y + 2);
        text += QString("P %1 %2 1 P 0 0\n").arg(x).arg(y).toLatin1();
        text += QString("P %1 %2 %3 P 0 %4\n").arg(x + 1.4).arg(y + 2).arg(2 + i % 2).arg(i % 4).toLatin1();
    }
    return text;
}

QByteArray place(QRandomGenerator & random)
{
    return QString("%1 %2").arg(random.bounded(400.0)).arg(random.bounded(250.0)).toLatin1();
}

QByteArray jungle()
{
    QRandomGenerator random(1);
    QByteArray const first = place(random);
    QByteArray text = "UNITS=MM\nS P 0\nOB " + first + " I\n";
    for (int i = 1; i < 32000; ++i) {
        text += "OS " + place(random) + '\n';
    }
    return text + "OS " + first + "\nOE\nSE\n";
}

// `symbol` with a number in it.
QByteArray pads(QString const & symbol)
{
    QRandomGenerator random(1);
    QByteArray table = "UNITS=MM\n";
    QByteArray records;
    for (int i = 0; i < 3000; ++i) {
        table += '$' + QByteArray::number(i) + ' ' + symbol.arg(4000 + i).toLatin1() + '\n';
        records += "P " + place(random) + ' ' + QByteArray::number(i) + " P 0 0\n";
    }
    return table + records;
}

class Board
{
public:
    Board()
    {
        QString const job = m_folder.filePath("large");
        QByteArray matrix = "STEP {\nCOL=1\nNAME=PCB\n}\n";
        for (auto const & [name, content] : {std::pair("TOP", board()), std::pair("JUNGLE", jungle()),
                                             std::pair("THERMALS", pads("thr%1x2000x0x100x20")),
                                             std::pair("MOIRES", pads("moire20x20x100x20x%1x7"))}) {
            matrix += "LAYER {\nROW=" + QByteArray::number(++m_rows) +
                      "\nCONTEXT=BOARD\nTYPE=SIGNAL\nNAME=" + name + "\nPOLARITY=POSITIVE\nOLD_NAME=\n}\n";
            write(job + "/steps/pcb/layers/" + QString(name).toLower() + "/features", content);
        }
        write(job + "/matrix/matrix", matrix);
        write(job + "/steps/pcb/stephdr", "UNITS=MM\n");
        KVCAM::API::open_job(m_folder.path().toStdString(), "large");
        std::vector<std::string> steps;
        KVCAM::API::get_matrix("large", steps, layers);
        layer = layers.at(0);
        view = new BoardView("large", "pcb", KVCAM::UIAPI::Ext::Unit::Millimetre);
        view->resize(1000, 700);
        view->showLayer(layer);
        view->show();
        QApplication::processEvents();
    }
    /// Never destroyed: a registered view stays registered.
    static Board & get()
    {
        static auto * const board = new Board;
        return *board;
    }
    void zoom(int steps)
    {
        view->zoomHome();
        for (int i = 0; i < steps; ++i) {
            view->zoomIn();
        }
    }

    BoardView * view;
    std::vector<KVCAM::API::layer_info> layers;
    KVCAM::API::layer_info layer;

private:
    QTemporaryDir m_folder;
    int m_rows = 0;
};

void readShapes(benchmark::State & state)
{
    Board const & board = Board::get();
    for (auto _ : state) {
        LayerShapes const layer("large", "pcb", board.layer);
        if (layer.shapes().size() != features) {
            state.SkipWithError("the layer was not read");
        }
    }
}
BENCHMARK(readShapes)->Unit(benchmark::kMillisecond);

// The argument is the number of zoom steps; each multiplies the scale by 1.5.
void paintWhole(benchmark::State & state)
{
    Board & board = Board::get();
    for (auto _ : state) {
        board.zoom(static_cast<int>(state.range(0)));
        board.view->finishPicture();
    }
}
BENCHMARK(paintWhole)->Arg(0)->Arg(2)->Arg(4)->Arg(8)->Unit(benchmark::kMillisecond);

void wheelStep(benchmark::State & state)
{
    Board & board = Board::get();
    board.zoom(0);
    board.view->finishPicture();
    QPixmap screen(board.view->size());
    int notch = 120;
    for (auto _ : state) {
        QWheelEvent event({300, 300}, {300, 300}, {}, {0, notch}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(board.view, &event);
        board.view->render(&screen);
        notch = -notch;
    }
}
BENCHMARK(wheelStep)->Unit(benchmark::kMillisecond);

// What blocks the window: reading. The argument is the row of the layer.
void readHostile(benchmark::State & state)
{
    Board const & board = Board::get();
    for (auto _ : state) {
        LayerShapes const layer("large", "pcb", board.layers.at(static_cast<std::size_t>(state.range(0))));
        benchmark::DoNotOptimize(layer.shapes().data());
    }
}
BENCHMARK(readHostile)->Arg(1)->Arg(2)->Arg(3)->Unit(benchmark::kMillisecond);

// What does not: the picture. Row and zoom steps.
void paintHostile(benchmark::State & state)
{
    Board & board = Board::get();
    board.view->showLayer(board.layers.at(static_cast<std::size_t>(state.range(0))));
    for (auto _ : state) {
        board.zoom(static_cast<int>(state.range(1)));
        board.view->finishPicture();
    }
    board.view->showLayer(board.layer);
}
BENCHMARK(paintHostile)->ArgsProduct({{1, 2, 3}, {0, 8}})->Unit(benchmark::kMillisecond);

} // namespace
