#pragma once

#include "board/BoardPicture.h"
#include "board/BoardSigns.h"
#include "board/FeatureSelection.h"
#include "board/LayerShapes.h"
#include "board/ViewPort.h"

#include <QTimer>
#include <QWidget>

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace Workbench {

/// The graphic view of one step, and as such the handle under which the library keeps its state: the view
/// registers itself when it is made and shows lengths in its own unit. The library never forgets a view, so
/// views live as long as the window.
///
/// The wheel zooms about the pointer, dragging moves the board, a click picks a mark or a pad, Ctrl and a
/// click selects a feature or takes it out. With the focus the arrows move, + and - zoom, Home shows the
/// whole board. Zoom and place stay when the layer or the unit changes.
class BoardView : public QWidget
{
    Q_OBJECT

public:
    BoardView(std::string job, std::string step, int unit, QWidget * parent = nullptr);

    std::string const & job() const { return m_job; }
    std::string const & step() const { return m_step; }
    /// What the library calls this view.
    void const * handle() const { return static_cast<QWidget const *>(this); }

    /// Makes a layer the one that is worked on: it is drawn on top, and its pads can be picked.
    void showLayer(KVCAM::API::layer_info const & layer);
    /// Draws these layers below it, the first one uppermost.
    void showBackgroundLayers(std::vector<KVCAM::API::layer_info> layers);
    /// Reads the layers again: the engine's features have changed.
    void reload();
    /// Finishes the picture, which is otherwise made while the program has nothing else to do.
    void finishPicture();
    /// Marks a feature of the shown layer; -1 marks none.
    void markFeature(int feature);
    /// Makes these features of the shown layer the selected ones; none are when another layer is shown or the
    /// layers are read again.
    void select(FeatureSelection::Set features);
    FeatureSelection::Set const & selected() const { return m_selected; }
    std::vector<KVCAM::API::feature_info> const & features() const { return m_shown->features(); }
    /// Their pictures, in the same order.
    std::vector<FeatureShape> const & shapes() const { return m_shown->shapes(); }
    std::string const & layer() const { return m_shown->info().name; }
    /// Why nothing is drawn; empty when something is.
    QString emptyText() const;

    /// Shows these marks in place of those before, the last one on top; they stay when another layer is
    /// shown.
    void setMarks(std::vector<Mark> marks);
    std::vector<Mark> const & marks() const { return m_marks; }
    /// Brings a place in micrometres into the middle, at four times home's scale or what is larger already. A
    /// place that is not finite changes nothing.
    void centreOn(double x, double y);
    /// Where a place in micrometres lies on the widget.
    QPointF pixelOf(double x, double y) const { return boardToWidget().map(QPointF(x, y)); }
    /// The scale over the one at which the whole board is shown.
    double zoom() const { return m_port.zoom(); }

    QSize sizeHint() const override { return {640, 520}; }

public slots:
    /// Shows the whole board.
    void zoomHome();
    /// Shows all features of the shown layers, beyond the board as well.
    void zoomFit();
    /// About the middle.
    void zoomIn();
    void zoomOut();
    /// Moves the view by a fraction of its size: (1, 0) shows what lay right of it, (0, 1) what lay above.
    void pan(QPointF fraction);

signals:
    /// A click on a mark; `index` counts in marks().
    void markPicked(int index);
    /// What part of the board is shown, or at what scale, has changed.
    void portChanged();
    /// The pointer is at another place of the board; the library's coordinate read-out holds it.
    void pointerMoved();
    void padPicked(int feature);
    /// The Delete key: the selected features shall go.
    void deleteAsked();
    /// The user has selected a feature or taken it out.
    void selectionChanged();

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
    void goOnWithPicture();
    void pickAt(QPointF pixel);
    void selectAt(QPointF pixel);
    void paintMarkedFeature(QPainter & painter) const;

    std::string m_job;
    std::string m_step;
    QPainterPath m_profile;
    std::vector<KVCAM::API::layer_info> m_background;
    std::map<std::string, std::shared_ptr<LayerShapes const>> m_known; // of the shown layers, by name
    std::shared_ptr<LayerShapes const> m_shown;
    std::vector<Mark> m_marks;
    ViewPort m_port;
    BoardPicture m_picture;
    bool m_isStale = true; // the picture is to be begun anew
    QTimer m_goOn;
    int m_marked = -1;
    FeatureSelection::Set m_selected;
    QPointF m_pressedAt;
    QPointF m_draggedTo;
    bool m_isDragging = false;
};

} // namespace Workbench
