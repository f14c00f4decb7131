#include "CheckEntries.h"
#include "harness/UiapiTest.h"

#include "analysis/AnalysisReport.h"
#include "analysis/ViolationId.h"

#include <QStringList>
#include <QXmlStreamReader>

#include <algorithm>
#include <vector>

using namespace KVCAM::UIAPI;
using namespace KVCAM::UIAPI::Ext;
using namespace KVCAM::Testing;

namespace {

// Each case as "class|name|what became of it", after the suite's name and numbers.
QStringList casesIn(QByteArray const & xml)
{
    QXmlStreamReader reader(xml);
    QStringList lines;
    while (!reader.atEnd()) {
        reader.readNext();
        auto const attribute = [&](char const * name) {
            return reader.attributes().value(QLatin1String(name)).toString();
        };
        if (reader.isStartElement() && reader.name() == "testsuite") {
            lines << attribute("name")
                  << attribute("tests") + ' ' + attribute("failures") + ' ' + attribute("skipped");
        } else if (reader.isStartElement() && reader.name() == "testcase") {
            lines << attribute("classname") + '|' + attribute("name") + '|';
        } else if (reader.isStartElement() && reader.name() != "testsuites") {
            lines.back() += reader.name() + ':' + attribute("type") + ':' + attribute("message");
            lines.back() += reader.readElementText();
        }
    }
    EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString() << '\n' << xml.toStdString();
    return lines;
}

class JUnitReport : public UiapiTest
{
protected:
    void SetUp() override
    {
        UiapiTest::SetUp();
        std::map<std::string, std::map<signal_layers_checks_items, signal_check_result>> signal;
        signal["top"][signalItem(46)].lists[0] = {{1, 3, {0, 0, 10, 0, 90}},
                                                  {1, 3, {5, 0, 9, 0, 80}},
                                                  {1, 2, {7, 0, 7, 0, 70}},
                                                  {1, 9, {9, 0, 9, 0, 900}}};
        signal["bot"][signalItem(46)].lists[0] = {{1, 4, {1, 0, 1, 0, 127}}};
        signal["top"][signalItem(12)];
        std::map<unified_check_items, std::map<std::string, unified_check_result>> rest;
        rest[UNIFIED_SLOTS]["cuts"].groups[3] = {{3, 1, {-5, 6, 0, 0, 0, 0, 2600, 0}},
                                                 {3, 1, {0, 0, 0, 0, 0, 0, 2700, 0}}};
        report.setJobStep("a<&\x01\x1b\">\xEF\xBF\xBF é", "pcb");
        report.setLevels("SignalLayerRanges", {{"Lines", 3, 4, 5}});
        report.setLevels("UnifiedItems", {{"Slots", 100, 40, 30}});
        report.addSignal(signal);
        report.addUnified(rest);
        report.addNotChecked({"SignalLayerRanges", 3, "", "No nets."});
        report.addNotChecked({"SignalLayerRanges", -1, "top\ttext", "Texts \"<1>\"."});
        report.addNotChecked({"SignalLayerRanges", 3, "", "Nor pads."});
    }
    QStringList cases(Severity from) const { return casesIn(reportText(report, ReportFormat::JUnit, from)); }

    AnalysisReport report;
};

TEST_F(JUnitReport, HasACaseForEachCheckAndLayer)
{
    QString const step = QString::fromUtf8("a<&\"> é.pcb.");
    EXPECT_EQ(casesIn(reportText(report, ReportFormat::JUnit)),
              (QStringList{QString::fromUtf8("a<&\"> é/pcb"), "6 2 2", step + "SignalLayerRanges|SMD to SMD|",
                           step + "SignalLayerRanges|Lines, bot|",
                           step + "SignalLayerRanges|Lines, top|failure:red:1 violation(s), the worst red: "
                                  "2.7559055118110236 mil (70 um), limit 3 mil, at 7, 0 um"
                                  "red: 2.7559055118110236 mil (70 um), limit 3 mil, at 7, 0 um\n",
                           step + "UnifiedItems|Slots, cuts|failure:red:2 violation(s), the worst red: "
                                  "106.2992125984252 mil (2700 um), limit 100 mil, at 0, 0 um"
                                  "red: 106.2992125984252 mil (2700 um), limit 100 mil, at 0, 0 um\n"
                                  "red: 102.36220472440945 mil (2600 um), limit 100 mil, at -5, 6 um\n",
                           step + "SignalLayerRanges|Circuit to circuit (not checked)|"
                                  "skipped::No nets. Nor pads.",
                           step + "SignalLayerRanges|top\ttext (not checked)|skipped::Texts \"<1>\"."}));
}

TEST_F(JUnitReport, FailsFromTheSeverityOnUnlessWaived)
{
    struct
    {
        Severity from;
        char const * numbers; ///< of the suite
        char const * top;     ///< how the violations of the tracks on top begin
    } const rows[] = {
        {Severity::None, "6 0 2", ""},
        {Severity::Red, "6 2 2", "failure:red:1 violation(s), the worst red: 2.7559"},
        {Severity::Yellow, "6 2 2", "failure:red:3 violation(s), the worst red: 2.7559"},
        {Severity::Green, "6 3 2", "failure:red:3 violation(s), the worst red: 2.7559"},
    };
    for (auto const & row : rows) {
        QStringList const found = cases(row.from);
        EXPECT_EQ(found[1], row.numbers);
        EXPECT_EQ(found[4].section('|', 2).left(49), QString(row.top).left(49)) << row.numbers;
    }
    ReportCategory const & lines = *report.find("SignalLayerRanges", 46);
    auto const worst =
        std::find_if(lines.entries.begin(), lines.entries.end(),
                     [](ReportEntry const & entry) { return entry.severity == Severity::Red; });
    report.applyWaivers({{violationId(lines, *worst), "agreed", "me", "2026-01-01", "", {}}}, "2026-01-01");
    QStringList const waived = cases(Severity::Yellow);
    EXPECT_TRUE(waived[4].contains("failure:yellow:2 violation(s), the worst yellow: 3.149606"))
        << waived[4].toStdString();
    EXPECT_TRUE(waived[4].endsWith("system-out::1 waived"));
    EXPECT_EQ(cases(Severity::Red)[1], "6 1 2");
}

TEST_F(JUnitReport, ListsTheWorstOfMany)
{
    std::vector<ReportEntry> entries(25);
    for (std::size_t i = 0; i < entries.size(); ++i) {
        entries[i].layer = "in";
        entries[i].measured = Length::fromMicrometres(static_cast<double>(75 - i));
    }
    report.addEntries("SignalLayerRanges", 46, entries);
    QString const many = cases(Severity::Red)[4];
    EXPECT_TRUE(many.contains("25 violation(s), the worst red: 2.0078740157480315 mil (51 um)"))
        << many.toStdString();
    EXPECT_EQ(many.count("\n"), 21);
    EXPECT_TRUE(many.endsWith("and 5 more\n"));
    EXPECT_FALSE(many.contains("(71 um)"));
}

} // namespace
