// What the checks of spacing tell, against trying everything.

#include "embedded/BruteForce.h"
#include "embedded/CheckTest.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <random>
#include <string>

using namespace KVCAM;
using namespace KVCAM::Testing;

namespace {

using Brute::Graphic;
using SpacingAgreement = CheckTest;

struct CheckTexts : CheckTest
{
    using CheckTest::texts;
};

// A board of tracks, arcs, pads and pours with openings, and nets for some of them.
QByteArray randomFeatures(std::mt19937 & random, int count)
{
    auto const number = [&random](int low, int high) {
        return QByteArray::number(std::uniform_int_distribution<int>(low, high)(random) / 1000.0);
    };
    auto const symbol = [&random](int low, int high) {
        return ' ' + QByteArray::number(std::uniform_int_distribution<int>(low, high)(random));
    };
    QByteArray text = "UNITS=MM\n$0 r150\n$1 r300\n$2 rect400x900\n$3 s500\n$4 oval900x350\n"
                      "$5 rect800x400xr100\n";
    for (int i = 0; i < count; ++i) {
        double const x = std::uniform_int_distribution<int>(0, 20000)(random) / 1000.0;
        double const y = std::uniform_int_distribution<int>(0, 20000)(random) / 1000.0;
        auto const at = [x, y](double dx, double dy) {
            return QByteArray::number(x + dx) + ' ' + QByteArray::number(y + dy) + ' ';
        };
        switch (i % 5) {
        case 0:
            text += "L " + at(0, 0) + at(1.5 * (i % 3), 0.7) + symbol(0, 1) + " P 0\n";
            break;
        case 1:
            text +=
                "A " + at(0.8, 0) + at(0, 0.8) + at(0, 0) + symbol(0, 1) + (i % 2 ? " P 0 Y\n" : " P 0 N\n");
            break;
        case 2:
            text += "P " + at(0, 0) + symbol(0, 5) + " P 0" + symbol(8, 9) + ' ' + number(0, 360000) + '\n';
            break;
        case 3:
            text += "P " + at(0, 0) + symbol(0, 5) + " P 0" + symbol(0, 7) + '\n';
            break;
        default:
            text += "S P 0\nOB " + at(0, 0) + "I\nOS " + at(3, 0) + "\nOC " + at(3, 3) + at(3, 1.5) +
                    "N\nOS " + at(0, 3) + "\nOE\nOB " + at(1, 1) + "H\nOC " + at(1, 1) + at(2, 1.4) +
                    "Y\nOE\nSE\n";
        }
    }
    return text;
}

// What has no net is of one net if it touches.
void nameNets(std::vector<Graphic> & graphics)
{
    for (Graphic & each : graphics) {
        each.net = each.net.empty() ? '#' + std::to_string(each.index) : each.net;
    }
    for (Graphic const & a : graphics) {
        for (Graphic const & b : graphics) {
            if (a.net[0] == '#' && a.net != b.net && !areApart(a, b, 1) && distance(a, b) <= 0.1) {
                std::string const old = b.net;
                std::string const joined = a.net;
                for (Graphic & each : graphics) {
                    each.net = each.net == old ? joined : each.net;
                }
            }
        }
    }
}

constexpr std::size_t wall = 1'000'000; // numbers of the walls of holes begin here

// Those at a place.
std::vector<Graphic const *> at(std::vector<Graphic> const & graphics, double x, double y)
{
    Graphic place;
    place.strokes.push_back({{x, y}, {x, y}, 0});
    measureBox(place);
    std::vector<Graphic const *> found;
    for (Graphic const & each : graphics) {
        if (!areApart(each, place, 2) && Brute::distance(each, place) < 1.5) {
            found.push_back(&each);
        }
    }
    return found;
}

// Each record is the distance of two features of different nets at its places, and none of a sample of
// features is nearer to another net than its records tell. "?" is a net that is not known here.
void expectEqual(std::vector<API::check_info> const & records, std::vector<Graphic> const & graphics,
                 std::size_t sample)
{
    std::map<std::size_t, double> least; // by feature
    for (API::check_info const & record : records) {
        double const told = record.points[4];
        bool explained = false;
        for (Graphic const * from : at(graphics, record.points[0], record.points[1])) {
            for (Graphic const * to : at(graphics, record.points[2], record.points[3])) {
                bool const others = from->net != to->net || (from->net == "?" && from != to);
                if (others && std::abs(Brute::distance(*from, *to) - told) <= 1) {
                    explained = true;
                    for (Graphic const * each : {from, to}) {
                        auto const known = least.emplace(each->index, told).first;
                        known->second = std::min(known->second, told);
                    }
                }
            }
        }
        EXPECT_TRUE(explained) << CheckTexts::texts({record}).front();
    }
    std::size_t const step = sample == 0 ? graphics.size() : (graphics.size() + sample - 1) / sample;
    for (std::size_t i = sample == 0 ? graphics.size() : 0; i < graphics.size(); i += step) {
        if (graphics[i].index >= wall) { // counts with its pad
            continue;
        }
        double nearest = 508;
        for (Graphic const & other : graphics) {
            bool const known = graphics[i].net != "?" && other.net != "?";
            if (known && other.net != graphics[i].net && !areApart(other, graphics[i], nearest)) {
                nearest = std::min(nearest, Brute::distance(other, graphics[i]));
            }
        }
        auto const told = least.find(graphics[i].index);
        EXPECT_TRUE(nearest >= 507 || (told != least.end() && told->second <= nearest + 1))
            << "feature " << graphics[i].index << ": " << nearest << " against "
            << (told == least.end() ? -1 : told->second);
    }
}

TEST_F(SpacingAgreement, AgreesWithTryingEverythingOnRandomBoards)
{
    std::mt19937 random(7);
    for (int round = 0; round < 6; ++round) {
        QByteArray const text = randomFeatures(random, 60 + 20 * round);
        makeJob(row(1, "TOP", "SIGNAL"));
        fill("top", text);
        std::vector<Graphic> graphics;
        QByteArray nets = "LYR top\n";
        for (int i = 0; round % 2 == 1 && i < text.count(" P 0"); ++i) {
            nets += "NET N" + QByteArray::number(i % 23) + "\nFID C 0 " + QByteArray::number(i) + '\n';
        }
        write("jobs/board/steps/pcb/eda/data", nets);
        ASSERT_TRUE(open()) << Embedded::lastError();
        auto const results = check();
        graphics = Brute::readLayer("jobs/board/steps/pcb/layers/top/features");
        auto const listed = Brute::readNets("jobs/board/steps/pcb/eda/data", "top");
        for (Graphic & each : graphics) {
            each.net = listed.empty() ? std::string() : listed.at(each.index);
        }
        nameNets(graphics);
        ASSERT_FALSE(signal(results, "top", 3).empty());
        expectEqual(signal(results, "top", 3), graphics, graphics.size());
        if (HasFailure())
            return;
    }
}

struct RealLayer
{
    std::string job;
    std::string step;
    std::string layer;
    std::string drill;
    Texts smallest; // by item
};

void expectReal(QString const & folder, RealLayer const & row)
{
    ASSERT_TRUE(API::open_job(folder.toStdString(), row.job)) << Embedded::lastError();
    Embedded::CheckResults results;
    ASSERT_TRUE(Embedded::runChecks(row.job, row.step, results)) << Embedded::lastError();
    EXPECT_NE(results.nets.find("those of eda/data"), std::string::npos) << results.nets;
    std::string const step = folder.toStdString() + '/' + row.job + "/steps/" + row.step;
    std::vector<Graphic> graphics;
    for (std::string const & layer : {row.layer, row.drill}) {
        auto const listed = Brute::readNets(step + "/eda/data", layer);
        for (Graphic & each : Brute::readLayer(step + "/layers/" + layer + "/features")) {
            bool const isListed = listed.count(each.index) != 0;
            if (isListed || layer == row.layer) {
                each.net = isListed ? listed.at(each.index) : "?";
                each.index += layer == row.layer ? 0 : wall;
                graphics.push_back(std::move(each));
            }
        }
    }
    Texts smallest;
    for (auto const & [item, result] : results.signal.at(row.layer)) {
        bool const isOfNets =
            std::count(spacingItems.begin(), spacingItems.end(), static_cast<int>(item)) != 0;
        if (isOfNets && !result.lists[0].empty()) {
            smallest.push_back(std::to_string(static_cast<int>(item)) + ": " +
                               std::to_string(result.lists[0].front().points.at(4)));
            if (static_cast<int>(item) != 43) {
                expectEqual(result.lists[0], graphics, static_cast<int>(item) == 3 ? 40 : 0);
            }
        }
    }
    EXPECT_EQ(smallest, row.smallest) << row.layer;
}

TEST(RealSpacingAgreement, AgreesWithTryingEverythingOnRealBoards)
{
    QString const folder = sharedPath("jobs");
    if (folder.isEmpty()) {
        GTEST_SKIP() << "the real jobs are not here";
    }
    std::string const kicad = "kicad-flat-hierarchy";
    std::string const plated = "drill_plated_top_copper-bottom_copper";
    for (RealLayer const & row : {
             RealLayer{kicad, "pcb", "top_copper", plated, {"3: 131", "4: 394", "15: 281"}},
             RealLayer{kicad, "pcb", "bottom_copper", plated, {"3: 131", "4: 445", "15: 281", "26: 254"}},
             RealLayer{"oc-breakout",
                       "stp",
                       "top",
                       "drill",
                       {"3: 132", "4: 132", "14: 247", "15: 450", "26: 182", "29: 152"}},
             RealLayer{"oc-breakout",
                       "stp",
                       "l2_gnd",
                       "drill",
                       {"3: 152", "14: 247", "15: 450", "26: 355", "29: 418"}},
             RealLayer{"oc-breakout",
                       "stp",
                       "l3_plane",
                       "drill",
                       {"3: 152", "4: 222", "14: 247", "15: 450", "26: 355", "29: 266"}},
             RealLayer{"oc-breakout",
                       "stp",
                       "bottom",
                       "drill",
                       {"3: 132", "4: 132", "14: 247", "15: 450", "26: 271", "29: 209"}},
         }) {
        expectReal(folder, row);
    }
}

} // namespace
