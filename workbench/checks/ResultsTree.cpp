#include "checks/ResultsTree.h"

#include "ui/TableTools.h"

#include <QHeaderView>

namespace Workbench {

using namespace KVCAM::UIAPI;

namespace {

constexpr int columnGap = 8; // pixels; a column on the right may be aligned to the left

} // namespace

ResultsTree::ResultsTree(Ext::ReportModel & model, QWidget * parent)
    : QTreeView(parent), m_model(model), m_filter(model)
{
    setUniformRowHeights(true); // otherwise each of 100,000 rows would be measured
    setAlternatingRowColors(true);
    setSelectionMode(ExtendedSelection);
    setModel(&m_filter);
    header()->setStretchLastSection(false);             // it would be cut instead of scrolled to
    header()->setSortIndicator(-1, Qt::AscendingOrder); // the report's own order
    setSortingEnabled(true);
    offerCopy(*this);
    connect(&m_filter, &QAbstractItemModel::layoutChanged, this, [this] { scrollTo(currentIndex()); });
}

void ResultsTree::showCategory(std::string const & table, int number)
{
    QModelIndex const known = m_filter.mapFromSource(m_model.find(table, number));
    setCurrentIndex(known.isValid() ? known : m_filter.index(0, 0));
}

bool ResultsTree::showWorst(std::string const & table, int number)
{
    QModelIndex const category = m_model.find(table, number);
    if (!category.isValid()) {
        return false;
    }
    QModelIndex worst = category;
    for (int layer = 0; layer < m_model.rowCount(category); ++layer) {
        // The engine sorts the measurements of a layer, so the first is the smallest.
        QModelIndex const first = m_model.index(0, 0, m_model.index(layer, 0, category));
        Ext::ReportEntry const * found = m_model.at(worst).entry;
        auto const measured = m_model.at(first).entry->measured;
        if (found == nullptr || (measured && (!found->measured || *measured < *found->measured))) {
            worst = first;
        }
    }
    if (!m_filter.mapFromSource(worst).isValid()) {
        m_filter.showAll();
    }
    setCurrentIndex(m_filter.mapFromSource(worst));
    scrollTo(currentIndex(), PositionAtCenter);
    return true;
}

bool ResultsTree::showViolation(int way)
{
    QModelIndex const found = m_filter.violation(currentIndex(), way);
    if (found.isValid()) {
        bool const isSame = found == currentIndex();
        setCurrentIndex(found);
        scrollTo(found);
        if (isSame) { // the only one: the board may show another place by now
            emit currentRowChanged();
        }
    }
    return found.isValid();
}

void ResultsTree::fitColumns()
{
    for (int column = 0; column < Ext::ReportModel::ColumnCount; ++column) {
        resizeColumnToContents(column);
        setColumnWidth(column, columnWidth(column) + columnGap);
    }
}

void ResultsTree::currentChanged(QModelIndex const & current, QModelIndex const & previous)
{
    QTreeView::currentChanged(current, previous);
    emit currentRowChanged();
}

} // namespace Workbench
