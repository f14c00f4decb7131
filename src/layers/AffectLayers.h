#pragma once

#include <string>
#include <vector>

namespace KVCAM::UIAPI {

/// The layers that an operation affects.
struct AffectLayers
{
    std::vector<std::string> layers;
    std::string workLayer;

    /// The layers, then the work layer unless it is one of them. With nothing chosen, the work layer has an
    /// empty name, so initially this is one empty name, not an empty list.
    std::vector<std::string> all() const;
};

} // namespace KVCAM::UIAPI
