#pragma once

#include "board/FeatureShapes.h"

#include <QColor>
#include <QDeadlineTimer>
#include <QPainter>
#include <QTransform>

#include <cstddef>
#include <vector>

namespace Workbench {

/// Paints the shapes from index `from` on that touch `visible` (micrometres) in one colour onto a transparent
/// picture; negative ones erase what is there. `boardToPicture` scales alike in both directions. What is
/// smaller than a pixel or two becomes a point, a stroke that is thinner a hairline, so nothing vanishes at a
/// small scale. Stops after the deadline; the result is where to go on, the number of shapes at the end.
std::size_t paintShapes(QPainter & painter, std::vector<FeatureShape> const & shapes,
                        QTransform const & boardToPicture, QRectF const & visible, QColor const & colour,
                        std::size_t from, QDeadlineTimer const & deadline);

} // namespace Workbench
