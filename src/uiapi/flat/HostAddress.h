#pragma once

#include "UIAPICommonExport.h"

#include <string>

/// \addtogroup host_address
/// Name and address of this computer.
namespace KVCAM::UIAPI {

/// The first IPv4 address of a network interface that is up, running and not loopback; "127.0.0.1" if there
/// is none. Creates no singleton and sends nothing.
UIAPICOMMON_EXPORT std::string getHostIP();
/// One line of compact JSON about this computer: "address" (as getHostIP()), "host" and "os", all strings. It
/// contains no serial numbers, and nothing is sent.
UIAPICOMMON_EXPORT std::string getLocalInfo();

} // namespace KVCAM::UIAPI
