#include "analysis/ReportFormats.h"
#include "analysis/ReportJsonParts.h"

#include <string>
#include <vector>

namespace KVCAM::UIAPI::Ext::Formats {
namespace {

constexpr int formatVersion = 2;

QByteArray jsonLevels(ReportCategory const & category)
{
    if (!category.levels) {
        return "null";
    }
    Analysis_Ranges_Record const & levels = *category.levels;
    return "{\"red\": " + jsonNumber(levels.redLv) + ", \"yellow\": " + jsonNumber(levels.yellowLv) +
           ", \"green\": " + jsonNumber(levels.greenLv) + "}";
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
           ", \"counts\": " + jsonCounts(category.counts);
    if (category.waived != SeverityCounts{}) {
        out += ", \"waived\": " + jsonCounts(category.waived);
    }
    out += ", \"entries\": ";
    appendJsonArray(out, "    ", category.entries,
                    [&](ReportEntry const & entry) { appendJsonEntry(out, category, entry, *copy++, unit); });
    out += '}';
}

// Which waivers were applied and how: whoever reads the report applies them again.
void appendWaiving(QByteArray & out, AnalysisReport const & report)
{
    out += ",\n  \"waiving\": {\"today\": " + quoted(report.waiverDay()) +
           ", \"tolerance_um\": " + jsonNumber(report.waiverTolerance().toMicrometres()) +
           ", \"counts\": " + jsonCounts(report.waivedCounts()) + ", \"waivers\": ";
    appendJsonArray(out, "  ", report.waivers(), [&](Waiver const & waiver) {
        out += "{\"id\": " + quoted(waiver.id) + ", \"reason\": " + quoted(waiver.reason) +
               ", \"author\": " + quoted(waiver.author) + ", \"date\": " + quoted(waiver.date) +
               ", \"expires\": " + (waiver.expires.empty() ? "null" : quoted(waiver.expires)) +
               ", \"state\": \"" + waiverStateName(waiver.state) + "\"}";
    });
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
    if (!report.waivers().empty()) {
        appendWaiving(out, report);
    }
    return out + "\n}\n";
}

} // namespace KVCAM::UIAPI::Ext::Formats
