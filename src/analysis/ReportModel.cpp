#include "analysis/ReportModel.h"

#include "analysis/ReportModelTexts.h"

#include <QBrush>
#include <QColor>
#include <QFont>
#include <QPointF>

#include <algorithm>
#include <limits>
#include <map>
#include <numeric>
#include <string_view>
#include <tuple>
#include <utility>

// The id of an index tells its kind. With n categories: 0 is a category, 1 to n is a layer of category id -
// 1, and above that a measurement of group id - n - 1.

namespace KVCAM::UIAPI::Ext {

/// A layer of a category.
struct ReportModel::Group
{
    std::size_t category = 0;
    std::string layer;
    std::vector<std::size_t> entries; ///< of the category, in its order
    SeverityCounts counts{};
    std::optional<Length> smallest;
};

struct ReportModel::Private
{
    std::shared_ptr<AnalysisReport const> report;
    Unit unit = Unit::Inch;
    std::map<std::string, std::size_t> order; ///< by layer
    std::vector<Group> groups;                ///< by category
    std::vector<std::size_t> firsts{0};       ///< the first group of each category, then the end

    std::vector<ReportCategory> const & categories() const { return report->categories(); }
    std::size_t orderOf(std::string const & layer) const
    {
        auto const found = order.find(layer);
        return found == order.end() ? std::numeric_limits<std::size_t>::max() : found->second;
    }
    void count()
    {
        for (Group & each : groups) {
            each.counts = {};
            for (std::size_t const index : each.entries) {
                ReportEntry const & entry = categories().at(each.category).entries.at(index);
                each.counts[static_cast<std::size_t>(entry.severity)] += entry.waiver ? 0 : 1;
            }
        }
    }
};

namespace {

std::size_t total(SeverityCounts const & counts)
{
    return std::accumulate(counts.begin(), counts.end(), std::size_t{0});
}

std::optional<Length> smaller(std::optional<Length> a, std::optional<Length> b)
{
    return !a || (b && *b < *a) ? b : a;
}

QBrush brushOf(Severity severity)
{
    return QBrush(QColor(static_cast<QRgb>(markOf(severity).rgb)));
}

} // namespace

ReportModel::ReportModel(QObject * parent) : QAbstractItemModel(parent), d(std::make_unique<Private>()) {}

ReportModel::~ReportModel() = default;

void ReportModel::setReport(std::shared_ptr<AnalysisReport const> report)
{
    beginResetModel();
    d->report = std::move(report);
    build();
    endResetModel();
}

std::shared_ptr<AnalysisReport const> const & ReportModel::report() const
{
    return d->report;
}

void ReportModel::setLayerOrder(std::vector<std::string> const & layers)
{
    beginResetModel();
    d->order.clear();
    for (std::string const & layer : layers) {
        d->order.emplace(layer, d->order.size());
    }
    build();
    endResetModel();
}

void ReportModel::build()
{
    d->groups.clear();
    d->firsts.assign(1, 0);
    if (d->report == nullptr) {
        return;
    }
    for (std::size_t i = 0; i < d->categories().size(); ++i) {
        addGroups(i);
        d->firsts.push_back(d->groups.size());
    }
    d->count();
}

// A layer's entries are adjacent unless the report was added to more than once.
void ReportModel::addGroups(std::size_t category)
{
    std::vector<ReportEntry> const & entries = d->categories()[category].entries;
    std::map<std::string_view, std::size_t> known;
    std::size_t const first = d->groups.size();
    std::size_t current = first;
    for (std::size_t i = 0; i < entries.size(); ++i) {
        if (i == 0 || entries[i].layer != entries[i - 1].layer) {
            current = known.emplace(entries[i].layer, d->groups.size()).first->second;
            if (current == d->groups.size()) {
                d->groups.push_back({category, entries[i].layer, {}, {}, {}});
            }
        }
        d->groups[current].entries.push_back(i);
        d->groups[current].smallest = smaller(d->groups[current].smallest, entries[i].measured);
    }
    std::sort(d->groups.begin() + static_cast<std::ptrdiff_t>(first), d->groups.end(),
              [this](Group const & a, Group const & b) {
                  return std::forward_as_tuple(d->orderOf(a.layer), a.layer) <
                         std::forward_as_tuple(d->orderOf(b.layer), b.layer);
              });
}

void ReportModel::regrade()
{
    if (d->report != nullptr) {
        d->count();
    }
    refreshTexts();
}

void ReportModel::setUnit(Unit unit)
{
    d->unit = unit;
    refreshTexts();
}

Unit ReportModel::unit() const
{
    return d->unit;
}

void ReportModel::refreshTexts()
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

bool ReportModel::isCategory(QModelIndex const & index) const
{
    return index.isValid() && index.internalId() == 0;
}

bool ReportModel::isGroup(QModelIndex const & index) const
{
    return index.isValid() && index.internalId() > 0 && index.internalId() < d->firsts.size();
}

ReportModel::Group const & ReportModel::group(std::size_t category, int row) const
{
    return d->groups.at(d->firsts.at(category) + static_cast<std::size_t>(row));
}

ReportModel::Row ReportModel::at(QModelIndex const & index) const
{
    if (!index.isValid()) {
        return {};
    }
    auto const row = static_cast<std::size_t>(index.row());
    if (isCategory(index)) {
        return {&d->categories().at(row), nullptr, nullptr};
    }
    if (isGroup(index)) {
        Group const & shown = group(index.internalId() - 1, index.row());
        return {&d->categories().at(shown.category), &shown.layer, nullptr};
    }
    Group const & owner = d->groups.at(index.internalId() - d->firsts.size());
    ReportCategory const & category = d->categories().at(owner.category);
    return {&category, &owner.layer, &category.entries.at(owner.entries.at(row))};
}

QModelIndex ReportModel::find(std::string const & table, int number) const
{
    for (int row = 0; row < rowCount(); ++row) {
        ReportCategory const & category = d->categories()[static_cast<std::size_t>(row)];
        if (category.number == number && category.table == table) {
            return index(row, 0);
        }
    }
    return {};
}

QModelIndex ReportModel::index(int row, int column, QModelIndex const & parent) const
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
    std::size_t const shown = d->firsts.at(parent.internalId() - 1) + place;
    return createIndex(row, column, quintptr{d->firsts.size() + shown});
}

QModelIndex ReportModel::parent(QModelIndex const & child) const
{
    if (!child.isValid() || isCategory(child)) {
        return {};
    }
    if (isGroup(child)) {
        return createIndex(static_cast<int>(child.internalId() - 1), 0, quintptr{0});
    }
    std::size_t const owner = child.internalId() - d->firsts.size();
    std::size_t const category = d->groups.at(owner).category;
    return createIndex(static_cast<int>(owner - d->firsts.at(category)), 0, quintptr{category + 1});
}

int ReportModel::rowCount(QModelIndex const & parent) const
{
    if (!parent.isValid()) {
        return static_cast<int>(d->firsts.size() - 1);
    }
    if (parent.column() != 0) {
        return 0;
    }
    if (isCategory(parent)) {
        auto const category = static_cast<std::size_t>(parent.row());
        return static_cast<int>(d->firsts.at(category + 1) - d->firsts.at(category));
    }
    return isGroup(parent) ? static_cast<int>(group(parent.internalId() - 1, parent.row()).entries.size())
                           : 0;
}

int ReportModel::columnCount(QModelIndex const & /*parent*/) const
{
    return ColumnCount;
}

SeverityCounts ReportModel::countsAt(QModelIndex const & index) const
{
    Row const row = at(index);
    SeverityCounts counts{};
    if (row.entry != nullptr) {
        counts[static_cast<std::size_t>(row.entry->severity)] = row.entry->waiver ? 0 : 1;
        return counts;
    }
    if (row.category == nullptr) {
        return counts;
    }
    return isGroup(index) ? group(index.internalId() - 1, index.row()).counts : row.category->counts;
}

std::optional<Length> ReportModel::measuredAt(QModelIndex const & index) const
{
    Row const row = at(index);
    if (row.entry != nullptr) {
        return row.entry->measured;
    }
    if (isGroup(index)) {
        return group(index.internalId() - 1, index.row()).smallest;
    }
    std::optional<Length> smallest;
    for (int layer = 0; layer < rowCount(index.siblingAtColumn(0)) && row.category != nullptr; ++layer) {
        smallest = smaller(smallest, group(static_cast<std::size_t>(index.row()), layer).smallest);
    }
    return smallest;
}

QVariant ReportModel::sortKey(QModelIndex const & index) const
{
    Row const row = at(index);
    SeverityCounts const counts = countsAt(index);
    switch (index.column()) {
    case NameColumn:
        return row.layer == nullptr ? QVariant(QString::fromStdString(row.category->name)) : index.row();
    case SeverityColumn:
        return total(counts) == 0 ? QVariant() : static_cast<int>(worstOf(counts));
    case MeasuredColumn: {
        auto const measured = measuredAt(index);
        return measured ? QVariant(static_cast<qlonglong>(measured->nanometres())) : QVariant();
    }
    case LimitColumn:
        if (row.entry != nullptr) {
            auto const limit = limitOf(*row.category, *row.entry);
            return limit ? QVariant(*limit) : QVariant();
        }
        return row.layer == nullptr && row.category->levels ? row.category->levels->redLv : QVariant();
    case PositionColumn:
        return row.entry != nullptr && row.entry->position ? row.entry->position->x : QVariant();
    default:
        break;
    }
    std::optional<Severity> const counted = severityOfColumn(index.column());
    return static_cast<qulonglong>(counted ? counts[static_cast<std::size_t>(*counted)] : total(counts));
}

QVariant ReportModel::data(QModelIndex const & index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    ReportEntry const * const entry = at(index).entry;
    bool const isWaived = entry != nullptr && entry->waiver;
    Severity const worst = worstOf(countsAt(index));
    bool const isSign = index.column() == SeverityColumn;
    switch (role) {
    case Qt::DisplayRole:
        return text(index);
    case Qt::ToolTipRole:
        if (isWaived) {
            return tr("waived: %1")
                .arg(QString::fromStdString(report()->waivers().at(*entry->waiver).reason));
        }
        return isSign ? severityName(worst) : text(index);
    case Qt::TextAlignmentRole: {
        bool const isNumber = index.column() >= CountColumn && index.column() <= LimitColumn;
        return static_cast<int>((isNumber ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    }
    case Qt::ForegroundRole:
        if (isSign || severityOfColumn(index.column())) {
            return brushOf(isSign ? worst : *severityOfColumn(index.column()));
        }
        return total(countsAt(index)) == 0 ? QVariant(brushOf(Severity::None)) : QVariant();
    case Qt::FontRole:
        if (isSign) {
            QFont font;
            font.setBold(true);
            return font;
        }
        return {};
    case SeverityRole:
        return static_cast<int>(worst);
    case SortRole:
        return sortKey(index);
    case MeasuredRole: {
        auto const measured = measuredAt(index);
        return measured ? QVariant::fromValue(*measured) : QVariant();
    }
    case PositionRole: {
        Row const row = at(index);
        return row.entry != nullptr && row.entry->position
                   ? QPointF(row.entry->position->x, row.entry->position->y)
                   : QVariant();
    }
    default:
        return {};
    }
}

} // namespace KVCAM::UIAPI::Ext
