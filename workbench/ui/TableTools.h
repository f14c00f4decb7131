#pragma once

#include <QStringList>
#include <QTableWidget>

namespace Workbench {

/// A read-only table: whole rows are selected, columns fit their content, the last one is stretched.
QTableWidget * makeTable(QStringList const & titles);
void prepareTable(QTableWidget & table, QStringList const & titles);

/// The selected cells as lines of cells separated by tabs, in the order shown; without a selection the
/// current row, and without one nothing. Breaks and tabs within a cell become blanks.
QString copyText(QAbstractItemView const & view);
/// Copies the selected cells by key and by a context menu. The clipboard stays when there is nothing to copy.
void offerCopy(QAbstractItemView & view);

/// Wraps the texts of the last column; rows grow as needed, the other columns fit their content.
void wrapLastColumn(QTableWidget & table);

/// Appends a row of texts, each with itself as tooltip; the columns in `right` are right-aligned.
void addRow(QTableWidget & table, QStringList const & texts, QList<int> const & right = {});

} // namespace Workbench
