#pragma once

#include <QPainterPath>
#include <QPointF>
#include <QTransform>

namespace Workbench {

/// From the own coordinates of a pad or a repeated step to the board's: turned clockwise (degrees), then
/// mirrored in x, then moved. Exact for quarter turns.
QTransform placement(QPointF place, double angle, bool mirrored);

/// A copy without the vertices that are nearer than `tolerance` to the one before; the last vertex of each
/// part is kept. It shares nothing with the path, so another thread may paint it.
QPainterPath thinned(QPainterPath const & path, double tolerance);

/// Computes what a path works out when it is first asked, so that threads may then read it together.
void settle(QPainterPath const & path);

} // namespace Workbench
