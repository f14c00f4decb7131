#pragma once

#include "DrillChecks.h"

#include <vector>

namespace KVCAM::Embedded {

/// Measures the tracks, pads, SMD spacings and rings of a copper layer into the results. Of the holes, those
/// count that go through its row.
void checkCopper(CheckContext & context, API::layer_info const & layer, std::vector<Hole> const & holes,
                 CheckResults & results);

} // namespace KVCAM::Embedded
