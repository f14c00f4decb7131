#pragma once

#include "FeatureShapes.h"
#include "ViewPort.h"

#include <QColor>
#include <QPixmap>
#include <QWidget>

#include <vector>

namespace Workbench {

/// A place of the board to be pointed out: a lettered sign that keeps its size at every zoom.
struct Mark
{
    double x = 0; ///< micrometres
    double y = 0;
    QColor colour;
    QString letter;
    QString toolTip;
};

/// The graphic view of one step, and as such the handle under which the library keeps its state: the view
/// registers itself when it is made and shows lengths in its own unit. The library never forgets a view, so
/// views live as long as the window.
class BoardView : public QWidget
{
    Q_OBJECT

public:
    BoardView(std::string job, std::string step, int unit, QWidget * parent = nullptr);

    std::string const & step() const { return m_step; }
    /// What the library calls this view.
    void const * handle() const { return static_cast<QWidget const *>(this); }

    /// Draws a layer of the step over its profile.
    void showLayer(KVCAM::API::layer_info const & layer);
    /// Marks a feature of the shown layer; -1 marks none.
    void markFeature(int feature);
    std::vector<KVCAM::API::feature_info> const & features() const { return m_features; }
    /// Their pictures, in the same order.
    std::vector<FeatureShape> const & shapes() const { return m_shapes; }
    std::string const & layer() const { return m_layer; }

    /// Shows these marks in place of those before, the last one on top; they stay when another layer is
    /// shown.
    void setMarks(std::vector<Mark> marks);
    std::vector<Mark> const & marks() const { return m_marks; }
    /// Brings a place in micrometres into the middle, at four times home's scale or what is larger already. A
    /// place that is not finite changes nothing.
    void centreOn(double x, double y);
    /// The scale over the one at which the whole board is shown.
    double zoom() const { return m_port.zoom(); }

    /// A position in micrometres as text in the view's unit: "x 0.100 y 0.250 inch".
    QString positionText(double x, double y) const;
    /// A size in micrometres as text in the view's unit: "3.000 x 3.000 inch".
    QString sizeText(double width, double height) const;

    QSize sizeHint() const override { return {640, 520}; }

public slots:
    /// Shows the whole board.
    void zoomHome();
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

protected:
    bool event(QEvent * event) override;
    void paintEvent(QPaintEvent * event) override;
    void resizeEvent(QResizeEvent * event) override;
    void wheelEvent(QWheelEvent * event) override;
    void mouseMoveEvent(QMouseEvent * event) override;
    void mousePressEvent(QMouseEvent * event) override;

private:
    QTransform boardToWidget() const { return m_port.boardToWidget(); }
    void changePort();
    int markAt(QPointF pixel) const;
    void paintMarks(QPainter & painter) const;
    void paintBoard(QPainter & painter, QTransform const & transform) const;
    void paintScale(QPainter & painter, QTransform const & transform) const;

    std::string m_job;
    std::string m_step;
    std::string m_layer;
    QColor m_colour;
    QPainterPath m_profile;
    std::vector<KVCAM::API::feature_info> m_features;
    std::vector<FeatureShape> m_shapes;
    std::vector<Mark> m_marks;
    ViewPort m_port;
    QPixmap m_picture;
    int m_marked = -1;
};

} // namespace Workbench
