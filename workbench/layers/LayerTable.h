#pragma once

#include "job/Session.h"

#include <QTableWidget>

#include <cstddef>
#include <vector>

namespace Workbench {

/// The layers of the job in matrix order. Ticked layers are drawn below the selected one; Space switches the
/// tick of the selected layer.
class LayerTable : public QTableWidget
{
    Q_OBJECT

public:
    explicit LayerTable(QWidget * parent = nullptr);
    /// Shows the layers with their feature counts in one step; ticks and hidden rows are kept.
    void show(Session const & session, std::size_t step);
    /// The index of the selected layer, -1 for none.
    int selectedLayer() const { return currentRow(); }
    /// The indices of the ticked layers, ascending.
    std::vector<std::size_t> tickedLayers() const;
    void tickAll(bool on);
    /// Hides or greys the layers that do not match; one entry per layer.
    void showMatches(std::vector<bool> matches, bool hidesOthers);
    using QTableWidget::show;

signals:
    void layerSelected(int index);
    void ticksChanged();

protected:
    void keyPressEvent(QKeyEvent * event) override;

private:
    void setTitles();
    void applyMatches();

    std::vector<bool> m_matches; ///< empty: every layer matches
    bool m_hidesOthers = false;
};

} // namespace Workbench
