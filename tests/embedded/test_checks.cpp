#include "embedded/CheckTest.h"

#include <algorithm>
#include <limits>

using namespace KVCAM;
using namespace KVCAM::Testing;

namespace {

using ChecksTest = CheckTest;

// A square board of 50 mm with a square opening in its middle.
constexpr char const * profile = "UNITS=MM\nS P 0\nOB 0 0 I\nOS 50 0\nOS 50 50\nOS 0 50\nOE\n"
                                 "OB 20 20 H\nOS 30 20\nOS 30 30\nOS 20 30\nOE\nSE\n";

void deleteFeature(int index)
{
    ASSERT_TRUE(Embedded::deleteFeatures("board", "pcb", "top", {index})) << Embedded::lastError();
}

TEST_F(ChecksTest, TracksAndPadsAreTheDrawnCopperOfTheBoard)
{
    makeJob(row(1, "TOP", "SIGNAL"));
    write("jobs/board/steps/pcb/profile", profile);
    fill("top", "UNITS=MM\n$0 r200\n$1 r0\n$2 s100\n$3 rect300x500\n$4 rect0x500\n$5 oval400x250\n"
                "@0 .nomenclature\n@1 .String\n@2 .other\n&0 text\n"
                "L 1 1 5 1 0 P 0 ;2=0\n"              // 0
                "A 5 5 7 5 6 5 2 P 0 Y\n"             // 1: an arc
                "L 1 2 2 3 2 P 0\n"                   // 2: a square pen, slanted
                "L 1 4 2 4 3 P 0;;ID=7\n"             // 3: a rectangular one, across
                "L 9 9 9 9 5 P 0\n"                   // 4: a dot
                "L 0 45 0 40 0 P 0\n"                 // 5: along the edge
                "L 0.09 45 0.09 40 0 P 0\n"           // 6: closer than half its width
                "L 0.2 45 0.2 40 0 P 0\n"             // 7: beside it
                "L 30 21 30 29 0 P 0\n"               // 8: along the opening
                "L 40 40 60 40 0 P 0\n"               // 9: leaves the board
                "L 19 25 31 25 0 P 0\n"               // 10: spans the opening
                "L 60 60 61 60 0 P 0\n"               // 11: outside
                "L 1 6 2 6 0 N 0\n"                   // 12: erases
                "L 1 6 2 6 0 P 0 ;0\n"                // 13: nomenclature
                "L 1 6 2 6 0 P 0 ;2=0,1=0\n"          // 14: text
                "L 1 6 2 6 1 P 0\n"                   // 15: without width
                "L 1 7 2 7 2 P 0\n"                   // 16: to be deleted
                "A 35 48.5 34 49.5 35 49.5 0 P 0 Y\n" // 17: a quarter circle
                "A 25 48.5 24 49.5 25 49.5 0 P 0 N\n" // 18: the other three, leaving the board
                "P 3 3 0 P 0 0\nP 25 25 0 P 0 0\nP 3 4 3 P 0 8 30\nP 50 50 5 P 0 4\nP 50.1 50 0 P 0 0\n"
                "P 4 4 0 N 0 0\nP 4 4 0 P 0 0 ;0\nP 4 4 4 P 0 0\nP 3 3 0 P 0 0\n");
    ASSERT_TRUE(open()) << Embedded::lastError();
    deleteFeature(16);
    auto const results = check();
    EXPECT_EQ(texts(signal(results, "top", 46)),
              (Texts{"1 3: 6000 6000 6000 6000 100", "1 5: 1000 2000 2000 3000 141",
                     "1 7: 1000 1000 5000 1000 200", "1 7: 200 45000 200 40000 200",
                     "1 7: 40000 40000 60000 40000 200", "1 7: 19000 25000 31000 25000 200",
                     "1 7: 34293 48793 34293 48793 200", "1 7: 25707 50207 25707 50207 200",
                     "1 9: 9000 9000 9000 9000 250", "1 19: 1000 4000 2000 4000 500"}))
        << "arcs at their middle";
    EXPECT_EQ(texts(signal(results, "top", 45)),
              (Texts{"5 7: 3000 3000 200 200", "5 9: 50000 50000 250 400", "5 11: 3000 4000 300 500"}));
    for (std::size_t list = 1; list < 4; ++list) {
        EXPECT_TRUE(signal(results, "top", 46, list).empty());
    }
    ASSERT_TRUE(API::Undo("board", "pcb"));
    EXPECT_EQ(signal(check(), "top", 46).size(), 11U);
}

TEST_F(ChecksTest, ValueIsWholeMilAndNeverMore)
{
    struct Row
    {
        char const * symbol;
        int value;
        int micrometres;
    };
    makeJob(row(1, "TOP", "SIGNAL"));
    for (Row const & row :
         {Row{"r8 I", 8, 203}, Row{"r203.2", 8, 203}, Row{"r203.1", 7, 203}, Row{"r203.199999", 8, 203},
          Row{"r203.1999", 7, 203}, Row{"r7.9999 I", 7, 203}, Row{"r304.80", 12, 305}, Row{"r127", 5, 127},
          Row{"r0.4", 0, 0}, Row{"r39.37 I", 39, 1000},
          Row{"r999999999 I", 999'999'999, std::numeric_limits<int>::max()}}) {
        // Far out, where the ends saturate.
        fill("top", QByteArray("UNITS=MM\n$0 ") + row.symbol + "\nL 1 1 99999999 1 0 P 0\n");
        ASSERT_TRUE(open());
        EXPECT_EQ(texts(signal(check(), "top", 46)),
                  Texts{"1 " + std::to_string(row.value) + ": 1000 1000 2147483647 1000 " +
                        std::to_string(row.micrometres)})
            << row.symbol;
    }
}

TEST_F(ChecksTest, SmdPadsOfOnePlaceAreOne)
{
    makeJob(row(1, "TOP", "MIXED"));
    fill("top", "UNITS=INCH\n$0 s40\n$1 r20\n$2 s1016 M\n@0 .SMD\n"
                "P 0 0 2 P 0 0\nP 0 0 0 P 0 0 ;0\nP 0 0 0 P 0 1 ;0\n" // in the other unit, and turned
                "P 0.1 0 1 P 0 0 ;0\nP 0.11 0.1 1 P 0 0\nP 0.11 0 1 N 0 0 ;0\n"
                "P 1 0 1 P 0 0 ;0\n");
    ASSERT_TRUE(open());
    EXPECT_EQ(texts(signal(check(), "top", 12)),
              (Texts{"2 70: 508 0 2286 0 1778", "2 880: 2794 0 25146 0 22352"}));

    fill("top", "UNITS=MM\n$0 r20\n@0 .smd\nP 1 1 0 P 0 0 ;0\n");
    ASSERT_TRUE(open());
    EXPECT_TRUE(signal(check(), "top", 12).empty()) << "a lone pad";
}

TEST_F(ChecksTest, HolesHaveKindsAndRowsAndRings)
{
    makeJob(row(1, "TOP", "SIGNAL") + row(2, "IN1", "POWER_GROUND") + row(3, "IN2", "MIXED") +
            row(4, "BOTTOM", "SIGNAL") + row(5, "BLIND", "DRILL", "START_NAME=IN2\n    END_NAME=In1") +
            row(6, "ALL", "DRILL"));
    for (char const * const copper : {"top", "in1", "in2", "bottom"}) {
        fill(copper, "UNITS=MM\n$0 r1000\nP 0 0 0 P 0 0\nP 2 0 0 P 0 0\nP 4 0 0 P 0 0\nP 6 0 0 P 0 0\n"
                     "P 8 0 0 P 0 0\nP 0 9 0 P 0 0\n");
    }
    fill("all", "UNITS=MM\n$0 r300\n$1 r400\n$2 r500\n$3 r600\n@3 .drill\n"
                "P 0 0 0 P 2 0 ;3=2\nP 2 0 1 P 2 0\nP 4 0 2 P 0 0\nP 6 0 3 P 0 0 ;3=9\nP 8 0 0 P 9 0 ;3=0\n"
                "P 20 20 0 P 2 0 ;3=2\n"); // no pad there
    fill("all",
         "UNITS=MM\nTOOLS {\nNUM=2\nTYPE=NON_PLATED\nDRILL_SIZE=450\n}\n"
         "TOOLS {\nNUM=3\nTYPE=VIA\nFINISH_SIZE=500.04\n}\n",
         "tools");
    fill("blind", "$0 r10\nP 0 0.354330709 0 P 0 0\n");
    ASSERT_TRUE(open()) << Embedded::lastError();
    auto const results = check();

    EXPECT_EQ(texts(drill(results, "all", 0)), (Texts{"5 11: 8000 0 300 300", "5 23: 6000 0 600 600"}))
        << "by attribute, and where nothing says what it is";
    EXPECT_EQ(texts(drill(results, "all", 1)), Texts{"5 15: 2000 0 400 400"}) << "by the tool's number";
    EXPECT_EQ(texts(drill(results, "all", 2)),
              (Texts{"5 11: 0 0 300 300", "5 11: 20000 20000 300 300", "5 19: 4000 0 500 500"}))
        << "the last one by its size";
    EXPECT_EQ(texts(drill(results, "blind", 0)), Texts{"5 10: 0 9000 254 254"});

    Texts const through{"3 7: 6000 0 600 6000 0 1000 200 0", "3 13: 8000 0 300 8000 0 1000 350 0"};
    Texts withBlind = through;
    withBlind.emplace_back("3 14: 0 9000 254 0 9000 1000 373 0");
    for (char const * const copper : {"in1", "in2"}) {
        EXPECT_EQ(texts(signal(results, copper, 31)), withBlind) << copper;
    }
    EXPECT_EQ(texts(signal(results, "top", 31)), through);
    EXPECT_EQ(texts(signal(results, "bottom", 31)), through);
    EXPECT_EQ(texts(signal(results, "bottom", 36)), Texts{"3 11: 2000 0 400 2000 0 1000 300 0"});
    EXPECT_EQ(texts(signal(results, "bottom", 33)),
              (Texts{"3 9: 4000 0 500 4000 0 1000 250 0", "3 13: 0 0 300 0 0 1000 350 0"}));
}

// Two kinds of ring less than a micrometre apart: the one sorted first has the lower value.
TEST_F(ChecksTest, RingsOfOneMicrometreHaveTheLowestValueOfThem)
{
    makeJob(row(1, "TOP", "SIGNAL") + row(2, "DRILL", "DRILL"));
    fill("top", "UNITS=MM\n$0 r706.4\n$1 r706.2\nP 0 0 0 P 0 0\nP 2 0 1 P 0 0\n");
    fill("drill", "UNITS=MM\n$0 r300\n@0 .drill\nP 0 0 0 P 0 0 ;0=2\nP 2 0 0 P 0 0 ;0=0\n");
    ASSERT_TRUE(open());
    auto const results = check();
    EXPECT_EQ(texts(signal(results, "top", 33)), Texts{"3 7: 0 0 300 0 0 706 203 0"});
    EXPECT_EQ(texts(signal(results, "top", 31)), Texts{"3 7: 2000 0 300 2000 0 706 203 0"});
}

TEST_F(ChecksTest, SlotsAreWhatIsNotRound)
{
    makeJob(row(1, "DRILL", "DRILL") + row(2, "SLOTS", "ROUT") + row(3, "EMPTY", "ROUT"));
    write("jobs/board/steps/pcb/profile", profile);
    fill("drill", "UNITS=MM\n$0 r800\n$1 oval1000x2000\n$2 s600\n"
                  "L 1 1 3 1 0 P 0\nP 5 5 1 P 0 0\nP 9 9 1 P 0 8 45\nL 7 7 7 7 0 P 0\nP 8 7 2 P 0 0\n"
                  "P 9 9 1 P 0 9 45\nA 11 11 13 11 12 11 0 P 0 N\n");
    fill("slots", "UNITS=MM\n$0 r1000\nP 2 2 0 P 0 0\nL 2 4 2 9 0 P 0\nL 2 9 2 4 0 P 0\n" // drawn twice
                  "L 0 0 50 0 0 P 0\nL 50 0 50 50 0 P 0\n"                                // along the board
                  "L 40 40 42 40 0 P 0\nL 42 40 42 42 0 P 0\n"                            // round a corner
                  "A 15 15 15 15 16 15 0 P 0 Y\n");                                       // a round one
    ASSERT_TRUE(open()) << Embedded::lastError();
    auto results = check();
    ASSERT_EQ(results.rest.size(), 1U);
    auto & cuts = results.rest.at(10);
    EXPECT_EQ(texts(cuts.at("drill")[3]),
              (Texts{"1 31: 1000 1000 3000 1000 800", "1 31: 12000 10000 12000 10000 800",
                     "1 39: 5000 4500 5000 5500 1000", "1 39: 8646 8646 9354 9354 1000",
                     "1 39: 9354 8646 8646 9354 1000"}));
    EXPECT_EQ(texts(cuts.at("slots")[3]),
              (Texts{"1 39: 2000 4000 2000 9000 1000", "1 39: 2000 9000 2000 4000 1000"}));
    EXPECT_TRUE(cuts.at("empty")[3].empty());
    EXPECT_TRUE(cuts.at("drill")[0].empty() && cuts.at("drill")[1].empty() && cuts.at("drill")[2].empty());
    EXPECT_EQ(texts(drill(results, "drill", 3)), texts(cuts.at("drill")[3])) << "plated";
    EXPECT_EQ(texts(drill(results, "slots", 4)), texts(cuts.at("slots")[3])) << "routed after plating";
    EXPECT_TRUE(drill(results, "slots", 0).empty()) << "no holes in a rout layer";
    EXPECT_EQ(texts(drill(results, "drill", 0)),
              (Texts{"5 23: 8000 7000 600 600", "5 31: 7000 7000 800 800"}));
}

TEST_F(ChecksTest, FailureLeavesNothingAndSaysWhy)
{
    Embedded::CheckResults results;
    auto const failure = [&results](std::string const & step = "PCB") {
        results.rest[10];
        EXPECT_FALSE(Embedded::runChecks("Board", step, results));
        EXPECT_TRUE(results.signal.empty() && results.drill.empty() && results.rest.empty() &&
                    results.notChecked.empty());
        return Embedded::lastError();
    };
    EXPECT_EQ(failure(), "Board: the job is not open");
    makeJob(row(1, "TOP", "SIGNAL") + row(2, "DRILL", "DRILL"));
    ASSERT_TRUE(open());
    EXPECT_EQ(failure("other"), "board: no step \"other\"");

    fill("top", "$0 own\nP 0 0 0 P 0 0\nL 1 2 3\n");
    EXPECT_NE(failure().find("top/features:3: "), std::string::npos);
    fill("top", "$0 own\nP 0 0 0 P 0 0\n");
    fill("drill", "", "tools");
    fill("drill", "TOOLS {\n", "tools");
    EXPECT_NE(failure().find("drill/tools:1: "), std::string::npos);
    fill("drill", "", "tools");
    write("jobs/board/symbols/own/features", "$0 r5\nP 0 0 0 X 0 0\n");
    ASSERT_TRUE(open());
    EXPECT_NE(failure().find("own/features:2: "), std::string::npos);
}

TEST_F(ChecksTest, ProgressRisesToItsEndAndCanCancel)
{
    makeJob(row(1, "TOP", "SIGNAL") + row(2, "DRILL", "DRILL"));
    QByteArray text = "UNITS=MM\n$0 r100\n@0 .smd\n";
    for (int i = 0; i < 10'000; ++i) {
        text += "P " + QByteArray::number(i) + " 0 0 P 0 0 ;0\n";
    }
    fill("top", text);
    ASSERT_TRUE(open());
    Embedded::CheckResults results;
    std::vector<int> told;
    EXPECT_TRUE(Embedded::runChecks("board", "pcb", results, [&told](int done, int total) {
        EXPECT_EQ(total, 7000);
        Embedded::closeJob("another"); // leaves an error, which the next success clears
        told.push_back(done);
        return true;
    }));
    EXPECT_EQ(Embedded::lastError(), "");
    EXPECT_TRUE(std::is_sorted(told.begin(), told.end()));
    EXPECT_GT(told.size(), 40U);
    EXPECT_EQ(told.front(), 0);
    EXPECT_EQ(told.back(), 7000);

    for (int const at : {0, 1500, 1600, 3300, 4500, 6500, 7000}) {
        EXPECT_FALSE(Embedded::runChecks("board", "pcb", results,
                                         [at](int done, int /*total*/) { return done < at; }));
        EXPECT_EQ(Embedded::lastError(), "board: the checks were cancelled");
        EXPECT_TRUE(results.signal.empty());
    }
    EXPECT_FALSE(Embedded::runChecks("board", "pcb", results,
                                     [](int, int) { return Embedded::closeJob("board") || true; }));
    EXPECT_EQ(Embedded::lastError(), "board: the job is not open") << "closed while it is measured";
}

struct Summary
{
    std::string job;
    std::string step;
    Texts expected; // by layer and item
};

// The lowest value and the number of records of each item that has any; of spacings the value alone, as their
// number hangs on which of several equally near pads is taken.
Texts summary(Embedded::CheckResults const & results)
{
    Texts lines;
    auto const add = [&lines](std::string const & layer, int item,
                              std::vector<API::check_info> const & records) {
        if (!records.empty()) {
            lines.push_back(layer + ' ' + std::to_string(item) + ": " +
                            std::to_string(records.front().value) +
                            (item == 12 ? "" : " of " + std::to_string(records.size())));
        }
    };
    for (auto const & [layer, items] : results.signal) {
        for (auto const & [item, result] : items) {
            if (item == 12 || (item >= 30 && item != 43)) { // not the spacings by net
                add(layer, item, result.lists[0]);
            }
        }
    }
    for (auto const & [layer, reply] : results.drill) {
        for (int const item : {0, 1, 2, 3, 4}) {
            add(layer, item, reply.list(static_cast<API::drill_check_item>(item), 0));
        }
    }
    for (auto const & [layer, groups] : results.rest.at(10)) {
        add(layer, 10, groups[3]);
    }
    return lines;
}

void expectSummary(QString const & folder, Summary const & row)
{
    ASSERT_TRUE(API::open_job(folder.toStdString(), row.job)) << Embedded::lastError();
    Embedded::CheckResults results;
    ASSERT_TRUE(Embedded::runChecks(row.job, row.step, results)) << Embedded::lastError();
    EXPECT_EQ(summary(results), row.expected);
}

TEST(SampleChecksTest, MeasureTheSampleJob)
{
    QString const folder = UIAPI_SOURCE_DIR "/samples/jobs";
    expectSummary(folder, {"demo-board",
                           "pcb",
                           {"bottom 12: 31",
                            "bottom 31: 11 of 30",
                            "bottom 33: 5 of 28",
                            "bottom 45: 23 of 66",
                            "bottom 46: 9 of 17",
                            "l3_sig 31: 11 of 30",
                            "l3_sig 33: 5 of 28",
                            "l3_sig 45: 23 of 58",
                            "l3_sig 46: 5 of 24",
                            "l4_sig 31: 11 of 30",
                            "l4_sig 33: 5 of 28",
                            "l4_sig 45: 23 of 58",
                            "l4_sig 46: 7 of 6",
                            "l5_sig 31: 11 of 30",
                            "l5_sig 33: 5 of 28",
                            "l5_sig 45: 23 of 58",
                            "l5_sig 46: 7 of 6",
                            "top 12: 11",
                            "top 31: 11 of 30",
                            "top 33: 5 of 28",
                            "top 45: 19 of 108",
                            "top 46: 5 of 72",
                            "drill_non-plated 1: 125 of 4",
                            "drill_plated 0: 31 of 28",
                            "drill_plated 2: 11 of 28",
                            "slots 3: 31 of 2",
                            "slots 4: 39 of 2",
                            "slots 10: 31 of 4"}});
    expectSummary(
        folder,
        {"demo-board", "panel", {"bottom 45: 120 of 3", "top 45: 120 of 3", "drill_non-plated 1: 118 of 3"}});
}

// Compared with figures that were worked out from the files without this engine.
TEST(RealChecksTest, MeasureRealBoards)
{
    QString const folder = sharedPath("jobs");
    if (folder.isEmpty()) {
        GTEST_SKIP() << "the real jobs are not here";
    }
    expectSummary(folder, {"oc-breakout", "stp", {"bottom 12: 15",          "bottom 31: 9 of 94",
                                                  "bottom 33: 6 of 178",    "bottom 45: 21 of 444",
                                                  "bottom 46: 4 of 603",    "l2_gnd 31: 9 of 94",
                                                  "l2_gnd 33: 6 of 178",    "l2_gnd 45: 24 of 288",
                                                  "l2_gnd 46: 20 of 129",   "l3_plane 31: 9 of 94",
                                                  "l3_plane 33: 6 of 178",  "l3_plane 45: 24 of 288",
                                                  "l3_plane 46: 20 of 152", "top 12: 7",
                                                  "top 31: 9 of 94",        "top 33: 6 of 178",
                                                  "top 45: 7 of 392",       "top 46: 4 of 717",
                                                  "drill 0: 27 of 94",      "drill 1: 35 of 16",
                                                  "drill 2: 12 of 178"}});
    expectSummary(folder,
                  {"kicad-flat-hierarchy",
                   "pcb",
                   {"bottom_copper 31: 10 of 241", "bottom_copper 33: 20 of 7", "bottom_copper 45: 51 of 248",
                    "bottom_copper 46: 15 of 311", "top_copper 31: 10 of 241", "top_copper 33: 20 of 7",
                    "top_copper 45: 51 of 248", "top_copper 46: 25 of 60",
                    "drill_non-plated_top_copper-bottom_copper 1: 169 of 6",
                    "drill_plated_top_copper-bottom_copper 0: 29 of 241",
                    "drill_plated_top_copper-bottom_copper 2: 23 of 7"}});
}

} // namespace
