#include "CheckEntries.h"
#include "config/ConfigTest.h"

#include "analysis/ReportModel.h"

#include <QAbstractItemModelTester>
#include <QPointF>
#include <QSignalSpy>
#include <QSortFilterProxyModel>

#include <memory>
#include <string>

using namespace KVCAM::UIAPI;
using namespace KVCAM::UIAPI::Ext;
using namespace KVCAM::Testing;

namespace {

constexpr char const * table = "SignalLayerRanges";

class ReportModelTest : public UiapiTest
{
protected:
    /// A track of `micrometres` at (x, 2000).
    static check_info track(int x, int micrometres) { return {1, 0, {x, 2000, x, 2000, micrometres}}; }
    static void add(AnalysisReport & report, char const * layer, int item, Entries const & entries)
    {
        std::map<std::string, std::map<signal_layers_checks_items, signal_check_result>> replies;
        replies[layer][signalItem(item)].lists[0] = entries;
        report.addSignal(replies);
    }
    void SetUp() override
    {
        report->setLevels(table, {{"Lines", 3, 4, 5.12345}});
        add(*report, "top", 46, {track(25400, 76), track(3000, 100)});
        add(*report, "l10", 46, {track(1000, 200), {2, 0, {1, 2, 3, 4}}});
        add(*report, "bot", 46, {track(-500, 127)});
        add(*report, "top", 46, {track(2000, 102)}); // the layer again, after another
        add(*report, "top", 12, {});
        model.setReport(report);
    }
    /// The row at a path, "1/0/2".
    QModelIndex row(char const * path) const
    {
        QModelIndex found;
        for (QString const & part : QString(path).split('/', Qt::SkipEmptyParts)) {
            found = model.index(part.toInt(), 0, found);
        }
        return found;
    }
    std::string texts(char const * path) const
    {
        QStringList cells;
        for (int column = 0; column < ReportModel::ColumnCount; ++column) {
            cells.append(row(path).siblingAtColumn(column).data().toString());
        }
        return cells.join('|').toStdString();
    }
    std::string names(char const * parent) const
    {
        QStringList all;
        for (int i = 0; i < model.rowCount(row(parent)); ++i) {
            all.append(model.index(i, 0, row(parent)).data().toString());
        }
        return all.join(' ').toStdString();
    }

    std::shared_ptr<AnalysisReport> report = std::make_shared<AnalysisReport>();
    ReportModel model;
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(ReportModelTest, SaysARowInEitherUnitOfTheModelAndOfTheLevels)
{
    struct
    {
        char const * path;
        char const * inch;
        char const * metric;
        char const * metricLevels; // in inches: what changes when the levels are micrometres
    } const rows[] = {
        {"0", "SMD to SMD||0||||||nothing found", "SMD to SMD||0||||||nothing found", ""},
        {"1", "Lines|✖ R|6|1|2|1|2.99|3 / 4 / 5.12345|", "Lines|✖ R|6|1|2|1|76|76.2 / 101.6 / 130.13563|",
         "Lines|–|6||||2.99|0.11811 / 0.15748 / 0.20171|"},
        {"1/0", "bot|● G|1|||1|5||", "bot|● G|1|||1|127||", "bot|–|1||||5||"},
        {"1/1", "l10|–|2||||7.87||", "l10|–|2||||200||", ""},
        {"1/2", "top|✖ R|3|1|2||2.99||", "top|✖ R|3|1|2||76||", ""},
        {"1/2/0", "1|✖ R|||||2.99|3|1.000, 0.079", "1|✖ R|||||76|76.2|25.400, 2.000", ""},
        {"1/2/1", "2|▲ Y|||||3.94|4|0.118, 0.079", "2|▲ Y|||||100|101.6|3.000, 2.000", ""},
        {"1/2/2", "3|▲ Y|||||4.02|4|0.079, 0.079", "3|▲ Y|||||102|101.6|2.000, 2.000", ""},
        {"1/1/1", "2|–|||||not known||0.000, 0.000", "2|–|||||not known||0.002, 0.003", ""},
    };
    for (auto const & each : rows) {
        EXPECT_EQ(texts(each.path), each.inch);
    }
    EXPECT_EQ(model.headerData(ReportModel::PositionColumn, Qt::Horizontal), "Position (inch)");
    QSignalSpy const changed(&model, &QAbstractItemModel::dataChanged);
    model.setUnit(Unit::Millimetre);
    EXPECT_EQ(changed.size(), 1 + 1 + 3) << "the categories, the layers, the measurements of each";
    for (auto const & each : rows) {
        EXPECT_EQ(texts(each.path), each.metric);
    }
    EXPECT_EQ(model.headerData(ReportModel::LimitColumn, Qt::Horizontal), QString::fromUtf8("Limit (µm)"));
    model.setUnit(Unit::Inch);
    report->setLevelUnit(Unit::Millimetre);
    model.regrade();
    for (auto const & each : rows) {
        EXPECT_TRUE(*each.metricLevels == '\0' || texts(each.path) == each.metricLevels) << texts(each.path);
    }
}

TEST_F(ReportModelTest, WhatIsWaivedIsShownAndCountedNowhere)
{
    ReportModel::Row const first = model.at(row("1/2/0"));
    report->applyWaivers({{violationId(*first.category, *first.entry), "coupon", "me", "2020-01-01", {}}},
                         "2026-11-22");
    model.regrade();
    EXPECT_EQ(texts("1"), "Lines|▲ Y|5||2|1|2.99|3 / 4 / 5.12345|");
    EXPECT_EQ(texts("1/2"), "top|▲ Y|2||2||2.99||");
    EXPECT_EQ(texts("1/2/0"), "1|✖ R|||||2.99|3|1.000, 0.079");
    EXPECT_EQ(model.countsAt(row("1/2/0")), SeverityCounts());
    EXPECT_EQ(row("1/2/0").data(Qt::ToolTipRole), "waived: coupon");
}

TEST_F(ReportModelTest, GivesWhatARowIsByRoles)
{
    struct
    {
        char const * path;
        Severity severity;
        Length measured;
        QPointF place;
    } const rows[] = {
        {"1", Severity::Red, 76_um, {}},
        {"1/0", Severity::Green, 127_um, {}},
        {"1/2/1", Severity::Yellow, 100_um, {3000, 2000}},
    };
    for (auto const & each : rows) {
        QModelIndex const index = row(each.path).siblingAtColumn(ReportModel::LimitColumn);
        EXPECT_EQ(index.data(ReportModel::SeverityRole), static_cast<int>(each.severity)) << each.path;
        EXPECT_EQ(index.data(ReportModel::MeasuredRole).value<Length>(), each.measured) << each.path;
        EXPECT_EQ(index.data(ReportModel::PositionRole).toPointF(), each.place) << each.path;
    }
    EXPECT_FALSE(row("1/1/1").data(ReportModel::MeasuredRole).isValid());
    EXPECT_EQ(model.at(row("1/2/2")).entry->position->x, 2000);
    EXPECT_EQ(model.find(table, 46), row("1"));
    EXPECT_FALSE(model.find("DrillRanges", 46).isValid());
    EXPECT_EQ(model.at({}).category, nullptr);

    QSortFilterProxyModel sorted;
    sorted.setSourceModel(&model);
    sorted.setSortRole(ReportModel::SortRole);
    struct
    {
        int column;
        char const * parent;
        char const * order;
    } const sorts[] = {
        {ReportModel::MeasuredColumn, "1/2", "3 2 1"},      {ReportModel::PositionColumn, "1/2", "1 2 3"},
        {ReportModel::SeverityColumn, "1", "top bot l10"},  {ReportModel::CountColumn, "1", "top l10 bot"},
        {ReportModel::YellowColumn, "1", "top l10 bot"},    {ReportModel::NameColumn, "1/2", "3 2 1"},
        {ReportModel::LimitColumn, "", "SMD to SMD Lines"}, // without levels: invalid
        {ReportModel::NameColumn, "", "SMD to SMD Lines"},
    };
    for (auto const & each : sorts) {
        sorted.sort(each.column, Qt::DescendingOrder);
        QStringList order;
        QModelIndex const parent = sorted.mapFromSource(row(each.parent));
        for (int i = 0; i < sorted.rowCount(parent); ++i) {
            order.append(sorted.index(i, 0, parent).data().toString());
        }
        EXPECT_EQ(order.join(' '), each.order) << each.column;
    }
}

TEST_F(ReportModelTest, ShowsLayersInAGivenOrderAndKeepsItsReport)
{
    EXPECT_EQ(names("1"), "bot l10 top");
    model.setLayerOrder({"top", "l2", "bot"});
    EXPECT_EQ(names("1"), "top bot l10");
    QPersistentModelIndex const first(row("1/0/0"));
    report->setLevels(table, {{"Lines", 1, 2, 3}});
    model.regrade();
    EXPECT_TRUE(first.isValid()) << "rows keep their places";
    EXPECT_EQ(texts("1/0/0"), "1|● G|||||2.99|3|1.000, 0.079");
    std::weak_ptr<AnalysisReport> const kept(report);
    report.reset();
    EXPECT_EQ(names("1/0"), "1 2 3");
    EXPECT_FALSE(kept.expired());
    model.setReport(nullptr);
    EXPECT_TRUE(kept.expired());
    EXPECT_EQ(model.rowCount(), 0);
    model.regrade();

    Entries many(100000, track(0, 100));
    many.back() = track(0, 1234);
    auto large = std::make_shared<AnalysisReport>();
    add(*large, "top", 46, many);
    ReportModel largest; // without the tester, which would visit all rows
    largest.setReport(large);
    QModelIndex const layer = largest.index(0, 0, largest.index(0, 0));
    EXPECT_EQ(largest.rowCount(layer), 100000);
    EXPECT_EQ(largest.index(99999, ReportModel::MeasuredColumn, layer).data(), "48.58");
}

} // namespace
