#include "embedded/CheckTest.h"

#include <array>
#include <cmath>
#include <string>

using namespace KVCAM;
using namespace KVCAM::Testing;

namespace {

constexpr std::array<int, 4> drillItems{28, 29, 34, 35};

class SpacingTest : public CheckTest
{
protected:
    struct Board
    {
        QByteArray top;
        QByteArray drill;
        std::string expected; // spacings of the top layer and of holes
        QByteArray bottom = {};
        QByteArray nets = {}; // without the list of layers
    };

    static void build(Board const & board)
    {
        QByteArray const symbols = "UNITS=MM\n$0 r200\n$1 r1000\n$2 rect400x1000\n$3 s500\n$4 oval1000x400\n"
                                   "$5 r600\n$6 r300\n@0 .drill\n@1 .nomenclature\n@2 .smd\n";
        QDir("jobs").removeRecursively();
        makeJob(row(1, "TOP", "SIGNAL") + row(2, "BOTTOM", "SIGNAL") + row(3, "DRILL", "DRILL"));
        fill("top", symbols + board.top);
        fill("bottom", symbols + board.bottom);
        fill("drill", symbols + board.drill);
        if (!board.nets.isEmpty()) {
            write("jobs/board/steps/pcb/eda/data",
                  "HDR x\nUNITS=MM\nLYR drill top bottom other\n" + board.nets);
        }
        ASSERT_TRUE(open()) << Embedded::lastError();
    }

    // The spacings of each item that has any, on the top layer and between holes.
    static std::string spacings(Embedded::CheckResults const & results)
    {
        std::string line;
        auto const add = [&line](std::string const & item, std::vector<API::check_info> const & records) {
            line += records.empty() ? "" : (line.empty() ? "" : ", ") + item + ':';
            for (API::check_info const & record : records) {
                EXPECT_EQ(record.type, 2);
                line += ' ' + std::to_string(record.points.at(4));
            }
        };
        for (int const item : spacingItems) {
            if (item != 43 || results.signal.at("top").count(API::signal_layers_checks_items{43}) != 0) {
                add(std::to_string(item), signal(results, "top", item));
            }
        }
        for (int const item : drillItems) {
            add("drill " + std::to_string(item), drill(results, "drill", item));
        }
        return line;
    }
};

TEST_F(SpacingTest, TheNearestCopperOfAnotherNetByKind)
{
    QByteArray const twoTracks = "L 0 0 9 0 0 P 0\nL 0 0.5 9 0.5 0 P 0\n";
    QByteArray const pour = "S P 0\nOB 0 0 I\nOS 9 0\nOS 9 9\nOS 0 9\nOE\n"
                            "OB 4 4 H\nOS 4 6\nOS 6 6\nOS 6 4\nOE\nSE\n";
    QByteArray const twoPads = "P 0 0 5 P 0 0\nP 0.75 0 5 P 0 0\n";
    QByteArray const twoHoles = "P 0 0 6 P 0 0 ;0=0\nP 0.75 0 6 P 0 0 ;0=0\n";
    QByteArray const twoVias = QByteArray(twoHoles).replace("0=0", "0=2");
    QByteArray const viaAndLine = "P 0 0 5 P 0 0\nL 0.6 -3 0.6 3 0 P 0\n";
    QByteArray const across = "L 1 0 1 0.5 0 P 0\n";
    for (Board const & board : {
             Board{twoTracks, {}, "3: 300, 4: 300"},
             Board{twoTracks + "L 9 0 9 0.5 0 P 0\n", {}, ""},
             Board{twoTracks + "L 0 1 9 1 0 P 0 ;1\n", {}, "3: 300 300, 4: 300"}, // text is no track
             Board{"A 5 0 5 0 0 0 0 P 0 Y\nP 6 0 1 P 0 0\n", {}, "3: 400"},
             Board{"A -5 -0 -5 0 0 0 0 P 0 Y\nP 6 0 1 P 0 0\n", {}, "3: 400"}, // from -180 to 180 degrees
             Board{"A 5 0 -5 0 0 0 0 P 0 Y\nA 5.4 0 -5.4 0 0 0 0 P 0 Y\n", {}, "3: 200, 4: 200"},
             Board{"P 0 0 2 P 0 8 90\nP 1 0 0 P 0 0\n", {}, "3: 400"}, // turned
             Board{"P 0 0 3 P 0 8 45\nP 0.8 0 0 P 0 0\n", {}, "3: 346"},
             Board{"P 0 0 4 P 0 1\nP 0 0.8 0 P 0 0\nP 0.5 0 0 P 0 0\n", {}, "3: 200 200"},
             Board{pour + "P 5 5 1 P 0 0\n", {}, "3: 500"}, // in its opening
             Board{pour + "P 2 2 1 P 0 0\nP 2 2 0 P 0 0\n", {}, ""},
             Board{pour, "P 5.2 5 1 P 0 0\n", "3: 300"}, // a hole's wall
             Board{twoTracks, "P 1 0 0 P 0 0 ;0=0\nP 1 0.5 0 P 0 0 ;0=2\n", "", across},
             Board{twoTracks, "P 1 0 0 P 0 0 ;0=1\nP 1 0.5 0 P 0 0 ;0=2\n", "3: 300 300, 4: 300, 29: 300",
                   across},
             Board{"P 0 0 1 P 0 0\nP 1.4 0 1 P 0 0\n", "L 0 0 1.4 0 0 P 0 ;0=0\n", ""}, // a slot joins
             Board{twoPads, twoHoles, "3: 150, 15: 150, drill 29: 450"},
             Board{twoPads, twoVias, "3: 150, 14: 150, drill 35: 450"},
             Board{twoPads, twoVias + twoVias, "3: 150, 14: 150, drill 35: 450"},
             Board{twoPads + "L 0 0 0.75 0 0 P 0\n", twoHoles, "drill 28: 450"}, // one net
             Board{twoPads + "L 0 0 0.75 0 0 P 0\n", twoVias, "drill 34: 450"},
             Board{viaAndLine, "P 0 0 6 P 0 0 ;0=0\n", "3: 200, 26: 200"},
             Board{viaAndLine + "P -0.5 0 0 P 0 0\n", "P 0 0 6 P 0 0 ;0=2\n", "3: 100 200, 29: 200"},
             Board{twoTracks + twoTracks, {}, "3: 300, 4: 300"},
             Board{"P 0 0 0 P 0 0\nP 0.709 0 0 P 0 0\nP 0.708 9 0 P 0 0\nP 0 9 0 P 0 0\n", {}, "3: 508"},
         }) {
        build(board);
        EXPECT_EQ(spacings(check()), board.expected) << board.top.toStdString();
    }
}

TEST_F(SpacingTest, NetsOfTheFileCountBeforeWhatTouches)
{
    QByteArray const cross = "L 0 0 9 0 0 P 0\nL 5 -3 5 3 0 P 0\nL 0 0.5 4 0.5 0 P 0\n";
    QByteArray const pad = "P 3 0.7 0 P 0 0\n"; // touches the third line
    struct Row
    {
        QByteArray nets;
        QByteArray more;
        std::string expected;
        char const * source;
    };
    std::string const byTouch = "3: 300, 4: 300";
    for (Row const & row : {
             Row{"NET A ;;ID=1\nSNT TRC\nFID C 1 0\nNET B\nFID C 1 1\nFID C 1 2\n",
                 {},
                 "3: 0 300, 4: 0 300",
                 "(2)"},
             Row{"NET A\nFID C 1 0\nFID C 1 1\nFID C 1 2\n", pad, "", "The nets are those of eda/data (1)"},
             Row{"NET A\nFID C 1 0\nNET A\nFID C 1 1\nFID C 1 2\n", pad, "", "(1)"},
             Row{"NET $NONE$\nFID C 1 2\nNET A\nFID C 1 0\nFID C 1 1\n", pad, "3: 300 500, 4: 300", "(1)"},
             Row{"NET A\nFID C 1 0\nNET B\nFID C 1 2\n", pad, "3: 300 500, 4: 300", "(2)"},
             Row{"NET A\nFID C 1 0\nNET B\nFID C 1 1\nFID C 1 3\n",
                 {},
                 byTouch,
                 "does not fit the job: its net \"B\" has feature 3 of layer \"top\", which has 3"},
             Row{"NET A\nFID H 0 1\n", {}, byTouch, "feature 1 of layer \"drill\", which has 0"},
             Row{"NET A\nFID C 3 0\n", {}, byTouch, "it names a layer \"other\""},
             Row{"NET A\nFID C 7 0\n",
                 {},
                 byTouch,
                 "touch: eda/data cannot be used: line 5: unknown layer 7"},
             Row{"NET A\nFID C 1 0\nNET B\nFID C 1 0\n", {}, byTouch, "belongs to two nets"},
             Row{"NET A\nFID C 1\n", {}, byTouch, "no feature"},
             Row{"FID C 1 0\n", {}, byTouch, "outside a net"},
             Row{"NET A\nFID C 1 -1\n", {}, byTouch, "negative feature"},
             Row{"NET $NONE$\nFID C 1 0\n", {}, byTouch, "lists no nets"},
             Row{{}, {}, byTouch, "touch: the step has no eda/data."},
         }) {
        build({cross + row.more, {}, {}, {}, row.nets});
        auto const results = check();
        EXPECT_EQ(spacings(results), row.expected) << row.nets.toStdString();
        EXPECT_NE(results.nets.find(row.source), std::string::npos) << results.nets;
    }
}

TEST_F(SpacingTest, RecordsTellTheNetsOfTheFileInTheOrderOfTheirPlaces)
{
    build({"L 9 0 0 0 0 P 0\n"                                // of A
           "P 20 0 1 P 0 0 ;2\nP 21.2 0 1 P 0 0 ;2\n"         // of A and B, with holes
           "L 0 0.5 9 0.5 0 P 0\nL 0 1 9 1 0 P 0\n"           // of B, of none
           "P 0 30 1 P 0 0\nP 0 30 5 P 0 0\nP 0 30 6 P 0 0\n" // A, B and C at one place
           "P 50 0 1 P 0 0\n",                                // of A, with a hole that has no net
           "P 21.2 0 1 P 0 0 ;0=2\nP 20 0 1 P 0 0 ;0=2\nL 40 0 41 0 5 P 0 ;0=0\nP 50 0 5 P 0 0 ;0=1\n",
           {},
           {},
           "NET B\nFID C 1 2\nFID C 1 3\nFID C 1 6\nFID H 0 0\nFID H 0 2\n"
           "NET A\nFID C 1 0\nFID C 1 1\nFID C 1 5\nFID C 1 8\nFID H 0 1\nNET C\nFID C 1 7\n"});
    write("jobs/board/steps/pcb/profile",
          "UNITS=MM\nS P 0\nOB -5 -5 I\nOS 60 -5\nOS 60 31\nOS -5 31\nOE\nSE\n");
    auto const results = check();
    auto const line = [&](char const * table, int item, std::vector<API::check_info> const & records) {
        std::string text;
        std::string const layer = std::string(table) == "drill" ? "drill" : "top";
        for (std::size_t i = 0; i < records.size(); ++i) {
            auto const [first, second] = results.recordNets.of(table, item, layer, i);
            text += (i == 0 ? "" : ", ") + std::to_string(records[i].points[0]) + ' ' + first + '-' + second;
        }
        EXPECT_EQ(results.recordNets.of(table, item, layer, records.size())[0], "");
        return text;
    };
    for (auto const & [item, expected] : {std::pair(3, "0 A-B, 0 A-C, 20500 A-B, 0 A-B, 0 B-"),
                                          {4, "0 A-B, 0 B-"},
                                          {12, "20500 A-B"},
                                          {14, "20500 A-B"},
                                          {33, "21200 B-B, 20000 A-A"},
                                          {36, "50000 -A"},
                                          {43, "0 A-"},
                                          {45, "0 C-, 0 B-, 20000 A-, 21200 B-, 0 A-, 50000 A-"},
                                          {46, "9000 A-, 0 B-, 0 -"}}) {
        EXPECT_EQ(line("signal", item, signal(results, "top", item)), expected) << item;
    }
    for (auto const & [item, expected] :
         {std::pair(1, "50000 -"), {2, "21200 B-, 20000 A-"}, {3, "40000 B-"}, {35, "20700 B-A"}}) {
        EXPECT_EQ(line("drill", item, drill(results, "drill", item)), expected) << item;
    }
    EXPECT_EQ(results.recordNets.lists.count({"drill", 1, "drill"}), 0U) << "nothing to tell";
    build({"L 0 0 9 0 0 P 0\nL 0 0.5 9 0.5 0 P 0\n", {}, {}});
    EXPECT_TRUE(check().recordNets.lists.empty()) << "nets that were found by touching have no names";
}

TEST_F(SpacingTest, AHoleThroughCopperOfAnotherNetIsAShort)
{
    QByteArray const plane = "S P 0\nOB 0 0 I\nOS 9 0\nOS 9 9\nOS 0 9\nOE\nSE\n";
    build({plane, "P 5 5 6 P 0 0 ;0=2\n", {}, plane, "NET A\nFID H 0 0\nNET B\nFID C 1 0\n"});
    auto const results = check();
    EXPECT_EQ(texts(signal(results, "top", 3)), (Texts{"2 0: 5000 5000 5000 5000 0"}));
    EXPECT_TRUE(signal(results, "bottom", 3).empty()) << "not listed: it is of the hole's net";
}

TEST_F(SpacingTest, RoutOutlineDeletionsAndReach)
{
    build({"L 1 0.3 9 0.3 0 P 0\nL 1 1 9 1 0 P 0\nL 20 20 30 20 0 P 0\nL 9.9 9.5 11 9.5 0 P 0\n"
           "L 0 0 0 10 0 P 0\n",
           {},
           {}});
    auto const reach = [](double mil) {
        Embedded::CheckResults results;
        EXPECT_TRUE(Embedded::runChecks("board", "pcb", results, {}, {mil})) << Embedded::lastError();
        return spacings(results);
    };
    EXPECT_EQ(reach(0), "3: 500, 4: 500");
    EXPECT_EQ(reach(19), "3: 500, 4: 500");

    write("jobs/board/steps/pcb/profile",
          "UNITS=MM\nS P 0\nOB 0 0 I\nOS 10 0\nOS 10 10\nOS 0 10\nOE\nOB 4 6 H\nOC 4 6 5 6 Y\nOE\nSE\n");
    write("jobs/board/matrix/matrix",
          step(1, "PCB") + row(1, "TOP", "SIGNAL") + row(2, "DRILL", "DRILL") + row(3, "ROUT", "ROUT"));
    fill("rout",
         "UNITS=MM\n$0 r400\n$1 r0\n@0 .drill\nL 2 2 3 2 0 P 0\nL 1 4 3 4 0 P 0 ;0=0\nL 8 3 8 5 1 P 0\n");
    fill("bottom", "");
    ASSERT_TRUE(open()) << Embedded::lastError();
    EXPECT_EQ(reach(20), "3: 500, 4: 500, 43: 0 200") << "one line crosses, one is the outline";
    EXPECT_EQ(reach(28), "3: 500, 4: 500, 43: 0 200 700") << "from the path's edge";
    ASSERT_TRUE(Embedded::deleteFeatures("board", "pcb", "top", {0})) << Embedded::lastError();
    EXPECT_EQ(reach(28), "43: 0 700");
}

TEST_F(SpacingTest, NoSpacingToAnArcIsTooLarge)
{
    // Pads 203.15 um beside a circle, a little less than 8 mil, at places all along its chords.
    QByteArray pads;
    for (int i = 0; i < 40; ++i) {
        double const angle = 0.1503 * i;
        pads += "P " + QByteArray::number(5.40315 * std::cos(angle), 'f', 8) + ' ' +
                QByteArray::number(5.40315 * std::sin(angle), 'f', 8) + " 0 P 0 0\n";
    }
    for (QByteArray const & circle :
         {QByteArray("A 5 0 5 0 0 0 0 P 0 Y\n"), QByteArray("S P 0\nOB 5.1 0 I\nOC 5.1 0 0 0 Y\nOE\nSE\n")}) {
        build({circle + pads, {}, {}});
        auto const records = signal(check(), "top", 3);
        EXPECT_EQ(records.size(), 40U);
        for (API::check_info const & record : records) {
            EXPECT_EQ(record.value, 7) << texts({record}).front();
        }
    }
}

TEST_F(SpacingTest, CopiesPiledUpAreMeasuredOnce)
{
    QByteArray piles; // whose boxes overlap; each with each would take minutes
    for (int i = 0; i < 40'000; ++i) {
        piles += i % 2 == 0 ? "P 0 0 1 P 0 0\n" : "P 0.9 0.9 1 P 0 0\n";
    }
    build({piles, {}, {}});
    EXPECT_EQ(spacings(check()), "3: 273");
}

} // namespace
