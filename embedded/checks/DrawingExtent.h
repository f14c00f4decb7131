#pragma once

#include "checks/SymbolDrawing.h"

#include <kvcam/Records.h>

namespace KVCAM::Embedded {

/// The measures of a drawing: its least width in any direction, the extent across that, and the middle of
/// both.
struct DrawingExtent
{
    double narrower = 0;
    double wider = 0;
    API::point along; ///< the direction of `wider`, of length 1
    API::point middle;
};

/// The drawing is not empty.
DrawingExtent extentOf(SymbolDrawing const & drawing);

} // namespace KVCAM::Embedded
