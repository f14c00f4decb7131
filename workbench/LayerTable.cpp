#include "LayerTable.h"

#include "TableTools.h"

#include <QHeaderView>
#include <QSignalBlocker>

namespace Workbench {

LayerTable::LayerTable(QWidget * parent) : QTableWidget(parent)
{
    prepareTable(*this, {tr("Row"), tr("Name"), tr("Context"), tr("Type"), tr("Polarity"), tr("Features")});
    setWordWrap(false);
    horizontalHeader()->setStretchLastSection(false);
    horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
    connect(this, &QTableWidget::currentCellChanged, this, [this](int row, int, int before, int) {
        if (row != before) {
            emit layerSelected(row);
        }
    });
}

void LayerTable::show(Session const & session, std::size_t step)
{
    QSignalBlocker const blocker(this);
    int const selected = currentRow();
    setRowCount(0);
    for (Session::Layer const & layer : session.layers()) {
        int const features = step < layer.features.size() ? layer.features[step] : 0;
        addRow(*this,
               {QString::number(layer.info.row), QString::fromStdString(layer.info.name),
                QString::fromStdString(layer.info.context), QString::fromStdString(layer.info.type),
                QString::fromStdString(layer.info.polarity), QString::number(features)},
               {0, 5});
    }
    setCurrentCell(selected, 0);
}

} // namespace Workbench
