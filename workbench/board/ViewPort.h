#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QTransform>

namespace Workbench {

/// The part of a board that a widget shows. Board places are in micrometres with y upwards, widget places in
/// pixels with y downwards. At home the whole extent is shown, also after the widget or the extent has
/// changed; away from home the place in the middle and the scale are kept.
class ViewPort
{
public:
    void setSize(QSizeF size);
    QSizeF size() const { return m_size; }
    void setExtent(QRectF const & extent);

    /// Shows a whole rectangle of the board; an empty one is ignored.
    void show(QRectF const & box);
    void home();
    bool isHome() const { return m_isHome; }
    /// Changes the scale by a factor and keeps the place at `pixel`. The scale stays between an eighth of
    /// home's and ten pixels per micrometre. A factor that is not a positive number is ignored.
    void zoomAbout(QPointF pixel, double factor);
    /// Moves the board by widget pixels.
    void drag(QPointF pixels);
    void centreOn(QPointF place);
    /// What a key does: arrows move, + and - zoom about the middle, Home shows the whole extent. False for
    /// any other key.
    bool press(int key);
    /// Zooms about `pixel` by a turn of the wheel, in eighths of a degree.
    void turn(QPointF pixel, int angle);

    /// Pixels per micrometre; 0 while there is nothing to show or no room for it.
    double scale() const { return m_scale; }
    /// The scale relative to home's.
    double zoom() const;
    QTransform boardToWidget() const;
    QPointF toBoard(QPointF pixel) const;
    /// The part of the board that the widget shows.
    QRectF visible() const;

private:
    double scaleFor(QRectF const & box) const;

    QSizeF m_size;
    QRectF m_extent;
    QPointF m_centre;
    double m_scale = 0;
    bool m_isHome = true;
};

} // namespace Workbench
