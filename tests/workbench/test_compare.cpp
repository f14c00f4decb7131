#include "SampleWindow.h"
#include "layers/ComparePage.h"
#include "layers/CompareView.h"
#include "layers/Difference.h"
#include "layers/LayerComparison.h"
#include "ui/LayerColours.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QRandomGenerator>
#include <QTableWidget>

#include <atomic>
#include <limits>
#include <map>
#include <memory>

using namespace KVCAM::UIAPI;
using namespace Workbench;

namespace {

Pixel pixelOfLetter(QChar letter)
{
    return letter == 'a'   ? Pixel::OnlyFirst
           : letter == 'b' ? Pixel::OnlySecond
           : letter == '#' ? Pixel::Both
                           : Pixel::Nothing;
}

Difference differenceIn(QStringList const & rows, std::size_t listed = 100)
{
    Difference difference(listed);
    for (QString const & row : rows) {
        std::vector<Pixel> pixels;
        for (QChar const letter : row) {
            pixels.push_back(pixelOfLetter(letter));
        }
        difference.addRow(pixels);
    }
    difference.finish();
    return difference;
}

// "a4 2x2+0+0 @0,0": kind, pixels, box and place.
QStringList listed(Difference const & difference, bool hasPlace = true)
{
    QStringList texts;
    for (DifferingRegion const & region : difference.regions()) {
        QString text = QString("%1%2 %3x%4+%5+%6")
                           .arg(region.kind == Pixel::OnlyFirst ? 'a' : 'b')
                           .arg(region.pixels)
                           .arg(region.box.width())
                           .arg(region.box.height())
                           .arg(region.box.x())
                           .arg(region.box.y());
        texts.append(hasPlace ? text + QString(" @%1,%2").arg(region.place.x()).arg(region.place.y()) : text);
    }
    return texts;
}

TEST(Differences, AreRegionsOfOneKindWithSizeAndPlace)
{
    struct
    {
        char const * picture; ///< rows separated by blanks
        char const * regions;
    } const rows[] = {
        {"....", ""},
        {"#### ####", ""},
        {"aa.. aa.b", "a4 2x2+0+0 @0,0; b1 1x1+3+1 @3,1"},
        {"ab ab", "a2 1x2+0+0 @0,0; b2 1x2+1+0 @1,0"}, // kinds never join
        {"a.. .a. ..a", "a3 3x3+0+0 @0,0"},            // corners touch
        {"a.a a.a aaa", "a7 3x3+0+0 @1,2"},            // two arms meet below
        {"aaa a.a a.a", "a7 3x3+0+0 @1,0"},            // and above
        {"a.b.a aabaa", "a3 2x2+0+0 @0,1; a3 2x2+3+0 @3,1; b2 1x2+2+0 @2,0"},
        {"a#a", "a1 1x1+0+0 @0,0; a1 1x1+2+0 @2,0"},
        {"a... .... a...", "a1 1x1+0+0 @0,0; a1 1x1+0+2 @0,2"}, // a row between ends a region
        {"a.a.a .a.a. ..a..", "a6 5x3+0+0 @0,0"},
    };
    for (auto const & row : rows) {
        QStringList const expected = QString(row.regions).split("; ", Qt::SkipEmptyParts);
        EXPECT_EQ(listed(differenceIn(QString(row.picture).split(' '))), expected) << row.picture;
    }
}

// The same regions by filling from each pixel.
QStringList filled(QStringList picture)
{
    std::map<QString, int> found;
    for (int y = 0; y < picture.size(); ++y) {
        for (int x = 0; x < picture[y].size(); ++x) {
            QChar const kind = picture[y][x];
            std::vector<QPoint> next;
            if (kind == 'a' || kind == 'b') {
                next.emplace_back(x, y);
                picture[y][x] = 'x';
            }
            QRect box;
            for (std::size_t i = 0; i < next.size(); ++i) {
                box |= QRect(next[i], QSize(1, 1));
                for (int k = 0; k < 9; ++k) {
                    QPoint const p = next[i] + QPoint(k % 3 - 1, k / 3 - 1);
                    if (p.y() >= 0 && p.y() < picture.size() && p.x() >= 0 && p.x() < picture[p.y()].size() &&
                        picture[p.y()][p.x()] == kind) {
                        picture[p.y()][p.x()] = 'x';
                        next.push_back(p);
                    }
                }
            }
            if (!next.empty()) {
                ++found[QString("%1%2 %3x%4+%5+%6")
                            .arg(kind)
                            .arg(next.size())
                            .arg(box.width())
                            .arg(box.height())
                            .arg(box.x())
                            .arg(box.y())];
            }
        }
    }
    QStringList texts;
    for (auto const & [text, count] : found) {
        for (int i = 0; i < count; ++i) {
            texts.append(text);
        }
    }
    return texts;
}

TEST(Differences, OfAnyPictureAreThoseThatFillingFinds)
{
    QRandomGenerator random(7);
    for (int round = 0; round < 300; ++round) {
        QStringList picture;
        int const width = random.bounded(1, 16);
        QString const letters = round % 2 == 0 ? "aab.#." : "aaa.";
        for (int y = random.bounded(1, 16); y > 0; --y) {
            QString row;
            for (int x = 0; x < width; ++x) {
                row += letters[random.bounded(letters.size())];
            }
            picture.append(row);
        }
        Difference const difference = differenceIn(picture, 1000);
        QStringList texts = listed(difference, false);
        texts.sort();
        ASSERT_EQ(texts, filled(picture)) << picture.join(' ').toStdString();
        for (DifferingRegion const & region : difference.regions()) {
            EXPECT_EQ(pixelOfLetter(picture[region.place.y()][region.place.x()]), region.kind);
        }
    }
}

TEST(Differences, ListTheLargestAndTheSmallestHoweverManyThereAre)
{
    QStringList picture;
    for (int size = 1; size <= 40; ++size) {
        picture << QString(size % 2 == 0 ? size : 41 - size, 'a') + QString(40, '.') << QString();
    }
    Difference const difference = differenceIn(picture, 3);
    QStringList sizes;
    for (DifferingRegion const & region : difference.regions()) {
        sizes.append(QString::number(region.pixels));
    }
    EXPECT_EQ(sizes.join(' '), "40 40 38 4 2 2");
    EXPECT_EQ(difference.count(Pixel::OnlyFirst), 40);
    EXPECT_EQ(difference.pixels(Pixel::OnlyFirst), 840);
}

// Layers of a job in the current directory, and what a comparison of them says.
class Comparing : public ::testing::Test
{
protected:
    void SetUp() override
    {
        struct
        {
            char const * name;
            char const * features;
        } const layers[] = {
            {"drawn", "$0 r1000\n$1 s2000\nL 0 0 10 0 0 P 0\nP 5 8 1 P 0 0\n"},
            // The same bar with its round ends, and the square, as surfaces and pads.
            {"poured",
             "$0 r1000\nS P 0\nOB 0 -0.5 I\nOS 0 0.5\nOS 10 0.5\nOS 10 -0.5\nOS 0 -0.5\nOE\nSE\n"
             "P 0 0 0 P 0 0\nP 10 0 0 P 0 0\nS P 0\nOB 4 7 I\nOS 4 9\nOS 6 9\nOS 6 7\nOS 4 7\nOE\nSE\n"},
            {"shifted", "$0 r1000\n$1 s2000\nL 0 0 10 0 0 P 0\nP 5.5 8 1 P 0 0\n"},
            {"holed", "$0 r1000\n$1 s2000\n$2 s500\nL 0 0 10 0 0 P 0\nP 5 8 1 P 0 0\nP 5 8 2 N 0 0\n"},
            {"fine", "$0 r1000\n$1 s2000\n$2 r20\nL 0 0 10 0 0 P 0\nP 5 8 1 P 0 0\nP 2 4 2 P 0 0\n"},
            {"empty", ""},
        };
        std::vector<std::pair<char const *, char const *>> names;
        for (auto const & layer : layers) {
            names.emplace_back("SIGNAL", layer.name);
            writeFile(QString("own/steps/pcb/layers/%1/features").arg(layer.name),
                      QByteArray("UNITS=MM\n") + layer.features);
        }
        writeJob("own", names);
        ASSERT_EQ(session.open(QDir().absoluteFilePath("own")), "");
    }
    ComparedLayers layers(char const * first, char const * second) const
    {
        auto const of = [this](char const * name) {
            for (Session::Layer const & layer : session.layers()) {
                if (layer.info.name == name) {
                    return PictureTask::Layer{
                        {std::make_shared<LayerShapes const>(session.job(), "pcb", layer.info), {}}};
                }
            }
            return PictureTask::Layer();
        };
        return {of(first), of(second)};
    }

    Session session;
    std::atomic<int> percent{0};
    std::atomic<bool> cancelled{false};
};

TEST_F(Comparing, SeesWhatIsMissingMovedOrCutOutButNotHowItIsDrawn)
{
    struct
    {
        char const * first;
        char const * second;
        int regions[2];
        double areas[2]; ///< square millimetres
        QRectF largest;  ///< millimetres
    } const rows[] = {
        {"drawn", "drawn", {0, 0}, {0, 0}, {}},
        {"drawn", "poured", {0, 0}, {0, 0}, {}},
        {"drawn", "shifted", {1, 1}, {1, 1}, {4, 7, 0.5, 2}},
        {"drawn", "holed", {1, 0}, {0.25, 0}, {4.75, 7.75, 0.5, 0.5}},
        {"holed", "drawn", {0, 1}, {0, 0.25}, {4.75, 7.75, 0.5, 0.5}},
        {"drawn", "fine", {0, 1}, {0, 0.0003}, {1.99, 3.99, 0.02, 0.02}},
        {"drawn", "empty", {2, 0}, {14.785, 0}, {-0.5, -0.5, 11, 1}},
        {"empty", "empty", {0, 0}, {0, 0}, {}},
    };
    for (auto const & row : rows) {
        std::string const what = std::string(row.first) + " and " + row.second;
        ComparedLayers const compared = layers(row.first, row.second);
        LayerDifference const found = compareLayers(compared, compared.extent(), 2000, percent, cancelled);
        EXPECT_EQ(found.firstRegions, row.regions[0]) << what;
        EXPECT_EQ(found.secondRegions, row.regions[1]) << what;
        EXPECT_NEAR(found.onlyFirst / 1e6, row.areas[0], 0.02) << what;
        EXPECT_NEAR(found.onlySecond / 1e6, row.areas[1], 0.02) << what;
        if (!found.regions.empty()) {
            QRectF const & box = found.regions.front().box;
            EXPECT_EQ(found.regions.front().isFirst, row.areas[0] >= row.areas[1]) << what;
            double const slack = 2 * found.pixel;
            EXPECT_NEAR(box.left(), row.largest.left() * 1000, slack) << what;
            EXPECT_NEAR(box.top(), row.largest.top() * 1000, slack) << what;
            EXPECT_NEAR(box.width(), row.largest.width() * 1000, slack) << what;
            EXPECT_NEAR(box.height(), row.largest.height() * 1000, slack) << what;
            EXPECT_TRUE(box.contains(found.regions.front().place)) << what;
        }
    }
}

TEST_F(Comparing, IsAsFineAsItSaysAndKeepsToItsPart)
{
    struct
    {
        char const * second;
        QRectF area; ///< millimetres
        int pixels;
        double pixel; ///< micrometres
        int regions;
        double onlyFirst; ///< square millimetres
    } const rows[] = {
        {"holed", {0, 0, 10, 10}, 1000, 10, 1, 0.25},
        {"shifted", {0, 0, 10, 10}, 8, 1250, 0, 0},   // by 0.4 pixels
        {"holed", {5, 7, 4, 2}, 1000, 4, 1, 0.125},   // cut at the edge
        {"shifted", {-1, -1, 12, 12}, 4000, 3, 1, 1}, // in several slices
        {"holed", {0, 0, 4, 2}, 4000, 1, 0, 0},
        {"holed", {0, 0, 0, 0}, 1000, 0, 0, 0},
        {"holed", {0, 0, std::numeric_limits<double>::infinity(), 1}, 1000, 0, 0, 0},
        {"holed", {4.9, 7.9, 0.001, 0.001}, 4000, 0.05, 1, 1e-6},
        {"holed", {0, 0, 1, 0}, 10, 100, 0, 0},
    };
    for (auto const & row : rows) {
        ComparedLayers const compared = layers("drawn", row.second);
        QRectF const area(row.area.topLeft() * 1000, row.area.size() * 1000);
        LayerDifference const found = compareLayers(compared, area, row.pixels, percent, cancelled);
        EXPECT_NEAR(found.pixel, row.pixel, 1e-9);
        EXPECT_EQ(found.firstRegions, row.regions) << row.pixels << ' ' << row.area.width();
        EXPECT_NEAR(found.onlyFirst / 1e6, row.onlyFirst, row.onlyFirst * 0.05);
    }
    ComparedLayers const compared = layers("drawn", "holed");
    cancelled = true;
    EXPECT_EQ(compareLayers(compared, {0, 0, 1e4, 1e4}, 1000, percent, cancelled).both, 0);
    EXPECT_TRUE(paintComparison(compared, {}, {10, 10}, cancelled).isNull());
}

TEST_F(Comparing, ShowsEachKindInItsColour)
{
    ComparedLayers const compared = layers("drawn", "shifted");
    QTransform const toPicture(0.05, 0, 0, -0.05, 50, 500); // 20 pixels for a millimetre
    QImage const picture = paintComparison(compared, toPicture, {400, 600}, cancelled);
    auto const at = [&](double x, double y) {
        return picture.pixel(toPicture.map(QPointF(x * 1000, y * 1000)).toPoint());
    };
    EXPECT_EQ(at(4.2, 8), onlyFirstColour);
    EXPECT_EQ(at(6.2, 8), onlySecondColour);
    EXPECT_EQ(at(5.2, 8), bothColour);
    EXPECT_EQ(at(5.2, 0), bothColour);
    EXPECT_EQ(at(5.2, 4), 0xffffffff);
}

class ComparePages : public SampleWindow
{
protected:
    QString finished(ComparePage & page)
    {
        EXPECT_TRUE(QTest::qWaitFor([&page] { return !page.isBusy(); }, 30'000));
        return find<QLabel>("comparison").text();
    }
};

TEST_F(ComparePages, ListRegionsCentreOnThemAndSayWhenTheyAreOutOfDate)
{
    open();
    auto & page = find<ComparePage>();
    auto & table = find<QTableWidget>("regions");
    auto & view = find<CompareView>();
    EXPECT_EQ(find<QComboBox>("first layer").currentText(), "top") << "at first the outer copper";
    EXPECT_EQ(find<QComboBox>("second layer").currentText(), "bottom");
    page.choose("drill", "sst");
    emit board().compareWanted("bottom");
    EXPECT_TRUE(page.isVisible());
    EXPECT_EQ(find<QComboBox>("first layer").currentText(), "top");
    EXPECT_EQ(find<QComboBox>("second layer").currentText(), "bottom");
    QString const text = finished(page);
    EXPECT_TRUE(text.contains("mm² in") && text.contains("Seen in pixels of")) << text.toStdString();
    ASSERT_GT(table.rowCount(), 2);
    EXPECT_EQ(table.rowCount(), static_cast<int>(page.found().regions.size()));
    LayerRegion const & last = page.found().regions.back();
    EXPECT_LT(last.area, page.found().regions.front().area);
    table.setCurrentCell(table.rowCount() - 1, 0);
    EXPECT_TRUE(view.visible().contains(last.place));
    EXPECT_LT(view.visible().width(), page.found().area.width() / 3);

    double const coarse = page.found().pixel;
    page.findChild<QCheckBox *>()->setChecked(true);
    page.compare();
    EXPECT_TRUE(finished(page).contains("Only a part was compared"));
    EXPECT_LT(page.found().pixel, coarse / 3);
    board().refresh();
    EXPECT_TRUE(find<QLabel>("comparison").text().startsWith("The step has changed since"));
    page.compare();
    EXPECT_FALSE(finished(page).contains("changed"));
    EXPECT_EQ(page.found().pixel, coarse) << "layers that were read again are compared as a whole";
    page.compare();
    page.stop();
    for (LANGUAGE_MODE const language : {LANGUAGE_CHINESE, LANGUAGE_ENGLISH}) {
        window->setLanguage(language);
        QApplication::processEvents();
    }
    EXPECT_EQ(finished(page), "The comparison was stopped.");
    EXPECT_EQ(table.rowCount(), 0);
    page.choose("prepreg_1", "prepreg_2");
    page.compare();
    EXPECT_EQ(finished(page), "Both layers are empty in this step.");
    page.compare(); // and the window goes while it is busy
    window.reset();
}

TEST(Colours, DifferBetweenAnyTwoLayersAndFollowTheWishesWhereTheyCan)
{
    constexpr QRgb red = 0xffb03030;
    constexpr QRgb green = 0xff2e7d4f;
    constexpr QRgb nearlyGreen = 0xff2f7c50;
    struct
    {
        std::vector<ColourWish> wishes;
        std::vector<bool> granted;
    } const rows[] = {
        {{{red}, {green}}, {true, true}},
        {{{red}, {red}}, {true, false}},
        {{{green}, {nearlyGreen}}, {true, false}},
        {{{red}, {red, true}}, {false, true}}, // what the user chose comes first
        {{{red, true}, {red, true}}, {true, true}},
    };
    for (auto const & row : rows) {
        std::vector<QRgb> const colours = distinctColours(row.wishes);
        ASSERT_EQ(colours.size(), row.wishes.size());
        for (std::size_t i = 0; i < colours.size(); ++i) {
            EXPECT_EQ(colours[i] == row.wishes[i].colour, row.granted[i]) << i;
        }
    }
    for (std::size_t const count : {30U, 100U, 2000U}) {
        std::vector<QRgb> const colours = distinctColours(std::vector<ColourWish>(count, {red}));
        double least = 1000;
        for (std::size_t i = 0; i < count; ++i) {
            EXPECT_LT(qGray(colours[i]), 190) << "too light";
            for (std::size_t j = 0; j < i; ++j) {
                least = std::min(least, colourDistance(colours[i], colours[j]));
            }
        }
        EXPECT_GE(least, count == 30 ? 60 : count == 100 ? 20 : 1) << count;
    }
}

} // namespace
