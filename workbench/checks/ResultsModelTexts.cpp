#include "checks/MeasureTexts.h"
#include "checks/ResultsModel.h"
#include "ui/CategoryNames.h"
#include "ui/Units.h"

#include <numeric>

// The texts of the model: headers, sums and measurements.

namespace Workbench {

using namespace KVCAM::UIAPI;

namespace {

QString levelsText(void const * view, Analysis_Ranges_Record const & levels)
{
    return QString("%1 / %2 / %3")
        .arg(smallUnitText(view, levels.redLv), smallUnitText(view, levels.yellowLv),
             smallUnitText(view, levels.greenLv));
}

} // namespace

QString ResultsModel::text(QModelIndex const & index) const
{
    Row const row = at(index);
    if (row.entry != nullptr) {
        return measurementText(index.column(), row, index.row() + 1);
    }
    return sumText(index, row);
}

QString ResultsModel::measurementText(int column, Row const & row, int number) const
{
    switch (column) {
    case Name:
        return QString::number(number);
    case Severity:
        return signOf(row.entry->severity);
    case Measured:
        return row.entry->measured ? measuredText(m_view, *row.entry->measured) : tr("not known");
    case Limit: {
        auto const limit = Ext::limitOf(*row.category, *row.entry);
        return limit ? smallUnitText(m_view, *limit) : QString();
    }
    case Position:
        return row.entry->position
                   ? QString("%1, %2").arg(getUnitJudgeStringMetric(m_view, row.entry->position->x),
                                           getUnitJudgeStringMetric(m_view, row.entry->position->y))
                   : QString();
    default:
        return {};
    }
}

QString ResultsModel::sumText(QModelIndex const & index, Row const & row) const
{
    Ext::SeverityCounts const counts = countsAt(index);
    std::size_t const count = std::accumulate(counts.begin(), counts.end(), std::size_t{0});
    auto const smallest = measuredAt(index);
    switch (index.column()) {
    case Name:
        return row.layer != nullptr ? QString::fromStdString(*row.layer) : shownName(row.category->name);
    case Severity:
        return count == 0 ? QString() : signOf(worstOf(counts));
    case Count:
        return QString::number(count);
    case Measured:
        return smallest ? measuredText(m_view, *smallest) : QString();
    case Limit:
        return row.layer == nullptr && row.category->levels ? levelsText(m_view, *row.category->levels)
                                                            : QString();
    case Position:
        return count == 0 ? tr("nothing found") : QString();
    default:
        break;
    }
    Ext::Severity const counted = severityOf(index.column());
    std::size_t const number = counts[static_cast<std::size_t>(counted)];
    return counted != Ext::Severity::None && number != 0 ? QString::number(number) : QString();
}

QVariant ResultsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal) {
        return {};
    }
    if (role == Qt::ForegroundRole && severityOf(section) != Ext::Severity::None) {
        return QBrush(colourOf(severityOf(section)));
    }
    if (role == Qt::ToolTipRole) {
        switch (section) {
        case Severity:
            return tr("For a check or layer, the worst");
        case Measured:
            return tr("Measured in whole micrometres; for a check or layer, the smallest");
        case Limit:
            return tr("The level that gave the colour; for a check, its levels red / yellow / green");
        default:
            return severityOf(section) == Ext::Severity::None ? QVariant()
                                                              : QVariant(wordOf(severityOf(section)));
        }
    }
    if (role != Qt::DisplayRole) {
        return {};
    }
    switch (section) {
    case Name:
        return tr("Check, layer, measurement");
    case Severity:
        return tr("Colour");
    case Count:
        return tr("Count");
    case Measured:
        return tr("Measured (%1)").arg(smallUnitName(m_view));
    case Limit:
        return tr("Limit (%1)").arg(smallUnitName(m_view));
    case Position:
        return tr("Position (%1)").arg(unitName(m_view, 0));
    default:
        return signOf(severityOf(section));
    }
}

} // namespace Workbench
