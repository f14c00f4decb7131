#pragma once

#include <string>
#include <vector>

namespace KVCAM::UIAPI {

/// The layers that an operation affects.
struct AffectLayers
{
    std::vector<std::string> layers;
    std::string workLayer;

    /// The layers, then the work layer unless it is one of them. Nothing chosen is a work layer of no name,
    /// so at the start this is one empty name, not none.
    std::vector<std::string> all() const;
};

} // namespace KVCAM::UIAPI
