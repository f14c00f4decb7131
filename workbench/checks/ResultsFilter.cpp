#include "checks/ResultsFilter.h"

#include "checks/MeasureTexts.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <numeric>

namespace Workbench {

using namespace KVCAM::UIAPI;

ResultsFilter::ResultsFilter(ResultsModel & model, QObject * parent)
    : QSortFilterProxyModel(parent), m_model(model)
{
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

// What a column is sorted by; not a number where the row has nothing there.
std::pair<double, double> ResultsFilter::key(QModelIndex const & source) const
{
    constexpr double nothing = std::numeric_limits<double>::quiet_NaN();
    ResultsModel::Row const row = m_model.at(source);
    Ext::SeverityCounts const counts = m_model.countsAt(source);
    auto const count = [&counts](Ext::Severity severity) {
        return static_cast<double>(counts[static_cast<std::size_t>(severity)]);
    };
    switch (source.column()) {
    case ResultsModel::Severity: {
        bool const isEmpty = std::all_of(counts.begin(), counts.end(), [](std::size_t n) { return n == 0; });
        return {isEmpty ? nothing : static_cast<double>(worstOf(counts)), 0};
    }
    case ResultsModel::Count:
        return {std::accumulate(counts.begin(), counts.end(), 0.0), 0};
    case ResultsModel::Red:
        return {count(Ext::Severity::Red), 0};
    case ResultsModel::Yellow:
        return {count(Ext::Severity::Yellow), 0};
    case ResultsModel::Green:
        return {count(Ext::Severity::Green), 0};
    case ResultsModel::Measured: {
        auto const measured = m_model.measuredAt(source);
        return {measured ? static_cast<double>(measured->nanometres()) : nothing, 0};
    }
    case ResultsModel::Limit:
        if (row.entry != nullptr) {
            return {Ext::limitOf(*row.category, *row.entry).value_or(nothing), 0};
        }
        return {row.layer == nullptr && row.category->levels ? row.category->levels->redLv : nothing, 0};
    case ResultsModel::Position:
        if (row.entry != nullptr && row.entry->position) {
            return {row.entry->position->x, row.entry->position->y};
        }
        return {nothing, 0};
    default:
        return {source.row(), 0};
    }
}

// Rows that have nothing in the column come last in either order.
bool ResultsFilter::lessThan(QModelIndex const & left, QModelIndex const & right) const
{
    if (left.column() == ResultsModel::Name && !left.parent().isValid()) {
        return left.data().toString().localeAwareCompare(right.data().toString()) < 0;
    }
    auto const a = key(left);
    auto const b = key(right);
    if (std::isnan(a.first) || std::isnan(b.first)) {
        bool const isBehind = sortOrder() == Qt::DescendingOrder ? std::isnan(a.first) : std::isnan(b.first);
        return std::isnan(a.first) != std::isnan(b.first) && isBehind;
    }
    return a < b;
}

} // namespace Workbench
