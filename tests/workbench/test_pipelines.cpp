#include "ProgramRun.h"
#include "TestFiles.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QJsonArray>

using namespace Workbench;

namespace {

// A board with a track of each width in micrometres, 2 mm apart.
void writeBoard(QString const & name, QList<int> const & widths)
{
    writeJob(name, {{"SIGNAL", "TOP"}});
    QByteArray features = "UNITS=MM\n";
    for (int i = 0; i < widths.size(); ++i) {
        features += "$" + QByteArray::number(i) + " r" + QByteArray::number(widths[i]) + '\n';
    }
    for (int i = 0; i < widths.size(); ++i) {
        QByteArray const y = QByteArray::number(2 * i);
        features += "L 0 " + y + " 10 " + y + ' ' + QByteArray::number(i) + " P 0\n";
    }
    writeFile(name + "/steps/pcb/layers/top/features", features);
}

class Pipelines : public ::testing::Test
{
protected:
    void SetUp() override
    {
        writeFile("levels/ranges/all/SignalLayerRanges.json",
                  R"({"rangesList": [{"name": "Lines", "RedLv": "4", "YellowLv": "5", "GreenLv": "6"}]})");
        writeFile(
            "levels/ranges/all/DrillRanges.json",
            R"({"rangesList": [{"name": "Via Summary", "RedLv": "4", "YellowLv": "5", "GreenLv": "6"}]})");
        writeBoard("clean", {300, 400});
        writeBoard("red", {100, 110, 140, 300});
        writeBoard("yellow", {110, 300});
        writeBoard("damaged", {100});
        writeFile("damaged/steps/pcb/layers/top/features", "P nonsense\n");
    }
    static ProgramResult check(QStringList const & arguments)
    {
        return runProgram(QStringList{"--checks-only", "--config", "levels"} + arguments);
    }
    /// The cells of a table's line.
    static QStringList cells(ProgramResult const & result, int line)
    {
        return QString(result.out).section('\n', line, line).split(' ', Qt::SkipEmptyParts);
    }
};

TEST_F(Pipelines, EachRunEndsWithTheCodeThatWasPromised)
{
    writeFile("waived.json", R"({"format": "report-waivers", "version": 1, "waivers": [
        {"id": "SignalLayerRanges/46/top/0,0~10000,0/-", "reason": "r", "author": "a", "date": "2026-01-02"}]})");
    writeFile("cut.json", R"({"format": )");
    writeFile("empty/ranges/none.txt", "");
    writeFile("file", "");
    ASSERT_EQ(check({"red", "--report", "red.json"}).exitCode, 0) << "nothing fails unless asked";
    ASSERT_EQ(check({"clean", "--report", "clean.json"}).exitCode, 0);
    struct
    {
        QStringList arguments;
        int exit;
        char const * text = ""; ///< on stderr
    } const rows[] = {
        {{"clean", "--fail-on", "green"}, 0},
        {{"red", "--fail-on", "red"}, 3},
        {{"yellow", "--fail-on", "red"}, 0},
        {{"yellow", "--fail-on", "yellow"}, 3},
        {{"yellow", "--fail-on", "green"}, 3},
        {{"clean", "yellow", "--fail-on", "yellow"}, 3},
        {{"clean", "damaged"}, 1, "damaged: the checks failed: "},
        {{"damaged", "nowhere"}, 2, "nowhere: cannot open the job"},
        {{"nowhere", "damaged", "red", "clean", "--fail-on", "red"}, 3, "damaged: the checks failed: "},
        {{"red", "--step", "attic"}, 2, "no step \"attic\""},
        {{"red", "--report", "file/red.json"}, 1, "cannot be written"},
        {{"red", "--report", "file/red.json", "--fail-on", "red"}, 3, "cannot be written"},
        // against a baseline
        {{"red", "--baseline", "red.json", "--fail-on-new"}, 0},
        {{"red", "--baseline", "clean.json", "--fail-on-new"}, 3},
        {{"red", "--baseline", "clean.json"}, 0},
        {{"clean", "--baseline", "red.json", "--fail-on-new"}, 0},
        {{"red", "--baseline", "red.json", "--fail-on-new", "--fail-on", "red"}, 3},
        {{"red", "--baseline", "none.json", "--fail-on-new"}, 2, "none.json"},
        {{"red", "--baseline", "cut.json"}, 2, "cut.json"},
        {{"red", "--baseline", "red.json", "--comparison", "file/c.json"}, 1, "cannot be written"},
        // with waivers
        {{"red", "--waivers", "waived.json", "--fail-on", "red"}, 0},
        {{"red", "--waivers", "waived.json", "--fail-on", "yellow"}, 3},
        {{"red", "--waivers", "waived.json", "--baseline", "clean.json", "--fail-on-new"}, 3},
        {{"red", "--waivers", "cut.json"}, 2, "cut.json"},
        {{"clean", "--waivers", "waived.json", "--fail-on", "red"},
         0,
         "46/top/0,0~10000,0/-\" accepts nothing"},
        // wrong options
        {{"red", "--fail-on", "blue"}, 2, "red, yellow or green"},
        {{"red", "--fail-on-new"}, 2, "--fail-on-new needs --baseline"},
        {{"red", "--comparison", "c.json"}, 2, "--comparison needs --baseline"},
        {{"red", "--headless"}, 2, "exclude each other"},
        {{"red", "clean", "--report", "one.json"}, 2, "would be written twice"},
        {{"red", "red", "--report", "%b.json"}, 2, "would be written twice"},
        {{"red", "--report", "a.json", "--report", "A.json"}, 2, "would be written twice"},
        {{"red", "--report", "a.txt"}, 2, ".json, .csv"},
        {{"red", "--config", "nowhere"}, 2, "is not there"},
        {{"red", "--config", "empty", "--fail-on", "red"}, 2, "no levels in \"DrillRanges\""},
        {{"red", "--config", "empty"}, 0},
        {{}, 2, "no job given"},
    };
    for (auto const & row : rows) {
        ProgramResult const result = check(row.arguments);
        EXPECT_EQ(result.exitCode, row.exit)
            << row.arguments.join(' ').toStdString() << result.err.toStdString();
        EXPECT_TRUE(result.err.contains(row.text)) << result.err.toStdString();
    }
}

TEST_F(Pipelines, ABoardIsWorseThanItsBaselineIfASeverityIs)
{
    struct
    {
        QList<int> widths;
        int exit;
    } const rows[] = {{{110, 300}, 0}, {{105, 300}, 0}, {{90, 300}, 3}, {{140, 300}, 0}, {{110, 120}, 3}};
    ASSERT_EQ(check({"yellow", "--report", "old.json"}).exitCode, 0);
    for (auto const & row : rows) {
        writeBoard("yellow", row.widths);
        ProgramResult const result = check({"yellow", "--baseline", "old.json", "--fail-on-new"});
        EXPECT_EQ(result.exitCode, row.exit) << row.widths[0] << ' ' << row.widths[1];
    }
}

TEST_F(Pipelines, BoardsAreListedAndEachHasItsFiles)
{
    ProgramResult const result = check({"clean", "nowhere", "red", "--report", "out/%b.json", "--report",
                                        "xml/%b-%b.xml", "--step", "PCB", "--fail-on", "green"});
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_EQ(cells(result, 0).join(' '), "board step red yellow green none waived not checked seconds exit");
    QStringList const red = cells(result, 3);
    EXPECT_EQ(red.mid(0, 6), (QStringList{"red", "pcb", "1", "1", "1", "1"})) << result.out.toStdString();
    EXPECT_EQ(red.last(), "3");
    EXPECT_EQ(cells(result, 1)[2] + cells(result, 1).last(), "00");
    EXPECT_EQ(cells(result, 2).join(' '), "nowhere - - - - - - - 2");
    EXPECT_EQ(cells(result, 4).mid(0, 5), (QStringList{"3", "boards", "1", "1", "1"}));
    EXPECT_EQ(cells(result, 4).last(), "3");
    EXPECT_EQ(readObject("out/red.json")["job"], "red");
    EXPECT_EQ(readObject("out/clean.json")["job"], "clean");
    EXPECT_FALSE(QFile::exists("out/nowhere.json"));
    QByteArray const xml = readFile("xml/red-red.xml");
    EXPECT_TRUE(xml.contains("3 violation(s), the worst red: "))
        << "fails from green on" << xml.toStdString();

    QJsonObject const facts = check({"red", "damaged", "--json"}).facts;
    EXPECT_EQ(facts["exit"], 1);
    QJsonObject const first = facts["boards"].toArray()[0].toObject();
    EXPECT_EQ(first["counts"].toObject(),
              (QJsonObject{{"red", 1}, {"yellow", 1}, {"green", 1}, {"none", 1}}));
    EXPECT_EQ(facts["boards"].toArray()[1].toObject()["errors"].toArray().size(), 1);
}

// The first board must not answer for another one of its name.
TEST_F(Pipelines, BoardsOfOneNameAreEachRead)
{
    writeBoard("a/board", {300});
    writeBoard("b/board", {100});
    ProgramResult const result = check({"a/board", "b/board", "--fail-on", "red"});
    EXPECT_EQ(cells(result, 1)[2] + cells(result, 2)[2], "01") << result.out.toStdString();
    EXPECT_EQ(result.exitCode, 3);
}

TEST_F(Pipelines, TheComparisonCountsAndIsWritten)
{
    check({"yellow", "--report", "old.json"});
    ProgramResult const result =
        check({"red", "yellow", "--baseline", "old.json", "--comparison", "out/%b.json"});
    EXPECT_EQ(cells(result, 0).mid(6, 4), (QStringList{"waived", "new", "worse", "fixed"}));
    EXPECT_EQ(cells(result, 1).mid(7, 3), (QStringList{"2", "1", "0"})) << result.out.toStdString();
    EXPECT_EQ(cells(result, 2).mid(7, 3), (QStringList{"0", "0", "0"}));
    EXPECT_EQ(readObject("out/red.json")["format"], "report-comparison");
}

// An unknown platform would end a program that asks for one; a question would wait for ever.
TEST_F(Pipelines, ChecksNeedNoWindowSystemAndAskNothing)
{
    writeFile("levels/automatrix.json", "{");
    writeFile("levels/server.json", "[");
    writeFile("levels/ranges/all/DrillRanges.json", "{");
    qputenv("QT_QPA_PLATFORM", "nonsense");
    ProgramResult const result = check(
        {"red", "--summary", "sum.json", "--report", "red.csv", "--report", "red.html", "--language", "zh"});
    EXPECT_EQ(result.exitCode, 0) << result.err.toStdString();
    EXPECT_TRUE(readFile("sum.json").contains("minTrackWidth"));
    EXPECT_TRUE(readFile("red.html").contains("<h1>分析报告</h1>")) << "without pictures, which need fonts";
    EXPECT_FALSE(result.err.contains('\r')) << "progress is for terminals only";
    EXPECT_EQ(runProgram({"--checks-only", "--help"}).exitCode, 0);
}

// Many processes may start in one folder: nothing is copied there, and a copy that a window made is used.
TEST_F(Pipelines, TheSamplesLevelsAreReadWhereTheyAre)
{
    EXPECT_EQ(runProgram({"--checks-only", "yellow", "--fail-on", "red"}).exitCode, 3) << "red up to 6 mil";
    EXPECT_FALSE(QDir("workbench-session").exists());
    QDir().mkpath("workbench-session");
    ASSERT_TRUE(QDir().rename("levels", "workbench-session/config"));
    EXPECT_EQ(runProgram({"--checks-only", "yellow", "--fail-on", "red"}).exitCode, 0);
}

TEST_F(Pipelines, HeadlessJudgesAsTheChecksAlone)
{
    writeFile("waived.json", R"({"format": "report-waivers", "version": 1, "waivers": [
        {"id": "SignalLayerRanges/46/top/0,0~10000,0/-", "reason": "r", "author": "a", "date": "2026-01-02"}]})");
    QStringList const headless{"--headless", "--config", "levels", "--output", "out/%b"};
    ProgramResult const both =
        runProgram(headless + QStringList{"red", "yellow", "--waivers", "waived.json", "--fail-on", "red",
                                          "--report", "%b.xml", "--report", "%b.json"});
    EXPECT_EQ(both.exitCode, 0) << both.err.toStdString();
    QJsonArray const facts = QJsonDocument::fromJson(both.out).array();
    ASSERT_EQ(facts.size(), 2);
    EXPECT_EQ(facts[0].toObject()["analysis"].toObject()["waived"], 1);
    EXPECT_TRUE(QFile::exists("out/red/workbench.png"));
    EXPECT_TRUE(QFile::exists("out/yellow/workbench.png"));
    EXPECT_TRUE(readFile("red.xml").contains("1 waived"));
    QStringList const compared{"red", "--fail-on", "red", "--baseline", "red.json", "--report"};
    EXPECT_EQ(runProgram(headless + compared + QStringList{"headless.html"}).exitCode, 3);
    EXPECT_EQ(check(compared + QStringList{"alone.html"}).exitCode, 3);
    for (char const * page : {"headless.html", "alone.html"}) {
        EXPECT_TRUE(readFile(page).contains("<h2 id=\"changes\">")) << page;
    }
    EXPECT_EQ(runProgram({"--headless", "red", "yellow"}).exitCode, 2) << "pictures in one folder";
}

} // namespace
