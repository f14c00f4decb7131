#include "analysis/ReportComparison.h"
#include "analysis/ReportJsonParts.h"
#include "support/WholeFile.h"

#include <QObject>

namespace KVCAM::UIAPI::Ext {
namespace {

using Formats::appendJsonArray;
using Formats::jsonCounts;
using Formats::jsonNumber;
using Formats::quoted;

constexpr int formatVersion = 1;

QByteArray jsonChangeCounts(ChangeCounts const & counts)
{
    QByteArray out;
    for (std::size_t i = 0; i < counts.size(); ++i) {
        out += out.isEmpty() ? "{\"" : ", \"";
        out += QByteArray(changeNames.at(i)) +
               "\": " + QByteArray::number(static_cast<qulonglong>(counts.at(i)));
    }
    return out + '}';
}

QByteArray jsonReport(ComparedReport const & report)
{
    return "{\"job\": " + quoted(report.job) + ", \"step\": " + quoted(report.step) +
           ", \"date\": " + (report.date.empty() ? "null" : quoted(report.date)) +
           ", \"counts\": " + jsonCounts(report.counts) + ", \"waived\": " + jsonCounts(report.waived) + '}';
}

// null for a violation that the report does not have.
QByteArray jsonMeasured(std::optional<Length> measured, Severity severity)
{
    if (severity == Severity::None) {
        return "null";
    }
    return "{\"um\": " + jsonNumber(Formats::inUnit(measured, Unit::Millimetre)) +
           ", \"mil\": " + jsonNumber(Formats::inUnit(measured, Unit::Inch)) + ", \"severity\": \"" +
           markOf(severity).name + "\"}";
}

void appendChange(QByteArray & out, ReportChange const & change)
{
    out += QByteArray("{\"change\": \"") + changeName(change.change) + "\", \"id\": " + quoted(change.id) +
           ", \"table\": " + quoted(change.table) + ", \"number\": " + QByteArray::number(change.number) +
           ", \"name\": " + quoted(change.name) + ", \"layer\": " + quoted(change.layer) +
           ", \"before\": " + jsonMeasured(change.before, change.severityBefore) +
           ", \"after\": " + jsonMeasured(change.after, change.severityAfter) + ", \"places\": [";
    Formats::appendPlaces(out, change.places);
    out += "], \"nets\": [" + Formats::jsonNet(change.nets[0]) + ", " + Formats::jsonNet(change.nets[1]) +
           "], \"waived\": " + (change.waived ? "true" : "false") + '}';
}

} // namespace

QByteArray comparisonText(ReportComparison const & comparison)
{
    QByteArray out =
        "{\n  \"format\": \"report-comparison\",\n  \"version\": " + QByteArray::number(formatVersion) +
        ",\n  \"before\": " + jsonReport(comparison.before) +
        ",\n  \"after\": " + jsonReport(comparison.after) +
        ",\n  \"tolerance_um\": " + jsonNumber(comparison.tolerance.toMicrometres()) +
        ",\n  \"levelsDiffer\": ";
    appendJsonArray(out, "  ", comparison.levels, [&](std::string const & name) { out += quoted(name); });
    out += ",\n  \"counts\": " + jsonChangeCounts(comparison.counts) +
           ",\n  \"waived\": " + jsonChangeCounts(comparison.waived) + ",\n  \"changes\": ";
    appendJsonArray(out, "  ", comparison.changes,
                    [&](ReportChange const & change) { appendChange(out, change); });
    return out + "\n}\n";
}

Result writeComparison(ReportComparison const & comparison, QString const & path)
{
    if (!WholeFile::replace(path, comparisonText(comparison))) {
        return {false, QObject::tr("The file \"%1\" cannot be written.").arg(path)};
    }
    return {};
}

} // namespace KVCAM::UIAPI::Ext
