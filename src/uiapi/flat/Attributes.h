#pragma once

#include "UIAPICommonExport.h"

#include <map>
#include <string>
#include <tuple>
#include <vector>

/// The attributes that features and layers may carry, and the CAM-mate nodes.
namespace KVCAM::UIAPI {

/// Assigns the catalogue of "attributes.json", by name: whether the attribute takes a parameter, its unit,
/// the values it offers. Empty when the file could not be read, which is logged at the start.
UIAPICOMMON_EXPORT void
getTotalAttribute(std::map<std::string, std::tuple<int, int, std::vector<std::string>>> & out);
/// Appends the names of that catalogue in ascending order; `out` is not cleared.
UIAPICOMMON_EXPORT void getParentAttribute(std::vector<std::string> & out);
/// Assigns the values that a built-in system attribute (".drill") offers; none for any other name.
UIAPICOMMON_EXPORT void getChildAttribute(std::string name, std::vector<std::string> & out);
/// The flow names of "cammatenodes.json" in the file's order; empty when there is no such file.
UIAPICOMMON_EXPORT std::vector<std::string> getCamMateNodes();

} // namespace KVCAM::UIAPI
