#include "analysis/AnalysisReport.h"
#include "analysis/HtmlReport.h"
#include "analysis/ReportFormats.h"
#include "support/WholeFile.h"

#include <QLocale>
#include <QObject>

#include <cmath>

namespace KVCAM::UIAPI::Ext {
namespace Formats {

QByteArray utf8(std::string const & text)
{
    return QString::fromStdString(text).toUtf8();
}

QByteArray numberText(std::optional<double> value)
{
    return value && std::isfinite(*value) ? QByteArray::number(*value, 'g', QLocale::FloatingPointShortest)
                                          : QByteArray();
}

std::optional<double> inUnit(std::optional<Length> measured, Unit unit)
{
    return measured ? std::optional<double>(measured->to(unit, LengthScale::Small)) : std::nullopt;
}

char const * smallUnitName(Unit unit)
{
    return unit == Unit::Inch ? "mil" : "um";
}

} // namespace Formats

namespace {

Result written(QByteArray const & text, QString const & path)
{
    if (!WholeFile::replace(path, text)) {
        return {false, QObject::tr("The file \"%1\" cannot be written.").arg(path)};
    }
    return {};
}

} // namespace

QByteArray reportText(AnalysisReport const & report, ReportFormat format)
{
    switch (format) {
    case ReportFormat::Csv:
        return Formats::csv(report);
    case ReportFormat::Html:
        return htmlReport(report, {});
    case ReportFormat::Json:
        break;
    }
    return Formats::json(report);
}

Result writeReport(AnalysisReport const & report, ReportFormat format, QString const & path)
{
    return written(reportText(report, format), path);
}

Result writeHtmlReport(AnalysisReport const & report, HtmlReportOptions const & options, QString const & path)
{
    return written(htmlReport(report, options), path);
}

} // namespace KVCAM::UIAPI::Ext
