#include "TestFiles.h"
#include "board/BoardView.h"
#include "board/SymbolPath.h"
#include "board/ViewPort.h"
#include "job/Session.h"

#include <UIAPICommon.h>

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineF>
#include <QMouseEvent>
#include <QTest>
#include <QWheelEvent>

#include <cmath>
#include <limits>
#include <memory>

using namespace KVCAM::UIAPI;
using namespace Workbench;

namespace {

bool isNear(QPointF a, QPointF b)
{
    return QLineF(a, b).length() < 1e-6 * (1 + std::abs(a.x()) + std::abs(a.y()));
}

TEST(ViewPorts, KeepThePlaceBelowThePointerAtEveryZoom)
{
    struct
    {
        QRectF extent;
        QSizeF size;
    } const boards[] = {
        {{0, 0, 100000, 50000}, {800, 600}},
        {{-3e13, -2e13, 5e13, 2e13}, {800, 600}}, // the largest that a file can give
        {{5, 5, 0.01, 0}, {400, 300}},
    };
    for (auto const & board : boards) {
        ViewPort port;
        port.setSize(board.size);
        port.setExtent(board.extent);
        double const home = port.scale();
        EXPECT_TRUE(
            isNear(port.toBoard({board.size.width() / 2, board.size.height() / 2}), board.extent.center()));
        for (double const factor : {1.25, 3.0, 0.5, 1000.0, 0.001, 1e300, 1e-300}) {
            QPointF const pixel(100, 200);
            QPointF const place = port.toBoard(pixel);
            port.zoomAbout(pixel, factor);
            EXPECT_TRUE(isNear(port.toBoard(pixel), place)) << factor;
            EXPECT_LE(port.scale(), 10);
            EXPECT_GE(port.scale(), home / 8.001);
            EXPECT_TRUE(isNear(port.boardToWidget().map(port.visible().center()),
                               {board.size.width() / 2, board.size.height() / 2}));
        }
        double const scale = port.scale();
        QPointF const centre = port.visible().center();
        for (double const wrong : {0.0, -2.0, std::nan(""), std::numeric_limits<double>::infinity()}) {
            port.zoomAbout({1, 1}, wrong);
            port.drag({wrong < 0 ? 0 : wrong, 0});
            EXPECT_EQ(port.scale(), scale);
            EXPECT_EQ(port.visible().center(), centre);
        }
        port.setSize({300, 900}); // the place and the scale stay
        EXPECT_EQ(port.scale(), scale);
        port.home();
        port.setSize(board.size);
        EXPECT_EQ(port.scale(), home);
    }
    ViewPort empty;
    empty.setSize({400, 300});
    empty.zoomAbout({1, 1}, 2);
    empty.drag({5, 5});
    EXPECT_EQ(empty.scale(), 0);
}

TEST(SymbolPaths, AreTheShapesThatTheNamesTell)
{
    auto const pathOf = [](char const * name, Unit unit) {
        return symbolPath(*KVCAM::UIAPI::Ext::Symbol::parse(name, unit).symbol);
    };
    struct
    {
        char const * name;
        std::vector<QPointF> inside;
        std::vector<QPointF> outside;
    } const rows[] = {
        {"r100", {{0, 0}, {49, 0}, {34, 34}}, {{51, 0}, {37, 37}}},
        {"s100", {{49, 49}, {-49, 49}}, {{51, 0}}},
        {"rect100x60", {{49, 29}}, {{49, 31}, {51, 0}}},
        {"rect100x60xr20", {{49, 0}, {43, 23}, {-43, -23}}, {{48, 28}, {-48, -28}, {-48, 28}, {48, -28}}},
        {"rect100x60xr20x13", {{-48, 28}, {48, -28}, {43, 23}}, {{48, 28}, {-48, -28}}},
        {"rect100x60xc20x2", {{48, 28}, {-48, -28}, {-41, 19}}, {{-44, 24}}},
        {"oval100x60", {{48, 0}, {0, 29}}, {{48, 20}, {-48, 20}}},
        {"oval_h100x60", {{-48, 28}, {48, 0}}, {{48, 20}, {48, -20}}},
        {"di100x60", {{24, 14}}, {{26, 16}}},
        {"oct100x60x20", {{49, 9}, {29, 29}}, {{42, 22}}},
        {"el100x60", {{0, 29}, {49, 0}}, {{40, 25}}},
        {"tri100x60", {{0, 28}, {-45, -29}}, {{20, 28}, {-45, 0}}},
        {"bfr100", {{20, 20}, {-20, -20}}, {{20, -20}, {-20, 20}, {40, 40}}},
        {"bfs100", {{48, 48}, {-48, -48}}, {{20, -20}, {-20, 20}}},
        {"hex_l100x60x20", {{48, 0}, {29, 29}}, {{45, 20}}},
        {"hex_s100x60x20", {{0, 28}, {49, 9}}, {{45, 20}}},
        {"hole100xpx1x1", {{34, 34}}, {{37, 37}}},
        {"donut_r100x50", {{30, 0}}, {{20, 0}, {51, 0}}},
        {"donut_s100x50xr20", {{30, 30}}, {{20, 20}, {48, 48}}},
        {"donut_sr100x50", {{48, 48}, {20, 20}}, {{0, 24}}},
        {"donut_o100x60x10", {{45, 0}, {0, 25}}, {{0, 0}, {38, 0}}},
        {"donut_rc100x60x10", {{45, 28}, {0, 25}}, {{0, 18}, {38, 0}}},
        {"thr100x50x0x4x10", {{27, 27}}, {{40, 0}, {0, 40}, {-40, 0}, {0, -40}, {0, 0}}},
        {"thr100x50x90x1x10", {{40, 0}, {0, -40}, {-40, 0}, {7, 40}, {-7, 40}}, {{0, 40}, {4, 30}, {0, 0}}},
        {"ths100x50x45x2x10", {{40, 0}, {-27, 27}}, {{27, 27}, {-27, -27}}},
        {"s_ths100x50x0x4x10", {{40, 40}}, {{40, 0}, {20, 20}}},
        {"rc_ths100x60x0x4x10x10", {{45, 20}}, {{45, 0}, {30, 0}}},
        {"o_ths100x60x0x2x10x10", {{0, 25}}, {{45, 0}, {0, 0}}},
        {"moire10x10x2x5x100x0", {{15, 0}, {0, 35}, {48, 2}}, {{5, 5}, {48, 5}, {30, 30}}},
    };
    for (auto const & row : rows) {
        QPainterPath const path = pathOf(row.name, Unit::Millimetre);
        for (QPointF const & place : row.inside) {
            EXPECT_TRUE(path.contains(place)) << row.name << ' ' << place.x() << ' ' << place.y();
        }
        for (QPointF const & place : row.outside) {
            EXPECT_FALSE(path.contains(place)) << row.name << ' ' << place.x() << ' ' << place.y();
        }
    }
    EXPECT_TRUE(pathOf("r10", Unit::Inch).contains({126, 0})); // mil
    EXPECT_TRUE(pathOf("r0", Unit::Millimetre).isEmpty());
    EXPECT_LE(pathOf("r99999999999999", Unit::Inch).boundingRect().width(), 2.6e10);
}

// 10 mm x 10 mm: on the first layer what is easily painted wrong, below it a plane.
class Pictures : public ::testing::Test
{
protected:
    void SetUp() override
    {
        writeJob("tiny", {{"SIGNAL", "TOP"},
                          {"SIGNAL", "PLANE"},
                          {"SIGNAL", "EMPTY"},
                          {"SIGNAL", "BROKEN"},
                          {"SIGNAL", "TABLES"}});
        QByteArray const square = "S P 0\nOB 0 0 I\nOS 10 0\nOS 10 10\nOS 0 10\nOS 0 0\nOE\n";
        writeFile("tiny/steps/pcb/profile", "UNITS=MM\n" + square + "SE\n");
        writeFile("tiny/steps/pcb/layers/top/features",
                  "UNITS=MM\n$0 r2000\n$1 r1000\n$2 tri1000x2000\n$3 r20\n$4 s500\n$5 r500\n"
                  "P 2 2 0 P 0 0\nP 2 2 1 N 0 0\n"     // a pad with a negative one in it
                  "P 5 2 2 P 0 1\nP 8 2 2 P 0 8 180\n" // a triangle that points right, one that points down
                  "P 4.5 7 2 P 0 9 45\n"               // one that is turned to the right, then mirrored
                  "L 1 5 4 5 3 P 0\nP 5 5 3 P 0 0\n"   // a track and a pad thinner than a pixel
                  "L 7 5 9 5 4 P 0\nL 7 6 9 6 5 P 0\n" // square ends, round ends
                  "A 3 8 2 9 2 8 5 P 0 N\n"
                  "S P 0\nOB 6 7 I\nOS 9 7\nOS 9 10\nOS 6 10\nOS 6 7\nOE\n"
                  "OB 7 8 H\nOS 8 8\nOS 8 9\nOS 7 9\nOS 7 8\nOE\nSE\n");
        writeFile("tiny/steps/pcb/layers/plane/features", "UNITS=MM\n" + square + "SE\n");
        writeFile("tiny/steps/pcb/layers/broken/features", "P nonsense\n");
        writeFile("tiny/steps/pcb/layers/tables/features.tables", "$0 r10\n");
        ASSERT_EQ(session.open(QDir().absoluteFilePath("tiny")), "");
        view = std::make_unique<BoardView>("tiny", "pcb", Unit::Millimetre);
        view->resize(456, 456); // 40 pixels for a millimetre
        view->showLayer(layer(0));
    }
    KVCAM::API::layer_info const & layer(std::size_t index) const { return session.layers().at(index).info; }

    QImage grab() const
    {
        view->finishPicture();
        return view->grab().toImage();
    }
    // Whether something is drawn at a position in millimetres.
    bool isDrawn(QImage const & image, double x, double y) const
    {
        QPointF const pixel = view->pixelOf(x * 1000, y * 1000);
        QColor const colour = image.pixelColor(static_cast<int>(pixel.x()), static_cast<int>(pixel.y()));
        return colour != QColor("#f3f6ee") && colour != QColor(Qt::white);
    }

    Session session;
    std::unique_ptr<BoardView> view;
};

TEST_F(Pictures, ShowEachShapeWhereItIsAtEveryZoom)
{
    struct
    {
        double x;
        double y;
        bool drawn;
    } const places[] = {
        {1.25, 2, true},   {2, 2, false},      {2, 2.75, true},     {5.9, 2, true},      {4.1, 2.45, true},
        {5.9, 2.4, false}, {8, 1.1, true},     {8.4, 1.2, false},   {8.4, 2.9, true},    {2.5, 5, true},
        {5, 5, true},      {2.5, 5.2, false},  {6.8, 5.2, true},    {6.78, 6.23, false}, {6.8, 6, true},
        {2.7, 8.7, true},  {2, 8, false},      {1.3, 7.3, false},   {6.5, 7.5, true},    {7.5, 8.5, false},
        {9.2, 2, false},   {3.95, 7.55, true}, {5.05, 7.55, false},
    };
    EXPECT_TRUE(view->shapes().at(4).outline().contains({3950, 7550})) << "the selection follows the picture";
    for (double const zoom : {1.0, 3.0, 40.0}) {
        for (auto const & place : places) {
            view->zoomHome();
            if (zoom > 1) { // each place in the centre, the rest outside
                QWheelEvent event(view->pixelOf(place.x * 1000, place.y * 1000), {}, {},
                                  {0, static_cast<int>(120 * std::log(zoom) / std::log(1.25))}, Qt::NoButton,
                                  Qt::NoModifier, Qt::NoScrollPhase, false);
                QApplication::sendEvent(view.get(), &event);
            }
            EXPECT_EQ(isDrawn(grab(), place.x, place.y), place.drawn)
                << place.x << ' ' << place.y << " at " << zoom;
        }
    }
    view->zoomHome();
    for (int i = 0; i < 6; ++i) {
        view->zoomOut(); // to an eighth: tracks are far thinner than a pixel
    }
    EXPECT_NEAR(view->zoom(), 0.125, 1e-9);
    EXPECT_TRUE(isDrawn(grab(), 2.5, 5));
}

TEST_F(Pictures, ANegativeFeatureErasesOnItsOwnLayerOnly)
{
    EXPECT_FALSE(isDrawn(grab(), 2, 2));
    view->showBackgroundLayers({layer(0), layer(1)});
    QImage const both = grab();
    EXPECT_TRUE(isDrawn(both, 2, 2));
    auto const colour = [&](double x, double y) {
        return both.pixelColor(view->pixelOf(x * 1000, y * 1000).toPoint());
    };
    EXPECT_EQ(colour(2, 2), colour(0.5, 0.5));    // the plane alone
    EXPECT_NE(colour(1.25, 2), colour(0.5, 0.5)); // the pad on it
    view->showBackgroundLayers({});
    EXPECT_FALSE(isDrawn(grab(), 0.5, 0.5));
}

TEST_F(Pictures, MarksAreShownPickedAndBroughtIntoTheMiddle)
{
    std::vector<int> marks;
    QObject::connect(view.get(), &BoardView::markPicked, [&marks](int index) { marks.push_back(index); });
    view->setMarks({{2000, 2000, Qt::red, "A", "one"}, {2000, 2000, Qt::green, "B", "two"}});
    auto const click = [&](double x, double y) {
        QTest::mouseClick(view.get(), Qt::LeftButton, {}, view->pixelOf(x, y).toPoint());
    };
    click(2000, 2000);
    EXPECT_EQ(marks, std::vector<int>{1}); // the upper one, not the pad below
    click(1150, 2000);
    EXPECT_EQ(view->selected(), FeatureSelection::Set{0});
    click(9900, 200);
    EXPECT_TRUE(view->selected().empty());
    EXPECT_EQ(marks.size(), 1U);
    QColor const sign = grab().pixelColor(view->pixelOf(2000, 2000).toPoint() + QPoint(7, 0));
    EXPECT_EQ(sign, QColor(Qt::green));

    view->centreOn(8000, 1000);
    EXPECT_TRUE(isNear(view->pixelOf(8000, 1000), {228, 228}));
    EXPECT_NEAR(view->zoom(), 4, 1e-9);
    view->zoomIn();
    view->centreOn(std::nan(""), 0);
    view->centreOn(2000, 2000);
    EXPECT_NEAR(view->zoom(), 6, 1e-9); // already near: unchanged
    setUnit(view->handle(), 0);
    view->showLayer(layer(1));
    EXPECT_NEAR(view->zoom(), 6, 1e-9);
    EXPECT_TRUE(isNear(view->pixelOf(2000, 2000), {228, 228}));
    EXPECT_EQ(view->marks().size(), 2U);
}

TEST_F(Pictures, ADragMovesTheBoardAndPicksNothing)
{
    bool isPicked = false;
    QObject::connect(view.get(), &BoardView::selectionChanged, [&isPicked] { isPicked = true; });
    QPoint const from = view->pixelOf(1150, 2000).toPoint();
    auto const send = [&](QEvent::Type type, QPoint at, Qt::MouseButton button) {
        QMouseEvent event(type, at, button,
                          type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, {});
        QApplication::sendEvent(view.get(), &event);
    };
    QPointF const before = view->pixelOf(0, 0);
    send(QEvent::MouseButtonPress, from, Qt::LeftButton);
    send(QEvent::MouseMove, from + QPoint(50, -30), Qt::NoButton);
    send(QEvent::MouseButtonRelease, from + QPoint(50, -30), Qt::LeftButton);
    EXPECT_FALSE(isPicked);
    EXPECT_TRUE(isNear(view->pixelOf(0, 0), before + QPointF(50, -30)));

    struct
    {
        int key;
        QPointF shown; ///< new position of the former centre, in tenths of the view
    } const keys[] = {
        {Qt::Key_Right, {-1, 0}}, {Qt::Key_Up, {0, 1}}, {Qt::Key_Left, {1, 0}}, {Qt::Key_Down, {0, -1}}};
    for (auto const & row : keys) {
        QPointF const place = view->pixelOf(5000, 5000);
        QTest::keyClick(view.get(), static_cast<Qt::Key>(row.key));
        EXPECT_TRUE(isNear(view->pixelOf(5000, 5000), place + row.shown * 45.6)) << row.key;
        QTest::keyClick(view.get(), static_cast<Qt::Key>(row.key),
                        Qt::ShiftModifier); // belongs to the hot keys
        EXPECT_TRUE(isNear(view->pixelOf(5000, 5000), place + row.shown * 45.6)) << row.key;
    }
    QTest::keyClick(view.get(), Qt::Key_Plus);
    EXPECT_NEAR(view->zoom(), 1.5, 1e-9);
    QTest::keyClick(view.get(), Qt::Key_Home);
    EXPECT_EQ(view->zoom(), 1);
}

TEST_F(Pictures, ExtremeFilesDoNoHarm)
{
    writeFile("tiny/steps/pcb/layers/empty/features",
              "UNITS=MM\n$0 r999999999999999999999\n$1 moire1x1x99999999999x1x9x0\n"
              "$2 thr100x50x0x99999999999x1\n$3 rect0x0\n"
              "P 1e9 -1e9 0 P 0 8 1e9\nP 0 0 1 P 0 0\nP 1 1 2 N 0 9 -1e9\nP 2 2 3 P 0 0\n"
              "L -1e9 -1e9 1e9 1e9 0 P 0\nL -1e9 1e9 1e9 -1e9 3 P 0\nA 1e9 0 1e9 0 -1e9 0 2 P 0 Y\n"
              "A 0 0 0 0 0 0 0 P 0 Y\n");
    view->showLayer(layer(2));
    ASSERT_EQ(view->shapes().size(), 8U);
    for (int i = 0; i < 30; ++i) {
        view->zoomIn();
        grab();
    }
    view->zoomFit();
    EXPECT_LT(view->zoom(), 1e-3);
    EXPECT_TRUE(isDrawn(grab(), 0, 0));
}

TEST_F(Pictures, SayWhyNothingIsDrawn)
{
    char const * const texts[] = {"", "", "The layer empty has no features in this step",
                                  "The layer broken cannot be read: see the log",
                                  "The job holds only the tables of the layer tables"};
    for (std::size_t i = 0; i < std::size(texts); ++i) {
        view->showLayer(layer(i));
        EXPECT_EQ(view->emptyText(), texts[i]);
    }
    EXPECT_EQ(BoardView("tiny", "pcb", Unit::Inch).emptyText(), "No layer is shown");
    ASSERT_TRUE(KVCAM::Embedded::deleteFeatures("tiny", "pcb", "plane", {0}));
    view->showLayer(layer(1));
    view->reload();
    EXPECT_EQ(view->emptyText(), "The layer plane has no features in this step");
}

} // namespace
