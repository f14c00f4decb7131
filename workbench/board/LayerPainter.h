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
/// picture; negative ones erase. `boardToPicture` scales equally in both directions. Shapes below a pixel or
/// two become points and thinner strokes hairlines, so that nothing vanishes at a small scale. Stops after
/// the deadline. Returns the index to continue at, which is the number of shapes when all are done.
std::size_t paintShapes(QPainter & painter, std::vector<FeatureShape> const & shapes,
                        QTransform const & boardToPicture, QRectF const & visible, QColor const & colour,
                        std::size_t from, QDeadlineTimer const & deadline);

} // namespace Workbench
