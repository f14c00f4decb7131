#pragma once

#include "board/BoardPicture.h"
#include "board/BoardSigns.h"
#include "board/FeatureSelection.h"
#include "board/LayerShapes.h"
#include "board/PanelSteps.h"
#include "board/ViewPort.h"
#include "ui/Units.h"

#include <QLineF>
#include <QTimer>
#include <QWidget>

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace Workbench {

/// The graphic view of one step, and the handle under which the library keeps its state: the view registers
/// itself on construction and shows lengths in its own unit. The library never forgets a view, so views live
/// as long as the window.
///
/// The wheel zooms about the pointer, dragging moves the board, a click picks a mark or selects the
/// feature there alone, a further click the next larger one there, and Ctrl with a click toggles a feature's
/// selection. With the focus, arrows move, + and - zoom, and Home shows the whole board. Zoom and place stay
/// when the layer or the unit changes.
class BoardView : public QWidget
{
    Q_OBJECT

public:
    BoardView(std::string job, std::string step, Unit unit, QWidget * parent = nullptr);

    std::string const & job() const { return m_job; }
    std::string const & step() const { return m_step; }
    /// The handle for the library's functions.
    void const * handle() const { return static_cast<QWidget const *>(this); }

    /// Sets the layer to work on: it is drawn on top, and its features can be selected.
    void showLayer(KVCAM::API::layer_info const & layer);
    /// Draws these layers below it, the first one on top.
    void showBackgroundLayers(std::vector<KVCAM::API::layer_info> layers);
    /// Reads the layers again after the engine's features have changed.
    void reload();
    /// Waits until the picture is finished; otherwise it is made beside the program.
    void finishPicture();
    /// Selects these features of the shown layer. Showing another layer or reading the layers again clears
    /// the selection.
    void select(FeatureSelection::Set features);
    FeatureSelection::Set const & selected() const { return m_selected; }
    std::vector<KVCAM::API::feature_info> const & features() const { return m_shown->features(); }
    /// Their shapes, in the same order. Waits until they are made.
    std::vector<FeatureShape> const & shapes() const { return m_shown->shapes(); }
    std::string const & layer() const { return m_shown->info().name; }
    /// Why nothing is drawn; empty when something is.
    QString emptyText() const;

    /// Replaces the marks; the last one is on top. They stay when another layer is shown.
    void setMarks(std::vector<Mark> marks);
    std::vector<Mark> const & marks() const { return m_marks; }
    /// Shows a measured line (micrometres), or none.
    void setMeasure(std::optional<QLineF> line)
    {
        m_measure = line;
        update();
    }
    std::optional<QLineF> const & measure() const { return m_measure; }
    QPainterPath const & profile() const { return m_profile; }
    /// What a number of pixels is on the board; 0 while nothing is shown.
    double micrometresOf(double pixels) const { return m_port.scale() > 0 ? pixels / m_port.scale() : 0; }
    /// Centres a place (micrometres) at four times the home scale, or at the current scale if that is larger.
    /// A place that is not finite is ignored.
    void centreOn(double x, double y);
    /// The widget position of a place in micrometres.
    QPointF pixelOf(double x, double y) const { return boardToWidget().map(QPointF(x, y)); }
    /// The scale relative to that which shows the whole board.
    double zoom() const { return m_port.zoom(); }

    QSize sizeHint() const override { return {640, 520}; }

public slots:
    /// Shows the whole board.
    void zoomHome();
    /// Shows all features of the shown layers, including those outside the board.
    void zoomFit();
    /// Both about the middle.
    void zoomIn();
    void zoomOut();
    /// Moves the view by a fraction of its size: (1, 0) shows what was to the right, (0, 1) what was above.
    void pan(QPointF fraction);

signals:
    /// A mark was clicked; `index` counts in marks().
    void markPicked(int index);
    /// The part of the board that is shown, or its scale, has changed.
    void portChanged();
    /// The pointer has moved; the library's coordinate read-out holds its place on the board.
    void pointerMoved();
    /// The Delete key was pressed: the selected features are to be deleted.
    void deleteAsked();
    /// The user has selected or deselected a feature.
    void selectionChanged();
    /// Other features are selected, by whatever, or the layers were read again.
    void selectionShown();

protected:
    bool event(QEvent * event) override;
    void paintEvent(QPaintEvent * event) override;
    void resizeEvent(QResizeEvent * event) override;
    void wheelEvent(QWheelEvent * event) override;
    void mouseMoveEvent(QMouseEvent * event) override;
    void mousePressEvent(QMouseEvent * event) override;
    void mouseReleaseEvent(QMouseEvent * event) override;
    void keyPressEvent(QKeyEvent * event) override;

private:
    QTransform boardToWidget() const { return m_port.boardToWidget(); }
    std::shared_ptr<LayerShapes const> shapesOf(KVCAM::API::layer_info const & layer);
    void updateLayers();
    void changePort();
    void beginPicture();
    void pickAt(QPointF pixel);
    void selectAt(QPointF pixel, bool toggles);

    std::string m_job;
    std::string m_step;
    QPainterPath m_profile;
    PanelSteps m_panel;
    std::vector<KVCAM::API::layer_info> m_background;
    std::map<std::string, std::shared_ptr<LayerShapes const>> m_known; // the layers that are shown, by name
    std::shared_ptr<LayerShapes const> m_shown;
    std::vector<Mark> m_marks;
    std::optional<QLineF> m_measure;
    ViewPort m_port;
    BoardPicture m_picture;
    bool m_isStale = true; // a new picture has to be started
    QTimer m_late;
    FeatureSelection::Set m_selected;
    QPointF m_pressedAt;
    QPointF m_draggedTo;
    bool m_isDragging = false;
};

} // namespace Workbench
