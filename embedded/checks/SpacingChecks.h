#pragma once

#include "checks/CheckContext.h"
#include "checks/CopperItems.h"

namespace KVCAM::Embedded {

/// Measures the spacings between the copper of different nets on a layer, and to the rout, up to `reach`
/// micrometres, and adds them to the results. `rout` is null if the job has neither a rout layer nor a
/// profile. Leaves the layer empty.
void checkSpacings(CheckContext const & context, CopperLayer & layer, PlatedHoles const & holes,
                   ItemShapes const * rout, double reach, CheckResults & results);

/// Measures between the plated holes, and between the vias, of each net and of different nets, up to `reach`.
void checkCloseHoles(CheckContext const & context, PlatedHoles const & holes, double reach,
                     CheckResults & results);

} // namespace KVCAM::Embedded
