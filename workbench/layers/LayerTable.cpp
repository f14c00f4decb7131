#include "layers/LayerTable.h"

#include "layers/LayerNames.h"
#include "ui/Colours.h"
#include "ui/LanguageChange.h"
#include "ui/LayerColours.h"
#include "ui/Legible.h"
#include "ui/TableTools.h"

#include <QApplication>
#include <QBrush>
#include <QClipboard>
#include <QColor>
#include <QColorDialog>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QSignalBlocker>

#include <algorithm>
#include <array>
#include <limits>
#include <numeric>
#include <utility>

namespace Workbench {

using namespace KVCAM::UIAPI;

namespace {

constexpr int nameColumn = Ext::LayerModel::NameColumn;
constexpr int contextColumn = Ext::LayerModel::ContextColumn;
constexpr int countColumn = Ext::LayerModel::ColumnCount; // behind those of the model
// What tells most comes first.
constexpr std::array columnOrder = {
    +Ext::LayerModel::RowColumn,     nameColumn, +Ext::LayerModel::TypeColumn, countColumn, contextColumn,
    +Ext::LayerModel::PolarityColumn};

bool isCopper(KVCAM::API::layer_info const & layer)
{
    return hasCopperType(layer) && layer.context == "board";
}

} // namespace

LayerTable::LayerTable(QWidget * parent) : QTableWidget(parent)
{
    prepareTable(*this, {{}, {}, {}, {}, {}, {}});
    setContextMenuPolicy(Qt::DefaultContextMenu); // the menu of a layer instead of the table's actions
    setTextsNowAndLater(*this, [this] { setTitles(); });
    setWordWrap(false);
    horizontalHeader()->setStretchLastSection(true);
    horizontalHeader()->setSectionsClickable(true);
    for (std::size_t place = 0; place < columnOrder.size(); ++place) {
        horizontalHeader()->moveSection(horizontalHeader()->visualIndex(columnOrder.at(place)),
                                        static_cast<int>(place));
    }
    horizontalHeader()->setSortIndicator(0, Qt::AscendingOrder);
    horizontalHeader()->setSortIndicatorShown(true);
    connect(horizontalHeader(), &QHeaderView::sortIndicatorChanged, this, [this] { applyOrder(); });
    connect(this, &QTableWidget::currentCellChanged, this, [this](int row, int, int before, int) {
        if (row != before) {
            emit layerSelected(row);
        }
    });
    connect(this, &QTableWidget::itemChanged, this, [this](QTableWidgetItem const * item) {
        if (item->column() == 0) {
            emit ticksChanged();
        }
    });
}

void LayerTable::setTitles()
{
    QStringList titles;
    for (int column = 0; column < countColumn; ++column) {
        titles.append(m_model.headerData(column, Qt::Horizontal).toString());
    }
    setHorizontalHeaderLabels(titles << tr("Features"));
    horizontalHeaderItem(0)->setToolTip(tr("Ticked layers are drawn beside the selected one (Space)"));
}

void LayerTable::show(Session const & session, std::size_t step)
{
    QSignalBlocker const blocker(this);
    int const selected = currentRow();
    std::vector<std::size_t> const ticked = tickedLayers();
    std::vector<int> hidden;
    for (int row = 0; row < rowCount(); ++row) {
        if (isRowHidden(row)) {
            hidden.push_back(row);
        }
    }
    std::vector<KVCAM::API::layer_info> layers;
    layers.reserve(session.layers().size());
    for (Session::Layer const & layer : session.layers()) {
        layers.push_back(layer.info);
    }
    LayerColours::shown().setLayers(layers);
    m_model.setLayers(std::move(layers));
    setRowCount(0);
    for (Session::Layer const & layer : session.layers()) {
        auto const row = static_cast<std::size_t>(rowCount());
        fillRow(layer, step, std::binary_search(ticked.begin(), ticked.end(), row));
    }
    showColours();
    applyOrder();
    for (int const row : hidden) {
        setRowHidden(row, true);
    }
    applyMatches();
    setCurrentCell(selected, 0);
}

void LayerTable::fillRow(Session::Layer const & layer, std::size_t step, bool isTicked)
{
    bool const isCounted = step < layer.features.size();
    bool const hasFeatures = isCounted && layer.features[step].has_value();
    int const row = rowCount();
    QStringList texts;
    for (int column = 0; column < countColumn; ++column) {
        texts.append(m_model.index(row, column).data().toString());
    }
    addRow(*this, texts << (hasFeatures ? QString::number(*layer.features[step]) : "?"), {countColumn});
    item(row, 0)->setCheckState(isTicked ? Qt::Checked : Qt::Unchecked);
    QString const error = isCounted ? layer.errors[step] : tr("not counted, since reading was stopped");
    QTableWidgetItem & cell = *item(row, countColumn);
    if (!error.isEmpty()) {
        cell.setToolTip(error);
        cell.setForeground(legibleText(QColor(faultColour)));
    } else if (!hasFeatures) {
        cell.setToolTip(tr("the job holds only the tables of this layer"));
    }
}

void LayerTable::useColours(QString const & file)
{
    LayerColours::shown().useFile(file);
    showColours();
    emit coloursChanged();
}

void LayerTable::showColours()
{
    QSignalBlocker const blocker(this);
    for (int row = 0; row < rowCount(); ++row) {
        item(row, 0)->setData(Qt::DecorationRole, LayerColours::shown().of(infoOf(row)));
    }
    viewport()->update();
}

// What a row is sorted by: a number or a text. A count that is not known comes behind all others.
QVariant LayerTable::sortKey(int row, int column) const
{
    if (column != countColumn) {
        return m_model.index(row, column).data(Ext::LayerModel::SortRole);
    }
    bool isKnown = false;
    qlonglong const count = item(row, countColumn)->text().toLongLong(&isKnown);
    return isKnown ? count : std::numeric_limits<qlonglong>::max();
}

// Rows are moved in the header of rows only, so that they keep their numbers. Equal texts stay in matrix
// order.
void LayerTable::applyOrder()
{
    int const column = horizontalHeader()->sortIndicatorSection();
    bool const isDescending = horizontalHeader()->sortIndicatorOrder() == Qt::DescendingOrder;
    std::vector<int> rows(static_cast<std::size_t>(rowCount()));
    std::iota(rows.begin(), rows.end(), 0);
    std::stable_sort(rows.begin(), rows.end(), [&](int a, int b) {
        QVariant const first = sortKey(isDescending ? b : a, column);
        QVariant const second = sortKey(isDescending ? a : b, column);
        return first.type() == QVariant::String ? first.toString() < second.toString()
                                                : first.toLongLong() < second.toLongLong();
    });
    for (int place = 0; place < rowCount(); ++place) {
        int const row = rows[static_cast<std::size_t>(place)];
        verticalHeader()->moveSection(verticalHeader()->visualIndex(row), place);
    }
}

void LayerTable::showMatches(std::vector<bool> matches, bool hidesOthers)
{
    m_matches = std::move(matches);
    m_hidesOthers = hidesOthers;
    applyMatches();
}

void LayerTable::applyMatches()
{
    QSignalBlocker const blocker(this); // a changed colour is not a changed tick
    int const rows = std::min(rowCount(), static_cast<int>(m_matches.size()));
    for (int row = 0; row < rows; ++row) {
        bool const isOut = !m_matches[static_cast<std::size_t>(row)];
        setRowHidden(row, isOut && m_hidesOthers);
        for (int column = 0; column < columnCount(); ++column) {
            QTableWidgetItem & cell = *item(row, column);
            if (cell.foreground().color() != legibleText(QColor(faultColour))) {
                cell.setData(Qt::ForegroundRole, isOut ? QVariant(QBrush(dimmedText())) : QVariant());
            }
        }
    }
    for (int column = 0; column < columnCount(); ++column) {
        if (horizontalHeader()->sectionResizeMode(column) == QHeaderView::ResizeToContents) {
            resizeColumnToContents(column); // the header has measured only part of the rows so far
        }
    }
    updateGeometries();
    viewport()->update();
}

std::vector<std::size_t> LayerTable::tickedLayers() const
{
    std::vector<std::size_t> ticked;
    for (int row = 0; row < rowCount(); ++row) {
        if (item(row, 0)->checkState() == Qt::Checked) {
            ticked.push_back(static_cast<std::size_t>(row));
        }
    }
    return ticked;
}

void LayerTable::tickAll(bool on)
{
    std::vector<std::size_t> rows = on ? tickedLayers() : std::vector<std::size_t>();
    for (int row = 0; row < rowCount(); ++row) {
        bool const isTicked = item(row, 0)->checkState() == Qt::Checked;
        if (isRowHidden(row) ? !on && isTicked : on && !isTicked) {
            rows.push_back(static_cast<std::size_t>(row));
        }
    }
    setTicks(rows);
}

void LayerTable::setTicks(std::vector<std::size_t> const & rows)
{
    {
        QSignalBlocker const blocker(this);
        for (int row = 0; row < rowCount(); ++row) {
            bool const on = std::find(rows.begin(), rows.end(), static_cast<std::size_t>(row)) != rows.end();
            item(row, 0)->setCheckState(on ? Qt::Checked : Qt::Unchecked);
        }
    }
    viewport()->update();
    emit ticksChanged();
}

QString LayerTable::layerName(int row) const
{
    return item(row, nameColumn)->text();
}

void LayerTable::showOnly(int row)
{
    setCurrentCell(row, nameColumn);
    setTicks({});
}

void LayerTable::showCopper()
{
    std::vector<std::size_t> copper;
    for (int row = 0; row < rowCount(); ++row) {
        if (isCopper(infoOf(row))) {
            copper.push_back(static_cast<std::size_t>(row));
        }
    }
    bool const isOnCopper = currentRow() >= 0 && isCopper(infoOf(currentRow()));
    if (!copper.empty() && !isOnCopper) {
        setCurrentCell(static_cast<int>(copper.front()), nameColumn);
    }
    setTicks(copper);
}

void LayerTable::toggleTick(int row)
{
    QTableWidgetItem & tick = *item(row, 0);
    tick.setCheckState(tick.checkState() == Qt::Checked ? Qt::Unchecked : Qt::Checked);
}

void LayerTable::setColour(int row, QColor const & colour)
{
    LayerColours::shown().choose(infoOf(row).name, colour);
    showColours();
    emit coloursChanged();
}

void LayerTable::askForColour(int row)
{
    auto * dialog = new QColorDialog(LayerColours::shown().of(infoOf(row)), this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(tr("Colour of the layer %1").arg(layerName(row)));
    connect(dialog, &QColorDialog::colorSelected, this,
            [this, row](QColor const & colour) { setColour(row, colour); });
    dialog->open();
}

QMenu * LayerTable::makeMenu(int row)
{
    auto * menu = new QMenu(this);
    QString const name = layerName(row);
    menu->addAction(tr("Show only %1").arg(name), this, [this, row] { showOnly(row); });
    menu->addAction(tr("Show all copper"), this, [this] { showCopper(); });
    menu->addAction(item(row, 0)->checkState() == Qt::Checked ? tr("Untick") : tr("Tick"), this,
                    [this, row] { toggleTick(row); });
    menu->addSeparator();
    bool const isOther = currentRow() >= 0 && currentRow() != row;
    QAction * compare = menu->addAction(isOther ? tr("Compare %1 with %2").arg(layerName(currentRow()), name)
                                                : tr("Compare with..."),
                                        this, [this, name] { emit compareWanted(name); });
    compare->setObjectName("compare");
    menu->addAction(tr("Copy the name"), this, [name] { QApplication::clipboard()->setText(name); });
    menu->addSeparator();
    menu->addAction(tr("Colour..."), this, [this, row] { askForColour(row); });
    QAction * own = menu->addAction(tr("Its own colour"), this, [this, row] { setColour(row, {}); });
    own->setEnabled(LayerColours::shown().isChosen(infoOf(row).name));
    return menu;
}

// By key, it is the menu of the selected layer. A right click selects no layer, so that the entry for a
// comparison has two.
void LayerTable::contextMenuEvent(QContextMenuEvent * event)
{
    bool const isByKey = event->reason() == QContextMenuEvent::Keyboard;
    int const row = isByKey ? currentRow() : rowAt(event->pos().y());
    if (row >= 0) {
        QMenu * menu = makeMenu(row);
        menu->setAttribute(Qt::WA_DeleteOnClose);
        menu->popup(isByKey ? viewport()->mapToGlobal(visualItemRect(item(row, nameColumn)).bottomLeft())
                            : event->globalPos());
    }
}

void LayerTable::mousePressEvent(QMouseEvent * event)
{
    if (event->button() != Qt::RightButton) {
        QTableWidget::mousePressEvent(event);
    }
}

void LayerTable::keyPressEvent(QKeyEvent * event)
{
    if (event->key() == Qt::Key_Space && currentRow() >= 0) {
        toggleTick(currentRow());
    } else if (event->key() == Qt::Key_Escape) {
        emit left();
    } else {
        QTableWidget::keyPressEvent(event);
    }
}

// Names in the order shown, without hidden rows.
void LayerTable::keyboardSearch(QString const & typed)
{
    bool const goesOn =
        m_sinceTyped.isValid() && m_sinceTyped.elapsed() < QApplication::keyboardInputInterval();
    m_typed = goesOn ? m_typed + typed : typed;
    m_sinceTyped.start();
    QStringList names;
    std::vector<int> rows;
    int current = -1;
    for (int place = 0; place < rowCount(); ++place) {
        int const row = verticalHeader()->logicalIndex(place);
        if (!isRowHidden(row)) {
            current = row == currentRow() ? names.size() : current;
            names.append(layerName(row));
            rows.push_back(row);
        }
    }
    int const found = foundByTyping(names, current, m_typed);
    if (found >= 0) {
        setCurrentCell(rows[static_cast<std::size_t>(found)], nameColumn);
    }
}

} // namespace Workbench
