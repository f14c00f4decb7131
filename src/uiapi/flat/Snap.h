#pragma once

#include "../ViewRecords.h"
#include "UIAPICommonExport.h"

/// \addtogroup snap
/// The snap mode of a view. Type and mode are one field under two names. Nothing is pushed to the engine.
namespace KVCAM::UIAPI {

/// 7 for an unknown view, which is logged as "getSnapControl".
UIAPICOMMON_EXPORT SNAP_TYPE_MODE getSnapType(void const * view);
/// An unknown view is logged twice, as "getSnapControl" and "setSnapControl".
UIAPICOMMON_EXPORT void setSnapType(void const * view, SNAP_TYPE_MODE mode);
/// Same as setSnapType().
UIAPICOMMON_EXPORT void setSnapMode(void const * view, SNAP_TYPE_MODE mode);
/// 7 for an unknown view, which is logged as "getStepConfig".
UIAPICOMMON_EXPORT SNAP_TYPE_MODE getSnapMode(void const * view);

} // namespace KVCAM::UIAPI
