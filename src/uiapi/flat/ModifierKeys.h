#pragma once

#include "UIAPICommonExport.h"

/// \addtogroup modifier_keys
/// The keyboard modifiers last seen by the application, compared as whole masks. No singleton is created.
namespace KVCAM::UIAPI {

/// Exactly Control, or exactly Control with Shift.
UIAPICOMMON_EXPORT bool getCtrlEnpress();
/// Exactly Shift, or exactly Control with Shift.
UIAPICOMMON_EXPORT bool getShiftEnpress();
/// Exactly Alt.
UIAPICOMMON_EXPORT bool getAltEnpress();

} // namespace KVCAM::UIAPI
