#include "ReportMaking.h"
#include "config/ConfigTest.h"

#include "analysis/ReportComparison.h"
#include "analysis/ReportReader.h"
#include "analysis/Waivers.h"
#include "support/JsonReader.h"

using namespace KVCAM::UIAPI;
using namespace KVCAM::UIAPI::Ext;
using namespace KVCAM::Testing;

namespace {

Waiver waiver(std::string const & place, std::string const & expires = {})
{
    return {"SignalLayerRanges/46/top/" + place + "/A~B", "seen", "me", "2026-11-01", expires};
}

// 'u', 'x' or '-' for each waiver.
std::string statesOf(AnalysisReport const & report)
{
    std::string states;
    for (Waiver const & each : report.waivers()) {
        states += each.state == WaiverState::Used ? 'u' : each.state == WaiverState::Expired ? 'x' : '-';
    }
    return states;
}

TEST(Waivers, EachAcceptsOneViolationThatMayHaveMoved)
{
    struct Row
    {
        char const * what;
        std::vector<Waiver> waivers;
        char const * states;
        std::size_t red;
        std::size_t waived;
    };
    for (Row const & row : {Row{"none", {}, "", 2, 0}, Row{"its place", {waiver("0,0")}, "u", 1, 1},
                            Row{"moved a little", {waiver("30,40")}, "u", 1, 1},
                            Row{"moved too far", {waiver("31,40")}, "-", 2, 0},
                            Row{"no violation", {waiver("5000,0")}, "-", 2, 0},
                            Row{"until today", {waiver("0,0", "2026-11-22")}, "u", 1, 1},
                            Row{"until yesterday", {waiver("0,0", "2026-11-21")}, "x", 2, 0},
                            Row{"renewed", {waiver("0,0", "2026-11-21"), waiver("1,0")}, "xu", 1, 1},
                            Row{"twice", {waiver("0,0"), waiver("0,0")}, "u-", 1, 1},
                            Row{"both", {waiver("990,0"), waiver("0,0")}, "uu", 0, 2},
                            Row{"not an id", {{"top", "seen", "me", "2026-11-01", ""}}, "-", 2, 0}}) {
        AnalysisReport report = reportOf({{46, 90, {{0, 0}}}, {46, 95, {{1000, 0}}}, {46, 200, {{5000, 0}}}});
        report.applyWaivers(row.waivers, "2026-11-22");
        EXPECT_EQ(statesOf(report), row.states) << row.what;
        EXPECT_EQ(report.counts(), (SeverityCounts{1, 0, 0, row.red})) << row.what;
        EXPECT_EQ(report.waivedCounts(), (SeverityCounts{0, 0, 0, row.waived})) << row.what;
        std::vector<ReportEntry> const & entries = report.find(signalTable, 46)->entries;
        EXPECT_EQ(entries[0].waiver.has_value(), row.waived > 0) << row.what;
    }
}

TEST(Waivers, AreMatchedAgainWhenLevelsChange)
{
    AnalysisReport report = reportOf({{46, 90, {{0, 0}}}, {3, 90, {{0, 0}, {1, 1}}}});
    Waiver spacing = waiver("0,0");
    spacing.id = "SignalLayerRanges/3/top/0,0~1,1/A~B";
    report.applyWaivers({waiver("0,0"), spacing}, "2026-11-22");
    EXPECT_EQ(statesOf(report), "uu");
    report.setLevels(signalTable, {{"Lines", 10, 20, 30}, {"Circuit to circuit", 80, 90, 99}});
    EXPECT_EQ(statesOf(report), "-u");
    EXPECT_EQ(report.counts(), (SeverityCounts{1, 0, 0, 0}));
    EXPECT_EQ(report.waivedCounts(), (SeverityCounts{0, 0, 1, 0}));
    report.setLevels("UnifiedItems", {});
    EXPECT_EQ(statesOf(report), "-u");
    report.setLevelUnit(Unit::Inch);
    EXPECT_EQ(statesOf(report), "uu");
    // Entries that were waived elsewhere are not waived here.
    AnalysisReport other = reportOf({});
    other.addEntries(signalTable, 46, report.find(signalTable, 46)->entries);
    EXPECT_FALSE(other.find(signalTable, 46)->entries[0].waiver);
}

using WaiverFile = ConfigTest;

TEST_F(WaiverFile, WhatIsWrittenIsRead)
{
    std::vector<Waiver> const waivers{waiver("0,0"),
                                      {"t/3/-/-/-#2", "\"é\"\n\t\x01", "\\", "2024-02-29", "2026-12-31"}};
    ASSERT_TRUE(writeWaivers(waivers, "w.json"));
    std::vector<Waiver> read;
    ASSERT_TRUE(readWaivers("w.json", read).ok) << readWaivers("w.json", read).reason.toStdString();
    EXPECT_EQ(waiversText(read), waiversText(waivers));
    EXPECT_EQ(read.at(1).reason, waivers[1].reason);
    EXPECT_EQ(waiversText(read).count('\n'), 4) << "a line for each";
    Waiver silent = waiver("0,0");
    silent.reason = " ";
    EXPECT_EQ(writeWaivers({waivers[0], silent}, "w.json").reason, "A waiver needs a reason and an author.");
    EXPECT_EQ(readFile("w.json"), waiversText(waivers)) << "unchanged";
    EXPECT_EQ(readWaivers("none.json", read).reason,
              "The waivers \"none.json\" cannot be read: There is no such file.");
    EXPECT_EQ(read.size(), 2U);
}

TEST_F(WaiverFile, AFaultIsToldWithItsPlace)
{
    QByteArray const good = waiversText({waiver("0,0"), waiver("1,0", "2026-12-31")});
    struct Row
    {
        char const * from;
        char const * to;
        char const * reason;
    };
    for (Row const & row :
         {Row{"/A~B\", \"reason\": \"seen\"", "/A~B\"",
              "line 2, byte 135, waivers[0]: The member \"reason\" is missing."},
          Row{"seen", " ", "line 2, byte 109, waivers[0].reason: A waiver needs a reason and an author."},
          Row{"\"me\"", "\"\"",
              "line 2, byte 127, waivers[0].author: A waiver needs a reason and an author."},
          Row{"\"me\"", "3", "line 2, byte 127, waivers[0].author: A text is expected."},
          Row{"-11-01", "-02-30", "line 2, byte 141, waivers[0].date: A day is written as 2026-11-22."},
          Row{"2026-12-31", "2026/12/31",
              "line 3, byte 266, waivers[1].expires: A day is written as 2026-11-22."},
          Row{"expires", "expire", "line 3, byte 263, waivers[1].expire: The member is unknown."},
          Row{"author", "reason", "line 2, byte 125, waivers[0].reason: The member is there twice."},
          Row{"0,0", "0.5,0", "line 2, byte 63, waivers[0].id: This is not the id of a violation."},
          Row{"report-", "", "line 1, byte 11, format: \"waivers\" is unknown here."},
          Row{": 1", ": 2", "line 1, byte 40, version: The version is not known."},
          Row{"]}", "]} x", "line 4, byte 283: Something follows the end."}}) {
        std::vector<Waiver> read{waiver("7,7")};
        QByteArray bad = good;
        bad.replace(bad.indexOf(row.from), int(qstrlen(row.from)), row.to);
        EXPECT_EQ(parseWaivers(bad, read).reason.toStdString(), row.reason) << bad.toStdString();
        EXPECT_EQ(read.size(), 1U) << "unchanged";
    }
}

TEST(JsonReader, ReadsJsonAndNothingElse)
{
    for (char const * text :
         {"0", "-0.5e+3", "[1,[2,{}]]", R"({"a":"\ud83d\ude00\/\n","":null})", " true ", "\"\xC3\xA9\""}) {
        JsonReader json(text);
        EXPECT_TRUE(json.skip() && json.end()) << text << json.error().toStdString();
    }
    for (char const * text :
         {"",         "01",        "1.",          ".5",          "+1",           "1e",      "-",
          "NaN",      "[1,]",      "[1 2]",       "{\"a\"}",     "{\"a\":1,}",   "{1:2}",   "{,}",
          "\"\\x\"",  "\"\\u12\"", R"("\ud83d")", R"("\ude00")", R"("\ud83dA")", "\"\n\"",  "\"\xC3\"",
          "\"\xFF\"", "\"a",       "tru",         "[",           "[1",           "{\"a\":", "nullx"}) {
        JsonReader json(text);
        EXPECT_FALSE(json.skip() && json.end()) << text;
        EXPECT_FALSE(json.error().isEmpty()) << text;
        EXPECT_FALSE(json.skip() || json.end() || json.takeNull()) << text << " after a failure";
    }
    std::string out;
    EXPECT_TRUE(JsonReader(QByteArray(R"("\ud83d\ude00\"\u0000b\/")")).text(out));
    EXPECT_EQ(out, std::string("\xF0\x9F\x98\x80\"\0b/", 8));
    JsonReader deep(QByteArray(70, '['));
    EXPECT_FALSE(deep.skip());
    EXPECT_TRUE(deep.error().endsWith(": The file is nested too deeply."));
    int number = 0;
    for (auto const & [text, expected] : {std::pair("-2147483648", true), std::pair("2147483648", false),
                                          std::pair("1.5", false), std::pair("1e999", false)}) {
        EXPECT_EQ(JsonReader(QByteArray(text)).number(number), expected) << text;
    }
}

class ReportReading : public ConfigTest
{
protected:
    void SetUp() override
    {
        ConfigTest::SetUp();
        report = reportOf({{46, 90, {{0, 0}}},
                           {46, 95, {{0.25, -1e6}}, {"\"é", ""}, "layer \\1"},
                           {3, 80, {{1, 2}, {3, 4}}},
                           {45, 0, {}, {}}});
        report.setJobStep("job", "pcb");
        report.setDate("2026-11-22");
        report.addEntries("DrillRanges", 2, {ReportEntry{}});
        report.addNotChecked({signalTable, 4, "", "why"});
        report.applyWaivers({waiver("0,9"), waiver("9,9", "2020-01-01")}, "2026-11-22", 10_um);
    }

    AnalysisReport report;
};

TEST_F(ReportReading, WhatIsWrittenIsReadBack)
{
    ASSERT_TRUE(writeReport(report, ReportFormat::Json, "r.json"));
    AnalysisReport read;
    Result const result = readReport("r.json", read);
    ASSERT_TRUE(result) << result.reason.toStdString();
    EXPECT_EQ(reportText(read, ReportFormat::Json), reportText(report, ReportFormat::Json));
    EXPECT_EQ(compareReports(report, read).count(Change::Unchanged), 2U);
    EXPECT_EQ(statesOf(read), "ux");
    EXPECT_TRUE(read.find("DrillRanges", 2)) << "and its category without entries";
}

TEST_F(ReportReading, ADamagedReportIsRefused)
{
    QByteArray const good = reportText(report, ReportFormat::Json);
    struct Row
    {
        char const * from;
        char const * to;
        char const * reason; ///< its end
    };
    char const * const verdict =
        "A severity or waiver in the category 46 of the table \"SignalLayerRanges\" does not follow from the "
        "levels and waivers.";
    for (Row const & row :
         {Row{"\"version\": 2", "\"version\": 1",
              "version: The report is not of version 2 of the format. Write it again."},
          Row{"analysis-report", "report-waivers", "format: \"report-waivers\" is unknown here."},
          Row{"\"um\": 80", "\"um\": \"80\"", "categories[1].entries[0].um: A number is expected."},
          Row{"\"um\": 80, ", "", "categories[1].entries[0]: The member \"um\" is missing."},
          Row{"\"severity\": \"red\"", "\"severity\": \"rot\"",
              "categories[1].entries[0].severity: \"rot\" is unknown here."},
          Row{"\"um\": 95", "\"um\": 105", verdict}, Row{"\"waived\": true", "\"waived\": false", verdict},
          Row{"\"number\": 46", "\"number\": 3",
              "The category 3 of the table \"SignalLayerRanges\" is unknown or there twice."},
          Row{"\"table\": \"DrillRanges\"", "\"table\": \"Drill\"",
              "The category 2 of the table \"Drill\" is unknown or there twice."},
          Row{"[\"A\", \"B\"]", "[\"A\"]", "categories[1].entries[0].nets: A measurement has two nets."},
          Row{"{\"x_um\": 1, \"y_um\": 2}", "{\"x_um\": 1}",
              "categories[1].entries[0].places[0]: The member \"y_um\" is missing."},
          Row{"\"places\": [{", "\"places\": [{\"x_um\": 1, \"y_um\": 1}, {\"x_um\": 1, \"y_um\": 1}, {",
              "categories[1].entries[0].places[2]: A measurement has at most two places."},
          Row{"2026-11-22", "yesterday", "\"yesterday\" is unknown here."},
          Row{"\"levelUnit\": \"um\"", "\"levelUnit\": \"mm\"", "levelUnit: \"mm\" is unknown here."}}) {
        QByteArray bad = good;
        ASSERT_TRUE(bad.contains(row.from)) << row.from;
        bad.replace(bad.indexOf(row.from), int(qstrlen(row.from)), row.to);
        AnalysisReport read = reportOf({});
        EXPECT_EQ(parseReport(bad, read).reason.right(int(qstrlen(row.reason))).toStdString(), row.reason)
            << parseReport(bad, read).reason.toStdString();
        EXPECT_EQ(read.categories().size(), 3U) << "unchanged";
    }
    AnalysisReport read;
    QByteArray many = good;
    QByteArray const one = R"({"table": "SignalLayerRanges", "number": 9, "levels": null, "entries": []}, )";
    many.insert(many.indexOf("[") + 1, one.repeated(2000));
    EXPECT_TRUE(parseReport(many, read).reason.endsWith("]: There are too many categories."));
    for (int length = 0; length < good.size() - 1; length += 7) {
        EXPECT_FALSE(parseReport(good.left(length), read)) << length;
    }
}

} // namespace
