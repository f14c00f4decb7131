// The texts of ReportModel: headers, sums and measurements.

#include "analysis/ReportModelTexts.h"

#include "analysis/ReportModel.h"
#include "units/UnitConversion.h"

#include <QBrush>
#include <QColor>

#include <cmath>
#include <numeric>

namespace KVCAM::UIAPI::Ext {
namespace {

constexpr int measuredDecimals = 2; // the engine measures in whole micrometres

// The length in the small unit, rounded, without trailing zeros.
QString measuredText(Unit unit, Length measured)
{
    QString text = measured.text(unit, LengthScale::Small, measuredDecimals);
    while (text.endsWith('0')) {
        text.chop(1);
    }
    if (text.endsWith('.')) {
        text.chop(1);
    }
    return text;
}

// A level in the small unit of `from`, in that of `unit`, to five decimals.
QString levelText(Unit unit, Unit from, double level)
{
    constexpr double places = 1e5;
    if (unit != from) {
        level = unit == Unit::Inch ? level / Units::millimetresPerInch : level * Units::millimetresPerInch;
    }
    double const rounded = std::round(level * places) / places;
    return std::isfinite(level)
               ? QString::fromStdString(Units::plainText(std::isfinite(rounded) ? rounded : level))
               : QStringLiteral("–");
}

QString unitText(Unit unit, LengthScale scale)
{
    return unitSuffix(unit, scale, MicrometreSign::Mu);
}

} // namespace

Severity worstOf(SeverityCounts const & counts)
{
    for (std::size_t row = counts.size(); row-- > 0;) {
        if (counts[row] != 0) {
            return static_cast<Severity>(row);
        }
    }
    return Severity::None;
}

QString severitySign(Severity severity)
{
    SeverityMark const & mark = markOf(severity);
    QString const icon = QString::fromUtf8(mark.icon);
    return mark.severity == Severity::None ? icon : icon + ' ' + QLatin1Char(mark.letter);
}

QString severityName(Severity severity)
{
    switch (severity) {
    case Severity::Red:
        return ReportModel::tr("red");
    case Severity::Yellow:
        return ReportModel::tr("yellow");
    case Severity::Green:
        return ReportModel::tr("green");
    case Severity::None:
        break;
    }
    return ReportModel::tr("none");
}

std::optional<Severity> severityOfColumn(int column)
{
    switch (column) {
    case ReportModel::RedColumn:
        return Severity::Red;
    case ReportModel::YellowColumn:
        return Severity::Yellow;
    case ReportModel::GreenColumn:
        return Severity::Green;
    default:
        return std::nullopt;
    }
}

QString ReportModel::text(QModelIndex const & index) const
{
    Row const row = at(index);
    return row.entry != nullptr ? measurementText(index.column(), row, index.row() + 1)
                                : sumText(index.column(), row, index);
}

QString ReportModel::measurementText(int column, Row const & row, int number) const
{
    switch (column) {
    case NameColumn:
        return QString::number(number);
    case SeverityColumn:
        return severitySign(row.entry->severity);
    case MeasuredColumn:
        return row.entry->measured ? measuredText(unit(), *row.entry->measured) : tr("not known");
    case LimitColumn: {
        auto const limit = limitOf(*row.category, *row.entry);
        return limit ? levelText(unit(), report()->levelUnit(), *limit) : QString();
    }
    case PositionColumn:
        return row.entry->position
                   ? QString("%1, %2").arg(Units::micrometresText(unitCode(unit()), row.entry->position->x),
                                           Units::micrometresText(unitCode(unit()), row.entry->position->y))
                   : QString();
    default:
        return {};
    }
}

QString ReportModel::sumText(int column, Row const & row, QModelIndex const & index) const
{
    SeverityCounts const counts = countsAt(index);
    std::size_t const count = std::accumulate(counts.begin(), counts.end(), std::size_t{0});
    switch (column) {
    case NameColumn:
        return QString::fromStdString(row.layer != nullptr ? *row.layer : row.category->name);
    case SeverityColumn:
        return count == 0 ? QString() : severitySign(worstOf(counts));
    case CountColumn:
        return QString::number(count);
    case MeasuredColumn: {
        auto const smallest = measuredAt(index);
        return smallest ? measuredText(unit(), *smallest) : QString();
    }
    case LimitColumn: {
        auto const & levels = row.category->levels;
        auto const level = [this](double value) { return levelText(unit(), report()->levelUnit(), value); };
        return row.layer == nullptr && levels
                   ? QString("%1 / %2 / %3")
                         .arg(level(levels->redLv), level(levels->yellowLv), level(levels->greenLv))
                   : QString();
    }
    case PositionColumn:
        return rowCount(index.siblingAtColumn(NameColumn)) == 0 ? tr("nothing found") : QString();
    default:
        break;
    }
    std::optional<Severity> const counted = severityOfColumn(column);
    std::size_t const number = counted ? counts[static_cast<std::size_t>(*counted)] : 0;
    return number != 0 ? QString::number(number) : QString();
}

QVariant ReportModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    std::optional<Severity> const counted = severityOfColumn(section);
    if (orientation != Qt::Horizontal || section < 0 || section >= ColumnCount) {
        return {};
    }
    if (role == Qt::ForegroundRole && counted) {
        return QBrush(QColor(static_cast<QRgb>(markOf(*counted).rgb)));
    }
    if (role == Qt::ToolTipRole) {
        switch (section) {
        case SeverityColumn:
            return tr("For a check or layer, the worst");
        case MeasuredColumn:
            return tr("Measured in whole micrometres; for a check or layer, the smallest");
        case LimitColumn:
            return tr("The level that gave the colour; for a check, its levels red / yellow / green");
        default:
            return counted ? QVariant(severityName(*counted)) : QVariant();
        }
    }
    if (role != Qt::DisplayRole) {
        return {};
    }
    switch (section) {
    case NameColumn:
        return tr("Check, layer, measurement");
    case SeverityColumn:
        return tr("Colour");
    case CountColumn:
        return tr("Count");
    case MeasuredColumn:
        return tr("Measured (%1)").arg(unitText(unit(), LengthScale::Small));
    case LimitColumn:
        return tr("Limit (%1)").arg(unitText(unit(), LengthScale::Small));
    case PositionColumn:
        return tr("Position (%1)").arg(unitText(unit(), LengthScale::Large));
    default:
        return severitySign(counted.value_or(Severity::None));
    }
}

} // namespace KVCAM::UIAPI::Ext
