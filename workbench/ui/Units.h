#pragma once

#include <UIAPICommon.h>
#include <UIAPICommonExt.h>

namespace Workbench {

using KVCAM::UIAPI::Ext::Unit;

/// Gives a view a unit.
inline void giveUnit(void const * view, Unit unit)
{
    KVCAM::UIAPI::setUnit(view, KVCAM::UIAPI::Ext::unitCode(unit));
}

/// Gives a view its other unit.
inline void switchUnit(void const * view)
{
    giveUnit(view, otherUnit(KVCAM::UIAPI::Ext::unitOf(view)));
}

/// The length of a small unit.
constexpr double micrometresPer(Unit unit)
{
    return nanometresPer(unit, KVCAM::UIAPI::Ext::LengthScale::Small) / 1000.0;
}

} // namespace Workbench
