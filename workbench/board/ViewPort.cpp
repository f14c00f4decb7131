#include "board/ViewPort.h"

#include <qnamespace.h>

#include <algorithm>
#include <cmath>

namespace Workbench {

namespace {

constexpr double margin = 28;    // pixels around the board, with room for the scale bar
constexpr double mostScale = 10; // pixels per micrometre
constexpr double leastZoom = 0.125;
constexpr double zoomStep = 1.5;   // of a key
constexpr double wheelStep = 1.25; // of one notch of the wheel
constexpr double panStep = 0.1;    // of a key, in sizes of the view

bool isFinite(QPointF point)
{
    return std::isfinite(point.x()) && std::isfinite(point.y());
}

} // namespace

void ViewPort::setSize(QSizeF size)
{
    m_size = size;
    if (m_isHome || m_scale <= 0) {
        home();
    }
}

void ViewPort::setExtent(QRectF const & extent)
{
    m_extent = extent;
    if (m_isHome || m_scale <= 0) {
        home();
    }
}

double ViewPort::scaleFor(QRectF const & box) const
{
    double const room[] = {m_size.width() - 2 * margin, m_size.height() - 2 * margin};
    if (!(box.width() > 0 || box.height() > 0) || room[0] <= 0 || room[1] <= 0) {
        return 0;
    }
    return std::min(box.width() > 0 ? room[0] / box.width() : mostScale,
                    box.height() > 0 ? room[1] / box.height() : mostScale);
}

void ViewPort::show(QRectF const & box)
{
    double const scale = scaleFor(box);
    if (scale > 0) {
        m_scale = std::min(scale, mostScale);
        m_centre = box.center();
        m_isHome = false;
    }
}

void ViewPort::home()
{
    m_scale = std::min(scaleFor(m_extent), mostScale);
    m_centre = m_extent.center();
    m_isHome = true;
}

bool ViewPort::press(int key)
{
    QPointF const step(panStep * m_size.width(), panStep * m_size.height());
    QPointF const middle(m_size.width() / 2, m_size.height() / 2);
    switch (key) {
    case Qt::Key_Left:
        drag({step.x(), 0});
        break;
    case Qt::Key_Right:
        drag({-step.x(), 0});
        break;
    case Qt::Key_Up:
        drag({0, step.y()});
        break;
    case Qt::Key_Down:
        drag({0, -step.y()});
        break;
    case Qt::Key_Plus:
    case Qt::Key_Equal: // the plus key without Shift on many keyboards
        zoomAbout(middle, zoomStep);
        break;
    case Qt::Key_Minus:
        zoomAbout(middle, 1 / zoomStep);
        break;
    case Qt::Key_Home:
        home();
        break;
    default:
        return false;
    }
    return true;
}

void ViewPort::turn(QPointF pixel, int angle)
{
    zoomAbout(pixel, std::pow(wheelStep, angle / 120.0));
}

void ViewPort::zoomAbout(QPointF pixel, double factor)
{
    if (m_scale <= 0 || !(factor > 0) || !std::isfinite(factor)) {
        return;
    }
    double const least = std::min(m_scale, leastZoom * std::min(scaleFor(m_extent), mostScale));
    double const scale = std::min(std::max(m_scale * factor, least), mostScale);
    QPointF const place = toBoard(pixel);
    m_centre = place + (m_centre - place) * (m_scale / scale);
    m_isHome = m_isHome && scale == m_scale;
    m_scale = scale;
}

void ViewPort::drag(QPointF pixels)
{
    if (m_scale > 0 && isFinite(pixels) && !pixels.isNull()) {
        m_centre -= QPointF(pixels.x(), -pixels.y()) / m_scale;
        m_isHome = false;
    }
}

void ViewPort::centreOn(QPointF place)
{
    if (m_scale > 0 && isFinite(place)) {
        m_centre = place;
        m_isHome = false;
    }
}

double ViewPort::zoom() const
{
    double const home = scaleFor(m_extent);
    return home > 0 ? m_scale / std::min(home, mostScale) : 1;
}

QTransform ViewPort::boardToWidget() const
{
    if (m_scale <= 0) {
        return {};
    }
    QTransform transform;
    transform.translate(m_size.width() / 2, m_size.height() / 2);
    transform.scale(m_scale, -m_scale); // the board's y axis points upwards
    transform.translate(-m_centre.x(), -m_centre.y());
    return transform;
}

// Not by the inverted transform: for a very large board Qt takes the scale for zero.
QPointF ViewPort::toBoard(QPointF pixel) const
{
    if (m_scale <= 0) {
        return pixel;
    }
    return m_centre + QPointF(pixel.x() - m_size.width() / 2, m_size.height() / 2 - pixel.y()) / m_scale;
}

QRectF ViewPort::visible() const
{
    return QRectF(toBoard({0, m_size.height()}), toBoard({m_size.width(), 0}));
}

} // namespace Workbench
