#pragma once

#include <QString>

/// Where the host keeps its files. Composed here and nowhere else.
namespace KVCAM::UIAPI::HostPaths {

/// The configuration directory with a "/" at its end: the host's root (or the process's current directory
/// when the root is empty) + "/" + configuration folder + "/". Asks the host at every call and lets through
/// what the host throws.
QString configurationDirectory();

/// The directory of the analysis ranges without a "/" at its end, composed in the same way: root + "/" +
/// ranges folder.
QString rangesDirectory();

} // namespace KVCAM::UIAPI::HostPaths
