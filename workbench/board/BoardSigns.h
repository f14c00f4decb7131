#pragma once

#include <QColor>
#include <QPointF>
#include <QRectF>
#include <QString>
#include <QTransform>

#include <vector>

class QPainter;

namespace Workbench {

/// A place on the board to point out: a letter in a disc that has the same size at every zoom.
struct Mark
{
    double x = 0; ///< micrometres
    double y = 0;
    QColor colour;
    QString letter;
    QString toolTip;
    bool isFaint = false; ///< the board may have changed since
};

/// Paints marks onto a widget; the last one is on top.
void paintMarks(QPainter & painter, std::vector<Mark> const & marks, QTransform const & boardToWidget);
/// The index of the uppermost mark at a place on the widget; -1 for none.
int markAt(QPointF pixel, std::vector<Mark> const & marks, QTransform const & boardToWidget);

/// Paints a scale bar into the lower left corner: the largest round length, in the unit of a view, that fits
/// into 160 pixels. `scale` is in pixels per micrometre.
void paintLengthScale(QPainter & painter, void const * view, double scale);

} // namespace Workbench
