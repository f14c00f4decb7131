#include "layers/AffectLayers.h"

#include <algorithm>

namespace KVCAM::UIAPI {

std::vector<std::string> AffectLayers::all() const
{
    std::vector<std::string> names = layers;
    if (std::find(names.begin(), names.end(), workLayer) == names.end()) {
        names.push_back(workLayer);
    }
    return names;
}

} // namespace KVCAM::UIAPI
