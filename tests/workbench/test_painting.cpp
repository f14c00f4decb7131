#include "TestFiles.h"
#include "board/BoardPicture.h"
#include "board/BoardView.h"
#include "board/LayerPainter.h"
#include "board/ScanFill.h"
#include "board/SymbolPath.h"
#include "job/Session.h"

#include <UIAPICommon.h>

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QPainter>
#include <QRandomGenerator>

#include <atomic>
#include <cmath>
#include <memory>

using namespace KVCAM::UIAPI;
using namespace Workbench;

namespace {

std::atomic<bool> const never{false};

// "OB ... OE" of a rectangle, in millimetres.
QByteArray contour(double left, double bottom, double right, double top, char kind = 'I')
{
    return QString("OB %1 %2 %5\nOS %3 %2\nOS %3 %4\nOS %1 %4\nOS %1 %2\nOE\n")
        .arg(left)
        .arg(bottom)
        .arg(right)
        .arg(top)
        .arg(QChar(kind))
        .toLatin1();
}

QByteArray surface(QByteArray const & contours)
{
    return "S P 0\n" + contours + "SE\n";
}

class Painting : public ::testing::Test
{
protected:
    void show(char const * step = "pcb")
    {
        ASSERT_EQ(session.open(QDir().absoluteFilePath("own")), "");
        view = std::make_unique<BoardView>("own", step, Unit::Millimetre);
        view->resize(456, 456);
        view->showLayer(session.layers().at(0).info);
        view->finishPicture();
        image = view->grab().toImage();
    }
    // Whether copper is drawn at a position in millimetres.
    bool isDrawn(double x, double y) const
    {
        QColor const colour = image.pixelColor(view->pixelOf(x * 1000, y * 1000).toPoint());
        return colour.blue() > colour.green() + 20; // copper, not board, ink or white
    }

    Session session;
    std::unique_ptr<BoardView> view;
    QImage image;
};

TEST_F(Painting, AJobsOwnSymbolsAreDrawnAsTheirFilesSay)
{
    writeJob("own", {{"SIGNAL", "TOP"}});
    writeFile("own/steps/pcb/profile", "UNITS=MM\n" + surface(contour(0, 0, 20, 20)));
    // An L with a hole in its foot: 2 mm wide and 3 mm high about its corner.
    writeFile("own/symbols/ell/features",
              "UNITS=MM\n" + surface(contour(0, 0, 2, 1) + contour(1.2, 0.2, 1.8, 0.8, 'H')) +
                  surface(contour(0, 1, 1, 3)));
    // A disc with a bite, which erases; then a track and the L, turned by a quarter and mirrored.
    writeFile("own/symbols/Both/features", "UNITS=MM\n$0 r2000\n$1 s1000\n$2 r200\n$3 ELL\n"
                                           "P 0 0 0 P 0 0\nP 1 0 1 N 0 0\nL -1 -2 1 -2 2 P 0\n"
                                           "P 4 0 3 P 0 5\n");
    writeFile("own/symbols/loop/features", "UNITS=MM\n$0 loop\n$1 r1000\nP 0.2 0.2 0 P 0 0\nP 1 1 1 P 0 0\n");
    writeFile("own/symbols/empty/features", "");
    QByteArray many = "UNITS=MM\n$0 loop\n"; // more than what is drawn of a symbol
    for (int i = 0; i < 6000; ++i) {
        many += "P 2 2 0 P 0 0\n";
    }
    writeFile("own/symbols/many/features", many);
    writeFile(
        "own/steps/pcb/layers/top/features",
        "UNITS=MM\n$0 ell\n$1 both\n$2 loop\n$3 empty\n$4 many\n$5 missing\n" +
            surface(contour(0, 10, 5, 15)) +
            "P 2 2 0 P 0 0\nP 8 2 0 P 0 1\nP 2 12 1 P 0 0\nP 4 14.5 0 N 0 2\n"
            "P 10 10 2 P 0 0\nP 14 10 3 P 0 0\nP 14 14 4 P 0 0\nP 18 14 5 P 0 0\nL 11 18 18 18 0 P 0\n");
    show();
    struct
    {
        double x;
        double y;
        bool drawn;
    } const places[] = {
        {2.5, 4.5, true},
        {3.5, 4.5, false},
        {3.5, 2.5, false},
        {3.9, 2.5, true}, // as in its file
        {10.5, 1.5, true},
        {10.5, 0.5, false},
        {8.5, 0.5, false}, // turned clockwise
        {8.5, 0.1, true},
        {1.2, 12, true},
        {2.8, 12, true}, // the bite leaves the plane below the pad
        {2, 10.05, true},
        {6, 12, false},
        // In `both` at (2, 12): the L at (6, 12) turned (x, y) -> (y, -x) and mirrored.
        {3.5, 11.2, true},
        {5.5, 11.9, true},
        {5.5, 10.1, true},
        {5.5, 10.5, false},
        {4.8, 10.5, true},
        {3.8, 14, false},
        {3.5, 11.9, false},
        {3.5, 12.5, false},
        {3.5, 13, false},
        {2.5, 14, true},
        {11, 11, true},
        {10.2, 10.4, true},
        {10.8, 10.2, false}, // a loop ends with a cross
        {14.2, 10, true},
        {14.2, 14, true},
        {18.2, 14, true}, // a cross
        {16.3, 16.3, false},
        {15, 18.9, true}, // as wide as the symbol is narrow
    };
    for (auto const & place : places) {
        EXPECT_EQ(isDrawn(place.x, place.y), place.drawn) << place.x << ' ' << place.y;
    }
    EXPECT_EQ(view->shapes()[1].box, QRectF(2000, 2000, 2000, 3000));
}

TEST_F(Painting, APanelShowsItsStepsTurnedMirroredAndNested)
{
    writeJob("own", {{"SIGNAL", "TOP"}});
    writeFile("own/matrix/matrix",
              readFile("own/matrix/matrix") + "STEP {\nCOL=2\nNAME=PANEL\n}\nSTEP {\nCOL=3\nNAME=FRAME\n}\n");
    writeFile("own/steps/pcb/profile", "UNITS=MM\n" + surface(contour(0, 0, 4, 2)));
    // Wide copper at the left end, and a disc with a hole at the upper right.
    writeFile("own/steps/pcb/layers/top/features", "UNITS=MM\n$0 r800\n$1 r300\n" +
                                                       surface(contour(0, 0, 1, 2)) +
                                                       "P 3.5 1.5 0 P 0 0\nP 3.5 1.5 1 N 0 0\n");
    writeFile(
        "own/steps/panel/stephdr",
        "UNITS=MM\nSTEP-REPEAT {\nNAME=PCB\nX=3\nY=5\nDX=5\nDY=5\nNX=2\nNY=2\nANGLE=90\nMIRROR=YES\n}\n");
    writeFile("own/steps/panel/layers/top/features", "UNITS=MM\n$0 s500\nP 4 1 0 P 0 0\n");
    writeFile("own/steps/frame/stephdr", "UNITS=MM\nSTEP-REPEAT {\nNAME=PANEL\nX=0\nY=0\nANGLE=270\n}\n");
    writeFile("own/steps/frame/layers/top/features", "");
    // A board at (3, 5): (x, y) turned is (y, -x), mirrored (-y, -x).
    struct
    {
        double x;
        double y;
        bool drawn;
    } const places[] = {
        {2, 4.5, true},    {1.2, 4.5, true}, {2, 3.5, false},  {1.5, 1.8, true}, {1.5, 1.5, false},
        {2.7, 1.5, false}, {7, 4.5, true},   {6.5, 1.8, true}, {2, 9.5, true},   {6.5, 6.8, true},
        {6.5, 6.5, false}, {4, 1, true},     {4, 4.5, false},
    };
    for (bool const isTurned : {false, true}) { // the frame holds the panel turned by three quarters
        show(isTurned ? "frame" : "panel");
        for (auto const & place : places) {
            EXPECT_EQ(isTurned ? isDrawn(-place.y, place.x) : isDrawn(place.x, place.y), place.drawn)
                << place.x << ' ' << place.y << ' ' << isTurned;
        }
        EXPECT_EQ(view->emptyText(), "");
    }
    auto const & outline = session.steps().at(1).outline;
    ASSERT_TRUE(outline);
    EXPECT_EQ(QRectF(outline->left, outline->bottom, outline->right - outline->left,
                     outline->top - outline->bottom),
              QRectF(1000, 1000, 7000, 9000));
    EXPECT_EQ(session.steps().at(1).repeats.at("pcb"), 4);
}

TEST(ScanFills, FillByTheOddEvenRule)
{
    QRandomGenerator random(1);
    for (int run = 0; run < 20; ++run) {
        QPolygonF star;
        for (int i = 0; i < 9; ++i) {
            star << QPointF(random.bounded(140.0) - 20, random.bounded(140.0) - 20);
        }
        QPainterPath path;
        path.addPolygon(star); // left open: it is closed for filling
        QRect const frame(10, 5, 90, 85);
        QTransform const same;
        QImage const image = ScanFill{path, same, frame, QColor(200, 100, 50), never}.run();
        ASSERT_EQ(image.size(), frame.size());
        for (int i = 0; i < 500; ++i) {
            QPoint const pixel(random.bounded(90), random.bounded(85));
            QRectF const area(frame.topLeft() + pixel, QSizeF(1, 1));
            int corners = 0;
            for (QPointF const & corner :
                 {area.topLeft(), area.topRight(), area.bottomLeft(), area.bottomRight(), area.center()}) {
                corners += path.contains(corner) ? 1 : 0;
            }
            bool const isEdge = [&] {
                QPainterPath box;
                box.addRect(area);
                for (int side = 0; side < star.size(); ++side) {
                    QPainterPath line(star[side]);
                    line.lineTo(star[(side + 1) % star.size()]);
                    if (QPainterPathStroker().createStroke(line).intersects(area)) {
                        return true;
                    }
                }
                return false;
            }();
            if (!isEdge) {
                EXPECT_EQ(image.pixelColor(pixel), corners > 0 ? QColor(200, 100, 50) : QColor(0, 0, 0, 0));
            }
        }
    }
}

TEST(ScanFills, EndAtTheirLimit)
{
    QRandomGenerator random(2);
    QPainterPath path;
    path.addRect(-1e15, -1e15, 2e15, 2e15);
    for (int i = 0; i < 3000; ++i) {
        path.lineTo(random.bounded(1000.0), random.bounded(1000.0));
    }
    QTransform const same;
    struct
    {
        std::size_t limit;
        std::size_t least;
    } const rows[] = {{ScanFill::mostSteps, 3'000'000}, {1'500'000, 500'000}, {20'000, 5'000}, {1, 0}};
    for (auto const & row : rows) {
        ScanFill fill{path, same, QRect(0, 0, 1000, 1000), Qt::red, never, row.limit};
        EXPECT_EQ(fill.run().size(), QSize(1000, 1000));
        EXPECT_LE(fill.steps, row.limit + 3010);
        EXPECT_GE(fill.steps, row.least);
    }
    std::atomic<bool> const cancelled{true};
    EXPECT_TRUE((ScanFill{path, same, QRect(0, 0, 1000, 1000), Qt::red, cancelled}.run().isNull()));
}

// A surface of random corners, and thermals and rings without number.
TEST(HostileLayers, ArePaintedInABoundedNumberOfSteps)
{
    for (char const * name : {"thr5000x100x0x99999999x1", "rc_ths900x800x3x100x2x50xr40", "ths900x800x0x1x9",
                              "moire10x10x99999999x5x100x0", "bfr500", "s_ths900x800x0x100x90000"}) {
        QPainterPath const path = symbolPath(*Ext::Symbol::parse(name, Unit::Millimetre).symbol);
        EXPECT_LE(path.elementCount(), 4000) << name;
    }
    QRandomGenerator random(3);
    std::vector<FeatureShape> shapes(1);
    QPolygonF corners;
    for (int i = 0; i < 32000; ++i) {
        corners << QPointF(random.bounded(1e5), random.bounded(1e5));
    }
    shapes[0].path.addPolygon(corners);
    shapes[0].box = shapes[0].path.boundingRect();
    for (double const scale : {1e-3, 1e-2, 1.0}) { // 100 pixels, 1,000 pixels, a part of it
        QImage picture(800, 600, QImage::Format_ARGB32_Premultiplied);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        LayerPainter layer(painter, picture.rect(), Qt::red, never);
        layer.paint(shapes, QTransform::fromScale(scale, scale));
        EXPECT_GT(layer.steps(), 0U) << scale; // not by Qt
        EXPECT_LE(layer.steps(), ScanFill::mostSteps) << scale;
        QColor const middle = picture.pixelColor(40, 40);
        EXPECT_TRUE(middle.alpha() > 0 || scale == 1) << scale;
        EXPECT_LE(shapes[0].marking(QTransform::fromScale(scale, scale), 2000).elementCount(), 2000);
    }
    QPolygonF ring; // many corners within each pixel
    for (int i = 0; i < 100000; ++i) {
        ring << QPointF(100 + 20 * std::cos(i * 6.283185e-5), 100 + 20 * std::sin(i * 6.283185e-5));
    }
    shapes[0].path = {};
    shapes[0].path.addPolygon(ring);
    shapes[0].box = shapes[0].path.boundingRect();
    QImage picture(200, 200, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    LayerPainter layer(painter, picture.rect(), Qt::red, never);
    layer.paint(shapes, {});
    EXPECT_EQ(layer.steps(), 0U); // few are left for Qt
    EXPECT_EQ(picture.pixelColor(115, 110), QColor(Qt::red));
    EXPECT_EQ(picture.pixelColor(116, 116).alpha(), 0);
}

// What is painted of a square from 20 to 80 before the picture of a task is finished.
TEST(BoardPictures, WhatWasShownStandsInAndTheWholeBoardAroundIt)
{
    PictureTask home{{100, 100}, 1, {}, {}, {}, {}};
    home.profile.addRect(20, 20, 60, 60);
    PictureTask near = home;
    near.boardToWidget = QTransform(8, 0, 0, 8, -360, -360); // 45 to 57.5
    PictureTask slow = home;
    slow.boardToWidget = QTransform(0.5, 0, 0, 0.5, 30, 20); // the square from 40 and 30 to 70 and 60
    for (int i = 0; i < 300000; ++i) {
        slow.repeats.push_back({home.profile, {}});
    }
    struct
    {
        std::vector<PictureTask> before;
        bool isSquareWhole;
    } const rows[] = {{{home}, true}, {{near}, false}, {{home, near}, true}, {{near, home}, true}};
    for (auto const & row : rows) {
        BoardPicture picture;
        for (PictureTask const & task : row.before) {
            picture.begin(task, [] {});
            picture.wait(-1);
        }
        EXPECT_FALSE(picture.isLate());
        picture.begin(slow, [] {});
        QImage shown(100, 100, QImage::Format_RGB32);
        QPainter painter(&shown);
        picture.paint(painter);
        bool const isWhole =
            shown.pixelColor(43, 33) == QColor("#f3f6ee") && shown.pixelColor(67, 57) == QColor("#f3f6ee");
        EXPECT_EQ(isWhole, row.isSquareWhole) << row.before.size();
        EXPECT_EQ(shown.pixelColor(55, 45), QColor("#f3f6ee"));
        EXPECT_EQ(shown.pixelColor(35, 25), QColor(Qt::white));
    }
}

TEST(BoardPictures, ANewOneOrTheEndCancelsWhatIsPainted)
{
    QRandomGenerator random(4);
    QPainterPath jungle;
    for (int i = 0; i < 300000; ++i) {
        QPointF const corner(random.bounded(1000.0), random.bounded(1000.0));
        i == 0 ? jungle.moveTo(corner) : jungle.lineTo(corner);
    }
    PictureTask slow{{1000, 1000}, 1, {}, {}, {}, {}};
    for (int i = 0; i < 1000; ++i) {
        slow.repeats.push_back({jungle, {}}); // seconds each
    }
    QPainterPath square;
    square.addRect(20, 20, 60, 60);
    std::atomic<int> finished{0};
    QElapsedTimer timer;
    timer.start();
    {
        BoardPicture picture;
        picture.begin(slow, [&finished] { finished += 100; });
        EXPECT_FALSE(picture.wait(20));
        picture.begin({{100, 100}, 1, {}, square, {}, {}}, [&finished] { ++finished; });
        EXPECT_TRUE(picture.wait(-1));
        QImage shown(100, 100, QImage::Format_RGB32);
        QPainter painter(&shown);
        picture.paint(painter);
        EXPECT_EQ(shown.pixelColor(50, 50), QColor("#f3f6ee"));
        EXPECT_EQ(shown.pixelColor(5, 5), QColor(Qt::white));
        picture.begin(slow, [&finished] { finished += 100; });
        EXPECT_FALSE(picture.wait(20));
    }
    EXPECT_EQ(finished, 1);
    EXPECT_LT(timer.elapsed(), 60000); // all of them would take an hour
}

} // namespace
