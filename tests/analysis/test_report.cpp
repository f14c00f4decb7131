#include "CheckEntries.h"
#include "config/ConfigTest.h"
#include "harness/ReportSchema.h"

#include "analysis/AnalysisReport.h"
#include "analysis/CheckKinds.h"
#include "checks/CheckReply.h"

#include <QJsonArray>

#include <cmath>
#include <limits>
#include <optional>
#include <vector>

using namespace KVCAM::UIAPI;
using namespace KVCAM::UIAPI::Ext;
using namespace KVCAM::Testing;

namespace {

constexpr double infinite = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

TEST(Grade, AValueAtALevelHasTheLevelsSeverity)
{
    struct Row
    {
        Analysis_Ranges_Record record;
        double value;
        Sense sense;
        char expected;
    };
    Analysis_Ranges_Record const rising{"", 3, 4, 5};
    Analysis_Ranges_Record const falling{"", 5, 4, 3};
    constexpr Sense small = Sense::SmallerIsWorse;
    constexpr Sense large = Sense::LargerIsWorse;
    for (Row const & row : {Row{rising, -1, small, 'R'},
                            Row{rising, 3, small, 'R'},
                            Row{rising, 3.001, small, 'Y'},
                            Row{rising, 4, small, 'Y'},
                            Row{rising, 4.001, small, 'G'},
                            Row{rising, 5, small, 'G'},
                            Row{rising, 5.001, small, '-'},
                            Row{falling, 9, large, 'R'},
                            Row{falling, 5, large, 'R'},
                            Row{falling, 4.999, large, 'Y'},
                            Row{falling, 4, large, 'Y'},
                            Row{falling, 3, large, 'G'},
                            Row{falling, 2.999, large, '-'},
                            Row{rising, 3, large, '-'},
                            Row{falling, 3, small, '-'},
                            Row{{"", 3, 5, 4}, 1, small, '-'},
                            Row{{"", 4, 4, 4}, 4, small, 'R'},
                            Row{{"", 4, 4, 4}, 4.1, small, '-'},
                            Row{{"", 3, 3, 5}, 3.5, small, 'G'},
                            Row{rising, nan, small, '-'},
                            Row{rising, -infinite, small, '-'},
                            Row{{"", nan, 4, 5}, 1, small, '-'},
                            Row{{"", 3, 4, infinite}, 1, small, '-'},
                            Row{{"", -infinite, 4, 5}, 1, small, '-'}}) {
        EXPECT_EQ(markOf(grade(row.record, row.value, row.sense)).letter, row.expected)
            << row.record.redLv << ' ' << row.record.greenLv << ' ' << row.value;
    }
    EXPECT_EQ(senseOf(rising), Sense::SmallerIsWorse);
    EXPECT_EQ(senseOf(falling), Sense::LargerIsWorse);
    EXPECT_EQ(gradeMeasured(rising, 102_um), Severity::Yellow) << "a track of 4 mil, 101.6";
    EXPECT_EQ(gradeMeasured(rising, 103_um), Severity::Green);
    EXPECT_EQ(gradeMeasured(falling, 102_um), Severity::Yellow);
    EXPECT_EQ(gradeMeasured({"", 100, 120, 150}, 120_um, Unit::Millimetre), Severity::Yellow);
    EXPECT_EQ(markOf(static_cast<Severity>(-5)).severity, Severity::None);
}

// Without red or green cones, lightness and blue remain.
TEST(Grade, ColoursStayApartInRedGreenBlindness)
{
    auto const linear = [](unsigned rgb, unsigned shift) {
        return std::pow(((rgb >> shift & 0xff) / 255.0 + 0.055) / 1.055, 2.4);
    };
    auto const luminance = [&](unsigned rgb) {
        return 0.2126 * linear(rgb, 16) + 0.7152 * linear(rgb, 8) + 0.0722 * linear(rgb, 0);
    };
    for (SeverityMark const & a : severityPalette) {
        EXPECT_GE(1.05 / (luminance(a.rgb) + 0.05), 3) << a.name << " on white";
        for (SeverityMark const & b : severityPalette) {
            double const lightness = std::cbrt(luminance(a.rgb)) - std::cbrt(luminance(b.rgb));
            double const blue = std::cbrt(linear(a.rgb, 0)) - std::cbrt(linear(b.rgb, 0));
            EXPECT_TRUE(&a == &b || std::hypot(lightness, blue) > 0.1) << a.name << ' ' << b.name;
        }
    }
}

TEST(CheckKind, ValueAndPlaceNeedTheirPoints)
{
    struct Row
    {
        int kind;
        std::vector<int> points;
        std::optional<double> value;
        double x; ///< -1: no position
    };
    for (Row const & row :
         {Row{1, {1, 2, 4, 4, 5}, 5, 2.5}, Row{2, {1, 2, 4, 4, 5}, 5, 2.5}, Row{1, {1, 2, 3, 4}, {}, 2},
          Row{1, {1, 2, 3}, {}, -1}, Row{3, {1, 2, 3, 4, 5, 6, 7, 8}, 7, 1},
          Row{3, {1, 2, 3, 4, 5, 6, 7}, {}, 1}, Row{5, {1, 2, 9, 4}, 4, 1}, Row{5, {1, 2, 3, 4}, 3, 1},
          Row{5, {1, 2, 3, 4, 5}, {}, 1}, Row{4, {1, 2, 3, 4, 5}, {}, 1}, Row{0, {1, 2, 3, 4, 5}, {}, 1},
          Row{-1, {1, 2, 3, 4, 5}, {}, 1}, Row{6, {1}, {}, -1}}) {
        check_info const info{row.kind, 99, row.points};
        EXPECT_EQ(measuredValue(info), row.value) << row.kind;
        EXPECT_EQ(positionOf(info).value_or(KVCAM::API::point{-1, -1}).x, row.x) << row.kind;
    }
}

class ReportTest : public UiapiTest
{
protected:
    void SetUp() override
    {
        UiapiTest::SetUp();
        std::map<std::string, check_reply<drill_check_item, check_info>> drill;
        drill["drl"].add(drillItem(2), 1, {5, 7, {100, 200, 300, 200}});
        drill["drl"].add(drillItem(99), 0, {5, 7, {1, 2, 3, 4}}); // no category
        std::map<std::string, std::map<signal_layers_checks_items, signal_check_result>> signal;
        signal["top"][signalItem(46)].lists[0] = {{1, 3, {0, 10, 4, 20, 76}}, {1, 3, {0, 0, 0, 0, 77}}};
        signal["bot"][signalItem(46)].lists[3] = {{2, 9, {largest, 0, largest, 1, 254}}, {4, 1, {8, 9, 1}}};
        signal["top"][signalItem(12)];
        signal["top"][signalItem(63)].lists[1] = {{0, 2, {}}};
        report.setNetLookup([](std::string_view table, int number, std::string const & layer, int level,
                               std::size_t index) {
            bool const isPair = table == "SignalLayerRanges" && number == 46 && layer == "bot" && level == 3;
            return isPair && index == 0 ? EntryNets{"VCC \"é\"", "+5V"} : EntryNets{};
        });
        std::map<unified_check_items, std::map<std::string, unified_check_result>> rest;
        rest[UNIFIED_SLOTS]["=cmd|'/c'!\"A1\", é"].groups[3] = {{3, 1, {-5, 6, 0, 0, 0, 0, 50, 0}}};
        report.setJobStep("job\n\"1\"", "pcb");
        report.addUnified(rest);
        report.setLevels("SignalLayerRanges", {{"Lines", 3, 4, 5}, {"Lines", 99, 99, 99}, {"Pads", 1, 2, 3}});
        report.addSignal(signal);
        report.addDrill(drill);
        report.addNotChecked({"SignalLayerRanges", 3, "", "-needs nets"});
        report.setLevels("UnifiedItems", {{"Slots", 50, 40, 30}});
    }

    static constexpr int largest = std::numeric_limits<int>::max();
    AnalysisReport report;
};

TEST_F(ReportTest, EachMeasurementKeepsItsCategory)
{
    std::vector<std::string> names;
    for (ReportCategory const & category : report.categories()) {
        names.push_back(category.table + '/' + category.name + '/' + std::to_string(category.entries.size()));
    }
    EXPECT_EQ(names, (std::vector<std::string>{"DrillRanges/Via Summary/1", "SignalLayerRanges/SMD to SMD/0",
                                               "SignalLayerRanges/Lines/4", "SignalLayerRanges/#63/1",
                                               "UnifiedItems/Slots/1"}));
    ReportCategory const * lines = report.find("SignalLayerRanges", 46);
    ASSERT_NE(lines, nullptr);
    EXPECT_EQ(report.find("DrillRanges", 46), nullptr);
    ReportEntry const & far = lines->entries[0];
    EXPECT_EQ(far.position->y, 0.5) << "the middle";
    EXPECT_FALSE(lines->entries[1].measured.has_value()) << "a kind that is not measured";
    EXPECT_EQ(lines->entries[1].position->y, 9);
    EXPECT_EQ(lines->entries[2].severity, Severity::Red) << "76 is 3 mil";
    EXPECT_EQ(limitOf(*lines, lines->entries[2]), 3.0);
    EXPECT_EQ(limitOf(*lines, lines->entries[3]), 4.0);
    EXPECT_EQ(limitOf(*lines, far), std::nullopt);
    EXPECT_FALSE(report.find("SignalLayerRanges", 63)->entries[0].position.has_value());
    EXPECT_EQ(report.find("DrillRanges", 2)->entries[0].measured, 200_um);

    report.setLevelUnit(Unit::Millimetre);
    EXPECT_EQ(lines->counts, (SeverityCounts{4, 0, 0, 0}));
    EXPECT_EQ(report.find("UnifiedItems", 10)->counts, (SeverityCounts{0, 0, 0, 1})) << "larger is worse";
    report.setLevels("SignalLayerRanges", {});
    EXPECT_FALSE(lines->levels.has_value());
}

TEST_F(ReportTest, JsonHoldsEverything)
{
    QJsonParseError error;
    QJsonObject const top = QJsonDocument::fromJson(reportText(report, ReportFormat::Json), &error).object();
    ASSERT_EQ(error.error, QJsonParseError::NoError) << error.errorString().toStdString();
    QJsonArray const categories = top.value("categories").toArray();
    ASSERT_EQ(categories.size(), 5);
    QJsonObject lines = categories[2].toObject();
    QJsonArray const entries = lines.take("entries").toArray();
    ASSERT_EQ(entries.size(), 4);
    QJsonObject head = top;
    head.remove("categories");
    for (auto const & [object, expected] :
         {std::pair(head, R"({"format": "analysis-report", "version": 2, "job": "job\n\"1\"", "step": "pcb",
              "levelUnit": "mil", "counts": {"none": 5, "green": 0, "yellow": 1, "red": 1},
              "notChecked": [{"table": "SignalLayerRanges", "number": 3, "name": "Circuit to circuit",
                              "reason": "-needs nets"}]})"),
          {lines, R"({"table": "SignalLayerRanges", "number": 46, "name": "Lines",
              "levels": {"red": 3, "yellow": 4, "green": 5},
              "counts": {"none": 2, "green": 0, "yellow": 1, "red": 1}})"},
          {entries[0].toObject(), R"({
              "id": "SignalLayerRanges/46/bot/2147483647,1~2147483647,0/%2B5V~VCC%20%22%C3%A9%22",
              "layer": "bot", "level": 3, "um": 254, "mil": 10, "limit": null, "limitUnit": null,
              "severity": "none", "x_um": 2147483647, "y_um": 0.5,
              "places": [{"x_um": 2147483647, "y_um": 0}, {"x_um": 2147483647, "y_um": 1}],
              "nets": ["VCC \"é\"", "+5V"], "waived": false})"},
          {entries[2].toObject(), R"({"id": "SignalLayerRanges/46/top/0,10~4,20/-", "layer": "top",
              "level": 0, "um": 76, "mil": 2.9921259842519685, "limit": 3, "limitUnit": "mil",
              "severity": "red", "x_um": 2, "y_um": 15,
              "places": [{"x_um": 0, "y_um": 10}, {"x_um": 4, "y_um": 20}], "nets": [null, null],
              "waived": false})"}}) {
        EXPECT_EQ(object, QJsonDocument::fromJson(expected).object()) << expected;
    }
    EXPECT_EQ(entries[1].toObject()["um"], QJsonValue::Null);
    EXPECT_EQ(categories[4].toObject()["entries"].toArray()[0].toObject()["layer"], "=cmd|'/c'!\"A1\", é");
    EXPECT_EQ(categories[0].toObject()["levels"], QJsonValue::Null);
    AnalysisReport empty;
    empty.setJobStep("\xff\x01", "");
    EXPECT_EQ(QJsonDocument::fromJson(reportText(empty, ReportFormat::Json))["job"].toString().toStdString(),
              "\xEF\xBF\xBD\x01");
}

TEST_F(ReportTest, JsonFitsItsSchema)
{
    ASSERT_TRUE(writeReport(AnalysisReport(), ReportFormat::Json, "empty.json"));
    report.setDate("2026-11-22T10:00:00Z");
    report.setLevelUnit(Unit::Millimetre);
    report.setLevels("DrillRanges", {{"Via Summary", nan, 1, 2}});
    report.setLevels("SignalLayerRanges", {{"Lines", 76, 77, 77}});
    ASSERT_TRUE(writeReport(report, ReportFormat::Json, "report.json"));
    expectReportsFitSchema({"empty.json", "report.json"});
}

TEST_F(ReportTest, ADateIsOneOrNone)
{
    auto const written = [&] {
        return QJsonDocument::fromJson(reportText(report, ReportFormat::Json))["date"];
    };
    EXPECT_TRUE(written().isUndefined());
    for (char const * date :
         {"2026-11-22", "2026-11-22T10:00:00", "2026-11-22T10:00:00Z", "2024-02-29T23:59:59+08:00"}) {
        EXPECT_TRUE(report.setDate(date)) << date;
        EXPECT_EQ(written(), date);
    }
    for (char const * date : {"2026-02-29", "22.11.2026", "2026-11-22 10:00:00", "2026-11-22\n",
                              " 2026-11-22", "2026-11-22T25:00:00Z", "٢٠٢٦-11-22", "now"}) {
        EXPECT_FALSE(report.setDate(date)) << date;
        EXPECT_EQ(report.date(), "2024-02-29T23:59:59+08:00");
    }
    EXPECT_TRUE(report.setDate(""));
    EXPECT_TRUE(written().isUndefined());
}

TEST_F(ReportTest, CsvHasEqualLines)
{
    report.setDate("2026-11-22");
    QList<QByteArray> lines = reportText(report, ReportFormat::Csv).split('\n');
    QByteArray const head =
        "\xEF\xBB\xBFrecord,table,number,category,layer,level,value_um,value_mil,limit_mil,"
        "severity,x_um,y_um,count,text,id,net_1,net_2,x1_um,y1_um,x2_um,y2_um,waived\r";
    EXPECT_EQ(lines.takeFirst(), head);
    // The job's name contains a line feed, so it takes two lines.
    EXPECT_EQ(lines.takeFirst(), "job,,,,,,,,,,,,,\"job");
    EXPECT_EQ(lines.takeFirst(), "\"\"1\"\"\",,,,,,,,\r");
    EXPECT_EQ(lines.takeFirst(), "step,,,,,,,,,,,,,\"pcb\",,,,,,,,\r");
    EXPECT_EQ(lines.takeFirst(), "date,,,,,,,,,,,,,\"2026-11-22\",,,,,,,,\r");
    EXPECT_EQ(lines.takeFirst(), "count,,,,,,,,,none,,,5,,,,,,,,,\r");
    for (char const * line :
         {"measurement,\"SignalLayerRanges\",46,\"Lines\",\"bot\",3,254,10,,none,2147483647,0.5,,,"
          "\"SignalLayerRanges/46/bot/2147483647,1~2147483647,0/%2B5V~VCC%20%22%C3%A9%22\","
          "\"VCC \"\"é\"\"\",\"'+5V\",2147483647,0,2147483647,1,0\r",
          "measurement,\"SignalLayerRanges\",46,\"Lines\",\"bot\",3,,,,none,8,9,,,"
          "\"SignalLayerRanges/46/bot/8,9/-\",,,8,9,,,0\r",
          "measurement,\"UnifiedItems\",10,\"Slots\",\"'=cmd|'/c'!\"\"A1\"\", é\",3,50,1.968503937007874,,"
          "none,-5,6,,,\"UnifiedItems/10/%3Dcmd%7C%27%2Fc%27%21%22A1%22%2C%20%C3%A9/-5,6/-\",,,-5,6,,,0\r",
          "not_checked,\"SignalLayerRanges\",3,\"Circuit to circuit\",,,,,,,,,,\"'-needs nets\",,,,,,,,\r"}) {
        EXPECT_TRUE(lines.contains(line)) << line;
    }
    EXPECT_EQ(lines.size(), 4 - 1 + 7 + 1 + 1) << "counts, measurements, one not checked, the end";
}

TEST_F(ReportTest, NoTextOfACsvIsAFormula)
{
    struct Row
    {
        char const * text;
        char const * written;
    };
    for (Row const & row : {Row{"=1", "'=1"},
                            {"+1", "'+1"},
                            {"-1", "'-1"},
                            {"@A", "'@A"},
                            {"\tA", "'\tA"},
                            {"\rA", "'\rA"},
                            {"\nA", "'\nA"},
                            {"＝1", "'＝1"},
                            {"＋1", "'＋1"},
                            {"－1", "'－1"},
                            {"＠A", "'＠A"},
                            {" =1", "' =1"},
                            {"\u00a0\u3000=1", "'\u00a0\u3000=1"},
                            {"\u200b\ufeff=1", "'\u200b\ufeff=1"},
                            {"\x01=1", "'\x01=1"},
                            {"\"=1\"", "'\"\"=1\"\""},
                            {"A;=1", "A;'=1"},
                            {"A; \"=1;-2", "A;' \"\"=1;'-2"},
                            {"A\t=1", "A\t'=1"},
                            {"A\n@1", "A\n'@1"},
                            {";=1", ";'=1"},
                            {"\t=1", "'\t'=1"},
                            {"==1", "'==1"},
                            {"1=1", "1=1"},
                            {"A-B", "A-B"},
                            {"A, -B", "A, -B"},
                            {"'=1", "'=1"},
                            {"：", "："},
                            {"", ""}}) {
        // Wherever the report has a text.
        AnalysisReport each;
        each.setJobStep(row.text, row.text);
        ReportEntry entry;
        entry.layer = row.text;
        entry.nets = {row.text, row.text};
        each.addEntries("SignalLayerRanges", 46, {entry});
        each.addNotChecked({row.text, 1, row.text, row.text});
        each.addNotChecked({"DrillRanges", 1, "x", row.text});
        EXPECT_EQ(reportText(each, ReportFormat::Csv).count('"' + QByteArray(row.written) + '"'),
                  *row.text == 0 ? 6 : 9)
            << row.text;
    }
}

TEST_F(ReportTest, AFileIsReplacedWholeOrAReasonGiven)
{
    writeFile("report.csv", "old");
    EXPECT_TRUE(writeReport(report, ReportFormat::Csv, "report.csv").ok);
    EXPECT_EQ(readFile("report.csv"), reportText(report, ReportFormat::Csv));
    Result const refused = writeReport(report, ReportFormat::Json, "none/report.json");
    EXPECT_FALSE(refused.ok);
    EXPECT_EQ(refused.reason, "The file \"none/report.json\" cannot be written.");
    EXPECT_EQ(log.take(), Lines{});
}

} // namespace
