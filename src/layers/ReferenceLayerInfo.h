#pragma once

#include <string>
#include <vector>

/// \addtogroup references
namespace KVCAM::UIAPI {

/// Layers of one step of a job, used by another step as a reference.
struct ReferenceLayerInfo
{
    std::string job;                 ///< the referenced job
    std::string step;                ///< its step
    std::vector<std::string> layers; ///< names in the order of choice
};

} // namespace KVCAM::UIAPI
