#include "embedded/CheckTest.h"

#include <cmath>
#include <utility>

using namespace KVCAM;
using namespace KVCAM::Testing;

namespace {

class Panels : public EmbeddedTest
{
protected:
    // Steps without layers, each with a header and perhaps a profile.
    static void makeSteps(std::vector<std::pair<QByteArray, QByteArray>> const & headers,
                          QByteArray const & profiled = {})
    {
        QByteArray matrix;
        int column = 0;
        for (auto const & [name, header] : headers) {
            matrix += step(++column, name.toUpper());
            write("jobs/board/steps/" + name + "/stephdr", header);
        }
        write("jobs/board/matrix/matrix", matrix);
        if (!profiled.isEmpty()) { // 10 mm x 4 mm
            write("jobs/board/steps/" + profiled + "/profile",
                  "UNITS=MM\nS P 0\nOB 0 0 I\nOS 10 0\nOS 10 4\nOS 0 4\nOS 0 0\nOE\nSE\n");
        }
    }

    static QByteArray repeat(QByteArray const & name, QByteArray const & more = {})
    {
        return "STEP-REPEAT {\nNAME=" + name + '\n' + more + "}\n";
    }

    static Texts places(std::string const & step, int limit = 100)
    {
        Texts list;
        for (Embedded::StepPlacement const & each : Embedded::stepPlacements("board", step, limit)) {
            list.push_back(each.name + ' ' + std::to_string(std::lround(each.x)) + ' ' +
                           std::to_string(std::lround(each.y)) + ' ' +
                           std::to_string(std::lround(each.angle)) + (each.mirrored ? " mirrored" : ""));
        }
        return list;
    }
};

TEST_F(Panels, RepeatedStepsAreTurnedThenMirroredAndMovedByTheirDatum)
{
    makeSteps({{"pcb", "UNITS=MM\nX_DATUM=1\nY_DATUM=2\n"},
               {"row", "UNITS=MM\n" + repeat("PCB", "X=5\nY=6\nDX=20\nNX=2\nANGLE=90\nMIRROR=NO\n")},
               {"panel", "UNITS=INCH\n" + repeat("row", "X=1\nANGLE=90\nFLIP=YES\nDY=1\nNY=2\n")}},
              "pcb");
    ASSERT_TRUE(open()) << Embedded::lastError();
    // The datum (1, 2) turned clockwise by a quarter is (2, -1).
    EXPECT_EQ(places("ROW"), (Texts{"pcb 3000 7000 90", "pcb 23000 7000 90"}));
    // (3, 7) turned is (7, -3), mirrored (-7, -3); both quarter turns together are a half.
    EXPECT_EQ(places("panel"), (Texts{"row 25400 0 90 mirrored", "pcb 18400 -3000 180 mirrored",
                                      "pcb 18400 -23000 180 mirrored", "row 25400 25400 90 mirrored",
                                      "pcb 18400 22400 180 mirrored", "pcb 18400 2400 180 mirrored"}));
    EXPECT_EQ(places("panel", 3).size(), 3U);
    EXPECT_EQ(places("pcb"), Texts());
    auto const repeats = Embedded::stepRepeats("board", "panel");
    ASSERT_EQ(repeats.size(), 1U);
    EXPECT_EQ(repeats[0].dy, 25400);
    EXPECT_EQ(repeats[0].nx * 10 + repeats[0].ny, 12);

    Embedded::Box box;
    ASSERT_TRUE(Embedded::profileBox("board", "row", box)); // from (3, 7), 4 wide and 10 down, twice
    EXPECT_EQ((std::vector<double>{box.left, box.bottom, box.right, box.top}),
              (std::vector<double>{3000, -3000, 27000, 7000}));
    // Turned by a half and mirrored: from each place 10 to the right and 4 down.
    ASSERT_TRUE(Embedded::profileBox("board", "panel", box));
    EXPECT_EQ((std::vector<double>{box.left, box.bottom, box.right, box.top}),
              (std::vector<double>{18400, -27000, 28400, 22400}));
}

TEST_F(Panels, ADamagedRepeatRefusesTheJob)
{
    std::vector<std::pair<QByteArray, QByteArray>> deep{{"s0", {}}}; // 34 steps, each in the next
    for (int i = 1; i < 34; ++i) {
        deep.emplace_back('s' + QByteArray::number(i), repeat('s' + QByteArray::number(i - 1)));
    }
    struct
    {
        std::vector<std::pair<QByteArray, QByteArray>> steps;
        char const * error;
    } const rows[] = {
        {{{"a", "UNITS=MM\n" + repeat("a")}}, "a/stephdr:2: the step \"a\" repeats itself"},
        {{{"a", repeat("b")}, {"b", repeat("c")}, {"c", "\n" + repeat("A")}},
         "c/stephdr:2: the step \"a\" repeats itself"},
        {{{"a", repeat("b")}}, "a/stephdr:1: there is no step \"b\""},
        {{{"a", "STEP-REPEAT {\nX=1\n}\n"}}, "a/stephdr:1: the STEP-REPEAT block has no NAME"},
        {{{"a", repeat("b", "NX=0\n")}}, "a/stephdr:3: NX is not a positive number"},
        {{{"a", repeat("b", "DX=one\n")}}, "a/stephdr:3: bad DX \"one\""},
        {{{"a", repeat("b", "FLIP=MAYBE\n")}}, "a/stephdr:3: FLIP is neither YES nor NO"},
        {{{"a", repeat("b", "DX=2\nNX=2000000000\n")}}, "a/stephdr:1: the repeats reach too far"},
        {deep, "s33/stephdr:1: steps are nested more than 32 deep"},
        {{deep.rbegin(), deep.rend()}, "stephdr:1: steps are nested more than 32 deep"},
        {{{"a", repeat("b").repeated(10001)}}, "a/stephdr:30001: more than 10000 STEP-REPEAT blocks"},
    };
    for (auto const & row : rows) {
        makeSteps(row.steps);
        EXPECT_FALSE(open()) << row.error;
        std::string const error = Embedded::lastError();
        EXPECT_NE(error.find(row.error), std::string::npos) << error;
    }
}

TEST_F(Panels, PlacesWithoutNumberEndAtTheLimitAndChecksNameTheStep)
{
    QByteArray const many = "DX=0.001\nNX=1000000\nDY=0.001\nNY=1000000\n";
    makeSteps({{"a", {}}, {"b", repeat("a", many)}, {"c", repeat("b", many) + repeat("a", "NX=12\n")}});
    ASSERT_TRUE(open()) << Embedded::lastError();
    EXPECT_EQ(places("c", 10000).size(), 10000U);
    Embedded::CheckResults results;
    ASSERT_TRUE(Embedded::runChecks("board", "c", results));
    Texts notes;
    for (Embedded::NotChecked const & note : results.notChecked) {
        if (note.reason.find("repeats") != std::string::npos) {
            notes.push_back(note.reason);
        }
    }
    EXPECT_EQ(notes, (Texts{"The step repeats a 12 times; measure that step.",
                            "The step repeats b 1000000000000 times; measure that step."}));
}

} // namespace
