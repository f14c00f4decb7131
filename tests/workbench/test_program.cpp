#include "../embedded/ArchiveBytes.h"
#include "ProgramRun.h"
#include "TestFiles.h"
#include "harness/ReportSchema.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>
#include <QSqlDatabase>
#include <QSqlQuery>

using namespace Workbench;

namespace {

using Result = ProgramResult;

Result runSample(QStringList const & options = {})
{
    Result result = runProgram(QStringList{sampleJob, "--headless", "--output", "out"} + options);
    EXPECT_EQ(result.exitCode, 0) << result.err.toStdString();
    return result;
}

// Exactly the pictures named in the facts exist; `folders` of them are folders.
void expectPictures(QJsonArray const & pictures, int folders)
{
    QDir const out("out");
    int const files = out.entryList({"*.png"}, QDir::Files).size();
    EXPECT_GT(files, 8);
    EXPECT_EQ(pictures.size(), files);
    EXPECT_EQ(out.entryList({"*.png"}, QDir::Dirs).size(), folders);
}

int shownUnit(QJsonValue const & engine)
{
    return engine.toObject()["show parameters"].toObject()["unit"].toInt(-1);
}

TEST(Workbench, WrongInputPrintsOneLineAndExitsWithTwo)
{
    QDir().mkpath("empty");
    writeFile("file", "");
    writeFile("cut.tgz", "\x1f\x8b");
    struct
    {
        QStringList arguments;
        char const * text;
    } const cases[] = {
        {{"nowhere", "--headless"}, "no such directory"},
        {{"empty", "--headless"}, "matrix"},
        {{"cut.tgz", "--headless"}, "cut.tgz: "},
        {{"--headless"}, "no job given"},
        {{sampleJob, "--headless", "--unit", "furlong"}, "furlong"},
        {{sampleJob, "--headless", "--language", "fr"}, "fr"},
        {{sampleJob, "--headless", "--wings"}, "wings"},
        {{sampleJob, "--headless", "--step", "attic"}, "no step \"attic\""},
        {{sampleJob, "--headless", "--report", "report.txt"}, "report.txt"},
        {{sampleJob, "--headless", "--limit", "layers=2"}, "the job's limit of 2"},
        {{sampleJob, "--headless", "--limit", "wings=2"}, "there is no limit \"wings\", only steps="},
        {{sampleJob, "--headless", "--limit", "points=2x"}, "not \"points=2x\""},
        {{sampleJob, "--headless", "--output", "file"}, "cannot write to \""},
#ifdef Q_OS_LINUX // a directory in which nobody can create files
        {{sampleJob, "--headless", "--output", "/proc"}, "cannot write to \""},
#endif
    };
    for (auto const & item : cases) {
        Result const result = runProgram(item.arguments);
        EXPECT_EQ(result.exitCode, 2) << item.text;
        EXPECT_EQ(result.err.count('\n'), 1) << result.err.toStdString();
        EXPECT_TRUE(result.err.contains(item.text)) << result.err.toStdString();
        EXPECT_TRUE(result.out.isEmpty());
    }
}

TEST(Workbench, AnArchiveIsShownLikeItsFolder)
{
    using namespace KVCAM::Testing;
    writeJob("job", {{"SIGNAL", "TOP"}});
    QByteArray const features = "$0 r10\nP 0 0 0 P 0 0\n";
    writeFile("board.tgz", gzip(tar({{"odb/matrix/matrix", readFile("job/matrix/matrix")},
                                     {"odb/steps/pcb/layers/top/features", features}})));
    Result const result = runProgram({"board.tgz", "--headless", "--output", "out"});
    if (result.err.contains("reads no archives")) {
        GTEST_SKIP() << "this build has no libarchive";
    }
    EXPECT_EQ(result.exitCode, 0) << result.err.toStdString();
    EXPECT_EQ(result.facts["job"].toString(), "board");
    EXPECT_TRUE(result.facts["directory"].toString().endsWith("/board.tgz"));
    EXPECT_EQ(result.facts["layers"].toArray()[0].toObject()["features"].toArray()[0].toInt(), 1);
}

TEST(Workbench, WhatCannotBeReadOrWrittenMakesTheExitCodeOne)
{
    QDir().mkpath("out/settings.png");
    writeJob("job", {{"SIGNAL", "TOP"}});
    writeFile("job/steps/pcb/layers/top/features", "P nonsense\n");
    Result const result = runProgram({"job", "--headless", "--output", "out", "--summary", "sum.json"});
    EXPECT_EQ(result.exitCode, 1) << result.err.toStdString();
    QJsonArray const errors = result.facts["errors"].toArray();
    ASSERT_EQ(errors.size(), 3) << result.err.toStdString();
    EXPECT_TRUE(errors[0].toObject()["file"].toString().endsWith("settings.png"));
    EXPECT_EQ(errors[1].toObject()["layer"].toString(), "top");
    EXPECT_EQ(errors[1].toObject()["step"].toString(), "pcb");
    EXPECT_TRUE(errors[1].toObject()["text"].toString().contains("features:1: "));
    QJsonArray const counts = result.facts["layers"].toArray()[0].toObject()["features"].toArray();
    EXPECT_EQ(counts, QJsonArray{QJsonValue()});
    expectPictures(result.facts["screenshots"].toArray(), 1); // a folder has the name of one
    EXPECT_TRUE(errors[2].toObject()["text"].toString().startsWith("the checks failed: "));
    EXPECT_EQ(result.err.count("uiapi-workbench: the checks failed: "), 1);
    EXPECT_FALSE(QFile::exists("sum.json"));
    EXPECT_EQ(result.err.count("cannot read layer top"), 1);
}

TEST(Workbench, AHeadlessRunTellsTheLayersOfTheJob)
{
    QJsonObject const facts = runSample().facts;
    EXPECT_EQ(facts["job"].toString(), "demo-board");
    int signals_ = 0;
    int negativePlanes = 0;
    int lastRow = 0;
    for (auto const & value : facts["layers"].toArray()) {
        QJsonObject const layer = value.toObject();
        EXPECT_EQ(layer["row"].toInt(), ++lastRow);
        bool const onBoard = layer["context"] == "board";
        signals_ += onBoard && layer["type"] == "signal" ? 1 : 0;
        negativePlanes += onBoard && layer["polarity"] == "NEG" ? 1 : 0;
    }
    EXPECT_EQ(signals_, 5);
    EXPECT_EQ(negativePlanes, 1);
    EXPECT_FALSE(facts["symbols"].toArray().isEmpty());
    EXPECT_EQ(facts["hot keys"].toObject()["snap"].toInt(), 1);
    QJsonObject const filters = facts["filters"].toObject();
    QList<int> matches;
    for (auto const & answer : filters["answers"].toArray()) {
        matches.append(answer.toObject()["layers"].toInt());
    }
    EXPECT_EQ(matches, (QList<int>{3, 1, 2, 3}));
    EXPECT_EQ(filters["for analysis"].toInt(), 16);
    QJsonObject const comparison = facts["comparison"].toObject();
    EXPECT_EQ(comparison["first"].toString() + comparison["second"].toString(), "topbottom");
    EXPECT_GT(comparison["regions only in the first"].toInt(), 0);
    QJsonObject const undo = facts["undo"].toObject();
    EXPECT_EQ(undo["deleted"].toObject(), (QJsonObject{{"drawn", 148}, {"counted", 148}, {"operations", 1}}));
    EXPECT_EQ(undo["undone"], undo["before"]);
    EXPECT_EQ(facts["references"].toObject()["left"].toInt(-1), 0);
    QJsonObject const eda = facts["EDA link"].toObject(); // cannot receive if another process has the port
    EXPECT_EQ(eda["sent"].toInt(-1), eda["bound"].toBool() ? 1 : 0);
    EXPECT_GE(eda["received"].toInt(-1), eda["sent"].toInt());
    EXPECT_FALSE(QFile::exists("out/uiapi-engine.sqlite")); // without the save flag
}

TEST(Workbench, TheReportOfTheSampleJobFitsItsSchema)
{
    runSample({"--report", "report.json"});
    KVCAM::Testing::expectReportsFitSchema({"report.json"});
    EXPECT_TRUE(readFile("report.json").contains("\"date\": \"20")) << "when it was measured";
}

// Compared with the sizes of the symbols in the sample job's files: tracks of 150, 200 and 250 micrometres,
// SMD pads 300 and 800 apart, rings of 150 around the vias.
TEST(Workbench, TheSummaryOfTheSampleJobHasTheFiguresOfItsFiles)
{
    QJsonObject const analysis =
        runSample({"--summary", "sum.json", "--report", "report.csv"}).facts["analysis"].toObject();
    EXPECT_EQ(analysis["files"].toArray(),
              (QJsonArray{QDir().absoluteFilePath("sum.json"), QDir().absoluteFilePath("report.csv")}));
    QStringList widths;
    for (auto const & width : analysis["track widths"].toArray()) {
        widths.append(QString("%1 %2")
                          .arg(width.toObject()["layer"].toString())
                          .arg(width.toObject()["um"].toDouble()));
    }
    EXPECT_EQ(widths, (QStringList{"top 150", "l3_sig 150", "l4_sig 200", "l5_sig 200", "bottom 250"}));
    for (char const * severity : {"red", "yellow", "green", "none"}) {
        EXPECT_GT(analysis["counts"].toObject()[severity].toInt(), 0) << severity;
    }

    QMap<QString, QString> rows;
    QJsonArray const summary = QJsonDocument::fromJson(readFile("sum.json")).array();
    EXPECT_EQ(summary.size(), 49);
    for (auto const & row : summary) {
        QString const key = row.toObject().keys().first();
        for (auto const & each : row.toObject()[key].toObject()["result"].toArray()) {
            rows[key] += each.toObject()["layername"].toString() + ' ' +
                         each.toObject()["value"].toVariant().toString() + ';';
        }
    }
    EXPECT_EQ(rows["stepname"], " pcb;");
    EXPECT_EQ(rows["allLayerMinTrackWidth"], "bottom 9;l3_sig 5;l4_sig 7;l5_sig 7;top 5;");
    EXPECT_EQ(rows["minTrackWidth"], " 5;");
    EXPECT_EQ(rows["minSMD2SMDSpace"], "bottom 31;l3_sig -1;l4_sig -1;l5_sig -1;top 11;");
    EXPECT_EQ(rows["minDrillRing"], "bottom 5;l3_sig 5;l4_sig 5;l5_sig 5;top 5;");
    EXPECT_EQ(rows["slotHoleNumPerPcs"], "drill_non-plated 0;drill_plated 0;outline 0;slots 4;");

    QJsonObject const panel = runSample({"--step", "Panel"}).facts["analysis"].toObject();
    EXPECT_EQ(panel["step"].toString(), "panel");
    EXPECT_EQ(panel["summary"].toString(), QDir().absoluteFilePath("out/summary.json"));
    EXPECT_TRUE(QFile::exists("out/summary.json"));
}

TEST(Workbench, AUnitSwitchReachesTheEngineAndItsDatabase)
{
    QJsonObject const step =
        runSample({"--unit", "mm", "--save-flag"}).facts["steps"].toArray()[0].toObject();
    EXPECT_EQ(step["unit"].toString(), "MM");
    EXPECT_EQ(shownUnit(step["engine before"]), 1);
    EXPECT_EQ(shownUnit(step["engine after"]), 0);
    EXPECT_TRUE(step["outline"].toArray()[0].toString().endsWith(" mm"));
    EXPECT_TRUE(step["outline"].toArray()[1].toString().endsWith(" inch"));

    QSqlDatabase database = QSqlDatabase::addDatabase("QSQLITE");
    database.setDatabaseName("out/uiapi-engine.sqlite");
    ASSERT_TRUE(database.open());
    int rows = 0;
    for (QString const & table : database.tables()) {
        QSqlQuery query("SELECT COUNT(*) FROM \"" + table + '"');
        rows += query.next() ? query.value(0).toInt() : 0;
    }
    EXPECT_GT(rows, 0);
}

TEST(Workbench, AFeatureIsShownAndChangedAndTheChangeUndone)
{
    QJsonObject const facts = runSample({"--unit", "mm"}).facts["feature"].toObject();
    EXPECT_EQ(facts["feature"].toString(), "Pad 0");
    EXPECT_EQ(facts["description"].toString(),
              "rectangle, width 1500 µm (59.055118 mil), height 500 µm (19.685039 mil)");
    EXPECT_EQ(facts["typed"].toString(), QString::fromUtf8("= 317.5 µm = 12.5 mil"));
    EXPECT_EQ(facts["symbol"].toString(), "rect317.5x500");
    EXPECT_EQ(facts["changed size"].toString(), QString::fromUtf8("12.5 x 19.68504 mil = 317.5 x 500 µm"));
    EXPECT_TRUE(facts["refused"].toString().startsWith("Allowed: "));
    EXPECT_TRUE(facts["undone"].toBool());
}

TEST(Workbench, AConfigurationDirectoryOfAnyNameIsUsed)
{
    writeFile("site/settings/server.json", R"({"ThreadCount": 6, "Colour": "blue"})");
    QJsonObject const facts = runSample({"--config", "site/settings"}).facts["configuration"].toObject();
    EXPECT_EQ(facts["threads"].toInt(), 6);
    QStringList keys;
    for (auto const & finding : facts["findings"].toArray()) {
        keys.append(finding.toObject()["key"].toString());
    }
    EXPECT_TRUE(keys.contains("Colour")) << keys.join(' ').toStdString();
    EXPECT_FALSE(QDir("out/workbench-session").exists());

    EXPECT_EQ(runProgram({sampleJob, "--headless", "--config", "nowhere"}).exitCode, 2);
}

TEST(Workbench, ScreenshotsAreWrittenAndNotBlank)
{
    QJsonArray const pictures = runSample().facts["screenshots"].toArray();
    expectPictures(pictures, 0);
    EXPECT_TRUE(QJsonDocument(pictures).toJson().contains("hot-key-pending.png"));
    for (auto const & path : pictures) {
        QImage const picture(path.toString());
        ASSERT_FALSE(picture.isNull()) << path.toString().toStdString();
        QSet<QRgb> colours;
        for (int y = 0; y < picture.height() && colours.size() < 20; ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                colours.insert(picture.pixel(x, y));
            }
        }
        EXPECT_GE(colours.size(), 20) << path.toString().toStdString();
    }
}

} // namespace
