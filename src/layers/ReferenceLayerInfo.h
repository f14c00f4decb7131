#pragma once

#include <string>
#include <vector>

namespace KVCAM::UIAPI {

/// Layers of one step of a job that serve another step as a reference.
struct ReferenceLayerInfo
{
    std::string job;                 ///< the job that is referred to
    std::string step;                ///< its step
    std::vector<std::string> layers; ///< names in the order of choice
};

} // namespace KVCAM::UIAPI
