#pragma once

#include "geometry/CheckGeometry.h"

#include <vector>

namespace KVCAM::Embedded {

/// An area of any form, in micrometres: everything within one of the convex pieces or inside the outlines.
struct Region
{
    std::vector<Shape> pieces;
    /// Closed polygons without a repeated last point, filled odd-even together: islands and their holes.
    std::vector<std::vector<API::point>> outlines;
};

Region placed(Region region, Placement const & where);

} // namespace KVCAM::Embedded
