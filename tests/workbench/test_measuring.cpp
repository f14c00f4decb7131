#include "TestFiles.h"
#include "board/SnapPoint.h"
#include "job/ConfigDirectory.h"

#include <UIAPICommon.h>

#include <gtest/gtest.h>

#include <QDir>
#include <QLineF>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

using namespace KVCAM;
using namespace KVCAM::UIAPI;
using namespace Workbench;

namespace {

FeatureShape track(QPointF from, QPointF to, double width)
{
    FeatureShape shape;
    shape.kind = FeatureShape::Kind::Line;
    shape.filled = false;
    shape.place = from;
    shape.end = to;
    shape.penWidth = width;
    shape.box = QRectF(from, to).normalized().adjusted(-width, -width, width, width);
    return shape;
}

FeatureShape arc(QPointF centre, double radius, double start, double sweep)
{
    FeatureShape shape;
    shape.filled = false;
    shape.penWidth = 20;
    QRectF const circle(centre - QPointF(radius, radius), 2 * QSizeF(radius, radius));
    shape.path.arcMoveTo(circle, start);
    shape.path.arcTo(circle, start, sweep);
    shape.box = circle;
    return shape;
}

FeatureShape squarePad(QPointF centre, double side)
{
    FeatureShape shape;
    shape.kind = FeatureShape::Kind::Pad;
    shape.place = centre;
    shape.path.addRect(-side / 2, -side / 2, side, side);
    shape.box = QRectF(centre - QPointF(side, side) / 2, QSizeF(side, side));
    return shape;
}

TEST(SnapPoints, AreTheNearestOfTheirKindWithinReach)
{
    std::vector<FeatureShape> const shapes{
        track({0, 0}, {1000, 0}, 100), track({200, -500}, {200, 500}, 100), squarePad({3000, 0}, 400),
        arc({6000, 0}, 5000, 0, 90), // y upwards: Qt's angles run the other way
    };
    QPainterPath profile;
    profile.addRect(-2000, -2000, 20000, 9000);
    SnapTargets const targets{shapes, profile, 25, 120};
    double const half = 5000 * std::sqrt(0.5);
    struct
    {
        SNAP_TYPE_MODE mode;
        QPointF place;
        QPointF expected;
    } const rows[] = {
        {SNAP_OFF, {610, 40}, {610, 40}},
        {SNAP_GRID, {612, -38}, {600, -50}},
        {SNAP_SKELETON, {610, 40}, {610, 0}},
        {SNAP_SKELETON, {1030, 40}, {1000, 0}},  // no farther than its end
        {SNAP_SKELETON, {610, 130}, {610, 130}}, // beyond reach
        {SNAP_MIDPOINT, {540, 40}, {500, 0}},
        {SNAP_MIDPOINT, {700, 40}, {700, 40}},
        {SNAP_EDGE, {610, 40}, {610, 50}},
        {SNAP_EDGE, {610, -70}, {610, -50}},
        {SNAP_EDGE, {3150, 20}, {3200, 20}},
        {SNAP_CENTER, {3060, 50}, {3000, 0}},
        {SNAP_CENTER, {610, 40}, {610, 40}},
        {SNAP_CENTER, {6020, 10}, {6000, 0}},
        {SNAP_INTERSECT, {260, 50}, {200, 0}},
        {SNAP_INTERSECT, {610, 40}, {610, 40}},
        {SNAP_ARC, {6000 + half + 30, -half - 30}, {6000 + half, -half}}, // on the circle itself
        {SNAP_ARC,
         {6000 + 5030 * std::cos(0.3), -5030 * std::sin(0.3)}, // and not on the curve drawn for it
         {6000 + 5000 * std::cos(0.3), -5000 * std::sin(0.3)}},
        {SNAP_ARC, {10990, 50}, {11000, 0}}, // the arc ends here
        {SNAP_ARC, {610, 40}, {610, 40}},
        {SNAP_PROFILE, {-1950, 300}, {-2000, 300}},
        {SNAP_PROFILE, {610, 40}, {610, 40}},
        {SNAP_ADVANCED, {270, 60}, {200, 0}},                                // the crossing
        {SNAP_ADVANCED, {970, 30}, {1000, 0}},                               // the end
        {SNAP_ADVANCED, {720, 30}, {720, 0}},                                // nothing else
        {SNAP_ADVANCED, {6000 + half + 3, -half - 3}, {6000 + half, -half}}, // the middle
    };
    for (auto const & row : rows) {
        QPointF const found = snapped(row.place, row.mode, targets);
        EXPECT_NEAR(found.x(), row.expected.x(), 1e-6) << row.mode << " at " << row.place.x();
        EXPECT_NEAR(found.y(), row.expected.y(), 1e-6) << row.mode << " at " << row.place.x();
    }
}

TEST(UserFiles, AreFoundWithoutEnteringTheirDirectory)
{
    QString const start = QDir::currentPath();
    writeFile("site/config/keyboard.json", R"([{"func_name":"KP_Measure","Modifier":"Ctrl","key":"Q"}])");
    writeFile("site/autoMatrix/mine.json", R"({"template": [{"name": "mine", "prefix": {}, "suffix": {}}]})");
    writeFile("site/ERFconfig/a/one.erf", "");
    ASSERT_EQ(enterConfiguration(QDir().absoluteFilePath("site/config"), "out"), "");
    EXPECT_EQ(QDir::currentPath(), start);
    KVHotKey::getInstance();
    EXPECT_TRUE(Ext::lastHotkeyLoad()) << Ext::lastHotkeyLoad().reason.toStdString();
    EXPECT_EQ(Ext::checkHotkeyFile(Ext::hotkeyFile).bindings.size(), 1U);
    EXPECT_TRUE(Ext::exportHotkeys("./config/out.json").result);
    EXPECT_TRUE(QFile::exists("site/config/out.json"));
    EXPECT_EQ(getAutoMatrixTmpMap().at(2).name, "mine");
    EXPECT_EQ(Ext::autoMatrixFile(2)->name, "mine");
    std::vector<std::string> names;
    getERFList("a", names);
    EXPECT_EQ(names, std::vector<std::string>{"one"});
    EXPECT_EQ(Ext::userFile("a/../b"), QDir(start).absoluteFilePath("site/b"));
    EXPECT_EQ(Ext::userFile(QDir::rootPath() + "b"), QDir::rootPath() + "b");
    EXPECT_FALSE(delDir(QDir().absoluteFilePath("site").toStdString(), true)) << "it is in use";
    EXPECT_TRUE(QFile::exists("site/config/keyboard.json"));
    EXPECT_EQ(QDir::currentPath(), start);
    Ext::setUserDirectory({});
    EXPECT_EQ(Ext::userFile("a/../b"), "a/../b");
}

} // namespace
