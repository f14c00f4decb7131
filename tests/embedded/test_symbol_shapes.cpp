#include "embedded/CheckTest.h"

#include <cmath>

using namespace KVCAM;
using namespace KVCAM::Testing;

namespace {

class SymbolShapesTest : public CheckTest
{
protected:
    void SetUp() override { makeJob(row(1, "TOP", "SIGNAL") + row(2, "DRILL", "DRILL")); }

    /// The spacing between two SMD pads: the symbol "own", placed by `turn`, and a round one of 0.2 mm.
    static int spacing(QByteArray const & place, QByteArray const & turn = "0")
    {
        fill("top",
             "UNITS=MM\n$0 own\n$1 r200\n@0 .smd\nP 0 0 0 P 0 " + turn + " ;0\nP " + place + " 1 P 0 0 ;0\n");
        EXPECT_TRUE(open()) << Embedded::lastError();
        auto const records = signal(check(), "top", 12);
        EXPECT_EQ(records.size(), 1U);
        return records.empty() ? -1 : records[0].points.at(4);
    }
    static void draw(QByteArray const & drawing, char const * name = "own")
    {
        write(QString("jobs/board/symbols/%1/features").arg(name), "UNITS=MM\n" + drawing);
    }
};

constexpr char const * square = "S P 0\nOB -1 -1 I\nOS 1 -1\nOS 1 1\nOS -1 1\nOE\n";
constexpr char const * bitten = // an arc of 1.75 mm bites 0.314 mm into the right side
    "S P 0\nOB -1 -2.65 I\nOS 1 -2.65\nOS 1 -1\nOC 1 1 2.436140662 0 Y\nOS 1 2.65\nOS -1 2.65\nOE\nSE\n";
constexpr char const * round = "S P 0\nOB 0.1016 0 I\nOC -0.1016 0 0 0 N\nOC 0.1016 0 0 0 N\nOE\nSE\n";
constexpr char const * ring = "S P 0\nOB 2 0 I\nOC 2 0 0 0 Y\nOE\nOB 1 0 H\nOC 1 0 0 0 N\nOE\nSE\n";
constexpr char const * cup = // open on top
    "S P 0\nOB -1.5 -1.5 I\nOS 1.5 -1.5\nOS 1.5 1.5\nOS 0.6 1.5\nOS 0.6 -1\nOS -0.6 -1\nOS -0.6 1.5\n"
    "OS -1.5 1.5\nOE\nSE\n";
constexpr char const * halfRing = "$0 r200\nA 1 0 -1 0 0 0 0 P 0 N\n"; // the upper half
constexpr char const * hourglass =                                     // over another surface
    "S P 0\nOB -0.1 -1.9 I\nOS 0.1 -1.9\nOS 0.1 -1.7\nOE\nSE\n"
    "S P 0\nOB -2 -2 I\nOS 2 -2\nOS -2 2\nOS 2 2\nOE\nSE\n";
constexpr char const * slanted =
    "S P 0\nOB 0.4242641 0.7071068 I\nOS 0.7071068 0.4242641\nOS -0.4242641 -0.7071068\n"
    "OS -0.7071068 -0.4242641\nOE\nSE\n";

TEST_F(SymbolShapesTest, SpacingFollowsTheDrawing)
{
    struct Row
    {
        QByteArray drawing;
        char const * place; // of the round pad
        double expected;
        char const * turn = "0";
    };
    draw("$0 r200\nP 0 1 0 P 0 0\nP 0 2 0 N 0 0\n", "lower");
    QByteArray const shifted = QByteArray(square).replace("1", "1.5") + "SE\n";
    for (Row const & row : std::initializer_list<Row>{
             {bitten, "2 0", 2000 - 686.14 - 100},
             {bitten, "2 0", 1000 - 100, "2"},
             {cup, "0 0.5", 600 - 100}, // in the box, not on the copper
             {cup, "0 -1.2", 0},
             {cup, "0 0.5", 500 - 100, "2"},
             {cup, "0.5 0", 500 - 100, "5"},
             {ring, "0 0", 1000 - 100},
             {ring, "1.5 0", 0},
             {ring, "0.707107 2.121320", 2236.07 - 2000 - 100},
             {hourglass, "0 -1.2", 0},
             {hourglass, "1 0", 707.11 - 100},
             {halfRing, "0 0", 1000 - 200},
             {halfRing, "0 -1", 1414.21 - 200},
             {halfRing, "0 -1", 0, "2"},
             {"$0 s200\nL -1 0 1 0 0 P 0\n", "2 1", 1272.79 - 100},
             {"$0 s200\nA 1 0 -1 0 0 0 0 P 0 N\n", "2 1", 2102.38 - 1000 - 100},
             {QByteArray(square) + "SE\n" + shifted, "0 0", 0}, // where both draw
             {QByteArray(square) + "OB -0.5 -0.5 H\nOS 0.5 -0.5\nOS 0.5 0.5\nOS -0.5 0.5\nOE\nSE\n", "0.1 0",
              400 - 100},
             {"$0 lower\nP 2 0 0 P 0 5\n", "3 0", 2000 - 200},
             {"$0 lower\nP 2 0 0 P 0 5\n", "0 3", 4000 - 200, "1"},
         }) {
        draw(row.drawing);
        EXPECT_EQ(spacing(row.place, row.turn), std::lround(row.expected))
            << row.drawing.toStdString() << row.place;
    }
}

// A quarter of a micrometre is allowed, but only in that direction.
TEST_F(SymbolShapesTest, CopperIsNeverTakenForSmallerThanItIs)
{
    struct Row
    {
        QByteArray drawing;
        double edge; // distance of the copper from the origin, millimetres
    };
    for (Row const & row : std::initializer_list<Row>{
             {"S P 0\nOB 1 0 I\nOC 1 0 0 0 Y\nOE\nSE\n", 1},
             {"$0 r200\nA 1 0 1 0 0 0 0 P 0 Y\n", 1.1},
         }) {
        draw(row.drawing);
        for (int i = 0; i < 13; ++i) {
            double const angle = 0.01 + 0.023 * i;
            double const way = row.edge + 2.10044; // 2000.44 micrometres between the edges
            EXPECT_EQ(spacing(QByteArray::number(way * std::cos(angle), 'f', 9) + ' ' +
                              QByteArray::number(way * std::sin(angle), 'f', 9)),
                      2000)
                << row.drawing.toStdString() << angle;
        }
    }
}

TEST_F(SymbolShapesTest, SizesAreThoseOfTheDrawing)
{
    struct Row
    {
        QByteArray drawing;
        int mil;
        int narrower;
        int wider;
    };
    for (Row const & row : std::initializer_list<Row>{
             {bitten, 78, 2000, 5300},
             {round, 8, 203, 203},
             {halfRing, 47, 1200, 2200},
             {slanted, 15, 400, 1600},
             {QByteArray(slanted).replace("-0.7071068 -0.4242641", "-0.7071068 0"), 27, 700, 1600},
             {"$0 r203.2\nL -0.3 -0.1 0.3 0.1 0 P 0\n", 8, 203, 836},
             {"$0 r200\n$1 r474\n$2 r300\nP 0 0 0 P 0 0\nP 2 0 1 P 0 0\nP 0.85 0.96397 2 P 0 0\n", 49, 1270,
              2332},
             {"$0 r200\n$1 r600\nP -1 0 0 P 0 0\nP 1 0 1 P 0 0\n", 23, 600, 2400},
         }) {
        draw(row.drawing);
        fill("top", "UNITS=MM\n$0 own\nP 1 1 0 P 0 8 37\nP 1 1 0 P 0 8 37\n");
        ASSERT_TRUE(open()) << Embedded::lastError();
        EXPECT_EQ(texts(signal(check(), "top", 45)),
                  Texts{"5 " + std::to_string(row.mil) + ": 1000 1000 " + std::to_string(row.narrower) + ' ' +
                        std::to_string(row.wider)})
            << row.drawing.toStdString();
    }
}

// Holes and slots drawn with a symbol of the job's own, away from its origin.
TEST_F(SymbolShapesTest, HolesFollowTheDrawing)
{
    draw("$0 r203.2\nL 0 0 0.0005 0 0 P 0\n"); // not a slot
    draw("$0 r400\nL 1 1 2 2 0 P 0\n", "slot");
    fill("drill", "UNITS=MM\n$0 own\n$1 slot\nP 5 5 0 P 0 0\nP 0 0 1 P 0 4\n");
    fill("top", "");
    ASSERT_TRUE(open()) << Embedded::lastError();
    auto const results = check();
    EXPECT_EQ(texts(drill(results, "drill", 0)), Texts{"5 8: 5000 5000 203 203"});
    auto const found = drill(results, "drill", 3);
    ASSERT_EQ(found.size(), 1U);
    EXPECT_TRUE(texts(found)[0] == "1 15: -1000 1000 -2000 2000 400" ||
                texts(found)[0] == "1 15: -2000 2000 -1000 1000 400")
        << texts(found)[0];
}

struct Slot
{
    char const * pad;
    char const * padPlace; // and turn
    char const * slot;     // its record from the place on
    int item;
    double expected; // micrometres; negative: no ring
};

TEST_F(SymbolShapesTest, ASlotHasARing)
{
    for (Slot const & row : {
             Slot{"oval2000x1000", "0 0 0 P 0 0", "L -0.5 0 0.5 0 0 P 0 ;0=0", 31, 500 - 200},
             Slot{"oval2000x1000", "0.1 0 0 P 0 0", "L -0.5 0 0.5 0 0 P 0 ;0=0", 31, 500 - 100 - 200},
             Slot{"rect3000x1000", "0 0 0 P 0 8 45", "L 0.5 -0.5 -0.5 0.5 0 P 0 ;0=2", 33, 500 - 200},
             Slot{"rect3000x1000", "0 0 0 P 0 9 45", "L 0.5 0.5 -0.5 -0.5 0 P 0 ;0=1", 36, 500 - 200},
             Slot{"rect3000x1000", "0 0 0 P 0 8 45", "L 0.5 0.5 -0.5 -0.5 0 P 0 ;0=2", 33, -1},
             Slot{"r1000", "0 0 0 P 0 0", "L 0 0 0.4 0 0 P 0 ;0=0", 31, 0},
             Slot{"r1000", "0 0 0 P 0 0", "L 0 0 0.6 0 0 P 0 ;0=0", 31, -1},
             Slot{"oval1000x400", "0 0 0 P 0 0", "L -0.3 0 0.3 0 0 P 0 ;0=1", 36, -1}, // drilled away
             Slot{"oval1000x500", "0 0 0 P 0 0", "L -0.3 0 0.3 0 0 P 0 ;0=1", 36, 0},
             Slot{"donut_r2000x300", "0 0 0 P 0 0", "L -0.3 0 0.3 0 0 P 0 ;0=0", 31, 1000 - 300 - 200},
             Slot{"donut_r2000x500", "0 0 0 P 0 0", "L -0.3 0 0.3 0 0 P 0 ;0=0", 31, -1},
         }) {
        fill("top", QByteArray("UNITS=MM\n$0 ") + row.pad + "\nP " + row.padPlace + '\n');
        fill("drill", QByteArray("UNITS=MM\n$0 r400\n@0 .drill\n") + row.slot + '\n');
        ASSERT_TRUE(open()) << Embedded::lastError();
        auto const records = signal(check(), "top", row.item);
        ASSERT_EQ(records.size(), row.expected < 0 ? 0U : 1U) << row.pad << ' ' << row.slot;
        if (!records.empty()) {
            EXPECT_EQ(records[0].points.at(6), std::lround(row.expected)) << row.pad << ' ' << row.slot;
        }
    }
}

} // namespace
