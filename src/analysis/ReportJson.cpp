#include "analysis/ReportFormats.h"

namespace KVCAM::UIAPI::Ext::Formats {
namespace {

constexpr int formatVersion = 1;

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

} // namespace

QByteArray json(AnalysisReport const & report)
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

} // namespace KVCAM::UIAPI::Ext::Formats
