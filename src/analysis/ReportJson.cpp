#include "analysis/ReportFormats.h"

#include <string>
#include <vector>

namespace KVCAM::UIAPI::Ext::Formats {
namespace {

constexpr int formatVersion = 2;

void appendQuoted(QByteArray & out, QByteArray const & text)
{
    out += '"';
    for (char const c : text) {
        if (c == '"' || c == '\\') {
            out += '\\';
            out += c;
        } else if (static_cast<unsigned char>(c) < 0x20) {
            out += "\\u" + QByteArray::number(static_cast<int>(c), 16).rightJustified(4, '0');
        } else {
            out += c;
        }
    }
    out += '"';
}

QByteArray quoted(std::string const & text)
{
    QByteArray out;
    appendQuoted(out, utf8(text));
    return out;
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

void appendPlaces(QByteArray & out, std::vector<KVCAM::API::point> const & places)
{
    char const * separator = "";
    for (KVCAM::API::point const & place : places) {
        out += separator + ("{\"x_um\": " + jsonNumber(place.x)) + ", \"y_um\": " + jsonNumber(place.y) + '}';
        separator = ", ";
    }
}

QByteArray jsonNet(std::string const & net)
{
    return net.empty() ? "null" : quoted(net);
}

void appendJsonEntry(QByteArray & out, ReportCategory const & category, ReportEntry const & entry, int copy,
                     QByteArray const & unit)
{
    std::optional<double> x;
    std::optional<double> y;
    if (entry.position) {
        x = entry.position->x;
        y = entry.position->y;
    }
    std::optional<double> const limit = limitOf(category, entry);
    std::string const id = copyId(category, entry, copy);
    auto const add = [&out](auto const &... parts) { ((out += parts), ...); }; // without temporary copies
    add("{\"id\": \"", id.c_str(), "\", \"layer\": ", quoted(entry.layer),
        ", \"level\": ", QByteArray::number(entry.level),
        ", \"um\": ", jsonNumber(inUnit(entry.measured, Unit::Millimetre)),
        ", \"mil\": ", jsonNumber(inUnit(entry.measured, Unit::Inch)), ", \"limit\": ", jsonNumber(limit),
        ", \"limitUnit\": ", limit ? unit : QByteArray("null"), ", \"severity\": \"",
        markOf(entry.severity).name, "\", \"x_um\": ", jsonNumber(x), ", \"y_um\": ", jsonNumber(y),
        ", \"places\": [");
    appendPlaces(out, entry.places);
    add("], \"nets\": [", jsonNet(entry.nets[0]), ", ", jsonNet(entry.nets[1]),
        "], \"waived\": ", entry.waiver ? "true" : "false", "}");
}

void appendJsonCategory(QByteArray & out, ReportCategory const & category, QByteArray const & unit)
{
    std::vector<int> const copies = copyNumbers(category);
    auto copy = copies.begin();
    out += "{\"table\": " + quoted(category.table) + ", \"number\": " + QByteArray::number(category.number) +
           ", \"name\": " + quoted(category.name) + ", \"levels\": " + jsonLevels(category) +
           ", \"counts\": " + jsonCounts(category.counts) + ", \"entries\": ";
    appendJsonArray(out, "    ", category.entries,
                    [&](ReportEntry const & entry) { appendJsonEntry(out, category, entry, *copy++, unit); });
    out += '}';
}

} // namespace

QByteArray json(AnalysisReport const & report)
{
    QByteArray const unit = QByteArray("\"") + smallUnitName(report.levelUnit()) + '"';
    QByteArray out =
        "{\n  \"format\": \"analysis-report\",\n  \"version\": " + QByteArray::number(formatVersion) +
        ",\n  \"job\": " + quoted(report.job()) + ",\n  \"step\": " + quoted(report.step());
    if (!report.date().empty()) {
        out += ",\n  \"date\": " + quoted(report.date());
    }
    out += ",\n  \"levelUnit\": " + unit + ",\n  \"counts\": " + jsonCounts(report.counts()) +
           ",\n  \"categories\": ";
    appendJsonArray(out, "  ", report.categories(),
                    [&](ReportCategory const & category) { appendJsonCategory(out, category, unit); });
    out += ",\n  \"notChecked\": ";
    appendJsonArray(out, "  ", report.notChecked(), [&](NotChecked const & check) {
        out += "{\"table\": " + quoted(check.table) + ", \"number\": " + QByteArray::number(check.number) +
               ", \"name\": " + quoted(check.name) + ", \"reason\": " + quoted(check.reason) + "}";
    });
    return out + "\n}\n";
}

} // namespace KVCAM::UIAPI::Ext::Formats
