#pragma once

#include "UIAPICommonExport.h"

#include <QString>

/// \addtogroup configuration_files
namespace KVCAM::UIAPI::Ext {

/// The directory that stands for the current one wherever the library reads or writes files relative to it:
/// the hot keys ("./config/keyboard.json"), the user's templates ("autoMatrix"), "./ERFconfig", "./job" and,
/// where the root that the host gives (Common::getPath()) is empty or relative, the configuration and the
/// ranges. So this moves every file that the library names itself. For a host that leaves the process's
/// current directory to the user. An empty path, the default, is the current directory. GUI thread only.
///
/// Called before any other function, it decides where everything is read. Called later, it holds for what is
/// read and written from then on, and nothing is read again: the hot keys stay until
/// KVHotKey::uploadHotkeyModel(), templates, settings, attributes and ranges as long as the process.
/// Settings and ranges are saved in the files that they came from, templates in the new directory;
/// autoMatrixFile() tells that it does not hold them yet. \since 0.1
UIAPICOMMON_EXPORT void setUserDirectory(QString const & path);

/// Where such a file is: a relative path in the directory that was set. Without one, and for an absolute
/// path, the path itself.
[[nodiscard]] UIAPICOMMON_EXPORT QString userFile(QString const & path);

} // namespace KVCAM::UIAPI::Ext
