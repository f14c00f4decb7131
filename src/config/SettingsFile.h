#pragma once

#include "../support/Result.h"
#include "UIAPICommonExport.h"

/// \addtogroup global_settings
namespace KVCAM::UIAPI::Ext {

/// The result of the last save of "server.json": whether the file holds the settings of that moment, and if
/// not, why. A save that found no configuration directory, and so only created it, counts as failed. Ok
/// before the first save. Failures are also listed in diagnostics(). Creates no singleton. GUI thread only.
/// \since 0.1
[[nodiscard]] UIAPICOMMON_EXPORT Result lastSettingsSave();

/// Whether the loader of "server.json" also reads the four keys that are written but not read,
/// "LayerCopySuffix", "MovementFactor", "ShiftConfict" and "ContourAccuracy", each if the regular key is
/// absent. Settings then survive a save and the next start. Off by default. Set it before the first call of
/// the library: the file is read once.
UIAPICOMMON_EXPORT void setReadSavedSettingKeys(bool read);

} // namespace KVCAM::UIAPI::Ext
