#include "analysis/AnalysisReport.h"
#include "analysis/HtmlReport.h"
#include "analysis/ReportFormats.h"
#include "support/WholeFile.h"

#include <QLocale>
#include <QObject>

#include <algorithm>
#include <cmath>

namespace KVCAM::UIAPI::Ext {
namespace Formats {

bool isAscii(std::string const & text)
{
    return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

QByteArray utf8(std::string const & text)
{
    return isAscii(text) ? QByteArray(text.data(), static_cast<int>(text.size()))
                         : QString::fromStdString(text).toUtf8();
}

QByteArray numberText(std::optional<double> value)
{
    if (!value || !std::isfinite(*value)) {
        return {};
    }
    constexpr double exact = 9007199254740992.0; // 2^53
    bool const isWhole = std::abs(*value) < exact && std::trunc(*value) == *value;
    return isWhole ? QByteArray::number(static_cast<qlonglong>(*value))
                   : QByteArray::number(*value, 'g', QLocale::FloatingPointShortest);
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
    return reportText(report, format, Severity::Red);
}

QByteArray reportText(AnalysisReport const & report, ReportFormat format, Severity failFrom)
{
    switch (format) {
    case ReportFormat::Json:
        return Formats::json(report);
    case ReportFormat::JUnit:
        return Formats::junit(report, failFrom);
    case ReportFormat::Html:
        return htmlReport(report, {});
    case ReportFormat::Csv:
        break;
    }
    return Formats::csv(report);
}

Result writeReport(AnalysisReport const & report, ReportFormat format, QString const & path)
{
    return writeReport(report, format, path, Severity::Red);
}

Result writeReport(AnalysisReport const & report, ReportFormat format, QString const & path,
                   Severity failFrom)
{
    return written(reportText(report, format, failFrom), path);
}

Result writeHtmlReport(AnalysisReport const & report, HtmlReportOptions const & options, QString const & path)
{
    return written(htmlReport(report, options), path);
}

} // namespace KVCAM::UIAPI::Ext
