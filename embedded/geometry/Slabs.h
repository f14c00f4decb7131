#pragma once

#include "geometry/CheckGeometry.h"

#include <kvcam/Records.h>

#include <functional>
#include <vector>

namespace KVCAM::Embedded {

using Outlines = std::vector<std::vector<API::point>>;

/// Cuts the inside of outlines, filled odd-even, into convex pieces: horizontal slabs in which no sides meet.
/// Takes the square of the number of sides in time, or more where many cross.
void forEachSlab(Outlines const & outlines, std::function<void(Shape)> const & take);

} // namespace KVCAM::Embedded
