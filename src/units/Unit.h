#pragma once

#include "UIAPICommonExport.h"

#include <QMetaType>
#include <QString>

/// \addtogroup lengths
namespace KVCAM::UIAPI::Ext {

/// A system of units, with the codes of a view's show parameters.
/// \since 0.1
enum class Unit : int
{
    Inch = 0,      ///< inch and mil
    Millimetre = 1 ///< millimetre and micrometre
};

/// Which unit of a system.
/// \since 0.1
enum class LengthScale : int
{
    Small, ///< mil or micrometre
    Large  ///< inch or millimetre
};

/// How a micrometre is written.
/// \since 0.1
enum class MicrometreSign : int
{
    My, ///< "my", as everywhere in the fixed interface
    Mu  ///< "µm", with U+00B5
};

/// The system of a unit code: 0 is inch, any other code metric, as for the fixed functions that show values.
/// \since 0.1
[[nodiscard]] constexpr Unit unitOfCode(int code) noexcept
{
    return code == static_cast<int>(Unit::Inch) ? Unit::Inch : Unit::Millimetre;
}

/// The unit code, for the fixed functions that take one.
/// \since 0.1
[[nodiscard]] constexpr int unitCode(Unit unit) noexcept
{
    return static_cast<int>(unit);
}

/// Whether a number, such as one from a file, is the code of a unit.
/// \since 0.1
[[nodiscard]] constexpr bool isUnitCode(int code) noexcept
{
    return code == unitCode(Unit::Inch) || code == unitCode(Unit::Millimetre);
}

/// Inch for Millimetre and the reverse.
/// \since 0.1
[[nodiscard]] constexpr Unit otherUnit(Unit unit) noexcept
{
    return unit == Unit::Inch ? Unit::Millimetre : Unit::Inch;
}

/// Nanometres in a unit: 25400 in a mil, 1000 in a micrometre, and a thousand times that in the large ones.
/// \since 0.1
[[nodiscard]] constexpr int nanometresPer(Unit unit, LengthScale scale) noexcept
{
    constexpr int smallPerLarge = 1000;
    return (unit == Unit::Inch ? 25400 : 1000) * (scale == LengthScale::Large ? smallPerLarge : 1);
}

/// What follows a number: "mil", "inch", "my" (or "µm") and "mm". The same in every language; evaluate()
/// reads all of them.
/// \since 0.1
[[nodiscard]] UIAPICOMMON_EXPORT QString unitSuffix(Unit unit, LengthScale scale,
                                                    MicrometreSign sign = MicrometreSign::My);

/// The unit in words, translated: "mil", "inch", "micrometre", "millimetre".
/// \since 0.1
[[nodiscard]] UIAPICOMMON_EXPORT QString unitName(Unit unit, LengthScale scale = LengthScale::Large);

} // namespace KVCAM::UIAPI::Ext

Q_DECLARE_METATYPE(KVCAM::UIAPI::Ext::Unit)
