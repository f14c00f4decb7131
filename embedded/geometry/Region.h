#pragma once

#include "EmbeddedRecords.h"
#include "geometry/CheckGeometry.h"

#include <kvcam/Records.h>

#include <cstddef>
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

/// The number of its corners.
std::size_t size(Region const & region);
/// The box around a region that is not empty.
Box extent(Region const & region);
/// The edge counts as inside of a piece.
bool contains(Region const & region, API::point point);
/// The shortest path from one region to another; 0 where they overlap, so also where one lies inside the
/// other, but not where it lies in a hole of the other. Neither may be empty. About linear in the corners.
Gap gapBetween(Region const & a, Region const & b);

} // namespace KVCAM::Embedded
