#include "ui/TableTools.h"

#include "ui/LanguageChange.h"

#include <QAction>
#include <QClipboard>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QHeaderView>
#include <QRegularExpression>
#include <QTreeView>

#include <map>
#include <vector>

namespace Workbench {

namespace {

QHeaderView const * headerOf(QAbstractItemView const & view)
{
    if (auto const * tree = qobject_cast<QTreeView const *>(&view)) {
        return tree->header();
    }
    auto const * table = qobject_cast<QTableView const *>(&view);
    return table != nullptr ? table->horizontalHeader() : nullptr;
}

// Where a row stands in the tree: the rows from its topmost ancestor down.
std::vector<int> placeOf(QModelIndex const & row)
{
    std::vector<int> place;
    for (QModelIndex up = row; up.isValid(); up = up.parent()) {
        place.insert(place.begin(), up.row());
    }
    return place;
}

// A row within others is told with them: "Lines / top / 1".
QString cellText(QModelIndex const & cell)
{
    QString text = cell.data().toString();
    for (QModelIndex up = cell.parent(); cell.column() == 0 && up.isValid(); up = up.parent()) {
        text.prepend(up.data().toString() + " / ");
    }
    return text;
}

QModelIndexList selectedCells(QAbstractItemView const & view)
{
    QModelIndexList cells =
        view.selectionModel() != nullptr ? view.selectionModel()->selectedIndexes() : QModelIndexList();
    QModelIndex const current = view.currentIndex();
    if (cells.isEmpty() && current.isValid()) {
        for (int column = 0; column < view.model()->columnCount(current.parent()); ++column) {
            cells.append(current.siblingAtColumn(column));
        }
    }
    return cells;
}

} // namespace

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
    offerCopy(table);
}

QString copyText(QAbstractItemView const & view)
{
    QHeaderView const * header = headerOf(view);
    static QRegularExpression const breaks("[\\t\\r\\n]+");
    std::map<std::vector<int>, std::map<int, QString>> lines; // by the row's place and the column's
    for (QModelIndex const & cell : selectedCells(view)) {
        int const column = header != nullptr ? header->visualIndex(cell.column()) : cell.column();
        if (header == nullptr || !header->isSectionHidden(cell.column())) {
            lines[placeOf(cell)][column] = cellText(cell).replace(breaks, " ");
        }
    }
    QStringList texts;
    for (auto const & [place, cells] : lines) {
        QStringList line;
        for (auto const & [column, text] : cells) {
            line.append(text);
        }
        texts.append(line.join('\t'));
    }
    return texts.join('\n');
}

void offerCopy(QAbstractItemView & view)
{
    auto * copy = new QAction(&view);
    copy->setObjectName("copy");
    copy->setShortcut(QKeySequence::Copy);
    copy->setShortcutContext(Qt::WidgetShortcut);
    QObject::connect(copy, &QAction::triggered, &view, [&view] {
        QString const text = copyText(view);
        if (!text.trimmed().isEmpty()) {
            QGuiApplication::clipboard()->setText(text);
        }
    });
    view.addAction(copy);
    view.setContextMenuPolicy(Qt::ActionsContextMenu);
    setTextsNowAndLater(view, [copy] { copy->setText(QCoreApplication::translate("Workbench", "&Copy")); });
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
