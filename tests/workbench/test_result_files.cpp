#include "ResultsWindow.h"
#include "checks/ReportPictures.h"
#include "checks/ResultFiles.h"
#include "ui/FileDialogs.h"
#include "ui/LanguageChange.h"

#include <UIAPICommon.h>

#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTableWidget>

#include <algorithm>
#include <cstdlib>

using namespace KVCAM::UIAPI;
using namespace Workbench;

namespace {

// The objects of the summary by their keys.
QJsonObject summaryIn(QString const & path)
{
    QJsonObject rows;
    for (auto const & row : QJsonDocument::fromJson(readFile(path)).array()) {
        QString const key = row.toObject().keys().value(0);
        rows[key] = row.toObject()[key].toObject()["result"];
    }
    return rows;
}

QJsonArray byLayer(std::initializer_list<std::pair<char const *, char const *>> values)
{
    QJsonArray result;
    for (auto const & [name, value] : values) {
        result.append(QJsonObject{{"layername", name}, {"value", value}});
    }
    return result;
}

TEST_F(Results, AreFiledAndSummarised)
{
    writeFile("tiny/steps/pcb/eda/data", "HDR x\nUNITS=MM\nLYR top bot cuts\nNET A\nFID C 0 2\n");
    open();
    EXPECT_EQ(text("note"), "");
    EXPECT_TRUE(text("empty").contains("not been run yet"));
    EXPECT_FALSE(button("summary").isEnabled());
    commandLine.summary = "summary.json";
    commandLine.reports = QStringList{"report.json", "report.csv", "nowhere/report.csv"};
    WrittenResults const written = writeResults(window->results(), commandLine);
    EXPECT_EQ(written.files, (QStringList{"summary.json", "report.json", "report.csv"}));
    EXPECT_EQ(written.errors, QStringList{"The file \"nowhere/report.csv\" cannot be written."});
    EXPECT_EQ(text("note"), "No levels: everything is shown without colour.");
    EXPECT_TRUE(button("summary").isEnabled());

    std::string expected;
    Unified_AnalysisResult::instance()->jsonoutput(expected);
    EXPECT_EQ(readFile("summary.json").toStdString(), expected);
    QJsonObject const rows = summaryIn("summary.json");
    EXPECT_EQ(rows["jobname"], byLayer({{"", "tiny"}}));
    EXPECT_EQ(rows["stepname"], byLayer({{"", "pcb"}}));
    EXPECT_EQ(rows["allLayerMinTrackWidth"], byLayer({{"bot", "-1"}, {"top", "3"}}));
    EXPECT_EQ(rows["minTrackWidth"].toArray()[0].toObject()["value"], 3);
    EXPECT_EQ(rows["slotHoleNumPerPcs"], byLayer({{"cuts", "1"}}));
    EXPECT_EQ(rows["minDrillRing"], byLayer({{"bot", "-1"}, {"top", "-1"}}));
    EXPECT_TRUE(readFile("report.json").contains("\"um\": 100, "));
    EXPECT_TRUE(readFile("report.json").contains("\"SignalLayerRanges/46/top/0,0~10000,0/A\"")) << "its net";
    EXPECT_TRUE(readFile("report.csv").contains("measurement,\"SignalLayerRanges\",46,\"Lines\",\"top\""));
    auto const * notes = page().findChild<QTableWidget *>("not checked");
    EXPECT_EQ(notes->item(0, 0)->text(), "Nets");
    EXPECT_TRUE(notes->item(0, 1)->text().contains("eda/data"));
}

TEST_F(Results, TheSuffixOfAWrittenFileIsAddedWhenMissing)
{
    char const * const reports = "JSON report (*.json);;CSV report (*.csv)";
    struct
    {
        char const * path;
        char const * filters;
        char const * chosen;
        char const * expected;
    } const rows[] = {
        {"r", reports, "CSV report (*.csv)", "r.csv"},
        {"r", reports, "JSON report (*.json)", "r.json"},
        {"r.csv", reports, "JSON report (*.json)", "r.csv"},
        {"r.JSON", reports, "CSV report (*.csv)", "r.JSON"},
        {"board.v2", reports, "CSV report (*.csv)", "board.v2.csv"},
        {"r.", reports, "CSV report (*.csv)", "r.csv"},
        {"a.csv/r", reports, "CSV report (*.csv)", "a.csv/r.csv"},
        {"r", "All files (*)", "All files (*)", "r"},
        {"keys", "*.json", "*.json", "keys.json"},
    };
    for (auto const & row : rows) {
        EXPECT_EQ(withSuffix(row.path, row.filters, row.chosen), row.expected) << row.path;
    }
    QString const links = fileLinks("/a b/<c>#.csv");
    EXPECT_TRUE(links.startsWith("<a href=\"file:///") && links.contains("/a%20b/%3Cc%3E%23.csv\">"))
        << links.toStdString();
}

TEST_F(Results, AreWrittenAsAPageInTheLanguageAndUnitOfTheScreen)
{
    writeLevels();
    open();
    ASSERT_TRUE(page().runChecks());
    ASSERT_TRUE(showChinese(true));
    ReportChoices choices;
    choices.firstUnit = Ext::Unit::Millimetre;
    choices.dataFile = "all.json";
    ASSERT_TRUE(page().run().writeReport("report.html", choices));
    ASSERT_TRUE(showChinese(false));
    QString const html = readFile("report.html");
    EXPECT_TRUE(html.contains("<h1>分析报告</h1>") && html.contains("<bdi>线</bdi>"));
    EXPECT_TRUE(html.contains("<td class=\"n\">100</td><td class=\"n\">3.937</td>"));
    EXPECT_EQ(html.count("data:image/png;base64,"), 1) << "neither the empty layer nor the rout";
    // The red track: 2 mm above the lower one of a board without a profile, 10 mm long.
    QImage picture;
    QString const data = html.section("base64,", 1, 1).section('"', 0, 0);
    ASSERT_TRUE(picture.loadFromData(QByteArray::fromBase64(data.toLatin1()), "png"));
    EXPECT_EQ(picture.width(), 1000);
    QPoint const mark(qRound(html.section(" cx=\"", 1, 1).section('"', 0, 0).toDouble()),
                      qRound(html.section(" cy=\"", 1, 1).section('"', 0, 0).toDouble()));
    EXPECT_NE(picture.pixelColor(mark), picture.pixelColor(5, 5)) << "a mark is on what it marks";
    EXPECT_EQ(picture.pixelColor(mark - QPoint(0, 20)), picture.pixelColor(5, 5));
}

TEST(ReportPictures, HaveAPaletteOfTheirColours)
{
    struct
    {
        int colours;
        int tolerance;
    } const rows[] = {{2, 0}, {256, 0}, {257, 1}, {4096, 32}};
    for (auto const & row : rows) {
        QImage picture(64, 64, QImage::Format_RGB32);
        for (int i = 0; i < 64 * 64; ++i) {
            int const colour = i % row.colours;
            picture.setPixel(i % 64, i / 64, qRgb(colour % 256, colour / 256 * 16, 0));
        }
        QByteArray const png = smallPng(picture);
        QImage const read = QImage::fromData(png, "png");
        EXPECT_EQ(read.depth() <= 8, true) << row.colours;
        int worst = 0;
        for (int i = 0; i < 64 * 64; ++i) {
            QColor const was = picture.pixelColor(i % 64, i / 64);
            QColor const is = read.pixelColor(i % 64, i / 64);
            worst = std::max({worst, std::abs(was.red() - is.red()), std::abs(was.green() - is.green())});
        }
        EXPECT_LE(worst, row.tolerance) << row.colours;
    }
}

TEST_F(Results, OfADamagedJobAreAClearMessage)
{
    writeFile("tiny/steps/pcb/layers/top/features", "UNITS=MM\n$0 r100\nL 0 0 ten 0 0 P 0\n");
    open();
    commandLine.summary = "summary.json";
    WrittenResults const written = writeResults(window->results(), commandLine);
    EXPECT_EQ(written.files, QStringList());
    ASSERT_EQ(written.errors.size(), 1);
    EXPECT_TRUE(written.errors[0].startsWith("the checks failed: ")) << written.errors[0].toStdString();
    EXPECT_TRUE(written.errors[0].contains("top/features:3: ")) << written.errors[0].toStdString();
    EXPECT_FALSE(QFile::exists("summary.json"));
    EXPECT_TRUE(text("note").contains("top/features:3: ")) << text("note").toStdString();
    EXPECT_FALSE(button("report").isEnabled());
}

} // namespace
