#include "LayerTable.h"

#include <QHeaderView>
#include <QSignalBlocker>

namespace Workbench {

LayerTable::LayerTable(QWidget * parent) : QTableWidget(parent)
{
    QStringList const titles{tr("Row"),  tr("Name"),     tr("Context"),
                             tr("Type"), tr("Polarity"), tr("Features")};
    setColumnCount(titles.size());
    setHorizontalHeaderLabels(titles);
    horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    horizontalHeader()->setStretchLastSection(true);
    horizontalHeader()->setHighlightSections(false);
    verticalHeader()->hide();
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setAlternatingRowColors(true);
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
    setRowCount(static_cast<int>(session.layers().size()));
    int row = 0;
    for (Session::Layer const & layer : session.layers()) {
        int const features = step < layer.features.size() ? layer.features[step] : 0;
        QString const texts[] = {QString::number(layer.info.row),
                                 QString::fromStdString(layer.info.name),
                                 QString::fromStdString(layer.info.context),
                                 QString::fromStdString(layer.info.type),
                                 QString::fromStdString(layer.info.polarity),
                                 QString::number(features)};
        int column = 0;
        for (QString const & text : texts) {
            auto * item = new QTableWidgetItem(text);
            if (column == 0 || column == columnCount() - 1) {
                item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            }
            setItem(row, column++, item);
        }
        ++row;
    }
    setCurrentCell(selected, 0);
}

} // namespace Workbench
