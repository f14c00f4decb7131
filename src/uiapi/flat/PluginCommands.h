#pragma once

#include "UIAPICommonExport.h"

#include <string>

/// Commands for the host's plug-in modules, and what this computer is called.
namespace KVCAM::UIAPI {

/// Hands a command to each module that has a route for exactly this command and key (see
/// UIAPICommonPara::addPluginRoute()), in the order of adding, through the host's plug-in manager. `data`
/// stays the caller's and is passed on as it is. Without a route logs "Route map don't find " and the
/// command; a manager that throws is logged, and the next module still told; without a manager "KVCAM UIAPI
/// setPluginCmd error" is logged.
UIAPICOMMON_EXPORT void setPluginCmd(int command, std::string const & key, void * data);

/// The first IPv4 address of a network interface that is up, running and not the loopback one; "127.0.0.1"
/// when there is none. Creates no singleton and sends nothing.
UIAPICOMMON_EXPORT std::string getHostIP();
/// One line of compact JSON about this computer: "address" (as getHostIP()), "host" and "os", all texts. It
/// holds no serial numbers, and nothing is sent.
UIAPICOMMON_EXPORT std::string getLocalInfo();

} // namespace KVCAM::UIAPI
