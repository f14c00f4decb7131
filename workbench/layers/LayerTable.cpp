#include "layers/LayerTable.h"

#include "board/LayerShapes.h"
#include "ui/Colours.h"
#include "ui/LanguageChange.h"
#include "ui/Legible.h"
#include "ui/TableTools.h"

#include <QBrush>
#include <QColor>
#include <QHeaderView>
#include <QKeyEvent>
#include <QSignalBlocker>

#include <algorithm>
#include <utility>

namespace Workbench {

LayerTable::LayerTable(QWidget * parent) : QTableWidget(parent)
{
    prepareTable(*this, {{}, {}, {}, {}, {}, {}});
    setTextsNowAndLater(*this, [this] { setTitles(); });
    setWordWrap(false);
    horizontalHeader()->setStretchLastSection(false);
    horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
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
    setHorizontalHeaderLabels(
        {tr("Row"), tr("Name"), tr("Context"), tr("Type"), tr("Polarity"), tr("Features")});
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
    setRowCount(0);
    for (Session::Layer const & layer : session.layers()) {
        bool const isCounted = step < layer.features.size();
        bool const hasFeatures = isCounted && layer.features[step].has_value();
        addRow(*this,
               {QString::number(layer.info.row), QString::fromStdString(layer.info.name),
                QString::fromStdString(layer.info.context), QString::fromStdString(layer.info.type),
                QString::fromStdString(layer.info.polarity),
                hasFeatures ? QString::number(*layer.features[step]) : "?"},
               {5});
        QTableWidgetItem & tick = *item(rowCount() - 1, 0);
        bool const isTicked =
            std::binary_search(ticked.begin(), ticked.end(), static_cast<std::size_t>(rowCount() - 1));
        tick.setCheckState(isTicked ? Qt::Checked : Qt::Unchecked);
        tick.setData(Qt::DecorationRole, layerColour(layer.info));
        QString const error = isCounted ? layer.errors[step] : tr("not counted, since reading was stopped");
        QTableWidgetItem & cell = *item(rowCount() - 1, 5);
        if (!error.isEmpty()) {
            cell.setToolTip(error);
            cell.setForeground(legibleText(QColor(faultColour)));
        } else if (!hasFeatures) {
            cell.setToolTip(tr("the job holds only the tables of this layer"));
        }
    }
    for (int const row : hidden) {
        setRowHidden(row, true);
    }
    applyMatches();
    setCurrentCell(selected, 0);
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
    {
        QSignalBlocker const blocker(this);
        for (int row = 0; row < rowCount(); ++row) {
            if (!isRowHidden(row)) {
                item(row, 0)->setCheckState(on ? Qt::Checked : Qt::Unchecked);
            }
        }
    }
    viewport()->update();
    emit ticksChanged();
}

void LayerTable::keyPressEvent(QKeyEvent * event)
{
    if (event->key() == Qt::Key_Space && currentRow() >= 0) {
        QTableWidgetItem & tick = *item(currentRow(), 0);
        tick.setCheckState(tick.checkState() == Qt::Checked ? Qt::Unchecked : Qt::Checked);
        return;
    }
    QTableWidget::keyPressEvent(event);
}

} // namespace Workbench
