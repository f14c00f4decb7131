// The output formats of an analysis report. Both are composed as text: a board has a million entries, and a
// document with that many objects would take gigabytes.

#include "analysis/AnalysisReport.h"
#include "support/WholeFile.h"

#include <QLocale>
#include <QObject>

#include <cmath>
#include <initializer_list>
#include <utility>

namespace KVCAM::UIAPI::Ext {
namespace {

constexpr int formatVersion = 1;

QByteArray utf8(std::string const & text)
{
    return QString::fromStdString(text).toUtf8(); // invalid UTF-8 becomes replacement characters
}

// The shortest text that reads back equal; empty if not finite.
QByteArray numberText(std::optional<double> value)
{
    return value && std::isfinite(*value) ? QByteArray::number(*value, 'g', QLocale::FloatingPointShortest)
                                          : QByteArray();
}

std::optional<double> inUnit(std::optional<Length> measured, Unit unit)
{
    return measured ? std::optional<double>(measured->to(unit, LengthScale::Small)) : std::nullopt;
}

// As reports write it; dialogs say "my".
char const * smallUnitName(Unit unit)
{
    return unit == Unit::Inch ? "mil" : "um";
}

// --- JSON ---------------------------------------------------------------------------------------------

QByteArray quoted(std::string const & text)
{
    QByteArray out = "\"";
    QByteArray const bytes = utf8(text);
    for (char const c : bytes) {
        if (c == '"' || c == '\\') {
            out += '\\';
            out += c;
        } else if (static_cast<unsigned char>(c) < 0x20) {
            out += "\\u" + QByteArray::number(static_cast<int>(c), 16).rightJustified(4, '0');
        } else {
            out += c;
        }
    }
    return out + '"';
}

QByteArray jsonNumber(std::optional<double> value)
{
    QByteArray const text = numberText(value);
    return text.isEmpty() ? QByteArray("null") : text;
}

QByteArray jsonCounts(SeverityCounts const & counts)
{
    QByteArray out;
    for (SeverityMark const & mark : severityPalette) {
        out += out.isEmpty() ? "{\"" : ", \"";
        out += mark.name + QByteArray("\": ") +
               QByteArray::number(static_cast<qulonglong>(counts[static_cast<std::size_t>(mark.severity)]));
    }
    return out + '}';
}

// Appends `[`, one line per element and `]`.
template <class Elements, class Append>
void appendJsonArray(QByteArray & out, QByteArray const & indentation, Elements const & elements,
                     Append appendElement)
{
    char const * separator = "\n";
    out += '[';
    for (auto const & element : elements) {
        out += separator + indentation + "  ";
        appendElement(element);
        separator = ",\n";
    }
    out += (elements.empty() ? QByteArray() : "\n" + indentation) + ']';
}

QByteArray jsonLevels(ReportCategory const & category)
{
    if (!category.levels) {
        return "null";
    }
    Analysis_Ranges_Record const & levels = *category.levels;
    return "{\"red\": " + jsonNumber(levels.redLv) + ", \"yellow\": " + jsonNumber(levels.yellowLv) +
           ", \"green\": " + jsonNumber(levels.greenLv) + "}";
}

QByteArray jsonEntry(ReportCategory const & category, ReportEntry const & entry)
{
    std::optional<double> x;
    std::optional<double> y;
    if (entry.position) {
        x = entry.position->x;
        y = entry.position->y;
    }
    return "{\"layer\": " + quoted(entry.layer) + ", \"level\": " + QByteArray::number(entry.level) +
           ", \"um\": " + jsonNumber(inUnit(entry.measured, Unit::Millimetre)) +
           ", \"mil\": " + jsonNumber(inUnit(entry.measured, Unit::Inch)) +
           ", \"limit\": " + jsonNumber(limitOf(category, entry)) + ", \"severity\": \"" +
           markOf(entry.severity).name + "\", \"x_um\": " + jsonNumber(x) + ", \"y_um\": " + jsonNumber(y) +
           "}";
}

void appendJsonCategory(QByteArray & out, ReportCategory const & category)
{
    out += "{\"table\": " + quoted(category.table) + ", \"number\": " + QByteArray::number(category.number) +
           ", \"name\": " + quoted(category.name) + ", \"levels\": " + jsonLevels(category) +
           ", \"counts\": " + jsonCounts(category.counts) + ", \"entries\": ";
    appendJsonArray(out, "    ", category.entries,
                    [&](ReportEntry const & entry) { out += jsonEntry(category, entry); });
    out += '}';
}

QByteArray jsonText(AnalysisReport const & report)
{
    QByteArray out =
        "{\n  \"format\": \"analysis-report\",\n  \"version\": " + QByteArray::number(formatVersion) +
        ",\n  \"job\": " + quoted(report.job()) + ",\n  \"step\": " + quoted(report.step()) +
        ",\n  \"levelUnit\": \"" + smallUnitName(report.levelUnit()) +
        "\",\n  \"counts\": " + jsonCounts(report.counts()) + ",\n  \"categories\": ";
    appendJsonArray(out, "  ", report.categories(),
                    [&](ReportCategory const & category) { appendJsonCategory(out, category); });
    out += ",\n  \"notChecked\": ";
    appendJsonArray(out, "  ", report.notChecked(), [&](NotChecked const & check) {
        out += "{\"table\": " + quoted(check.table) + ", \"number\": " + QByteArray::number(check.number) +
               ", \"name\": " + quoted(check.name) + ", \"reason\": " + quoted(check.reason) + "}";
    });
    return out + "\n}\n";
}

// --- CSV ----------------------------------------------------------------------------------------------

// A spreadsheet executes text that starts like a formula. East Asian versions also accept full-width signs.
QByteArray csvText(std::string const & text)
{
    QString const beginnings = QStringLiteral("=+-@＝＋－＠\t\r\n");
    QString out = QString::fromStdString(text);
    if (!out.isEmpty() && beginnings.contains(out[0])) {
        out.prepend(QLatin1Char('\''));
    }
    return '"' + out.toUtf8().replace('"', "\"\"") + '"';
}

void appendCsvLine(QByteArray & out, std::initializer_list<QByteArray> fields)
{
    char const * separator = "";
    for (QByteArray const & field : fields) {
        out += separator + field;
        separator = ",";
    }
    out += "\r\n";
}

void appendCsvEntry(QByteArray & out, ReportCategory const & category, ReportEntry const & entry)
{
    appendCsvLine(out, {"measurement",
                        csvText(category.table),
                        QByteArray::number(category.number),
                        csvText(category.name),
                        csvText(entry.layer),
                        QByteArray::number(entry.level),
                        numberText(inUnit(entry.measured, Unit::Millimetre)),
                        numberText(inUnit(entry.measured, Unit::Inch)),
                        numberText(limitOf(category, entry)),
                        markOf(entry.severity).name,
                        entry.position ? numberText(entry.position->x) : QByteArray(),
                        entry.position ? numberText(entry.position->y) : QByteArray(),
                        {},
                        {}});
}

QByteArray csvReport(AnalysisReport const & report)
{
    QByteArray out = "\xEF\xBB\xBF";
    appendCsvLine(out, {"record", "table", "number", "category", "layer", "level", "value_um", "value_mil",
                        QByteArray("limit_") + smallUnitName(report.levelUnit()), "severity", "x_um", "y_um",
                        "count", "text"});
    for (auto const & [record, text] : {std::pair("job", &report.job()), {"step", &report.step()}}) {
        appendCsvLine(out, {record, {}, {}, {}, {}, {}, {}, {}, {}, {}, {}, {}, {}, csvText(*text)});
    }
    SeverityCounts const counts = report.counts();
    for (SeverityMark const & mark : severityPalette) {
        auto const count = static_cast<qulonglong>(counts[static_cast<std::size_t>(mark.severity)]);
        appendCsvLine(
            out, {"count", {}, {}, {}, {}, {}, {}, {}, {}, mark.name, {}, {}, QByteArray::number(count), {}});
    }
    for (ReportCategory const & category : report.categories()) {
        for (ReportEntry const & entry : category.entries) {
            appendCsvEntry(out, category, entry);
        }
    }
    for (NotChecked const & check : report.notChecked()) {
        appendCsvLine(out, {"not_checked",
                            csvText(check.table),
                            QByteArray::number(check.number),
                            csvText(check.name),
                            {},
                            {},
                            {},
                            {},
                            {},
                            {},
                            {},
                            {},
                            {},
                            csvText(check.reason)});
    }
    return out;
}

} // namespace

QByteArray reportText(AnalysisReport const & report, ReportFormat format)
{
    return format == ReportFormat::Json ? jsonText(report) : csvReport(report);
}

Result writeReport(AnalysisReport const & report, ReportFormat format, QString const & path)
{
    if (!WholeFile::replace(path, reportText(report, format))) {
        return {false, QObject::tr("The file \"%1\" cannot be written.").arg(path)};
    }
    return {};
}

} // namespace KVCAM::UIAPI::Ext
