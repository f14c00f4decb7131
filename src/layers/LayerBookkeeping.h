#pragma once

#include "layers/AffectLayers.h"
#include "layers/DrawingLayerTable.h"
#include "layers/ReferenceTable.h"

#include <string>

namespace KVCAM::UIAPI {

/// Layer state kept from one dialog to the next. Never written to disk.
struct LayerBookkeeping
{
    ReferenceTable references;
    DrawingLayerTable drawings;
    AffectLayers affect;
    std::string jobJson; ///< one text for all jobs
};

} // namespace KVCAM::UIAPI
