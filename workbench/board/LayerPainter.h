#pragma once

#include "board/FeatureShapes.h"

#include <QColor>
#include <QPainter>
#include <QRect>
#include <QTransform>

#include <atomic>
#include <map>
#include <vector>

namespace Workbench {

/// Paints shapes in one colour onto a transparent picture; negative ones erase. Shapes below a pixel or two
/// become points and thinner strokes hairlines, so that nothing vanishes at a small scale. What a shape costs
/// is bounded: vertices nearer than half a pixel to the one before are left out, and paths that still have
/// more than 512 elements are filled by ScanFill. May run in any thread: it changes nothing that shapes
/// share.
class LayerPainter
{
public:
    /// `area` is the picture's, in pixels. Painting ends early when `cancelled` becomes true.
    LayerPainter(QPainter & painter, QRect area, QColor colour, std::atomic<bool> const & cancelled)
        : m_painter(painter), m_area(area), m_colour(colour), m_cancelled(cancelled)
    {}

    /// Paints the shapes that touch the picture. `boardToPicture` scales equally in both directions.
    void paint(std::vector<FeatureShape> const & shapes, QTransform const & boardToPicture);
    /// The steps that ScanFill has taken.
    std::size_t steps() const { return m_steps; }

private:
    friend class ShapePainter;

    QPainter & m_painter;
    QRect m_area;
    QColor m_colour;
    std::atomic<bool> const & m_cancelled;
    std::size_t m_steps = 0;
};

} // namespace Workbench
