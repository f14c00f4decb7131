#pragma once

#include "UIAPICommonExport.h"

/// \addtogroup selections
/// Single fields of a view's Selection and select_info. A setter reads the record, changes the field, stores
/// the record and pushes it to the engine; for an unknown view the getter's ERROR line is followed by "KVCAM
/// UIAPI setSelection error". The field getters return the default for an unknown view.
namespace KVCAM::UIAPI {

///@{
/// The field of this name of the view's Selection.
UIAPICOMMON_EXPORT void setSelectionClear(void const * view, bool value);
UIAPICOMMON_EXPORT void setSelectionDisplay(void const * view, bool value);
UIAPICOMMON_EXPORT void setSelectionLocation(void const * view, bool value);
UIAPICOMMON_EXPORT void setSelectionOperation(void const * view, bool value);
UIAPICOMMON_EXPORT void setSelectionSelect(void const * view, bool value);
UIAPICOMMON_EXPORT void setSelectionTouching(void const * view, bool value);
UIAPICOMMON_EXPORT bool getSelectionTouching(void const * view);
///@}

/// The setting of "server.json"; false if missing. Not per view.
UIAPICOMMON_EXPORT bool getSelectionOutsideHint();
/// Saves the settings. A file that cannot be written stays unchanged, unless the disk is full and the
/// directory does not accept a new file; Ext::lastSettingsSave() reports it. A missing configuration
/// directory is logged at WARNING and created, and nothing is written.
UIAPICOMMON_EXPORT void setSelectionOutsideHint(bool value);

///@{
/// The selected parameter of the view; default 0.
UIAPICOMMON_EXPORT int getSelectedPara(void const * view);
UIAPICOMMON_EXPORT void setSelectedPara(void const * view, int para);
///@}

} // namespace KVCAM::UIAPI
