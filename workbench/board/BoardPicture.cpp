#include "board/BoardPicture.h"

#include "board/LayerPainter.h"
#include "ui/Colours.h"

#include <QPainter>

#include <utility>

namespace Workbench {

namespace {

constexpr double sharedOpacity = 0.75; // of each layer when several are shown

} // namespace

void BoardPicture::begin(QSize size, double ratio, QTransform const & boardToWidget, QRectF const & visible,
                         QPainterPath profile, std::vector<std::shared_ptr<LayerShapes const>> layers)
{
    m_profile = std::move(profile);
    m_layers = std::move(layers);
    m_layer = 0;
    m_shape = 0;
    m_visible = visible;
    m_transform = boardToWidget;
    m_board = QImage(size * ratio, QImage::Format_ARGB32_Premultiplied);
    m_board.setDevicePixelRatio(ratio);
    m_board.fill(Qt::white);
    m_layerImage = QImage(m_board.size(), QImage::Format_ARGB32_Premultiplied);
    m_layerImage.setDevicePixelRatio(ratio);
    m_layerImage.fill(Qt::transparent);
    if (!m_board.isNull()) {
        paintProfile();
    }
}

void BoardPicture::paintProfile()
{
    QPainter painter(&m_board);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setTransform(m_transform);
    QPen outline(QColor(inkColour), 1.5);
    outline.setCosmetic(true);
    painter.setPen(outline);
    painter.setBrush(QColor("#f3f6ee"));
    painter.drawPath(m_profile);
}

void BoardPicture::work(QDeadlineTimer const & deadline)
{
    while (!isFinished() && m_layer < m_layers.size() && !m_board.isNull()) {
        LayerShapes const & layer = *m_layers[m_layer];
        {
            QPainter painter(&m_layerImage);
            m_shape = paintShapes(painter, layer.shapes(), m_transform, m_visible, layer.colour(), m_shape,
                                  deadline);
        }
        if (m_shape < layer.shapes().size()) {
            return;
        }
        finishLayer();
    }
    m_finished = m_board;
    m_finishedTransform = m_transform;
    m_layer = m_layers.size() + 1;
}

void BoardPicture::finishLayer()
{
    QPainter painter(&m_board);
    painter.setOpacity(opacity());
    painter.drawImage(0, 0, m_layerImage);
    m_layerImage.fill(Qt::transparent);
    ++m_layer;
    m_shape = 0;
}

double BoardPicture::opacity() const
{
    return m_layers.size() > 1 ? sharedOpacity : 1;
}

void BoardPicture::paint(QPainter & painter) const
{
    if (isFinished() || m_finished.isNull()) {
        painter.drawImage(0, 0, m_board);
        if (!isFinished()) {
            painter.setOpacity(opacity());
            painter.drawImage(0, 0, m_layerImage);
            painter.setOpacity(1);
        }
        return;
    }
    double const scale = m_transform.m11() / m_finishedTransform.m11();
    painter.fillRect(painter.viewport(), Qt::white);
    painter.setTransform(QTransform(scale, 0, 0, scale, m_transform.dx() - scale * m_finishedTransform.dx(),
                                    m_transform.dy() - scale * m_finishedTransform.dy()));
    painter.drawImage(0, 0, m_finished);
    painter.setTransform({});
}

} // namespace Workbench
