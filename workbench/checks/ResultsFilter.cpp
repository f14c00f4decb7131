#include "checks/ResultsFilter.h"

#include "ui/CategoryNames.h"
#include "ui/Legible.h"

#include <QBrush>
#include <QPointF>

#include <algorithm>
#include <functional>

namespace Workbench {

using namespace KVCAM::UIAPI;

namespace {

bool isCheckName(QModelIndex const & index)
{
    return index.column() == Ext::ReportModel::NameColumn && !index.parent().isValid();
}

QString checkName(QVariant const & english)
{
    return shownName(english.toString().toStdString());
}

QVariant inReadableColour(QVariant const & shown, int role)
{
    return role == Qt::ForegroundRole && shown.isValid() ? QBrush(legibleText(shown.value<QBrush>().color()))
                                                         : shown;
}

} // namespace

ResultsFilter::ResultsFilter(Ext::ReportModel & model, QObject * parent)
    : QSortFilterProxyModel(parent), m_model(model)
{
    setSortRole(Ext::ReportModel::SortRole);
    m_shown.fill(true);
    setSourceModel(&model);
}

void ResultsFilter::setShown(Ext::Severity severity, bool on)
{
    m_shown[static_cast<std::size_t>(severity)] = on;
    invalidateFilter();
}

void ResultsFilter::showAll()
{
    m_shown.fill(true);
    invalidateFilter();
}

bool ResultsFilter::isShown(Ext::Severity severity) const
{
    return m_shown[static_cast<std::size_t>(severity)];
}

// Whether any of the counted measurements is shown, or shown and has a colour.
bool ResultsFilter::holds(Ext::SeverityCounts const & counts, bool coloured) const
{
    for (std::size_t i = 0; i < counts.size(); ++i) {
        bool const fits = !coloured || static_cast<Ext::Severity>(i) != Ext::Severity::None;
        if (fits && m_shown[i] && counts[i] != 0) {
            return true;
        }
    }
    return false;
}

bool ResultsFilter::filterAcceptsRow(int row, QModelIndex const & parent) const
{
    bool const showsAll = std::all_of(m_shown.begin(), m_shown.end(), [](bool on) { return on; });
    return showsAll || holds(m_model.countsAt(m_model.index(row, 0, parent)), false);
}

QModelIndex ResultsFilter::violation(QModelIndex const & from, int way) const
{
    Ext::SeverityCounts all{};
    for (int row = 0; row < m_model.rowCount(); ++row) {
        Ext::SeverityCounts const counts = m_model.countsAt(m_model.index(row, 0));
        std::transform(all.begin(), all.end(), counts.begin(), all.begin(), std::plus<>());
    }
    bool const coloured = holds(all, true);
    QModelIndex at = from.siblingAtColumn(0);
    for (int ends = 0; ends < 2;) {
        at = neighbour(at, way, coloured);
        if (!at.isValid()) {
            ++ends;
        } else if (this->at(at).entry != nullptr && holds(m_model.countsAt(mapToSource(at)), coloured)) {
            return at;
        }
    }
    return {};
}

// The next row in the order of a tree that is wholly expanded; rows without violations count as collapsed.
// The invisible root stands between the last row and the first.
QModelIndex ResultsFilter::neighbour(QModelIndex const & from, int way, bool coloured) const
{
    auto const rows = [&](QModelIndex const & parent) {
        bool const isWorth = !parent.isValid() || holds(m_model.countsAt(mapToSource(parent)), coloured);
        return isWorth ? rowCount(parent) : 0;
    };
    if (way > 0) {
        if (rows(from) > 0) {
            return index(0, 0, from);
        }
        for (QModelIndex up = from; up.isValid(); up = up.parent()) {
            if (up.row() + 1 < rowCount(up.parent())) {
                return index(up.row() + 1, 0, up.parent());
            }
        }
        return {};
    }
    if (from.isValid() && from.row() == 0) {
        return from.parent();
    }
    QModelIndex last = from.isValid() ? index(from.row() - 1, 0, from.parent()) : QModelIndex();
    while (rows(last) > 0) {
        last = index(rows(last) - 1, 0, last);
    }
    return last;
}

// Rows that have nothing in the column come last in either order.
bool ResultsFilter::lessThan(QModelIndex const & left, QModelIndex const & right) const
{
    QVariant const a = left.data(Ext::ReportModel::SortRole);
    QVariant const b = right.data(Ext::ReportModel::SortRole);
    if (!a.isValid() || !b.isValid()) {
        bool const isBehind = sortOrder() == Qt::DescendingOrder ? !a.isValid() : !b.isValid();
        return a.isValid() != b.isValid() && isBehind;
    }
    if (isCheckName(left)) {
        return checkName(a).localeAwareCompare(checkName(b)) < 0;
    }
    if (left.column() == Ext::ReportModel::PositionColumn && a == b) {
        return left.data(Ext::ReportModel::PositionRole).toPointF().y() <
               right.data(Ext::ReportModel::PositionRole).toPointF().y();
    }
    return QSortFilterProxyModel::lessThan(left, right);
}

QVariant ResultsFilter::data(QModelIndex const & index, int role) const
{
    QVariant const shown = QSortFilterProxyModel::data(index, role);
    bool const isText = role == Qt::DisplayRole || role == Qt::ToolTipRole;
    return isText && isCheckName(index) ? checkName(shown) : inReadableColour(shown, role);
}

QVariant ResultsFilter::headerData(int section, Qt::Orientation orientation, int role) const
{
    return inReadableColour(QSortFilterProxyModel::headerData(section, orientation, role), role);
}

} // namespace Workbench
