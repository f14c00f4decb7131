#include "ReportMaking.h"

#include "analysis/ReportComparison.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

#include <algorithm>

using namespace KVCAM::UIAPI::Ext;
using namespace KVCAM::Testing;

namespace {

using Spots = std::vector<Spot>;

// "worse 90>80, new 70"
std::string textOf(ReportComparison const & comparison)
{
    std::string text;
    for (ReportChange const & change : comparison.changes) {
        auto const um = [](std::optional<Length> value) {
            return value ? std::to_string(static_cast<int>(value->toMicrometres())) : std::string();
        };
        bool const isPair = change.before && change.after;
        text += (text.empty() ? "" : ", ") + std::string(changeName(change.change)) + ' ' +
                um(change.before) + (isPair ? ">" : "") + um(change.after);
    }
    return text;
}

TEST(Comparison, ViolationsArePairedByIdThenByPlace)
{
    struct Row
    {
        char const * what;
        Spots before;
        Spots after;
        char const * expected;
    };
    std::vector<Row> const rows = {
        {"the same", {{3, 90, {{0, 0}, {9, 0}}}}, {{3, 90, {{0, 0}, {9, 0}}}}, "unchanged 90>90"},
        {"at the tolerance", {{46, 90, {{0, 0}}}}, {{46, 90, {{30, 40}}}}, "unchanged 90>90"},
        {"beyond it", {{46, 90, {{0, 0}}}}, {{46, 90, {{31, 40}}}}, "new 90, fixed 90"},
        {"across a square's corner", {{46, 90, {{-1, 99}}}}, {{46, 90, {{1, 101}}}}, "unchanged 90>90"},
        {"the second item moved too far",
         {{3, 90, {{0, 0}, {9, 0}}}},
         {{3, 90, {{0, 0}, {60, 0}}}},
         "new 90, fixed 90"},
        {"another second item",
         {{3, 90, {{0, 0}, {9, 0}}, {"A", "B"}}},
         {{3, 90, {{0, 0}, {9, 0}}, {"A", "B"}}, {3, 80, {{0, 0}, {9, 0}}, {"A", "C"}}},
         "new 80, unchanged 90>90"},
        {"one net, the items met in the other order",
         {{3, 90, {{0, 0}, {10, 90}}, {"A", "A"}}},
         {{3, 90, {{0, 90}, {1, 0}}, {"A", "A"}}},
         "unchanged 90>90"},
        {"one net, in the other order and nearer than another",
         {{3, 90, {{0, 0}, {10, 90}}, {"A", "A"}}},
         {{3, 91, {{0, 90}, {1, 0}}, {"A", "A"}}, {3, 80, {{0, 20}, {10, 100}}, {"A", "A"}}},
         "new 80, better 90>91"},
        {"another net", {{46, 90, {{0, 0}}, {"A", ""}}}, {{46, 90, {{0, 0}}, {"B", ""}}}, "new 90, fixed 90"},
        {"another layer",
         {{46, 90, {{0, 0}}, {}, "top"}},
         {{46, 90, {{0, 0}}, {}, "bot"}},
         "new 90, fixed 90"},
        {"the nearest pair first, although another comes first",
         {{46, 90, {{0, 0}}}},
         {{46, 91, {{-40, 0}}}, {46, 92, {{-5, 0}}}},
         "new 91, better 90>92"},
        {"at one distance the closest value",
         {{46, 90, {{0, 0}}}},
         {{46, 70, {{-10, 0}}}, {46, 90, {{10, 0}}}},
         "new 70, unchanged 90>90"},
        {"an equal id before the closest value",
         {{46, 90, {{0, 0}}}},
         {{46, 80, {{0, 0}}}, {46, 90, {{1, 0}}}},
         "new 90, worse 90>80"},
        {"two of one name",
         {{46, 90, {{0, 0}}}, {46, 90, {{0, 0}}}},
         {{46, 90, {{0, 0}}}},
         "fixed 90, unchanged 90>90"},
        {"two of one name before and after, by their numbers",
         {{46, 80, {{0, 0}}}, {46, 90, {{0, 0}}}},
         {{46, 90, {{0, 0}}}, {46, 100, {{0, 0}}}},
         "better 80>90, better 90>100"},
        {"without a place", {{46, 90, {}}, {46, 80, {}}}, {{46, 80, {}}}, "fixed 90, unchanged 80>80"},
        {"less red", {{46, 90, {{0, 0}}}}, {{46, 95, {{0, 0}}}}, "better 90>95"},
        {"yellow from red", {{46, 90, {{0, 0}}}}, {{46, 110, {{0, 0}}}}, "better 90>110"},
        {"more is worse", {{45, 130, {{0, 0}}}}, {{45, 140, {{0, 0}}}}, "worse 130>140"},
        {"no violation before, and never",
         {{46, 200, {{0, 0}}}, {46, 200, {{9, 9}}}, {46, 90, {{900, 0}}}},
         {{46, 110, {{0, 0}}}, {46, 200, {{9, 9}}}, {46, 90, {{900, 0}}}},
         "new 110, unchanged 90>90"},
        {"no violation any more", {{46, 90, {{0, 0}}}}, {{46, 200, {{0, 0}}}}, "fixed 90"},
    };
    for (Row row : rows) {
        EXPECT_EQ(textOf(compareReports(reportOf(row.before), reportOf(row.after))), row.expected)
            << row.what;
        std::reverse(row.before.begin(), row.before.end());
        std::reverse(row.after.begin(), row.after.end());
        EXPECT_EQ(textOf(compareReports(reportOf(row.before), reportOf(row.after))), row.expected)
            << row.what << ", in the other order";
    }
    ReportComparison const exact =
        compareReports(reportOf({{46, 90, {{0, 0}}}}), reportOf({{46, 90, {{1, 0}}}}), {});
    EXPECT_EQ(textOf(exact), "new 90, fixed 90") << "without tolerance";
}

TEST(Comparison, ACrowdIsPairedCompletely)
{
    constexpr int count = 1000;
    Spots before;
    Spots after;
    for (int i = 0; i < count; ++i) {
        before.push_back({46, 90, {{i % 40 * 0.5, i / 100.0}}});
        after.push_back({46, 90, {{i % 40 * 0.5 + 20, i / 100.0 + 10}}});
    }
    ReportComparison const comparison = compareReports(reportOf(before), reportOf(after));
    EXPECT_EQ(comparison.count(Change::Unchanged), std::size_t(count));
}

TEST(Comparison, WhatWasNotCheckedIsNotFixed)
{
    struct Row
    {
        std::vector<NotChecked> before;
        std::vector<NotChecked> after;
        char const * expected;
    };
    NotChecked const layer{signalTable, -1, "top", "It is negative."};
    NotChecked const both{signalTable, 46, "Lines, top", "No."};
    for (Row const & row :
         {Row{{}, {}, "fixed 90"}, Row{{}, {layer}, "notChecked 90"}, Row{{}, {both}, "notChecked 90"},
          Row{{}, {{signalTable, 46, "", "No."}}, "notChecked 90"}, Row{{both}, {both}, "fixed 90"},
          Row{{}, {{signalTable, 46, "Lines, bot", "No."}}, "fixed 90"},
          Row{{}, {{signalTable, 45, "", "No."}}, "fixed 90"},
          Row{{}, {{"DrillRanges", -1, "top", "No."}}, "fixed 90"}}) {
        AnalysisReport before = reportOf({{46, 90, {{0, 0}}}});
        AnalysisReport after = reportOf({});
        for (NotChecked const & check : row.before) {
            before.addNotChecked(check);
        }
        for (NotChecked const & check : row.after) {
            after.addNotChecked(check);
        }
        EXPECT_EQ(textOf(compareReports(before, after)), row.expected)
            << (row.after.empty() ? "" : row.after[0].name);
    }
    EXPECT_EQ(textOf(compareReports(reportOf({{46, 90, {}}}), {})), "notChecked 90") << "no such category";
}

TEST(Comparison, JsonTellsBothReportsAndEachChange)
{
    AnalysisReport before = reportOf({{46, 90, {{1, 2}}, {"A\"", ""}}, {3, 80, {}}});
    before.setJobStep("old", "pcb");
    before.setDate("2026-11-21");
    AnalysisReport after = reportOf({{46, 254, {{1, 2}}}, {45, 127, {{7, 8}}}});
    after.setLevels(signalTable, {{"Circuit to circuit", 100, 120, 150}, {"Pads", 150, 120, 110}});
    after.applyWaivers({{"SignalLayerRanges/45/top/7,8/A~B", "r", "a", "2026-11-22", ""}}, "2026-11-22");
    QJsonObject top = QJsonDocument::fromJson(comparisonText(compareReports(before, after))).object();
    QJsonArray const changes = top.take("changes").toArray();
    ASSERT_EQ(changes.size(), 3);
    for (auto const & [object, expected] :
         {std::pair(top, R"({"format": "report-comparison", "version": 1,
              "before": {"job": "old", "step": "pcb", "date": "2026-11-21",
                         "counts": {"none": 0, "green": 0, "yellow": 0, "red": 2},
                         "waived": {"none": 0, "green": 0, "yellow": 0, "red": 0}},
              "after": {"job": "", "step": "", "date": null,
                        "counts": {"none": 1, "green": 0, "yellow": 0, "red": 0},
                        "waived": {"none": 0, "green": 0, "yellow": 1, "red": 0}},
              "tolerance_um": 50, "levelsDiffer": ["SignalLayerRanges: Pads", "SignalLayerRanges: Lines"],
              "counts": {"new": 0, "fixed": 2, "better": 0, "worse": 0, "unchanged": 0, "notChecked": 0},
              "waived": {"new": 1, "fixed": 0, "better": 0, "worse": 0, "unchanged": 0, "notChecked": 0}})"),
          {changes[1].toObject(), R"({"change": "new", "id": "SignalLayerRanges/45/top/7,8/A~B",
              "table": "SignalLayerRanges", "number": 45, "name": "Pads", "layer": "top", "before": null,
              "after": {"um": 127, "mil": 5, "severity": "yellow"}, "places": [{"x_um": 7, "y_um": 8}],
              "nets": ["A", "B"], "waived": true})"},
          {changes[2].toObject(), R"({"change": "fixed", "id": "SignalLayerRanges/46/top/1,2/A%22",
              "table": "SignalLayerRanges", "number": 46, "name": "Lines", "layer": "top",
              "before": {"um": 90, "mil": 3.543307086614173, "severity": "red"}, "after": null,
              "places": [{"x_um": 1, "y_um": 2}], "nets": ["A\"", null], "waived": false})"}}) {
        EXPECT_EQ(object, QJsonDocument::fromJson(expected).object()) << expected;
    }
}

} // namespace
