#pragma once

#include "../units/Unit.h"
#include "UIAPICommonExport.h"

/// \addtogroup show_parameters
namespace KVCAM::UIAPI::Ext {

/// The unit of a view: getUnit() as a Unit, by unitOfCode(). An unknown view is an inch view, logged as
/// getUnit() logs it.
/// \since 0.1
[[nodiscard]] UIAPICOMMON_EXPORT Unit unitOf(void const * view);

} // namespace KVCAM::UIAPI::Ext
