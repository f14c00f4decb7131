#pragma once

#include "layers/JobStepTable.h"

namespace KVCAM::UIAPI {

/// The drawing layers of each step of each job: a layer's name and the host's number for it.
using DrawingLayerTable = JobStepTable<std::pair<std::string, int>>;

} // namespace KVCAM::UIAPI
