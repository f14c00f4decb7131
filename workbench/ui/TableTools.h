#pragma once

#include <QStringList>
#include <QTableWidget>

namespace Workbench {

/// A read-only table with whole rows to select, columns as wide as their content and the last one stretched.
QTableWidget * makeTable(QStringList const & titles);
void prepareTable(QTableWidget & table, QStringList const & titles);

/// Lets the texts of the last column wrap at its width; rows become as high as they need, columns as wide.
void wrapLastColumn(QTableWidget & table);

/// Appends a row of texts, each its own tooltip; the columns in `right` are aligned to the right.
void addRow(QTableWidget & table, QStringList const & texts, QList<int> const & right = {});

} // namespace Workbench
