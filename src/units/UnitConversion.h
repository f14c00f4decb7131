#pragma once

#include <QString>

#include <string>

/// Conversion and formatting of values by unit code: 0 is inch (small unit mil), 1 is millimetre (small unit
/// micrometre). Each function says what other codes mean. The functions only multiply and format; the caller
/// knows what a value means. Results are defined even for infinities, NaN and values beyond the range of int.
namespace KVCAM::UIAPI::Units {

inline constexpr int inch = 0;
inline constexpr int millimetre = 1;

inline constexpr double millimetresPerInch = 25.4; ///< also micrometres per mil
inline constexpr double micrometresPerInch = 25400.0;
inline constexpr double micrometresPerMillimetre = 1000.0;
inline constexpr double nanometresPerInch = 25400000.0;
inline constexpr double nanometresPerMillimetre = 1000000.0;
inline constexpr double squareMillimetresPerSquareInch = 645.16;

/// Converts from the other unit to this one: for inch / 25.4 at 5 decimals, else * 25.4 at 3 decimals. Only
/// the fraction is rounded, halves away from zero, so the integer part stays exact.
double toUnit(int unit, double value);
/// Large unit to nanometres (kind 0) or micrometres (kind 1); 0.0 for another kind. Any unit other than 1 is
/// inch.
double toEngine(int unit, int kind, double value);
/// Micrometres to mil for unit 1 and kind 0 or 1 (0.0 for another kind); for any other unit the value itself.
double toMil(int unit, int kind, double value);
/// Micrometres to the large unit; any unit other than 0 is millimetre.
double fromMicrometres(int unit, double value);
/// Mil to the small unit, unrounded; any unit other than 0 is micrometre.
double milToSmallUnit(int unit, double value);
/// Mil to the small unit, truncated toward zero; saturates, NaN gives 0.
int milToSmallUnitTruncated(int unit, double value);
/// Small unit to mil, truncated toward zero; saturates, NaN gives 0.
int smallUnitToMilTruncated(int unit, double value);

/// Mil as text in the small unit: for unit 0 six significant digits (`precision` is ignored), else
/// `precision` decimals, at most 1074; -128 (QLocale::FloatingPointShortest) gives as many as the value
/// needs, any other negative precision 6.
QString milText(int unit, double value, int precision);
/// Micrometres as text in the large unit with 3 decimals.
QString micrometresText(int unit, double value);
/// Square inches as text: for unit 0 six significant digits, else square millimetres with 4 decimals.
QString areaText(int unit, double value);
/// Fixed notation with six decimals, without trailing zeros and without a trailing point.
std::string plainText(double value);

/// "Inch", "MM"; empty for another unit.
std::string name(int unit);
/// "inch", "mil" / "mm", "my" by unit and kind; empty for another unit or kind. GUI thread only.
std::string nameByKind(int unit, int kind);
/// "sq/in" for unit 0, else "sq/mm".
std::string areaName(int unit);

} // namespace KVCAM::UIAPI::Units
