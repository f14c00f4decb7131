#pragma once

#include "layers/AffectLayers.h"
#include "layers/DrawingLayerTable.h"
#include "layers/ReferenceTable.h"

#include <string>

namespace KVCAM::UIAPI {

/// What is kept about layers from one dialog to the next. Nothing of it is written to disk.
struct LayerBookkeeping
{
    ReferenceTable references;
    DrawingLayerTable drawings;
    AffectLayers affect;
    std::string jobJson; ///< one text for all jobs
};

} // namespace KVCAM::UIAPI
