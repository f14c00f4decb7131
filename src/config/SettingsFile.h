#pragma once

#include "UIAPICommonExport.h"
#include "support/Result.h"

/// Additions to the fixed interface. They are opt-in and change none of its results.
namespace KVCAM::UIAPI::Ext {

/// What became of the last save of "server.json": whether the file holds the settings of that moment, and if
/// not why. A save that found no configuration directory, and so only created it, is one that failed. Ok
/// before the first save. Failures stand in diagnostics() too. Asking creates no singleton. GUI thread only.
[[nodiscard]] UIAPICOMMON_EXPORT Result lastSettingsSave();

/// Whether the loader of "server.json" also takes the four keys that are written but not read,
/// "LayerCopySuffix", "MovementFactor", "ShiftConfict" and "ContourAccuracy", each where the one that is read
/// is absent: settings then survive a save and the next start. Off until set; to be set before the first call
/// of the library, since the file is read once.
UIAPICOMMON_EXPORT void setReadSavedKeys(bool read);

} // namespace KVCAM::UIAPI::Ext
