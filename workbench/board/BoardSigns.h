#pragma once

#include <QColor>
#include <QPointF>
#include <QRectF>
#include <QString>
#include <QTransform>

#include <vector>

class QPainter;

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

/// Paints the marks that a widget shows; the last one lies on top.
void paintMarks(QPainter & painter, std::vector<Mark> const & marks, QTransform const & boardToWidget);
/// The index of the uppermost mark at a place of the widget, -1 for none.
int markAt(QPointF pixel, std::vector<Mark> const & marks, QTransform const & boardToWidget);

/// Paints a length scale into the left lower corner: the largest round length in the unit of a view that
/// takes at most 160 pixels. `scale` is in pixels for a micrometre.
void paintLengthScale(QPainter & painter, void const * view, double scale);

} // namespace Workbench
