#include "SampleWindow.h"
#include "board/BoardTexts.h"
#include "board/FeatureShapes.h"
#include "feature/PadSymbol.h"
#include "pages/SettingsPage.h"
#include "pages/TemplatesPage.h"

#include <UIAPICommon.h>

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLineF>
#include <QMouseEvent>
#include <QSpinBox>

#include <iterator>
#include <utility>

using namespace KVCAM::UIAPI;
using namespace Workbench;

namespace {

TEST(PadSymbols, AreConvertedFromWhatWasTyped)
{
    struct
    {
        char const * name;
        int unit;
        char const * mil;
        char const * micrometre;
        char const * sizes; ///< as they can be set, "-" if the family has none
    } const rows[] = {
        {"r10", 0, "r10", "r254", "10 -"},
        {"rect500x500", 1, "rect19.68504x19.68504", "rect500x500", "500 500"},
        {"rect10x20xr5x13", 0, "rect10x20xr5x13", "rect254x508xr127x13", "10 20"},
        {"rect10", 0, "rect10", "rect10", "- -"}, // not a symbol yet
        {"r254.1234", 1, "r10.00484", "r254.1234", "254.123 -"},
        {"hole10xpx1x2", 0, "hole10xpx1x2", "hole254xpx25.4x50.8", "10 -"},
        {"donut_rc30x20x5", 0, "donut_rc30x20x5", "donut_rc762x508x127", "30 20"},
        {"rect10x20_135", 0, "rect10x20_135", "rect10x20_135", "- -"},
        {"logo_mark", 1, "logo_mark", "logo_mark", "- -"},
        {"", 0, "", "", "- -"},
    };
    for (auto const & row : rows) {
        PadSymbol const symbol(row.name, Ext::unitOfCode(row.unit));
        EXPECT_EQ(symbol.in(Unit::Inch), row.mil) << row.name;
        EXPECT_EQ(symbol.in(Unit::Millimetre), row.micrometre) << row.name;
        QStringList sizes;
        for (std::size_t i = 0; i < 3; ++i) {
            auto const length = symbol.size(i);
            sizes.append(length ? length->text(symbol.unit(), Ext::LengthScale::Small) : "-");
        }
        EXPECT_EQ(sizes.join(' '), QString(row.sizes) + " -") << row.name;
    }
}

TEST(PadSymbols, KeepTheDigitsThatWereTyped)
{
    auto const typed = [](char const * name, std::size_t which, double micrometres) {
        PadSymbol symbol(name, Unit::Inch);
        bool const isSet = symbol.setSize(which, Ext::Length::fromMicrometres(micrometres), Unit::Millimetre);
        return (isSet ? symbol.name() : "-") + (symbol.unit() == Unit::Inch ? " mil" : " micrometre");
    };
    EXPECT_EQ(typed("r10", 0, 300), "r300 micrometre") << "its only size";
    EXPECT_EQ(typed("rect10x20", 0, 300), "rect11.81102x20 mil");
    EXPECT_EQ(typed("rect10x20xr5", 1, 317.5), "rect10x12.5xr5 mil");
    EXPECT_EQ(typed("r10", 1, 300), "- mil");
    EXPECT_EQ(typed("logo", 0, 300), "- mil");
}

using Boards = SampleWindow;

TEST_F(Boards, APlaceIsShownInTheUnitOfTheView)
{
    open();
    EXPECT_EQ(positionText(view(), 25400, -12700), "x 1.000 y -0.500 inch");
    setUnit(view(), 1);
    EXPECT_EQ(positionText(view(), 25400, -12700), "x 25.400 y -12.700 mm");
    EXPECT_EQ(KVCAM::Embedded::liveState().show.unit, 1);
}

TEST_F(Boards, TheLibraryHoldsThePointersPlace)
{
    open();
    BoardView & shown = *board().currentView();
    auto const & box = *session.steps()[0].outline;
    QMouseEvent move(QEvent::MouseMove, QRectF(shown.rect()).center(), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QApplication::sendEvent(&shown, &move); // the middle of the widget shows the middle of the board
    coordinate const * place = getCoordinate(view());
    ASSERT_NE(place, nullptr);
    EXPECT_NEAR(place->x, (box.left + box.right) / 2, 1e-6);
    EXPECT_NEAR(place->y, (box.bottom + box.top) / 2, 1e-6);
}

TEST(FeatureShapes, AreTurnedSweptAndHollowAsTheFileSays)
{
    writeJob("tiny", {{"SIGNAL", "TOP"}});
    writeFile("tiny/steps/pcb/layers/top/features",
              "UNITS=MM\n$0 rect2000x1000\n$1 r100\n"
              "$2 thr1000x600x45x4x100\n$3 moire9x9x3x9x2000x0\n"
              "P 0 0 0 P 0 0\n"
              "P 0 0 0 P 0 1\n"
              "P 0 0 0 N 0 8 90\n"
              "A 1 0 0 1 0 0 1 P 0 N\n"
              "A 1 0 0 1 0 0 1 P 0 Y\n"
              "A 1 0 1 0 0 0 1 P 0 Y\n"
              "S P 0\nOB 0 0 I\nOS 9 0\nOS 9 9\nOS 0 9\nOS 0 0\nOE\n"
              "OB 4 4 H\nOS 5 4\nOS 5 5\nOS 4 5\nOS 4 4\nOE\nSE\n"
              "P 0 0 2 P 0 0\nP 0 0 3 P 0 0\nA -1 -0 -1 0 0 0 1 P 0 Y\n");
    Session session;
    ASSERT_EQ(session.open(QDir().absoluteFilePath("tiny")), "");
    auto const shapes = featureShapes(KVCAM::Embedded::features("tiny", "pcb", "top"),
                                      KVCAM::Embedded::featureDrawings("tiny", "pcb", "top"));
    QRectF const boxes[] = {
        {-1000, -500, 2000, 1000},                            // unrotated
        {-500, -1000, 1000, 2000},                            // a quarter turn
        {-500, -1000, 1000, 2000},                            // by angle
        {0, 0, 1000, 1000},                                   // counter-clockwise from 3 to 12 o'clock
        {-1000, -1000, 2000, 2000},                           // clockwise, the long way
        {-1000, -1000, 2000, 2000},                           // a full circle
        {0, 0, 9000, 9000},         {-500, -500, 1000, 1000}, // a thermal by its outer size
        {-1000, -1000, 2000, 2000},                           // a moire by its lines
        {-1000, -1000, 2000, 2000},                           // a full circle from -180 to 180 degrees
    };
    ASSERT_EQ(shapes.size(), std::size(boxes));
    for (std::size_t i = 0; i < shapes.size(); ++i) {
        QRectF const box = shapes[i].outline().boundingRect();
        EXPECT_LT(QLineF(box.topLeft(), boxes[i].topLeft()).length(), 1) << i;
        EXPECT_LT(QLineF(box.bottomRight(), boxes[i].bottomRight()).length(), 1) << i;
        EXPECT_EQ(shapes[i].positive, i != 2) << i;
    }
    EXPECT_TRUE(shapes[6].path.contains(QPointF(1000, 1000)));
    EXPECT_FALSE(shapes[6].path.contains(QPointF(4500, 4500)));
    EXPECT_FALSE(shapes[7].path.contains(QPointF(250, 0)));
    EXPECT_EQ(shapes[3].penWidth, 100);
}

TEST(ConfigurationPages, AnEditedSettingIsSavedAndReachesTheEngine)
{
    writeFile("config/server.json", R"({"ThreadCount": 3, "Note": "kept in the backup"})");
    Ext::setKeepSettingsBackup(true);
    SettingsPage page;
    auto * threads = page.findChild<QSpinBox *>("Calculation threads");
    ASSERT_NE(threads, nullptr);
    EXPECT_EQ(threads->value(), 3);
    threads->setValue(5);
    emit threads->editingFinished();
    EXPECT_EQ(readObject("config/server.json")["ThreadCount"].toInt(), 5);
    EXPECT_EQ(readObject("config/server.json.bak")["Note"].toString(), "kept in the backup");
    EXPECT_EQ(KVCAM::Embedded::liveState().threadCount, 5);
}

TEST(ConfigurationPages, ATemplateIsSavedAsAFileOfItsOwnAndDeleted)
{
    writeFile("config/automatrix.json", R"({"template": [
        {"name": "a: b", "prefix": {"drill": "dr"}, "suffix": {}}]})");
    TemplatesPage page;
    buttonOf(page, "Save as new").click();
    EXPECT_EQ(getAutoMatrixTmpMap().at(2).prefix_drill, "dr");
    EXPECT_EQ(getAutoMatrixTmpMap().at(2).name, "a: b 2");
    EXPECT_TRUE(QFile::exists("autoMatrix/a_ b 2.json")); // no colon in a file name
    buttonOf(page, "Use as current").click();
    EXPECT_EQ(getCurrentAutoMatrixTmp().name, "a: b 2");
    buttonOf(page, "Delete").click();
    EXPECT_EQ(getAutoMatrixTmpMap().size(), 1U);
    EXPECT_FALSE(QFile::exists("autoMatrix/a_ b 2.json"));
}

} // namespace
