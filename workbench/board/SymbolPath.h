#pragma once

#include <UIAPICommonExt.h>

#include <QPainterPath>

namespace Workbench {

/// The outline of a standard symbol in micrometres around the origin, y upwards, to be filled by its fill
/// rule. At most 32 spokes of a thermal and rings of a moire are drawn. Empty for a symbol without extent.
QPainterPath symbolPath(KVCAM::UIAPI::Ext::Symbol const & symbol);

} // namespace Workbench
