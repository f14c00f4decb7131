#include "ResultsWindow.h"
#include "board/BoardView.h"
#include "checks/Freshness.h"
#include "checks/TrackWidthChart.h"
#include "ui/CategoryNames.h"
#include "ui/EnglishTexts.h"
#include "ui/LanguageChange.h"
#include "ui/TableTools.h"
#include "window/BoardPage.h"

#include <UIAPICommon.h>

#include <QAction>
#include <QClipboard>
#include <QFileDialog>
#include <QFrame>
#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTableWidget>
#include <QTest>
#include <QToolButton>

#include <algorithm>

using namespace KVCAM::UIAPI;
using namespace Workbench;

namespace {

TEST_F(Results, AreGradedAgainWhenALevelChangesAndFollowTheUnit)
{
    writeLevels();
    open();
    ASSERT_TRUE(page().runChecks());
    ASSERT_TRUE(page().showCheck(signalTable, linesNumber));
    EXPECT_EQ(header(Ext::ReportModel::MeasuredColumn), "Measured (mil)");
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
    EXPECT_EQ(header(Ext::ReportModel::MeasuredColumn), "Measured (µm)");
    EXPECT_EQ(tracks(), (QStringList{"Lines|✖ R|100|101.6 / 127 / 203.2|", "top|✖ R|100||",
                                     "1|✖ R|100|101.6|5.000, 0.000", "2|▲ Y|127|127|5.000, 1.000",
                                     "3|● G|200|203.2|5.000, 2.000"}));
    EXPECT_EQ(field("GreenLv").text(), "203.2");
    EXPECT_EQ(page().findChild<TrackWidthChart *>()->barText(0), "top: 100 µm (red)");
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

// What a row says without its position, of the rows that the tree would show expanded.
QStringList shownRows(ResultsTree & tree, QModelIndex const & parent = {})
{
    QStringList rows;
    for (int i = 0; i < tree.model()->rowCount(parent); ++i) {
        QModelIndex const index = tree.model()->index(i, 0, parent);
        rows.append(index.data().toString());
        rows += shownRows(tree, index);
    }
    return rows;
}

TEST_F(Results, AreOutOfDateAfterAnyOperationOnTheirStep)
{
    struct
    {
        char const * seen; // steps, each with its number of operations
        bool isChanged;
    } const rows[] = {
        {"", false},         {"a1", false},      {"b5 b6", false},
        {"a2", true},        {"a0", true},       {"a2 a1", true}, // one taken back
        {"b1 a1 b0", false}, {"a0 a1 b1", true},
    };
    for (auto const & row : rows) {
        Freshness freshness;
        freshness.seen("a", 3);
        freshness.measured("a", 1);
        for (QString const & seen : QString(row.seen).split(' ', Qt::SkipEmptyParts)) {
            freshness.seen(seen.left(1).toStdString(), seen.mid(1).toInt());
        }
        EXPECT_EQ(freshness.isChanged(), row.isChanged) << row.seen;
        freshness.measured("a", 7);
        EXPECT_FALSE(freshness.isChanged()) << row.seen;
    }
}

TEST_F(Results, OutOfDateSayItUntilTheChecksAreRunAgain)
{
    writeLevels();
    open();
    auto const isOutdated = [&] { return !page().findChild<QFrame *>("out of date")->isHidden(); };
    std::string asked;
    Ext::setMessagePresenter([&](Ext::Message const & message) {
        asked = message.text.toStdString();
        return Ext::MessageAnswer::No;
    });
    ASSERT_TRUE(page().runChecks());
    ASSERT_TRUE(page().showCheck(signalTable, linesNumber));
    window->board().refresh(); // reads again what is the same
    EXPECT_FALSE(isOutdated());
    EXPECT_FALSE(window->board().currentView()->marks().at(0).isFaint);
    window->board().currentView()->select({0});
    window->board().deleteSelected();
    EXPECT_TRUE(isOutdated());
    EXPECT_TRUE(window->board().currentView()->marks().at(0).isFaint);
    button("report").click();
    EXPECT_NE(asked.find("changed since it was measured"), std::string::npos) << asked;
    EXPECT_EQ(page().findChild<QFileDialog *>(), nullptr) << "not without consent";
    ASSERT_TRUE(page().run().writeReport("report.json"));
    EXPECT_TRUE(readFile("report.json").contains("The step has been changed since it was measured."));
    EXPECT_EQ(tracks().size(), 5) << "the results stay";

    button("again").click();
    EXPECT_FALSE(isOutdated());
    EXPECT_TRUE(window->board().currentView()->marks().empty());
    EXPECT_EQ(tracks().size(), 4);
    ASSERT_TRUE(page().run().writeReport("report.json"));
    EXPECT_FALSE(readFile("report.json").contains("has been changed"));
    changeRangesValue(signalTable, "Line to Line", "GreenLv", 30); // has no levels: no matter
    window->board().refresh();
    EXPECT_FALSE(isOutdated());
    Ext::setMessagePresenter({});
}

TEST_F(Results, AreFilteredSortedAndWalkedThrough)
{
    writeLevels();
    open();
    ASSERT_TRUE(page().runChecks());
    auto const lines = [&] {
        QModelIndex const index = tree().filter().mapFromSource(model()->find(signalTable, linesNumber));
        return index.isValid() ? shownRows(tree(), index).join(' ') : QString("hidden");
    };
    QStringList walked;
    QObject::connect(&page(), &ResultsPage::status, [&](QString const & text) { walked.append(text); });
    struct
    {
        char const * hidden;
        char const * rows;
        char const * walk; // two steps on and one back
    } const rows[] = {
        {"", "top 1 2 3", "Lines: 3.94 mil, Lines: 5 mil, Lines: 3.94 mil"},
        {"Red", "top 2 3", "Lines: 5 mil, Lines: 5 mil, Lines: 5 mil"},
        {"Yellow", "top 1 3", "Lines: 3.94 mil, Lines: 3.94 mil, Lines: 3.94 mil"},
        {"None", "top 1 2", "Lines: 3.94 mil, Lines: 5 mil, Lines: 3.94 mil"},
        {"None Red Yellow", "hidden", "none, none, none"},
    };
    for (auto const & row : rows) {
        for (Ext::SeverityMark const & mark : Ext::severityPalette) {
            bool const isShown = !QString(row.hidden).split(' ').contains(mark.name, Qt::CaseInsensitive);
            page().findChild<QToolButton *>(mark.name)->setChecked(isShown);
        }
        EXPECT_EQ(lines(), row.rows) << row.hidden;
        tree().setCurrentIndex({});
        walked.clear();
        for (int const way : {1, 1, -1}) {
            page().showViolation(way);
        }
        walked.replaceInStrings("There is no violation among the results shown.", "none");
        EXPECT_EQ(walked.join(", "), row.walk) << row.hidden;
    }
    ASSERT_TRUE(page().showCheck(signalTable, linesNumber)) << "shows what is hidden";
    EXPECT_EQ(lines(), "top 1 2 3");
    EXPECT_TRUE(page().findChild<QToolButton *>("red")->isChecked());

    struct
    {
        int column;
        Qt::SortOrder order;
        char const * rows;
    } const sorts[] = {
        {Ext::ReportModel::MeasuredColumn, Qt::DescendingOrder, "top 3 2 1"},
        {Ext::ReportModel::SeverityColumn, Qt::AscendingOrder, "top 3 2 1"},
        {Ext::ReportModel::LimitColumn, Qt::DescendingOrder,
         "top 2 1 3"}, // the third has none: last in either order
        {Ext::ReportModel::LimitColumn, Qt::AscendingOrder, "top 1 2 3"},
        {Ext::ReportModel::PositionColumn, Qt::DescendingOrder, "top 3 2 1"},
        {Ext::ReportModel::NameColumn, Qt::DescendingOrder, "top 3 2 1"},
        {-1, Qt::AscendingOrder, "top 1 2 3"},
    };
    for (auto const & sort : sorts) {
        tree().sortByColumn(sort.column, sort.order);
        EXPECT_EQ(lines(), sort.rows) << sort.column << ' ' << sort.order;
    }
    tree().sortByColumn(Ext::ReportModel::MeasuredColumn, Qt::DescendingOrder);
    tree().setCurrentIndex({});
    walked.clear();
    page().showViolation(1);
    EXPECT_EQ(walked.join(' '), "Lines: 5 mil") << "in the order shown";
    EXPECT_TRUE(tree().viewport()->rect().intersects(tree().visualRect(tree().currentIndex())));
}

TEST_F(Results, AreCopiedAsLinesOfCells)
{
    writeLevels();
    open();
    ASSERT_TRUE(page().runChecks());
    QClipboard & clipboard = *QGuiApplication::clipboard();
    auto const copied = [&](QModelIndexList const & rows, bool select) {
        tree().setCurrentIndex(rows.isEmpty() ? QModelIndex() : rows.last());
        tree().selectionModel()->clearSelection();
        for (QModelIndex const & row : rows) {
            tree().selectionModel()->select(
                row, (select ? QItemSelectionModel::Select : QItemSelectionModel::Deselect) |
                         QItemSelectionModel::Rows);
        }
        clipboard.setText("before");
        tree().findChild<QAction *>("copy")->trigger();
        return clipboard.text();
    };
    QModelIndex const lines = tree().filter().mapFromSource(model()->find(signalTable, linesNumber));
    QModelIndex const top = tree().model()->index(0, 0, lines);
    QModelIndex const first = tree().model()->index(0, 0, top);
    QModelIndex const second = tree().model()->index(1, 0, top);
    QString const one = QString::fromUtf8("Lines / top / 1\t✖ R\t\t\t\t\t3.94\t4\t0.197, 0.000");
    QString const two = QString::fromUtf8("Lines / top / 2\t▲ Y\t\t\t\t\t5\t5\t0.197, 0.039");
    EXPECT_EQ(copied({second, first}, true), one + '\n' + two) << "in the order shown";
    EXPECT_EQ(copied({second}, false), two) << "without a selection, the current row";
    EXPECT_EQ(copied({}, false), "before") << "never nothing";
    QTableWidget table(1, 2);
    prepareTable(table, {"a", "b"});
    table.setItem(0, 0, new QTableWidgetItem("two\nlines\tand a tab"));
    table.setItem(0, 1, new QTableWidgetItem("b"));
    table.selectRow(0);
    EXPECT_EQ(copyText(table), "two lines and a tab\tb");
    table.setColumnHidden(0, true);
    EXPECT_EQ(copyText(table), "b");
}

TEST_F(Results, AreInTheLanguageOfTheScreen)
{
    ASSERT_TRUE(showChinese(true));
    static QRegularExpression const han("[\\x{4e00}-\\x{9fff}]");
    int names = 0;
    for (std::string const & table : Ext::categoryTables()) {
        for (int number = 0; number < 100; ++number) {
            std::string const name = getRangesName(table, number);
            bool const isSymbolic = name.empty() || name.find(" to ") != std::string::npos;
            EXPECT_TRUE(isSymbolic || han.match(shownName(name)).hasMatch()) << name;
            EXPECT_TRUE(name.empty() || shownName(name).toStdString() != name) << name;
            names += name.empty() ? 0 : 1;
        }
    }
    EXPECT_GT(names, 400);
    EXPECT_EQ(shownName("My own check"), "My own check");
    struct
    {
        char const * english;
        char const * chinese;
    } const rows[] = {
        {"The layer is negative: it draws what is taken away.", "该层为负片：所画的是被去除的部分。"},
        {"Features drawn with \"Pads\" (3): of \"%1\" in it, its drawing is empty.",
         "用“Pads”绘制的图形（3 个）：其中的“%1”：其图形为空。"}, // names stay
        {"The nets come from copper and plated holes that touch: the step has no eda/data.",
         "网络由相接的铜和镀铜孔得出：该步骤没有 eda/data。"},
        {"The engine has no check for: Touching Holes, My own.", "引擎没有这些检查：相交孔, My own。"},
        {"Something new.", "Something new."},
    };
    for (auto const & row : rows) {
        EXPECT_EQ(inScreenLanguage(row.english).toStdString(), row.chinese);
    }
    std::string shown;
    Ext::setMessagePresenter([&](Ext::Message const & message) {
        shown = message.text.toStdString();
        return Ext::MessageAnswer::Ok;
    });
    isNumValueLegal(5, 1, 2, nullptr);
    Ext::setMessagePresenter({});
    EXPECT_EQ(shown, "该栏的数值超出范围：5\n合法值：1 到 2");

    writeLevels();
    open();
    ASSERT_TRUE(page().runChecks());
    auto const & notes = *page().findChild<QTableWidget *>("not checked");
    for (int i = 0; i < notes.rowCount(); ++i) {
        QString const reason = notes.item(i, 1)->text();
        EXPECT_TRUE(han.match(reason).hasMatch()) << reason.toStdString();
    }
    EXPECT_GT(notes.rowCount(), 0);
    ASSERT_TRUE(showChinese(false));
    EXPECT_EQ(inScreenLanguage(rows[0].english), rows[0].english);
}

TEST_F(Results, ListSpacingsUpToTheLargestLevel)
{
    writeFile(
        "config/ranges/mine/SignalLayerRanges.json",
        R"({"rangesList": [{"name": "Line to Line", "RedLv": "4", "YellowLv": "5", "GreenLv": "40"}]})");
    open();
    ASSERT_TRUE(page().runChecks());
    EXPECT_EQ(model()->rowCount(model()->find(signalTable, 4)), 1) << "tracks 35 mil apart on top";
    EXPECT_EQ(page().run().state(), AnalysisRun::State::Current);
    changeRangesValue(signalTable, "Line to Line", "GreenLv", 41);
    EXPECT_EQ(page().run().state(), AnalysisRun::State::TooShort);
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
    auto const & table = *page().findChild<QTableWidget *>("not checked");
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

} // namespace
