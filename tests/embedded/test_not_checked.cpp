#include "embedded/CheckTest.h"

using namespace KVCAM;
using namespace KVCAM::Testing;

namespace {

class NotCheckedTest : public CheckTest
{
protected:
    static Texts layerNotes(Embedded::CheckResults const & results)
    {
        Texts notes;
        for (Embedded::NotChecked const & each : results.notChecked) {
            if (!each.layer.empty()) {
                EXPECT_EQ(each.item, -1);
                notes.push_back(each.table + ' ' + each.layer + ": " + each.reason);
            }
        }
        return notes;
    }
    static void profile(QByteArray const & sides)
    {
        write("jobs/board/steps/pcb/profile", "UNITS=MM\nS P 0\nOB 0 0 I\n" + sides + "OE\nSE\n");
    }
};

TEST_F(NotCheckedTest, SaysWhatWasLeftOut)
{
    makeJob(row(1, "TOP", "SIGNAL") + row(2, "PLANE", "POWER_GROUND").replace("POSITIVE", "NEGATIVE") +
            row(3, "CUT", "SIGNAL") + row(4, "SILK", "SILK_SCREEN") +
            row(5, "NOTE", "SIGNAL").replace("=BOARD", "=MISC") + row(6, "GONE", "MIXED") +
            row(7, "ROUTED", "ROUT"));
    write("jobs/board/symbols/empty/features", "");
    write("jobs/board/symbols/chain/features", "$0 link\nP 0 0 0 P 0 0\n");
    write("jobs/board/symbols/link/features", "$0 chain\nP 0 0 0 P 0 0\n");
    write("jobs/board/symbols/vast/features", "S P 0\nOB 0 0 I\nOC 0 0 1e9 0 Y\nOE\nSE\n");
    QByteArray const surface = "S P 0 %\nOB 0 0 I\nOS 1 0\nOS 1 1\nOE\nSE\n";
    fill("top", "$0 own\n$1 r5\n$2 thr20x10x0x4x5\n$3 empty\n$4 chain\n$5 vast\n$6 r0\n@0 .string\n@1 .smd\n"
                "P 0 0 0 P 0 0\nP 0 1 0 P 0 0\nP 0 0 1 N 0 0\nL 0 0 1 1 2 P 0\nP 1 1 2 P 0 0\n"
                "P 0 0 3 P 0 0\nP 0 0 4 P 0 0\nP 0 0 5 P 0 0\nP 0 0 6 P 0 0\nP 1 1 1 P 0 0 ;0\n" +
                    QByteArray(surface).replace('%', "") + QByteArray(surface).replace('%', ";1"));
    fill("plane", "$0 r5\nP 0 0 0 P 0 0\n");
    fill("cut", "$0 r5\n", "features.tables");
    fill("routed", "$0 r5\n" + QByteArray(surface).replace('%', "") + "A 0 0 1 1 1 0 0 P 0 Y\n");
    ASSERT_TRUE(open()) << Embedded::lastError();
    auto const results = check();
    EXPECT_EQ(results.signal.size(), 3U) << "neither the negative layer nor others";
    EXPECT_EQ(signal(results, "top", 45).size(), 1U);

    EXPECT_EQ(
        layerNotes(results),
        (Texts{"signal plane: The layer is negative: it draws what is taken away.",
               "drill routed: Surfaces (1) are not measured as holes or slots.",
               "drill routed: The rings of slots that are arcs (1).",
               "signal top: Erasing features (1): what they take from others is not seen.",
               "signal top: Texts, marked as .nomenclature or .string (1) are not measured.",
               "signal top: Surfaces (2): their narrow places are not measured, and none counts as a pad.",
               "signal top: Surfaces marked as SMD pads (1): their spacing is not measured.",
               std::string(
                   "signal top: Features drawn with \"chain\" (1): of \"link\" in it, of \"chain\" in ") +
                   "it, it contains symbols within symbols without end.",
               "signal top: Features drawn with \"empty\" (1): its drawing is empty.",
               "signal top: Features drawn with \"own\" (2): the job has no drawing of it.",
               std::string("signal top: Features drawn with \"thr20x10x0x4x5\" (1): the width of a line ") +
                   "drawn with it cannot be measured.",
               "signal top: Features drawn with \"vast\" (1): its drawing is too large.",
               "signal cut: The job holds no features of this layer, only their tables.",
               "signal gone: The job holds no features file of this layer."}));
}

TEST_F(NotCheckedTest, WithoutARoutNothingIsFarFromIt)
{
    makeJob(row(1, "TOP", "SIGNAL"));
    ASSERT_TRUE(open()) << Embedded::lastError();
    auto const results = check();
    Texts notes;
    for (Embedded::NotChecked const & note : results.notChecked) {
        if (note.layer.empty()) {
            notes.push_back(note.table + ' ' + std::to_string(note.item) + ": " + note.reason);
        }
    }
    EXPECT_EQ(notes, Texts{"signal 43: The job has neither a rout layer nor a profile."});
}

// The board is a triangle, so that lines cross a slanted side.
TEST_F(NotCheckedTest, WhatCrossesTheOutlineIsMeasuredAndCounted)
{
    struct Row
    {
        char const * feature;
        bool measured;
        bool leaves;
    };
    makeJob(row(1, "TOP", "SIGNAL"));
    profile("OS 50 0\nOS 0 50\nOS 0 0\n");
    for (Row const & row : {
             Row{"L -1 5 20 5 0 P 0", true, true},
             Row{"L -1 5 60 5 0 P 0", true, true},
             Row{"L 24 27 27 24 0 P 0", false, false}, // beside the slanted side
             Row{"L 20 20 30 30 0 P 0", true, true},
             Row{"L 0.05 49 0.05 51 0 P 0", true, true}, // over a corner
             Row{"L 0.2 5 0.2 9 0 P 0", true, false},
             Row{"L 0 5 0 9 0 P 0", false, false}, // the outline itself
             Row{"A 5 5 5 5 -1 5 0 P 0 Y", true, true},
             Row{"P 1 1 1 P 0 0", true, false},
             Row{"P 0.5 9 1 P 0 0", true, false}, // flush with the edge
             Row{"P 0.4 9 1 P 0 0", true, true},
             Row{"P -0.4 9 1 P 0 0", true, true},
             Row{"P -0.5 9 1 P 0 0", false, false},
         }) {
        fill("top", QByteArray("UNITS=MM\n$0 r100\n$1 s1000\n") + row.feature + '\n');
        ASSERT_TRUE(open()) << Embedded::lastError();
        auto const results = check();
        EXPECT_EQ(signal(results, "top", 45).size() + signal(results, "top", 46).size(),
                  row.measured ? 1U : 0U)
            << row.feature;
        Texts const notes = layerNotes(results);
        std::string const note = notes.empty() ? "" : notes.back();
        EXPECT_EQ(note.find("cross or leave the outline (1)") != std::string::npos, row.leaves)
            << row.feature << ' ' << note;
    }
}

TEST_F(NotCheckedTest, PlatedHolesWithoutARingAreCounted)
{
    makeJob(row(1, "TOP", "SIGNAL") + row(2, "IN", "SIGNAL") + row(3, "BOT", "SIGNAL") +
            row(4, "DRILL", "DRILL"));
    for (char const * const copper : {"top", "in", "bot"}) {
        fill(copper, "UNITS=MM\n$0 r1000\nP 0 0 0 P 0 0\n");
    }
    fill("drill", "UNITS=MM\n$0 r300\n@0 .drill\nP 0 0 0 P 0 0 ;0=0\nP 0.6 0 0 P 0 0 ;0=2\n"
                  "P 5 0 0 P 0 0 ;0=0\nP 6 0 0 P 0 0 ;0=1\nL 7 0 8 0 0 P 0 ;0=0\n");
    ASSERT_TRUE(open()) << Embedded::lastError();
    std::string const beside =
        "Plated holes whose pad does not cover their centre with solid copper (1): they have no ring.";
    std::string const without = "Plated holes without a pad on this outer layer (2): they have no ring.";
    EXPECT_EQ(layerNotes(check()),
              (Texts{"signal top: " + without, "signal top: " + beside, "signal in: " + beside,
                     "signal bot: " + without, "signal bot: " + beside}));
}

} // namespace
