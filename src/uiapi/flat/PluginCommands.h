#pragma once

#include "UIAPICommonExport.h"

#include <string>

/// \addtogroup plugin_commands
/// Commands for the host's plug-in modules.
namespace KVCAM::UIAPI {

/// Passes a command to each module with a route for exactly this command and key (see
/// UIAPICommonPara::addPluginRoute()), in the order added, through the host's plug-in manager. `data` stays
/// owned by the caller and is passed on unchanged. Without a route, logs "Route map don't find " and the
/// command. If the manager throws, that is logged and the next module is still called. Without a manager,
/// logs "KVCAM UIAPI setPluginCmd error".
UIAPICOMMON_EXPORT void setPluginCmd(int command, std::string const & key, void * data);

} // namespace KVCAM::UIAPI
