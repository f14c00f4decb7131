// The workbench's board picture of a layer with 100,000 features: tracks, vias and pads, as on a large board.
// Measures reading the layer's shapes, painting the whole layer at several zooms, and how long one wheel step
// blocks the event loop; painting then continues in slices.

#include "board/BoardView.h"

#include <KVCAM_API.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QPixmap>
#include <QTemporaryDir>
#include <QWheelEvent>

#include <benchmark/benchmark.h>

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

class Board
{
public:
    Board()
    {
        QString const job = m_folder.filePath("large");
        write(job + "/matrix/matrix",
              "STEP {\nCOL=1\nNAME=PCB\n}\nLAYER {\nROW=1\nCONTEXT=BOARD\nTYPE=SIGNAL\n"
              "NAME=TOP\nPOLARITY=POSITIVE\nOLD_NAME=\n}\n");
        write(job + "/steps/pcb/stephdr", "UNITS=MM\n");
        write(job + "/steps/pcb/layers/top/features", board());
        KVCAM::API::open_job(m_folder.path().toStdString(), "large");
        std::vector<std::string> steps;
        std::vector<KVCAM::API::layer_info> layers;
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
    KVCAM::API::layer_info layer;

private:
    QTemporaryDir m_folder;
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

} // namespace
