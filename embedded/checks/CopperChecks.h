#pragma once

#include "checks/DrillChecks.h"
#include "checks/Nets.h"

#include <vector>

namespace KVCAM::Embedded {

/// Measures the tracks, pads, SMD spacings and rings of a copper layer and adds them to the results. Only the
/// holes that pass through its row count; on an outer layer each of them needs a pad. `named` are the nets of
/// its features.
void checkCopper(CheckContext & context, API::layer_info const & layer, std::vector<Hole> const & holes,
                 bool outer, FeatureNets const & named, CheckResults & results);

} // namespace KVCAM::Embedded
