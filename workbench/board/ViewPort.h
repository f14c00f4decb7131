#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QTransform>

namespace Workbench {

/// Which part of a board a widget shows: board places are micrometres with y upwards, widget places pixels
/// with y downwards. At home the whole extent is shown, and stays so when the widget or the extent changes;
/// away from home the place in the middle and the scale stay.
class ViewPort
{
public:
    void setSize(QSizeF size);
    void setExtent(QRectF const & extent);

    /// Shows a rectangle of the board whole; an empty one changes nothing.
    void show(QRectF const & box);
    void home();
    bool isHome() const { return m_isHome; }
    /// Changes the scale by a factor; the place of the board at `pixel` stays there. The scale stays between
    /// an eighth of home's and ten pixels for a micrometre; a factor that is no positive number is ignored.
    void zoomAbout(QPointF pixel, double factor);
    /// Moves the board below the widget by pixels.
    void drag(QPointF pixels);
    void centreOn(QPointF place);

    /// Pixels for a micrometre; 0 while there is nothing to show or no room to show it in.
    double scale() const { return m_scale; }
    /// The scale over home's.
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
