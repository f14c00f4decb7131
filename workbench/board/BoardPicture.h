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

/// The picture of some layers over a board's profile at one place and scale. It is made in slices of time, so
/// that the window stays responsive however much there is to draw. Until it is finished, the previous picture
/// is shown moved and scaled.
class BoardPicture
{
public:
    /// Starts a new picture. The first layer is at the bottom. Each layer is drawn on its own, so that
    /// negative features erase only their own layer. `size` is in widget pixels, `ratio` is picture pixels
    /// per widget pixel.
    void begin(QSize size, double ratio, QTransform const & boardToWidget, QRectF const & visible,
               QPainterPath profile, std::vector<std::shared_ptr<LayerShapes const>> layers);
    bool isFinished() const { return m_layer > m_layers.size(); }
    /// Continues until the picture is finished or the deadline has passed.
    void work(QDeadlineTimer const & deadline);
    /// Paints the current state onto a widget.
    void paint(QPainter & painter) const;

private:
    void paintProfile();
    void finishLayer();
    double opacity() const;

    QPainterPath m_profile;
    std::vector<std::shared_ptr<LayerShapes const>> m_layers;
    std::size_t m_layer = 1; // being painted; past the end when the picture is finished
    std::size_t m_shape = 0; // the next one in that layer
    QRectF m_visible;
    QTransform m_transform; // board to widget
    QImage m_board;
    QImage m_layerImage;
    QImage m_finished; // the latest finished picture and its transform
    QTransform m_finishedTransform;
};

} // namespace Workbench
