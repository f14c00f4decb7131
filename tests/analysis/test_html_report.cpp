#include "harness/UiapiTest.h"

#include "analysis/HtmlReport.h"
#include "analysis/ReportComparison.h"

#include <QCryptographicHash>
#include <QMap>
#include <QStringList>
#include <QXmlStreamReader>

#include <optional>
#include <string>
#include <vector>

using namespace KVCAM::UIAPI;
using namespace KVCAM::UIAPI::Ext;
using namespace KVCAM::Testing;

namespace {

constexpr char const * signal = "SignalLayerRanges";

// A document read strictly: what is not well-formed is an error.
struct Document
{
    explicit Document(QByteArray const & html)
    {
        QXmlStreamReader reader(html);
        QStringList open;
        while (!reader.atEnd()) {
            reader.readNext();
            if (reader.isStartElement()) {
                start(reader);
                open.append(reader.name().toString());
            } else if (reader.isEndElement()) {
                open.removeLast();
            } else if (reader.isCharacters() && !open.isEmpty()) {
                texts[open.last()] += reader.text();
                if (!rows.isEmpty() && open.contains("tbody")) {
                    rows.last() +=
                        reader.text().trimmed() + QString(reader.text().trimmed().isEmpty() ? "" : " ");
                }
            }
        }
        error = reader.errorString();
    }

    void start(QXmlStreamReader const & reader)
    {
        ++elements[reader.name().toString()];
        if (reader.name() == "tr") {
            rows.append(QString());
        }
        for (QXmlStreamAttribute const & each : reader.attributes()) {
            attributes[each.name().toString()].append(each.value().toString());
        }
    }

    // The rows that have all these texts.
    int count(QStringList const & parts) const
    {
        int number = 0;
        for (QString const & row : rows) {
            bool hasAll = true;
            for (QString const & part : parts) {
                hasAll = hasAll && row.contains(part);
            }
            number += hasAll ? 1 : 0;
        }
        return number;
    }

    QString error;
    QMap<QString, int> elements;
    QMap<QString, QString> texts;
    QMap<QString, QStringList> attributes;
    QStringList rows; ///< the texts of each, its cells separated by blanks
};

ReportEntry entryOf(std::string const & layer, std::optional<double> micrometres, double x = 0, double y = 0)
{
    ReportEntry entry;
    entry.layer = layer;
    if (micrometres) {
        entry.measured = Length::fromMicrometres(*micrometres);
    }
    entry.position = KVCAM::API::point{x, y};
    entry.places = {*entry.position};
    return entry;
}

std::vector<ReportEntry> manyEntries(int count, double first)
{
    std::vector<ReportEntry> entries;
    for (int i = 0; i < count; ++i) {
        entries.push_back(entryOf("top", first + i, 10.0 * i));
    }
    return entries;
}

// Levels of 3, 4, 5 mil for tracks (76.2, 101.6, 127 micrometres).
AnalysisReport reportOf(std::vector<ReportEntry> lines)
{
    AnalysisReport report;
    report.setJobStep("board", "pcb");
    report.setDate("2026-11-22");
    report.setLevels(signal, {{"Lines", 3, 4, 5}, {"Pads", 3, 4, 5}});
    report.addEntries(signal, 46, std::move(lines));
    return report;
}

LayerPicture pictureOf(std::string const & layer, std::string const & mimeType = "image/png")
{
    return {layer, mimeType, "bytes", 0, 0, 2000, 1000};
}

AnalysisReport reportWith(std::string const & text)
{
    ReportEntry entry = entryOf(text, 70);
    entry.nets = {text, "GND"};
    AnalysisReport report = reportOf({entry});
    report.setJobStep(text, text);
    report.setDate(text);
    report.addNotChecked({signal, 3, text, text});
    return report;
}

HtmlReportOptions optionsWith(std::string const & text)
{
    HtmlReportOptions options;
    options.pictures = {pictureOf(text)};
    options.copperLayers = {text};
    options.dataFile = QString::fromStdString(text);
    options.checkNames = [text](std::string const &) { return QString::fromStdString(text); };
    options.listedPerCheck = 0; // so that the file is named
    return options;
}

TEST(HtmlReport, TextsOfTheBoardStayTexts)
{
    Document const harmless(htmlReport(reportWith("top"), optionsWith("top")));
    ASSERT_EQ(harmless.error, "");
    struct Row
    {
        std::string text;
        QString shown;
    };
    for (Row const & row :
         {Row{"</script><script>alert(1)</script>", "</script><script>alert(1)</script>"},
          Row{"</title></style><!--", "</title></style><!--"},
          Row{"\" onload=\"x' style='a", "\" onload=\"x' style='a"}, Row{"&lt;&#60;", "&lt;&#60;"},
          Row{"%1%2", "%1%2"}, Row{std::string("a\n\0\x1b", 4), "a[U+000A][U+0000][U+001B]"},
          Row{"\u202Egnp.exe\u2066", "[U+202E]gnp.exe[U+2066]"},
          Row{"\u200B\uFEFF\u2028\u0085", "[U+200B][U+FEFF][U+2028][U+0085]"}, Row{"\uFFFF", "[U+FFFF]"},
          Row{"\xff", QString(QChar(0xfffd))}, Row{"顶层😀", "顶层😀"},
          Row{std::string(300, 'x'), QString(200, 'x') + QChar(0x2026)}}) {
        Document const document(htmlReport(reportWith(row.text), optionsWith(row.text)));
        EXPECT_EQ(document.error, "") << row.text;
        EXPECT_EQ(document.elements, harmless.elements) << row.text;
        EXPECT_EQ(document.attributes.keys(), harmless.attributes.keys()) << row.text;
        EXPECT_TRUE(document.texts["bdi"].contains(row.shown)) << row.text;
        EXPECT_TRUE(document.texts["title"].startsWith(row.shown)) << row.text;
    }
    Document const listed(htmlReport(reportWith("<b>"), {}));
    EXPECT_EQ(listed.count({"70", "<b>", "GND"}), 1);
}

TEST(HtmlReport, ThePolicyAllowsItsOwnContentsOnly)
{
    HtmlReportOptions options;
    options.pictures = {pictureOf("top")};
    Document const document(htmlReport(reportOf({entryOf("top", 70)}), options));
    auto const hash = [](QString const & text) {
        return "'sha256-" + QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Sha256).toBase64() +
               "'";
    };
    QString const policy = document.attributes["content"].value(0);
    EXPECT_EQ(policy, "default-src 'none'; img-src data:; style-src " + hash(document.texts["style"]) +
                          "; script-src " + hash(document.texts["script"]) +
                          "; base-uri 'none'; form-action 'none'");
    EXPECT_EQ(document.elements["script"], 1);
    EXPECT_EQ(document.elements["style"], 1);
    EXPECT_FALSE(document.attributes.contains("style") || document.attributes.contains("src"));
    for (QString const & link : document.attributes["href"]) {
        EXPECT_TRUE(link.startsWith('#') ? document.attributes["id"].contains(link.mid(1))
                                         : link.startsWith("data:image/png;base64,"))
            << link.toStdString();
    }
    EXPECT_FALSE(document.texts["style"].contains("url(") || document.texts["style"].contains("@import"));
}

TEST(HtmlReport, TheWorstAreListedAndTheOthersCounted)
{
    struct Row
    {
        std::size_t perCheck, inAll, passing;
        int lines, pads; ///< listed
    };
    AnalysisReport report = reportOf(manyEntries(100, 50)); // 78 with a severity, up to 127 micrometres
    report.addEntries(signal, 45, manyEntries(3, 60));
    for (Row const & row : {Row{500, 2000, 0, 78, 3}, Row{500, 2000, 10, 88, 3}, Row{80, 2000, 10, 80, 3},
                            Row{20, 2000, 10, 20, 3}, Row{500, 30, 10, 27, 3}, Row{500, 5, 10, 2, 2},
                            Row{500, 1, 0, 0, 0}, Row{0, 2000, 10, 0, 0}}) {
        HtmlReportOptions options;
        options.listedPerCheck = row.perCheck;
        options.listedInAll = row.inAll;
        options.passingPerCheck = row.passing;
        options.dataFile = "all.json";
        Document const document(htmlReport(report, options));
        QStringList const & ids = document.attributes["id"];
        EXPECT_EQ(ids.filter(QRegExp("v\\d+")).size(), row.lines + row.pads)
            << row.perCheck << ' ' << row.inAll;
        EXPECT_TRUE(document.texts["p"].contains(
            QString("Measurements: 103, of which %1 are listed.").arg(row.lines + row.pads)));
        EXPECT_EQ(document.texts["p"].contains(QString("not listed: %1.").arg(100 - row.lines)),
                  row.lines != 0)
            << row.perCheck << ' ' << row.inAll;
    }
}

TEST(HtmlReport, RowsAreInOrderOfSeverityAndValue)
{
    AnalysisReport report = reportOf({entryOf("a", 127), entryOf("b", 76), entryOf("c", std::nullopt),
                                      entryOf("d", 300), entryOf("e", 70), entryOf("f", 100)});
    auto const order = [](Document const & document) { // of the layers, which stand before the places
        QString all;
        for (QString const & row : document.rows) {
            all += row.contains(" 0.0000,") ? row.section(" 0.0000,", 0, 0).right(1) : QString();
        }
        return all;
    };
    Document const document(htmlReport(report, {}));
    EXPECT_EQ(document.count({"✖ R red 2.756 70 3 76.2 e 0.0000, 0.0000 in 0.000, 0.000 mm"}), 1);
    EXPECT_EQ(document.count({"– none – – – – c"}), 1);
    EXPECT_EQ(order(document), "ebfadc");
    report.setLevels(signal, {{"Lines", 5, 4, 3}}); // larger is worse
    EXPECT_EQ(order(Document(htmlReport(report, {}))), "dafbec");
}

TEST(HtmlReport, LengthsAreInBothUnitsAndTextsInTheLanguage)
{
    HtmlReportOptions options;
    options.firstUnit = Unit::Millimetre;
    options.language = ReportLanguage::SimplifiedChinese;
    options.checkNames = [](std::string const & name) { return QString::fromStdString("<" + name + ">"); };
    AnalysisReport report = reportOf({entryOf("top", 70, 25400, 12700)});
    report.addNotChecked({signal, 3, "", "why"});
    Document const document(htmlReport(report, options));
    EXPECT_EQ(document.count({"✖ R 红 70 2.756 76.2 3 top 25.400, 12.700 mm 1.0000, 0.5000 in"}), 1);
    EXPECT_EQ(document.count({"<Lines>", "76.2 µm (3 mil)"}), 1);
    EXPECT_EQ(document.attributes["lang"], QStringList("zh-Hans"));
    for (char const * element : {"h1", "h2", "dt", "th", "title"}) {
        QString text = document.texts[element];
        EXPECT_FALSE(text.remove("board / pcb").remove("mil").contains(QRegExp("[a-z]{3}")))
            << text.toStdString();
    }
    Document const english(htmlReport(report, {}));
    EXPECT_EQ(english.count({"Lines", "3 mil (76.2 µm)"}), 1);
    EXPECT_TRUE(english.texts["h2"].contains("Not checked"));
}

TEST(HtmlReport, PicturesHaveTheMarksOfTheirLayer)
{
    HtmlReportOptions options;
    options.pictures = {pictureOf("top"),
                        pictureOf("bot"),
                        pictureOf("page", "text/html"),
                        {"flat", "image/png", "bytes", 0, 0, 2000, 0}};
    Document const document(htmlReport(
        reportOf({entryOf("top", 120, 500, 250), entryOf("top", 70, 500, 251), entryOf("top", 80, 1500, 1000),
                  entryOf("top", 70, 2001, 0), entryOf("top", 200, 100, 100)}),
        options));
    EXPECT_EQ(document.attributes["viewBox"], (QStringList{"0 0 1000.0 500.0", "0 0 1000.0 500.0"}));
    EXPECT_EQ(document.attributes["cx"], (QStringList{"750.0", "250.0"})) << "the worst is painted last";
    EXPECT_EQ(document.attributes["cy"], (QStringList{"0.0", "374.5"}));
    EXPECT_TRUE(document.texts["title"].contains("Lines: 2.756 mil, 70 µm; 1 more here"));
    EXPECT_TRUE(document.texts["span"].contains("Violations marked: 3"));
    EXPECT_FALSE(document.texts["bdi"].contains("flat") || document.texts["bdi"].contains("page"));
}

TEST(HtmlReport, TheChartHasTheNarrowestTrackOfEachLayer)
{
    HtmlReportOptions options;
    options.copperLayers = {"top", "inner"};
    Document const document(
        htmlReport(reportOf({entryOf("bot", 254), entryOf("top", 127), entryOf("top", 200)}), options));
    EXPECT_EQ(document.count({"top 5.000 mil (127 µm) ● G green"}), 1);
    EXPECT_EQ(document.count({"inner no tracks"}), 1);
    EXPECT_EQ(document.count({"bot 10.000 mil (254 µm)"}), 1);
    // Of 10.5 mil.
    EXPECT_TRUE(document.attributes["width"].contains("47.62%") &&
                document.attributes["width"].contains("95.24%"));
    EXPECT_EQ(document.attributes["x1"].count("28.57%"), 3) << "the red level";
}

TEST(HtmlReport, AComparisonIsShown)
{
    ReportComparison comparison;
    comparison.before.job = "old";
    comparison.changes.resize(4);
    comparison.changes[0] = {Change::New,
                             signal,
                             46,
                             "Lines",
                             "top",
                             "id/1",
                             {},
                             70_um,
                             Severity::None,
                             Severity::Red,
                             {{0, 0}, {25400, 0}},
                             {"A", "B"},
                             false};
    comparison.changes[1] = {Change::Fixed,    signal,         46, "Lines", "bot", "id/2", 90_um, {},
                             Severity::Yellow, Severity::None, {}, {},      false};
    comparison.changes[2] = comparison.changes[0];
    comparison.changes[2].waived = true;
    comparison.counts = {1, 1, 0, 0, 7, 0};
    comparison.waived = {1, 0, 0, 0, 0, 0};
    HtmlReportOptions options;
    options.comparison = &comparison;
    Document const document(htmlReport(reportOf({}), options));
    EXPECT_EQ(document.count({"New 1 1"}), 1);
    EXPECT_EQ(document.count({"Unchanged 7 0"}), 1);
    EXPECT_EQ(document.count({"Lines – – – ✖ R red 2.756 70 top 0.5000, 0.0000 in", "A B", "id/1"}), 1);
    EXPECT_EQ(document.count({"Lines ▲ Y yellow 3.543 90 – – – bot –", "id/2"}), 1);
    EXPECT_TRUE(document.texts["h3"].contains("New (1)"));
    EXPECT_FALSE(Document(htmlReport(reportOf({}), {})).texts["h2"].contains("Changes"));
}

TEST(HtmlReport, WaivedViolationsStandApart)
{
    AnalysisReport report = reportOf({entryOf("top", 70), entryOf("bot", 71)});
    report.applyWaivers({{"SignalLayerRanges/46/top/0,0/-", "as ordered", "Kim", "2026-01-02", "2027-01-01"},
                         {"SignalLayerRanges/46/top/900000,0/-", "moved", "Lee", "2026-01-03", ""},
                         {"SignalLayerRanges/46/bot/0,0/-", "old", "Lee", "2026-01-04", "2026-01-05"}},
                        "2026-11-22");
    Document const document(htmlReport(report, {}));
    EXPECT_EQ(document.count({"Lines ✖ R red 2.756 70", "top", "as ordered Kim 2026-01-02 until 2027-01-01"}),
              1);
    EXPECT_EQ(document.count({"matches no violation SignalLayerRanges/46/top/900000,0/- moved Lee"}), 1);
    EXPECT_EQ(document.count({"expired SignalLayerRanges/46/bot/0,0/- old Lee 2026-01-04 2026-01-05"}), 1);
    EXPECT_EQ(document.count({"1 ✖ R red 2.795 71", "bot"}), 1) << "the other is listed among the violations";
    EXPECT_EQ(document.count({"Lines 1 0 0 0 1 3 mil"}), 1) << "and counted without the waived one";
    EXPECT_EQ(document.count({"2.756 70"}), 1);
}

TEST(HtmlReport, AnEmptyReportIsADocument)
{
    Document const document(reportText({}, ReportFormat::Html));
    EXPECT_EQ(document.error, "");
    EXPECT_TRUE(document.texts["p"].contains("No check was run."));
}

} // namespace
