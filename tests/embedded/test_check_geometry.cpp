#include "embedded/CheckTest.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <random>

using namespace KVCAM;
using namespace KVCAM::Testing;

namespace {

class CheckGeometryTest : public CheckTest
{
protected:
    void SetUp() override
    {
        makeJob(row(1, "TOP", "SIGNAL") + row(2, "DRILL", "DRILL"));
        // One of the job's own symbols: a bar to the right of its origin.
        write("jobs/board/symbols/bar/features", "UNITS=MM\n$0 r200\nL 0.1 0 0.9 0 0 P 0\nS P 0\nOB 0 0 "
                                                 "I\nOS 1 0\nOS 1 0.1\nOE\nSE\nP 9 9 0 N 0 0\n");
    }
};

struct Pads
{
    char const * first;
    char const * firstTurn; // the text after polarity and code
    char const * second;
    char const * secondPlace; // millimetres; the first one is at 0 0
    char const * secondTurn;
    double expected; // micrometres
};

// Calculated by hand: the distance between the outlines of two pads.
constexpr std::array spacings{
    Pads{"r1000", "0", "r500", "3 0", "0", 3000 - 500 - 250},
    Pads{"r1000", "0", "r10 I", "0 -3", "0", 3000 - 500 - 127},
    Pads{"s1000", "0", "s1000", "2 2", "0", 1414.21},
    Pads{"rect2000x1000", "0", "rect2000x1000", "3 0", "1", 3000 - 1000 - 500},
    Pads{"rect2000x1000", "0", "rect2000x1000", "3 0", "8 -90", 3000 - 1000 - 500},
    Pads{"rect2000x1000", "8 45", "r200", "3 3", "0", 4242.64 - 500 - 100},   // broadside
    Pads{"rect2000x1000", "8 45", "r200", "3 -3", "0", 4242.64 - 1000 - 100}, // clockwise: to the lower right
    Pads{"rect2000x1000", "8 405", "r200", "3 -3", "0", 4242.64 - 1000 - 100},
    Pads{"s1000", "8 45", "s1000", "2 0", "0", 2000 - 707.11 - 500}, // corner to side
    Pads{"s1000", "8 45", "s1000", "2 0", "8 45", 2000 - 2 * 707.11},
    Pads{"oval2000x1000", "0", "oval2000x1000", "0 3", "1", 3000 - 500 - 1000},
    Pads{"oval2000x1000", "0", "oval1000x1000", "3 3", "0",
         3905.12 - 500 - 500}, // from the round end's centre
    Pads{"oval1000x2000", "0", "r200", "2 0", "0", 2000 - 500 - 100},
    Pads{"rect1000x1000xr200", "0", "r200", "2 2", "0", 2404.16 - 200 - 100},
    Pads{"rect1000x1000xr500", "0", "r200", "2 2", "0", 2828.43 - 500 - 100},
    Pads{"rect1000x1000xr900", "0", "r200", "2 2", "0", 2828.43 - 500 - 100}, // limited to a circle
    Pads{"rect1000x1000xr200x24", "0", "r200", "2 2", "0", 2121.32 - 100},    // as if no corner were rounded
    Pads{"rect1000x1000xc200", "0", "r200", "2 2", "0", 2262.74 - 100},
    Pads{"oct1000x1000x200", "0", "r200", "2 2", "0", 2262.74 - 100},
    Pads{"di1000x2000", "0", "r200", "0 2", "0", 2000 - 1000 - 100},
    Pads{"tri1000x1000", "0", "r200", "0 2", "0", 2000 - 500 - 100},
    Pads{"tri1000x1000", "2", "s200", "0 2", "0", 2000 - 500 - 100},
    Pads{"tri1000x1000", "0", "r200", "0.5 1.5", "0", 1118.03 - 100}, // the apex
    Pads{"hex_l1000x800x200", "0", "r200", "2 0", "0", 2000 - 500 - 100},
    Pads{"hex_s800x1000x200", "0", "r200", "0 2", "0", 2000 - 500 - 100},
    Pads{"el2000x1000", "0", "r200", "3 0", "0", 3000 - 1000 - 100},
    Pads{"oval_h2000x1000", "0", "r200", "3 0", "0", 3000 - 1000 - 100},
    Pads{"donut_rc2000x1000x100", "0", "donut_r1000x900", "3 0", "0", 3000 - 1000 - 500},
    Pads{"donut_s1000x800", "0", "thr1000x800x0x4x100", "3 0", "0", 3000 - 500 - 500},
    Pads{"moire10x10x3x5x400x0", "0", "r200", "3 0", "0", 3000 - 200.02 - 100}, // the arms have square ends
    Pads{"bar", "0", "r200", "3 0", "0", 3000 - 1000 - 100},
    // Turned clockwise first, then mirrored.
    Pads{"bar", "4", "r200", "3 0", "0", 3000 - 100}, // to the left
    Pads{"bar", "5", "r200", "0 -3", "0", 3000 - 1000 - 100},
    Pads{"bar", "6", "r200", "3 0", "0", 3000 - 1000 - 100},
    Pads{"bar", "7", "r200", "0 3", "0", 3000 - 1000 - 100},
    Pads{"bar", "9 30", "r200", "-2.598076 -1.5", "0", 3000 - 1000 - 100},
    Pads{"tri1000x1000", "4", "r200", "0.5 2", "0", 1581.14 - 100}, // the apex on top
    Pads{"tri1000x1000", "5", "r200", "2 0.5", "0", 1500 - 100},
    Pads{"tri1000x1000", "6", "r200", "0.5 2", "0", 1500 - 100},
    Pads{"tri1000x1000", "7", "r200", "2 0.5", "0", 1581.14 - 100}, // the apex on the right
    Pads{"tri1000x1000", "9 45", "r200", "2 0", "0", 2000 - 707.11 - 100},
    Pads{"oval_h2000x1000", "0", "r200", "2 0.5", "0", 1581.14 - 500 - 100}, // the round end on the right
    Pads{"oval_h2000x1000", "4", "r200", "2 0.5", "0", 1000 - 100},
    Pads{"oval_h2000x1000", "5", "r200", "0.5 2", "0", 1000 - 100},
    Pads{"oval_h2000x1000", "6", "r200", "2 0.5", "0", 1581.14 - 500 - 100},
    Pads{"oval_h2000x1000", "7", "r200", "0.5 2", "0", 1581.14 - 500 - 100},
    Pads{"oval_h2000x1000", "9 90", "r200", "0.5 2", "0", 1000 - 100},
    Pads{"r1000", "0", "r1000", "0.5 0", "0", 0},
    Pads{"r1000", "0", "r1000", "1 0", "0", 0},
    Pads{"s1000", "0", "s100", "0.1 0", "0", 0}, // one inside the other
    Pads{"s100", "0", "s1000", "0.1 0", "0", 0},
    Pads{"rect3000x200", "0", "rect3000x200", "0.1 0.1", "1", 0}, // crossing, no corner inside
    Pads{"rect3000x200", "0", "rect3000x200", "0 0.2", "0", 0},
};

TEST_F(CheckGeometryTest, SpacingIsFromEdgeToEdge)
{
    for (Pads const & pads : spacings) {
        // The lone fiducial is not an SMD pad and no pad's neighbour.
        fill("top", QByteArray("UNITS=MM\n$0 ") + pads.first + "\n$1 " + pads.second +
                        "\n@0 .smd\nP 0 0 0 P 0 " + pads.firstTurn + " ;0\nP " + pads.secondPlace +
                        " 1 P 0 " + pads.secondTurn + " ;0\nP 0 0.01 1 P 0 0\n");
        ASSERT_TRUE(open()) << Embedded::lastError();
        auto const records = signal(check(), "top", 12);
        ASSERT_EQ(records.size(), 1U) << pads.first << ' ' << pads.second;
        EXPECT_EQ(records[0].type, 2);
        ASSERT_EQ(records[0].points.size(), 5U);
        EXPECT_EQ(records[0].points[4], std::lround(pads.expected)) << pads.first << ' ' << pads.second;
        auto const & p = records[0].points;
        EXPECT_NEAR(std::hypot(p[2] - p[0], p[3] - p[1]), pads.expected, 1.5)
            << "the points lie so far apart";
    }
}

struct Ring
{
    char const * pad;
    char const * padPlace; // and turn
    char const * hole;
    int kind;        // 0 plated, 1 non-plated, 2 via; the hole is at 0 0
    double expected; // micrometres; negative: none is reported
};

constexpr std::array rings{
    Ring{"r600", "0 0 0 P 0 0", "r300", 2, 150},
    Ring{"r600", "0.06 0.08 0 P 0 0", "r300", 2, 50},
    Ring{"r600", "0.2 0 0 P 0 0", "r300", 2, 0},  // breaks out
    Ring{"r600", "0.4 0 0 P 0 0", "r300", 2, -1}, // beside the pad
    Ring{"r300", "0 0 0 P 0 0", "r300", 0, 0},
    Ring{"r300", "0 0 0 P 0 0", "r300", 1, -1},   // drilled away
    Ring{"r152.4", "0 0 0 P 0 0", "r6 I", 1, -1}, // in the other unit: 6 mil become slightly less
    Ring{"r300", "0.01 0 0 P 0 0", "r300", 1, 0},
    Ring{"r400", "0 0 0 P 0 0", "r300", 1, 50},
    Ring{"s1000", "0.2 0 0 P 0 0", "r300", 0, 500 - 200 - 150},
    Ring{"rect2000x1000", "0.5 0 0 P 0 1", "r300", 0, 0},      // the centre is on the pad's edge
    Ring{"rect2000x1000", "0.3 0.3 0 P 0 8 45", "r300", 0, 0}, // 500 - 424 < 150
    Ring{"rect2000x1000", "0.3 -0.3 0 P 0 8 45", "r300", 0, 500 - 150},
    Ring{"oval2000x1000", "0.8 0 0 P 0 0", "r100", 0, 500 - 300 - 50},
    Ring{"di1000x1000", "0 0 0 P 0 0", "r300", 0, 353.55 - 150},
    Ring{"tri1000x1000", "0 0 0 P 0 0", "r300", 0, 223.61 - 150},
    Ring{"tri1000x1000", "0.2 0 0 P 0 5", "r100", 0, 134.16 - 50}, // mirrored: the apex on the left
    Ring{"rect1000x1000xr300x1", "0.3 0.3 0 P 0 0", "r100", 0, 300 - 141.42 - 50}, // as if all were round
    Ring{"el1000x1000", "0 0 0 P 0 0", "r300", 0, 500 * 0.995185 - 150},           // from inside
    Ring{"oval_h2000x1000", "0.8 0 0 P 0 0", "r100", 0, 500 - 300 - 50},
    Ring{"donut_r1000x200", "0 0 0 P 0 0", "r300", 0, 350},
    Ring{"donut_r1000x200", "0.06 0 0 P 0 0", "r300", 0, -1}, // the opening extends beyond the hole
    Ring{"donut_r1000x200\n$1 r1000", "0 0 0 P 0 0\nP 0 0 1 P 0 0", "r100", 0, 450}, // a solid pad fills it
    Ring{"thr1000x800x0x4x100", "0 0 0 P 0 0", "r300", 0, -1},
    Ring{"bar", "-0.5 0 0 P 0 0", "r100", 0, -1},
    Ring{"r0", "0 0 0 P 0 0", "r300", 0, -1},
};

TEST_F(CheckGeometryTest, RingIsTheLeastDistanceFromTheHoleToTheEdgeOfThePad)
{
    std::array<int, 3> const items{31, 36, 33};
    for (Ring const & ring : rings) {
        fill("top", QByteArray("UNITS=MM\n$0 ") + ring.pad + "\nP " + ring.padPlace + '\n');
        fill("drill", QByteArray("UNITS=MM\n$0 ") + ring.hole +
                          "\n@0 .drill\nP 0 0 0 P 0 0 ;0=" + QByteArray::number(ring.kind) + '\n');
        ASSERT_TRUE(open()) << Embedded::lastError();
        auto const results = check();
        auto const records = signal(results, "top", items.at(static_cast<std::size_t>(ring.kind)));
        ASSERT_EQ(records.size(), ring.expected < 0 ? 0U : 1U) << ring.pad << " at " << ring.padPlace;
        if (!records.empty()) {
            EXPECT_EQ(records[0].type, 3);
            ASSERT_EQ(records[0].points.size(), 8U);
            EXPECT_EQ(records[0].points[6], std::lround(ring.expected))
                << ring.pad << " at " << ring.padPlace;
        }
    }
}

// Round pads, whose distances need no geometry: each nearest neighbour is found, and no pair twice,
// however the pads are distributed.
TEST_F(CheckGeometryTest, FindsTheNearestNeighboursThatABruteForceFinds)
{
    struct Spread
    {
        char const * name;
        double crowd; // most pads are within so many millimetres
        double far;   // every seventh within so many
        bool line;
        int largest; // micrometres
    };
    std::mt19937 random(7);
    for (Spread const & spread :
         {Spread{"even", 100, 100, false, 500}, Spread{"sparse", 1e6, 1e6, false, 1},
          Spread{"crowded", 1, 2e4, false, 90}, Spread{"in line", 50, 2e3, true, 10},
          Spread{"of all sizes", 100, 100, false, 20'000}, Spread{"in one place", 0, 0, false, 900}}) {
        struct Disc
        {
            double x = 0;
            double y = 0;
            int diameter = 0;
        };
        std::vector<Disc> discs;
        QByteArray text = "UNITS=MM\n@0 .smd\n";
        for (int i = 0; i < 600; ++i) {
            double const size = i % 7 == 0 ? spread.far : spread.crowd;
            auto const any = [&] {
                return std::round(std::uniform_real_distribution(0.0, size)(random) * 1000);
            };
            discs.push_back({any(), spread.line ? 0 : any(), 2 * (1 + i * spread.largest / 1200)});
            text += '$' + QByteArray::number(i) + " r" + QByteArray::number(discs.back().diameter) + "\nP " +
                    QByteArray::number(discs.back().x / 1000, 'f', 3) + ' ' +
                    QByteArray::number(discs.back().y / 1000, 'f', 3) + ' ' + QByteArray::number(i) +
                    " P 0 0 ;0\n";
        }
        std::vector<long> expected; // of each pad to its nearest neighbour
        for (std::size_t i = 0; i < discs.size(); ++i) {
            double least = 1e300;
            for (std::size_t j = 0; j < discs.size(); ++j) {
                double const centres = std::hypot(discs[i].x - discs[j].x, discs[i].y - discs[j].y);
                double const gap = centres - (discs[i].diameter + discs[j].diameter) / 2.0;
                least = i == j ? least : std::min(least, std::max(0.0, gap));
            }
            expected.push_back(std::lround(least));
        }
        std::sort(expected.begin(), expected.end());
        expected.erase(std::unique(expected.begin(), expected.end()), expected.end());

        fill("top", text);
        ASSERT_TRUE(open()) << Embedded::lastError();
        std::vector<long> found;
        std::vector<std::vector<int>> pairs;
        for (API::check_info const & record : signal(check(), "top", 12)) {
            found.push_back(record.points.at(4));
            pairs.push_back(record.points);
        }
        EXPECT_TRUE(std::is_sorted(found.begin(), found.end())) << spread.name;
        EXPECT_GE(pairs.size(), discs.size() / 2) << spread.name;
        EXPECT_LT(pairs.size(), discs.size()) << spread.name;
        found.erase(std::unique(found.begin(), found.end()), found.end());
        EXPECT_EQ(found, expected) << spread.name;
    }
}

} // namespace
