#pragma once

#include "UIAPICommonExport.h"

#include <map>
#include <string>
#include <tuple>
#include <vector>

/// \addtogroup attributes
/// The attributes of features and layers, and the CAM-mate nodes.
namespace KVCAM::UIAPI {

/// Assigns the catalogue of "attributes.json", by name: whether the attribute takes a parameter, its unit,
/// the values it offers. Empty if the file could not be read, which is logged at start.
UIAPICOMMON_EXPORT void
getTotalAttribute(std::map<std::string, std::tuple<int, int, std::vector<std::string>>> & out);
/// Appends the names of that catalogue in ascending order; `out` is not cleared.
UIAPICOMMON_EXPORT void getParentAttribute(std::vector<std::string> & out);
/// Assigns the values offered by a built-in system attribute such as ".drill"; none for any other name.
UIAPICOMMON_EXPORT void getChildAttribute(std::string name, std::vector<std::string> & out);
/// The flow names of "cammatenodes.json" in the file's order; empty if there is no such file.
UIAPICOMMON_EXPORT std::vector<std::string> getCamMateNodes();

} // namespace KVCAM::UIAPI
