#include "TestFiles.h"
#include "board/BoardView.h"
#include "checks/ResultFiles.h"
#include "checks/ResultsModel.h"
#include "checks/ResultsPage.h"
#include "checks/TrackWidthChart.h"
#include "ui/LogPane.h"
#include "window/BoardPage.h"
#include "window/MainWindow.h"

#include <UIAPICommon.h>

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>
#include <QTreeView>

#include <memory>

using namespace KVCAM::UIAPI;
using namespace Workbench;

namespace {

// Tracks of 3.94, 5 and 7.87 mil on one layer, none on the other; a slot.
constexpr char const * topFeatures = "UNITS=MM\n$0 r100\n$1 r127\n$2 r200\n"
                                     "L 0 2 10 2 2 P 0\nL 0 1 10 1 1 P 0\nL 0 0 10 0 0 P 0\n";

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

class Results : public ::testing::Test
{
protected:
    void SetUp() override
    {
        writeJob("tiny", {{"SIGNAL", "TOP"}, {"SIGNAL", "BOT"}, {"ROUT", "CUTS"}});
        writeFile("tiny/steps/pcb/layers/top/features", topFeatures);
        writeFile("tiny/steps/pcb/layers/cuts/features", "UNITS=MM\n$0 r800\nL 0 5 2 5 0 P 0\n");
    }
    void writeLevels()
    {
        writeFile("config/ranges/mine/SignalLayerRanges.json",
                  R"({"rangesList": [{"name": "Lines", "RedLv": "4", "YellowLv": "5", "GreenLv": "6"}]})");
    }
    void open()
    {
        ASSERT_EQ(session.open(QDir().absoluteFilePath("tiny")), "");
        commandLine.output = ".";
        window = std::make_unique<MainWindow>(session, log, commandLine);
        tester = std::make_unique<QAbstractItemModelTester>(
            model(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    }

    ResultsPage & page() const { return window->results(); }
    ResultsModel * model() const
    {
        return static_cast<ResultsModel *>(page().findChild<QTreeView *>()->model());
    }
    QString text(char const * label) const { return page().findChild<QLabel *>(label)->text(); }
    QPushButton & button(char const * name) const { return *page().findChild<QPushButton *>(name); }
    KVLengthEdit & field(char const * level) const { return *page().findChild<KVLengthEdit *>(level); }
    QString header(int column) const
    {
        return model()->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
    }
    QString row(QModelIndex const & index) const
    {
        QStringList cells;
        for (int column : {ResultsModel::Name, ResultsModel::Severity, ResultsModel::Measured,
                           ResultsModel::Limit, ResultsModel::Position}) {
            cells.append(index.siblingAtColumn(column).data().toString());
        }
        return cells.join('|');
    }
    /// The track check as shown in the tree.
    QStringList tracks() const
    {
        QModelIndex const lines = model()->find(signalTable, linesNumber);
        QStringList rows{row(lines)};
        for (int i = 0; i < model()->rowCount(lines); ++i) {
            QModelIndex const top = model()->index(i, 0, lines);
            rows.append(row(top));
            for (int j = 0; j < model()->rowCount(top); ++j) {
                rows.append(row(model()->index(j, 0, top)));
            }
        }
        return rows;
    }

    Session session;
    LogLines log;
    CommandLine commandLine;
    std::unique_ptr<MainWindow> window;
    std::unique_ptr<QAbstractItemModelTester> tester;
};

TEST_F(Results, AreFiledAndSummarised)
{
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
    EXPECT_TRUE(readFile("report.csv").contains("measurement,\"SignalLayerRanges\",46,\"Lines\",\"top\""));
    auto const * notes = page().findChild<QTableWidget *>();
    EXPECT_EQ(notes->item(0, 0)->text(), "Nets");
    EXPECT_TRUE(notes->item(0, 1)->text().contains("eda/data"));
}

TEST_F(Results, AreGradedAgainWhenALevelChangesAndFollowTheUnit)
{
    writeLevels();
    open();
    ASSERT_TRUE(page().runChecks());
    ASSERT_TRUE(page().showCheck(signalTable, linesNumber));
    EXPECT_EQ(header(ResultsModel::Measured), "Measured (mil)");
    EXPECT_EQ(tracks(),
              (QStringList{"Lines|✖ R|3.94|4 / 5 / 6|", "top|✖ R|3.94||", "1|✖ R|3.94|4|0.197, 0.000",
                           "2|▲ Y|5|5|0.197, 0.039", "3|–|7.87||0.197, 0.079"}));
    field("GreenLv").setText("9+");
    QTest::keyClick(&field("GreenLv"), Qt::Key_Return); // never 9
    EXPECT_EQ(tracks()[4], "3|–|7.87||0.197, 0.079");
    field("GreenLv").setText("3+5");
    QTest::keyClick(&field("GreenLv"), Qt::Key_Return);
    EXPECT_EQ(tracks()[4], "3|● G|7.87|8|0.197, 0.079");
    EXPECT_TRUE(text("levels hint").startsWith("Not saved")) << text("levels hint").toStdString();

    setUnit(window->board().currentView()->handle(), 1);
    EXPECT_EQ(header(ResultsModel::Measured), "Measured (my)");
    EXPECT_EQ(tracks(), (QStringList{"Lines|✖ R|100|101.6 / 127 / 203.2|", "top|✖ R|100||",
                                     "1|✖ R|100|101.6|5.000, 0.000", "2|▲ Y|127|127|5.000, 1.000",
                                     "3|● G|200|203.2|5.000, 2.000"}));
    EXPECT_EQ(field("GreenLv").text(), "203.2");
    EXPECT_EQ(page().findChild<TrackWidthChart *>()->barText(0), "top: 100 my (red)");
    EXPECT_EQ(page().findChild<TrackWidthChart *>()->barText(1), "bot: no tracks");

    // A level typed in micrometres becomes the round number of mil that it means.
    field("YellowLv").setText("76.2");
    QTest::keyClick(&field("YellowLv"), Qt::Key_Return);
    EXPECT_EQ(tracks()[2], "1|–|100||5.000, 0.000");
    EXPECT_TRUE(text("levels hint").startsWith("These levels contradict each other"));
    button("save levels").click();
    EXPECT_FALSE(button("save levels").isEnabled());
    QJsonObject const saved =
        readObject("config/ranges/mine/SignalLayerRanges.json")["rangesList"].toArray()[0].toObject();
    EXPECT_EQ(saved, (QJsonObject{{"name", "Lines"}, {"RedLv", "4"}, {"YellowLv", "3"}, {"GreenLv", "8"}}));
}

TEST_F(Results, AMeasurementIsMarkedOnTheBoard)
{
    writeLevels();
    open();
    ASSERT_TRUE(page().runChecks());
    ASSERT_TRUE(page().showCheck(signalTable, linesNumber));
    auto const & marks = window->board().currentView()->marks();
    ASSERT_EQ(marks.size(), 1U);
    EXPECT_EQ(QPointF(marks[0].x, marks[0].y), QPointF(5000, 0)); // the middle of the narrowest track
    EXPECT_EQ(marks[0].letter, "R");
    EXPECT_EQ(marks[0].toolTip, "Lines: 3.94 mil");
    EXPECT_EQ(window->board().currentView()->layer(), "top");
    EXPECT_FALSE(page().showCheck(signalTable, 0)); // is not measured
}

TEST_F(Results, ListSpacingsUpToTheLargestLevel)
{
    writeFile(
        "config/ranges/mine/SignalLayerRanges.json",
        R"({"rangesList": [{"name": "Line to Line", "RedLv": "4", "YellowLv": "5", "GreenLv": "40"}]})");
    open();
    ASSERT_TRUE(page().runChecks());
    EXPECT_EQ(model()->rowCount(model()->find(signalTable, 4)), 1) << "tracks 35 mil apart on top";
    changeRangesValue(signalTable, "Line to Line", "GreenLv", 30);
    ASSERT_TRUE(page().runChecks());
    EXPECT_EQ(model()->rowCount(model()->find(signalTable, 4)), 0);
}

TEST_F(Results, SlotsHaveLevelsAndACategoryWithoutACheckIsNamed)
{
    writeLevels();
    writeFile("config/ranges/mine/DrillRanges.json", R"({"rangesList": [
        {"name": "PTH Summary", "RedLv": "8", "YellowLv": "9", "GreenLv": "10"},
        {"name": "Non Plated Slot Summary", "RedLv": "31.6", "YellowLv": "33", "GreenLv": "34"},
        {"name": "Same Net Close PTHs", "RedLv": "8", "YellowLv": "9", "GreenLv": "10"},
        {"name": "Duplicate Holes", "RedLv": "8", "YellowLv": "9", "GreenLv": "10"},
        {"name": "Touching Holes", "RedLv": "8", "YellowLv": "9", "GreenLv": "10"}]})");
    open();
    ASSERT_TRUE(page().runChecks());
    EXPECT_EQ(row(model()->find(drillTable, 4)), "Non Plated Slot Summary|✖ R|31.5|31.6 / 33 / 34|");
    EXPECT_FALSE(model()->find(Ext::unifiedTable, UNIFIED_SLOTS).isValid()) << "counted once";
    QStringList without;
    auto const & table = *page().findChild<QTableWidget *>();
    for (int i = 0; i < table.rowCount(); ++i) {
        if (table.item(i, 0)->text() == "DrillRanges") {
            without.append(table.item(i, 1)->text());
        }
    }
    EXPECT_EQ(without, QStringList("The engine has no check for: Duplicate Holes, Touching Holes."));
}

TEST_F(Results, OfACancelledRunAreThoseOfTheRunBefore)
{
    open();
    AnalysisRun run(session);
    int told = 0;
    auto const stop = [&told](int, int) { return ++told < 2; };
    EXPECT_EQ(run.run("pcb", stop), AnalysisRun::Outcome::Cancelled);
    EXPECT_FALSE(run.hasResult());
    EXPECT_EQ(run.run("pcb"), AnalysisRun::Outcome::Done);
    told = 0;
    EXPECT_EQ(run.run("pcb", stop), AnalysisRun::Outcome::Cancelled);
    EXPECT_EQ(run.error(), "");
    EXPECT_EQ(toJson(run)["counts"].toObject()["none"], 4);
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
