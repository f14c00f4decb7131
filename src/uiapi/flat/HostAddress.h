#pragma once

#include "UIAPICommonExport.h"

#include <string>

/// What this computer is called, and where it is reached.
namespace KVCAM::UIAPI {

/// The first IPv4 address of a network interface that is up, running and not the loopback one; "127.0.0.1"
/// when there is none. Creates no singleton and sends nothing.
UIAPICOMMON_EXPORT std::string getHostIP();
/// One line of compact JSON about this computer: "address" (as getHostIP()), "host" and "os", all texts. It
/// holds no serial numbers, and nothing is sent.
UIAPICOMMON_EXPORT std::string getLocalInfo();

} // namespace KVCAM::UIAPI
