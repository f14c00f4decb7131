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
        bool const isCounted = step < layer.features.size();
        std::optional<int> const features = isCounted ? layer.features[step] : std::nullopt;
        addRow(*this,
               {QString::number(layer.info.row), QString::fromStdString(layer.info.name),
                QString::fromStdString(layer.info.context), QString::fromStdString(layer.info.type),
                QString::fromStdString(layer.info.polarity), features ? QString::number(*features) : "?"},
               {0, 5});
        QString const error = isCounted ? layer.errors[step] : tr("not counted, since reading was stopped");
        QTableWidgetItem & cell = *item(rowCount() - 1, 5);
        if (!error.isEmpty()) {
            cell.setToolTip(error);
            cell.setForeground(QColor("#b00020"));
        } else if (!features) {
            cell.setToolTip(tr("the job holds only the tables of this layer"));
        }
    }
    setCurrentCell(selected, 0);
}

} // namespace Workbench
