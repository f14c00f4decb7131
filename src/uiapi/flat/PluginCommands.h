#pragma once

#include "UIAPICommonExport.h"

#include <string>

/// Commands for the host's plug-in modules.
namespace KVCAM::UIAPI {

/// Hands a command to each module that has a route for exactly this command and key (see
/// UIAPICommonPara::addPluginRoute()), in the order of adding, through the host's plug-in manager. `data`
/// stays the caller's and is passed on as it is. Without a route logs "Route map don't find " and the
/// command; a manager that throws is logged, and the next module still told; without a manager "KVCAM UIAPI
/// setPluginCmd error" is logged.
UIAPICOMMON_EXPORT void setPluginCmd(int command, std::string const & key, void * data);

} // namespace KVCAM::UIAPI
