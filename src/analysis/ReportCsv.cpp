#include "analysis/ReportFormats.h"

#include <initializer_list>
#include <utility>

namespace KVCAM::UIAPI::Ext::Formats {
namespace {

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

} // namespace

QByteArray csv(AnalysisReport const & report)
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

} // namespace KVCAM::UIAPI::Ext::Formats
