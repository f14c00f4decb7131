#include "ui/TableTools.h"

#include <QHeaderView>

namespace Workbench {

QTableWidget * makeTable(QStringList const & titles)
{
    auto * table = new QTableWidget;
    prepareTable(*table, titles);
    return table;
}

void prepareTable(QTableWidget & table, QStringList const & titles)
{
    table.setColumnCount(titles.size());
    table.setHorizontalHeaderLabels(titles);
    table.horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    table.horizontalHeader()->setStretchLastSection(true);
    table.horizontalHeader()->setHighlightSections(false);
    table.horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    table.horizontalHeader()->setMaximumSectionSize(260);
    table.verticalHeader()->hide();
    table.verticalHeader()->setDefaultSectionSize(table.fontMetrics().height() + 8);
    table.setSelectionBehavior(QAbstractItemView::SelectRows);
    table.setSelectionMode(QAbstractItemView::SingleSelection);
    table.setEditTriggers(QAbstractItemView::NoEditTriggers);
    table.setAlternatingRowColors(true);
    table.setTabKeyNavigation(false); // Tab leaves the table, arrows move in it
}

void wrapLastColumn(QTableWidget & table)
{
    auto * header = table.horizontalHeader();
    header->setMaximumSectionSize(-1);
    header->setStretchLastSection(false);
    header->setSectionResizeMode(table.columnCount() - 1, QHeaderView::Stretch);
    // Queued: the widths are final only when the header is done.
    QObject::connect(header, &QHeaderView::sectionResized, &table, &QTableWidget::resizeRowsToContents,
                     Qt::QueuedConnection);
}

void addRow(QTableWidget & table, QStringList const & texts, QList<int> const & right)
{
    int const row = table.rowCount();
    table.insertRow(row);
    for (int column = 0; column < texts.size(); ++column) {
        auto * item = new QTableWidgetItem(texts[column]);
        item->setToolTip(texts[column]);
        if (right.contains(column)) {
            item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        }
        table.setItem(row, column, item);
    }
}

} // namespace Workbench
