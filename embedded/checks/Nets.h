#pragma once

#include "checks/CheckContext.h"
#include "checks/CopperItems.h"

#include <string>
#include <vector>

namespace KVCAM::Embedded {

/// Gives each item and hole the number of its net. Returns a sentence on where the nets come from: the step's
/// nets file, or, without one or if its numbers do not fit, what touches.
std::string assignNets(CheckContext & context, std::vector<CopperLayer> & layers, PlatedHoles & holes);

} // namespace KVCAM::Embedded
