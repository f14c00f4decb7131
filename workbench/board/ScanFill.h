#pragma once

#include <QColor>
#include <QImage>
#include <QPainterPath>
#include <QRect>
#include <QTransform>

#include <atomic>
#include <cstddef>

namespace Workbench {

/// What to fill, and the effort that it took.
struct ScanFill
{
    /// Edges times the rows of samples that they cross: about a second.
    static constexpr std::size_t mostSteps = 200'000'000;

    QPainterPath const & path;
    QTransform const & toPixels;
    QRect frame; ///< the pixels to fill
    QColor colour;
    std::atomic<bool> const & cancelled;
    std::size_t limit = mostSteps;
    std::size_t steps = 0; ///< taken: at most `limit`, and one for each edge

    /// The inside of the path by the odd-even rule, as a picture of the frame; null when cancelled. Takes
    /// time and memory by the number of edges and pixels only, however the edges cross each other, which the
    /// painter of the toolkit does not. A pixel has 4 x 4 samples. A path that would take more steps than the
    /// limit has fewer rows of them, down to one for many pixels.
    QImage run();
};

} // namespace Workbench
