#pragma once

#include <QLineF>
#include <QString>
#include <QTransform>

class QPainter;

namespace Workbench {

/// A measured line in both units, that of the view first, with what it covers in x and y:
/// "0.393701 inch (393.701 mil) = 10.000 mm (10000.0 µm), x 10.000 y 0.000 mm". The line is in micrometres.
QString measuredLineText(void const * view, QLineF const & line);

/// Paints the line and its length onto a widget.
void paintMeasuredLine(QPainter & painter, void const * view, QLineF const & line,
                       QTransform const & boardToWidget);

} // namespace Workbench
