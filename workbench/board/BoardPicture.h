#pragma once

#include "board/LayerShapes.h"

#include <QDeadlineTimer>
#include <QImage>
#include <QPainterPath>
#include <QRectF>
#include <QTransform>

#include <cstddef>
#include <memory>
#include <vector>

class QPainter;

namespace Workbench {

/// The picture of layers over a board's profile at one place and scale, made in slices of time so that a
/// window stays responsive however much there is to draw. Until it is finished the one before stands in for
/// it, moved and scaled.
class BoardPicture
{
public:
    /// Begins anew. The first layer lies lowest; each is drawn apart, so that what is negative in one erases
    /// nothing of the others. `size` is in pixels of the widget, `ratio` how many of the picture make up one.
    void begin(QSize size, double ratio, QTransform const & boardToWidget, QRectF const & visible,
               QPainterPath profile, std::vector<std::shared_ptr<LayerShapes const>> layers);
    bool isFinished() const { return m_layer > m_layers.size(); }
    /// Goes on until the picture is finished or the deadline has passed.
    void work(QDeadlineTimer const & deadline);
    /// Paints what there is onto a widget.
    void paint(QPainter & painter) const;

private:
    void paintProfile();
    void finishLayer();
    double opacity() const;

    QPainterPath m_profile;
    std::vector<std::shared_ptr<LayerShapes const>> m_layers;
    std::size_t m_layer = 1; // which is being painted; past the end when the picture is finished
    std::size_t m_shape = 0; // where to go on in it
    QRectF m_visible;
    QTransform m_transform; // from the board to the widget
    QImage m_board;
    QImage m_layerImage;
    QImage m_finished; // the latest whole picture and its transform
    QTransform m_finishedTransform;
};

} // namespace Workbench
