#pragma once

#include "TestFiles.h"
#include "checks/ResultsPage.h"
#include "checks/ResultsTree.h"
#include "ui/LogPane.h"
#include "window/MainWindow.h"

#include <UIAPICommonExt.h>

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QStringList>

#include <memory>

namespace Workbench {

/// Tracks of 3.94, 5 and 7.87 mil on one layer, none on the other; a slot.
inline constexpr char const * tinyTop = "UNITS=MM\n$0 r100\n$1 r127\n$2 r200\n"
                                        "L 0 2 10 2 2 P 0\nL 0 1 10 1 1 P 0\nL 0 0 10 0 0 P 0\n";

/// A window on a small job without levels, whose results are to be read.
class Results : public ::testing::Test
{
protected:
    void SetUp() override
    {
        writeJob("tiny", {{"SIGNAL", "TOP"}, {"SIGNAL", "BOT"}, {"ROUT", "CUTS"}});
        writeFile("tiny/steps/pcb/layers/top/features", tinyTop);
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
    KVCAM::UIAPI::Ext::ReportModel * model() const
    {
        return static_cast<KVCAM::UIAPI::Ext::ReportModel *>(tree().filter().sourceModel());
    }
    ResultsTree & tree() const { return *page().findChild<ResultsTree *>(); }
    QString text(char const * label) const { return page().findChild<QLabel *>(label)->text(); }
    QPushButton & button(char const * name) const { return *page().findChild<QPushButton *>(name); }
    KVCAM::UIAPI::KVLengthEdit & field(char const * level) const
    {
        return *page().findChild<KVCAM::UIAPI::KVLengthEdit *>(level);
    }
    QString header(int column) const
    {
        return model()->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
    }
    QString row(QModelIndex const & index) const
    {
        QStringList cells;
        for (int column :
             {KVCAM::UIAPI::Ext::ReportModel::NameColumn, KVCAM::UIAPI::Ext::ReportModel::SeverityColumn,
              KVCAM::UIAPI::Ext::ReportModel::MeasuredColumn, KVCAM::UIAPI::Ext::ReportModel::LimitColumn,
              KVCAM::UIAPI::Ext::ReportModel::PositionColumn}) {
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

} // namespace Workbench
