#include "checks/ResultsModel.h"

#include "checks/MeasureTexts.h"

#include <QBrush>
#include <QFont>

#include <algorithm>
#include <numeric>

// The id of an index tells its kind. With n categories: 0 is a category, 1 to n is a layer of category id -
// 1, and above that a measurement of group id - n - 1.

namespace Workbench {

using namespace KVCAM::UIAPI;

namespace {

std::size_t total(Ext::SeverityCounts const & counts)
{
    return std::accumulate(counts.begin(), counts.end(), std::size_t{0});
}

std::optional<Ext::Length> smaller(std::optional<Ext::Length> a, std::optional<Ext::Length> b)
{
    return !a || (b && *b < *a) ? b : a;
}

bool isNumeric(int column)
{
    return column >= ResultsModel::Count && column <= ResultsModel::Limit;
}

} // namespace

// The severity that a column counts, None for other columns.
Ext::Severity ResultsModel::severityOf(int column)
{
    switch (column) {
    case Red:
        return Ext::Severity::Red;
    case Yellow:
        return Ext::Severity::Yellow;
    case Green:
        return Ext::Severity::Green;
    default:
        return Ext::Severity::None;
    }
}

ResultsModel::ResultsModel(AnalysisRun const & run, QObject * parent) : QAbstractItemModel(parent), m_run(run)
{
    m_firsts.push_back(0);
}

void ResultsModel::reload()
{
    beginResetModel();
    m_groups.clear();
    m_firsts.assign(1, 0);
    for (std::size_t i = 0; i < m_run.report().categories().size(); ++i) {
        addGroups(i);
        m_firsts.push_back(m_groups.size());
    }
    countGroups();
    endResetModel();
}

// Within one run the entries of a layer are adjacent.
void ResultsModel::addGroups(std::size_t category)
{
    auto const & entries = m_run.report().categories()[category].entries;
    std::size_t const first = m_groups.size();
    for (std::size_t i = 0; i < entries.size(); ++i) {
        if (i == 0 || entries[i].layer != m_groups.back().layer) {
            m_groups.push_back({category, entries[i].layer, i, i, {}, {}});
        }
        m_groups.back().end = i + 1;
        m_groups.back().smallest = smaller(m_groups.back().smallest, entries[i].measured);
    }
    std::stable_sort(
        m_groups.begin() + static_cast<std::ptrdiff_t>(first), m_groups.end(),
        [this](Group const & a, Group const & b) { return m_run.rowOf(a.layer) < m_run.rowOf(b.layer); });
}

void ResultsModel::countGroups()
{
    for (Group & group : m_groups) {
        auto const & entries = m_run.report().categories()[group.category].entries;
        group.counts = {};
        for (std::size_t i = group.begin; i < group.end; ++i) {
            ++group.counts[static_cast<std::size_t>(entries[i].severity)];
        }
    }
}

void ResultsModel::regrade()
{
    countGroups();
    refreshTexts();
}

void ResultsModel::setView(void const * view)
{
    m_view = view;
    refreshTexts();
}

void ResultsModel::refreshTexts()
{
    emit headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
    auto const announceRows = [this](QModelIndex const & parent) {
        int const rows = rowCount(parent);
        if (rows > 0) {
            emit dataChanged(index(0, 0, parent), index(rows - 1, ColumnCount - 1, parent));
        }
    };
    announceRows({});
    for (int category = 0; category < rowCount(); ++category) {
        QModelIndex const parent = index(category, 0);
        announceRows(parent);
        for (int layer = 0; layer < rowCount(parent); ++layer) {
            announceRows(index(layer, 0, parent));
        }
    }
}

bool ResultsModel::isCategory(QModelIndex const & index) const
{
    return index.isValid() && index.internalId() == 0;
}

bool ResultsModel::isGroup(QModelIndex const & index) const
{
    return index.isValid() && index.internalId() > 0 && index.internalId() < m_firsts.size();
}

ResultsModel::Group const & ResultsModel::group(std::size_t category, int row) const
{
    return m_groups.at(m_firsts.at(category) + static_cast<std::size_t>(row));
}

ResultsModel::Row ResultsModel::at(QModelIndex const & index) const
{
    auto const & categories = m_run.report().categories();
    if (!index.isValid()) {
        return {};
    }
    auto const row = static_cast<std::size_t>(index.row());
    if (isCategory(index)) {
        return {&categories.at(row), nullptr, nullptr};
    }
    if (isGroup(index)) {
        Group const & shown = group(index.internalId() - 1, index.row());
        return {&categories.at(shown.category), &shown.layer, nullptr};
    }
    Group const & owner = m_groups.at(index.internalId() - m_firsts.size());
    Ext::ReportCategory const & category = categories.at(owner.category);
    return {&category, &owner.layer, &category.entries.at(owner.begin + row)};
}

QModelIndex ResultsModel::find(std::string const & table, int number) const
{
    auto const & categories = m_run.report().categories();
    for (int row = 0; row < rowCount(); ++row) {
        auto const & category = categories[static_cast<std::size_t>(row)];
        if (category.number == number && category.table == table) {
            return index(row, 0);
        }
    }
    return {};
}

QModelIndex ResultsModel::index(int row, int column, QModelIndex const & parent) const
{
    if (!hasIndex(row, column, parent)) {
        return {};
    }
    if (!parent.isValid()) {
        return createIndex(row, column, quintptr{0});
    }
    auto const place = static_cast<std::size_t>(parent.row());
    if (isCategory(parent)) {
        return createIndex(row, column, quintptr{place + 1});
    }
    std::size_t const shown = m_firsts.at(parent.internalId() - 1) + place;
    return createIndex(row, column, quintptr{m_firsts.size() + shown});
}

QModelIndex ResultsModel::parent(QModelIndex const & child) const
{
    if (!child.isValid() || isCategory(child)) {
        return {};
    }
    if (isGroup(child)) {
        return createIndex(static_cast<int>(child.internalId() - 1), 0, quintptr{0});
    }
    std::size_t const owner = child.internalId() - m_firsts.size();
    std::size_t const category = m_groups.at(owner).category;
    return createIndex(static_cast<int>(owner - m_firsts.at(category)), 0, quintptr{category + 1});
}

int ResultsModel::rowCount(QModelIndex const & parent) const
{
    if (!parent.isValid()) {
        return static_cast<int>(m_firsts.size() - 1);
    }
    if (parent.column() != 0) {
        return 0;
    }
    if (isCategory(parent)) {
        auto const category = static_cast<std::size_t>(parent.row());
        return static_cast<int>(m_firsts.at(category + 1) - m_firsts.at(category));
    }
    if (isGroup(parent)) {
        Group const & shown = group(parent.internalId() - 1, parent.row());
        return static_cast<int>(shown.end - shown.begin);
    }
    return 0;
}

int ResultsModel::columnCount(QModelIndex const & /*parent*/) const
{
    return ColumnCount;
}

Ext::SeverityCounts ResultsModel::countsAt(QModelIndex const & index) const
{
    Row const row = at(index);
    if (row.entry != nullptr) {
        Ext::SeverityCounts counts{};
        counts[static_cast<std::size_t>(row.entry->severity)] = 1;
        return counts;
    }
    return isGroup(index) ? group(index.internalId() - 1, index.row()).counts : row.category->counts;
}

QVariant ResultsModel::data(QModelIndex const & index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    switch (role) {
    case Qt::DisplayRole:
        return text(index);
    case Qt::TextAlignmentRole:
        return static_cast<int>((isNumeric(index.column()) ? Qt::AlignRight : Qt::AlignLeft) |
                                Qt::AlignVCenter);
    case Qt::ToolTipRole:
        return index.column() == Severity ? wordOf(worstOf(countsAt(index))) : text(index);
    case Qt::ForegroundRole:
        if (index.column() == Severity || severityOf(index.column()) != Ext::Severity::None) {
            Ext::Severity const shown =
                index.column() == Severity ? worstOf(countsAt(index)) : severityOf(index.column());
            return QBrush(colourOf(shown));
        }
        return total(countsAt(index)) == 0 ? QVariant(QBrush(colourOf(Ext::Severity::None))) : QVariant();
    case Qt::FontRole:
        if (index.column() == Severity) {
            QFont font;
            font.setBold(true);
            return font;
        }
        break;
    default:
        break;
    }
    return {};
}

std::optional<Ext::Length> ResultsModel::smallestOf(std::size_t category) const
{
    std::optional<Ext::Length> smallest;
    for (std::size_t i = m_firsts.at(category); i < m_firsts.at(category + 1); ++i) {
        smallest = smaller(smallest, m_groups[i].smallest);
    }
    return smallest;
}

std::optional<Ext::Length> ResultsModel::measuredAt(QModelIndex const & index) const
{
    Row const row = at(index);
    if (row.entry != nullptr) {
        return row.entry->measured;
    }
    return isGroup(index) ? group(index.internalId() - 1, index.row()).smallest
                          : smallestOf(static_cast<std::size_t>(index.row()));
}

} // namespace Workbench
