#pragma once

#include "Session.h"

#include <QTableWidget>

namespace Workbench {

/// The layers of the job in matrix order.
class LayerTable : public QTableWidget
{
    Q_OBJECT

public:
    explicit LayerTable(QWidget * parent = nullptr);
    /// Shows the layers with their feature counts in one step.
    void show(Session const & session, std::size_t step);
    /// The index of the selected layer, -1 for none.
    int selectedLayer() const { return currentRow(); }
    using QTableWidget::show;

signals:
    void layerSelected(int index);
};

} // namespace Workbench
