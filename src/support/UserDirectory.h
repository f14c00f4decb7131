#pragma once

#include "UIAPICommonExport.h"

#include <QString>

/// \addtogroup configuration_files
namespace KVCAM::UIAPI::Ext {

/// The directory that stands for the current one where the library names files relative to it: the hot keys
/// ("./config/keyboard.json"), the user's templates ("autoMatrix"), "./ERFconfig" and "./job". For a host
/// that leaves the process's current directory to the user. Call it before any other function; an empty path,
/// the default, is the current directory. GUI thread only. \since 0.1
UIAPICOMMON_EXPORT void setUserDirectory(QString const & path);

/// Where such a file is: a relative path in the directory that was set. Without one, and for an absolute
/// path, the path itself.
[[nodiscard]] UIAPICOMMON_EXPORT QString userFile(QString const & path);

} // namespace KVCAM::UIAPI::Ext
