#pragma once

#include <UIAPICommon.h>

namespace Workbench {

/// The library's codes of a view's unit: inch and mil, or millimetre and micrometre. The sizes in a symbol
/// name have one of the small units under the same code.
inline constexpr int inchUnit = 0;
inline constexpr int metricUnit = 1;

constexpr bool isUnit(int code)
{
    return code == inchUnit || code == metricUnit;
}

constexpr int otherUnit(int unit)
{
    return unit == inchUnit ? metricUnit : inchUnit;
}

/// Gives a view its other unit.
inline void switchUnit(void const * view)
{
    KVCAM::UIAPI::setUnit(view, otherUnit(KVCAM::UIAPI::getUnit(view)));
}

/// The length of a small unit.
constexpr double nanometresPer(int unit)
{
    return unit == inchUnit ? 25400 : 1000;
}

constexpr double micrometresPer(int unit)
{
    return nanometresPer(unit) / 1000;
}

inline constexpr double micrometresPerMil = micrometresPer(inchUnit);

} // namespace Workbench
