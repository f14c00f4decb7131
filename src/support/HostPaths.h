#pragma once

#include <QString>

/// Where the host keeps its files. The paths are composed only here.
namespace KVCAM::UIAPI::HostPaths {

/// The configuration directory with a "/" at its end: the host's root (or the process's current directory
/// when the root is empty; an empty or relative root is in the user directory if one is set) + "/" +
/// configuration folder + "/". Asks the host on every call; host exceptions propagate.
QString configurationDirectory();

/// The directory of the analysis ranges without a "/" at its end, composed in the same way: root + "/" +
/// ranges folder.
QString rangesDirectory();

} // namespace KVCAM::UIAPI::HostPaths
