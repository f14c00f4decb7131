#pragma once

// Configuration: how loading and saving the library's files went.
//
//   diagnostics()               what the loaders found wrong, and the saves that failed
//   setKeepSettingsBackup()     keeps "server.json.bak" before a save of "server.json" would lose something
//   lastSettingsSave()          whether the last save of "server.json" reached the file
//   setReadSavedSettingKeys()   also reads the four keys that are written but not read
//   setUserDirectory()          the directory of the files that are named relative to the current one
//   userFile()                  where such a file is
//   autoMatrixRoles             the twelve roles of a template with their members, for loops
//   autoMatrixFile()            which of the user's files holds a template
//
// The loaders run when the first flat function creates its singleton, so call setReadSavedSettingKeys()
// before that. The setters of settings and saveCurrentAutoMatrixTmp() save. Failures are in diagnostics(),
// those of the settings also in lastSettingsSave().

#include "../config/AutoMatrixFile.h"
#include "../config/AutoMatrixTmp.h"
#include "../config/Diagnostics.h"
#include "../config/SettingsFile.h"
#include "../support/UserDirectory.h"
#include "UIAPICommonExport.h"

#include <optional>

/// \addtogroup templates
namespace KVCAM::UIAPI::Ext {

/// The user's file that holds a template; nothing for a shipped template, an index without a template, and a
/// template that was never saved.
/// \since 0.1
[[nodiscard]] UIAPICOMMON_EXPORT std::optional<AutoMatrixFile> autoMatrixFile(int index);

} // namespace KVCAM::UIAPI::Ext
