#pragma once

#include "job/Session.h"

#include <UIAPICommonExt.h>

#include <QElapsedTimer>
#include <QTableWidget>

#include <cstddef>
#include <vector>

class QMenu;

namespace Workbench {

/// The layers of the job; a row's number is the layer's index in matrix order, whatever order the header
/// sorts them into. Ticked layers are drawn below the selected one; Space switches the tick of the selected
/// layer, letters search a name, and Escape leaves the table.
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
    /// Shows the colours that are kept in a settings file, and keeps later ones there.
    void useColours(QString const & file);
    using QTableWidget::show;
    void keyboardSearch(QString const & typed) override;

    // What the menu of a layer does.

    /// Selects the layer and unticks all.
    void showOnly(int row);
    /// Ticks the copper layers of the board and no others; selects one of them.
    void showCopper();
    void toggleTick(int row);
    /// Gives a layer a colour, which is kept; an invalid one gives it back its own.
    void setColour(int row, QColor const & colour);
    /// Opens a dialog for the colour and returns at once.
    void askForColour(int row);
    QString layerName(int row) const;
    /// Owned by the caller.
    QMenu * makeMenu(int row);

signals:
    void layerSelected(int index);
    void ticksChanged();
    /// Colours have changed.
    void coloursChanged();
    /// The selected layer is to be compared with this one.
    void compareWanted(QString const & layer);
    /// The keyboard is to go back to the board.
    void left();

protected:
    void keyPressEvent(QKeyEvent * event) override;
    void contextMenuEvent(QContextMenuEvent * event) override;
    void mousePressEvent(QMouseEvent * event) override;

private:
    void setTitles();
    void fillRow(Session::Layer const & layer, std::size_t step, bool isTicked);
    void applyMatches();
    void applyOrder();
    QVariant sortKey(int row, int column) const;
    KVCAM::API::layer_info const & infoOf(int row) const
    {
        return m_model.layers().at(static_cast<std::size_t>(row));
    }
    void setTicks(std::vector<std::size_t> const & rows);
    void showColours();

    std::vector<bool> m_matches; ///< empty: every layer matches
    bool m_hidesOthers = false;
    KVCAM::UIAPI::Ext::LayerModel m_model;
    QString m_typed; ///< lately, to search for
    QElapsedTimer m_sinceTyped;
};

} // namespace Workbench
