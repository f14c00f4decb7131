#include "analysis/AnalysisReport.h"
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

QByteArray reportText(AnalysisReport const & report, ReportFormat format)
{
    return format == ReportFormat::Json ? Formats::json(report) : Formats::csv(report);
}

Result writeReport(AnalysisReport const & report, ReportFormat format, QString const & path)
{
    if (!WholeFile::replace(path, reportText(report, format))) {
        return {false, QObject::tr("The file \"%1\" cannot be written.").arg(path)};
    }
    return {};
}

} // namespace KVCAM::UIAPI::Ext
