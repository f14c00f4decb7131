// How the window answers on a board of eight layers with 250,000 features, all shown: opening it, the first
// picture, one step of the wheel and of dragging (the worst of some), the sharp picture that follows, and
// closing. What the user waits for is time, not work, so all rows are in real time; compare them with a frame
// of a screen, 16 ms, in the row "frame", which is what painting an empty widget of that size costs.

#include "board/BoardView.h"
#include "job/CommandLine.h"
#include "job/Session.h"
#include "ui/LogPane.h"
#include "window/BoardPage.h"
#include "window/MainWindow.h"

#include <KVCAM_API.h>

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QMouseEvent>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QWheelEvent>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <memory>

using namespace Workbench;

namespace {

constexpr int layers = 8;
constexpr int features = 250'000;

void write(QString const & path, QByteArray const & content)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    file.open(QIODevice::WriteOnly);
    file.write(content);
}

// 120 mm x 90 mm: a plane with clearances, and tracks of three segments with a via and a pad.
QByteArray layer(quint32 seed)
{
    QRandomGenerator random(seed);
    QByteArray text = "UNITS=MM\n$0 r150\n$1 r500\n$2 rect300x1200xr60\n$3 s250\n$4 oval400x900\nS P 0\n"
                      "OB 1 1 I\nOS 119 1\nOS 119 89\nOS 1 89\nOS 1 1\nOE\n";
    auto const add = [&text](QString const & form, std::initializer_list<double> numbers) {
        QString line = form;
        for (double const number : numbers) {
            line = line.arg(number, 0, 'f', 4);
        }
        text += line.toLatin1() + '\n';
    };
    for (int i = 0; i < 300; ++i) {
        double const x = 5 + random.bounded(110.0);
        double const y = 5 + random.bounded(80.0);
        add("OB %1 %2 H\nOS %3 %2\nOS %3 %4\nOS %1 %4\nOS %1 %2\nOE", {x, y, x + 0.8, y + 0.8});
    }
    text += "SE\n";
    for (int i = 1; i < features / layers; i += 5) {
        double const x = 2 + random.bounded(113.0);
        double const y = 6 + random.bounded(80.0);
        double const bend = x + 0.3 + random.bounded(3.7);
        double const end = y + (random.bounded(2) == 0 ? -1 : 1) * (0.4 + random.bounded(3.0));
        add("L %1 %2 %3 %2 0 P 0\nL %3 %2 %4 %5 0 P 0", {x, y, bend, bend + 0.4, y + (end - y) / 4});
        add("L %1 %2 %1 %3 0 P 0\nP %4 %5 1 P 0 0", {bend + 0.4, y + (end - y) / 4, end, x, y});
        add("P %1 %2 " + QString::number(2 + i % 3) + " P 0 " + QString::number(i % 4), {bend + 0.4, end});
    }
    return text;
}

double seconds(QElapsedTimer const & timer)
{
    return static_cast<double>(timer.nsecsElapsed()) * 1e-9;
}

// The board in the window, opened and closed any number of times.
class Desk
{
public:
    Desk()
    {
        QByteArray matrix = "STEP {\nCOL=1\nNAME=PCB\n}\n";
        for (int i = 1; i <= layers; ++i) {
            QByteArray const name = 'L' + QByteArray::number(i);
            matrix += "LAYER {\nROW=" + QByteArray::number(i) + "\nCONTEXT=BOARD\nTYPE=SIGNAL\nNAME=" + name +
                      "\nPOLARITY=POSITIVE\nOLD_NAME=\n}\n";
            write(path() + "/steps/pcb/layers/" + name.toLower() + "/features",
                  layer(static_cast<quint32>(i)));
        }
        write(path() + "/matrix/matrix", matrix);
        write(path() + "/steps/pcb/stephdr", "UNITS=MM\n");
        write(path() + "/steps/pcb/profile",
              "UNITS=MM\nS P 0\nOB 0 0 I\nOS 120 0\nOS 120 90\nOS 0 90\nOS 0 0\nOE\nSE\n");
    }
    /// Never destroyed: a registered view stays registered.
    static Desk & get()
    {
        static auto * const desk = new Desk;
        return *desk;
    }
    void read()
    {
        m_session = std::make_unique<Session>();
        m_session->open(path());
        for (Session::Layer & each : m_session->layers()) {
            m_session->countFeatures(each);
        }
    }
    void show()
    {
        CommandLine commandLine;
        commandLine.output = m_folder.path();
        m_window = std::make_unique<MainWindow>(*m_session, m_log, commandLine);
        m_window->resize(1440, 900);
        m_window->board().tickAllLayers(true);
        m_window->show();
        QApplication::processEvents();
    }
    BoardView & view() { return *m_window->board().currentView(); }
    void sharpen()
    {
        view().finishPicture();
        QApplication::processEvents();
    }
    void close()
    {
        m_window->close();
        m_window.reset();
        KVCAM::Embedded::closeJob("large");
        m_session.reset();
    }
    bool isOpen() const { return m_window != nullptr; }

private:
    QString path() const { return m_folder.filePath("large"); }

    QTemporaryDir m_folder;
    LogLines m_log;
    std::unique_ptr<Session> m_session;
    std::unique_ptr<MainWindow> m_window;
};

Desk & openDesk()
{
    Desk & desk = Desk::get();
    if (!desk.isOpen()) {
        desk.read();
        desk.show();
    }
    desk.sharpen();
    return desk;
}

void wheel(BoardView & view, int notch)
{
    QPointF const place(view.width() / 3.0, view.height() / 3.0);
    QWheelEvent event(place, view.mapToGlobal(place.toPoint()), {}, {0, notch}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&view, &event);
}

void drag(BoardView & view, QPointF place)
{
    QMouseEvent event(QEvent::MouseMove, place, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&view, &event);
}

void frame(benchmark::State & state)
{
    QWidget widget;
    widget.resize(openDesk().view().size());
    widget.show();
    QApplication::processEvents();
    for (auto _ : state) {
        widget.repaint();
    }
}
BENCHMARK(frame)->UseRealTime()->Unit(benchmark::kMillisecond);

// From a notch of the wheel until it shows. Neither waits for the sharp picture.
void wheelWorst(benchmark::State & state)
{
    BoardView & view = openDesk().view();
    for (auto _ : state) {
        double worst = 0;
        for (int i = 0; i < 40; ++i) {
            QElapsedTimer timer;
            timer.start();
            wheel(view, i < 20 ? 120 : -120);
            view.repaint();
            worst = std::max(worst, seconds(timer));
            QApplication::processEvents(); // a finished picture
        }
        state.SetIterationTime(worst);
    }
}
BENCHMARK(wheelWorst)->UseManualTime()->Iterations(5)->Unit(benchmark::kMillisecond);

void panWorst(benchmark::State & state)
{
    BoardView & view = openDesk().view();
    for (auto _ : state) {
        double worst = 0;
        QPointF place(300, 300);
        QMouseEvent press(QEvent::MouseButtonPress, place, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&view, &press);
        for (int i = 0; i < 40; ++i) {
            place += QPointF(i < 20 ? 12 : -12, 5);
            QElapsedTimer timer;
            timer.start();
            drag(view, place);
            view.repaint();
            worst = std::max(worst, seconds(timer));
            QApplication::processEvents();
        }
        QMouseEvent release(QEvent::MouseButtonRelease, place, Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(&view, &release);
        state.SetIterationTime(worst);
    }
}
BENCHMARK(panWorst)->UseManualTime()->Iterations(5)->Unit(benchmark::kMillisecond);

// From the last notch until the picture is sharp; the argument is the number of notches.
void sharpPicture(benchmark::State & state)
{
    Desk & desk = openDesk();
    for (auto _ : state) {
        state.PauseTiming();
        desk.view().zoomHome();
        desk.sharpen();
        for (int i = 1; i < state.range(0); ++i) {
            wheel(desk.view(), 120);
        }
        state.ResumeTiming();
        wheel(desk.view(), 120);
        desk.sharpen();
    }
}
BENCHMARK(sharpPicture)->Arg(1)->Arg(4)->Arg(12)->UseRealTime()->Unit(benchmark::kMillisecond);

// Opening reads the files; the rest of what the user waits for is beside it.
void openClose(benchmark::State & state)
{
    Desk & desk = Desk::get();
    double read = 0;
    double window = 0;
    double picture = 0;
    double close = 0;
    for (auto _ : state) {
        if (desk.isOpen()) {
            desk.close();
        }
        QElapsedTimer timer;
        timer.start();
        desk.read();
        read += seconds(timer);
        timer.start();
        desk.show();
        window += seconds(timer);
        desk.sharpen();
        picture += seconds(timer);
        timer.start();
        desk.close();
        close += seconds(timer);
    }
    auto const each = [](double sum) {
        return benchmark::Counter(sum * 1000, benchmark::Counter::kAvgIterations);
    };
    state.counters["read_ms"] = each(read);
    state.counters["window_ms"] = each(window);
    state.counters["picture_ms"] = each(picture);
    state.counters["close_ms"] = each(close);
}
BENCHMARK(openClose)->UseRealTime()->Iterations(5)->Unit(benchmark::kMillisecond);

} // namespace
