#pragma once

#include <kvcam/Export.h>

#include <string>

/// \addtogroup host_paths
/// Where the host is installed. The paths are UTF-8.
namespace Common {

/// The installation root; if empty, the current directory of the process.
KVCAM_API_EXPORT std::string getPath();
/// The configuration folder, relative to the root.
KVCAM_API_EXPORT std::string getPath_config();
/// The folder of the analysis ranges, relative to the root.
KVCAM_API_EXPORT std::string getPath_rangesconfig();

} // namespace Common
