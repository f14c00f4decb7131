#include "layers/CompareView.h"

#include "ui/LanguageChange.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>
#include <utility>

namespace Workbench {

namespace {

constexpr double around = 4;   // what is shown around a region, in its sizes
constexpr double frameGap = 4; // pixels between a region and its frame

} // namespace

CompareView::CompareView(QWidget * parent) : QWidget(parent)
{
    setMinimumSize(240, 200);
    setCursor(Qt::CrossCursor);
    setFocusPolicy(Qt::StrongFocus);
    setTextsNowAndLater(*this, [this] { setAccessibleName(tr("Comparison of two layers")); });
}

void CompareView::setLayers(std::shared_ptr<ComparedLayers const> layers)
{
    m_work.cancel();
    m_layers = std::move(layers);
    m_picture = {};
    m_framed = {};
    m_extent = m_layers != nullptr ? m_layers->extent() : QRectF();
    m_port.setSize(size());
    m_port.setExtent(m_extent);
    m_port.home();
    changePort();
}

void CompareView::showRegion(QRectF const & box)
{
    double const gap = around * std::max({box.width(), box.height(), 1.0});
    m_framed = box;
    m_port.show(box.adjusted(-gap, -gap, gap, gap) & joined(m_extent, box));
    changePort();
}

QRectF CompareView::visible() const
{
    return m_port.visible() & m_extent;
}

void CompareView::changePort()
{
    m_isStale = m_layers != nullptr && m_port.scale() > 0;
    update();
}

void CompareView::beginPicture()
{
    m_isStale = false;
    auto const picture = std::make_shared<QImage>();
    double const ratio = devicePixelRatioF();
    QTransform const transform = m_port.boardToWidget();
    m_work.begin(
        [=, layers = m_layers, size = size() * ratio](BackgroundWork::Cancelled const & cancelled) {
            *picture =
                paintComparison(*layers, transform * QTransform::fromScale(ratio, ratio), size, cancelled);
        },
        [=](bool /*isWhole*/) {
            m_picture = *picture;
            m_picture.setDevicePixelRatio(ratio);
            m_pictureTransform = transform;
            update();
        });
}

void CompareView::paintEvent(QPaintEvent * /*event*/)
{
    if (m_isStale) {
        beginPicture();
    }
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    QTransform const shown = m_port.boardToWidget();
    if (m_layers != nullptr && !m_picture.isNull()) {
        painter.setTransform(m_pictureTransform.inverted() * shown);
        painter.drawImage(0, 0, m_picture);
        painter.setTransform({});
    }
    if (!m_framed.isNull()) {
        QRectF const frame = shown.mapRect(m_framed).adjusted(-frameGap, -frameGap, frameGap, frameGap);
        painter.setPen(QPen(Qt::black, 1, Qt::DashLine));
        painter.drawRect(frame);
    }
    if (hasFocus()) {
        painter.setPen(QPen(palette().highlight().color(), 2));
        painter.drawRect(rect().adjusted(1, 1, -1, -1));
    }
}

void CompareView::resizeEvent(QResizeEvent * /*event*/)
{
    m_port.setSize(size());
    changePort();
}

void CompareView::wheelEvent(QWheelEvent * event)
{
    m_port.turn(event->position(), event->angleDelta().y());
    changePort();
    event->accept();
}

void CompareView::mousePressEvent(QMouseEvent * event)
{
    m_draggedTo = event->localPos();
}

void CompareView::mouseMoveEvent(QMouseEvent * event)
{
    m_port.drag(event->localPos() - m_draggedTo);
    m_draggedTo = event->localPos();
    changePort();
}

void CompareView::keyPressEvent(QKeyEvent * event)
{
    if (!m_port.press(event->key())) {
        return QWidget::keyPressEvent(event);
    }
    changePort();
}

} // namespace Workbench
