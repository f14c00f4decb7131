#pragma once

#include "UIAPICommonExport.h"

#include <QString>

#include <string>

/// \addtogroup units
/// Values and their texts in the unit of a view. The large unit is inch or millimetre, the small unit mil or
/// micrometre. An unknown view logs "KVCAM UIAPI getShowPara error" and is treated as an inch view. Results
/// are defined even for infinities, NaN and values beyond the range of int.
namespace KVCAM::UIAPI {

/// Converts from the other large unit to the view's: inch at 5 decimals (25.4 gives 1), else millimetre at 3.
UIAPICOMMON_EXPORT double getUnitData(void const * view, double value);
/// The view's large unit to the engine's nanometres (kind 0) or micrometres (kind 1); 0.0 for another kind.
UIAPICOMMON_EXPORT double getUnitAPIData(void const * view, int kind, double value);
/// In a metric view (unit 1), micrometres to mil for kinds 0 and 1, 0.0 for another kind. In other views, the
/// value itself.
UIAPICOMMON_EXPORT double getUnitMilData(void const * view, int kind, double value);
/// Micrometres to the view's large unit, unrounded.
UIAPICOMMON_EXPORT double getUnitPointData(void const * view, double value);
/// Mil to the view's small unit, truncated toward zero; saturates, NaN gives 0.
UIAPICOMMON_EXPORT int getUnitJudgeData(void const * view, double value);
/// The view's small unit back to mil, truncated toward zero; saturates, NaN gives 0.
UIAPICOMMON_EXPORT int getUnitJudgeData2(void const * view, double value);
/// Mil to the view's small unit, unrounded.
UIAPICOMMON_EXPORT double getUnitJudgeDouble(void const * view, double value);
/// Mil as text in the view's small unit: six significant digits for inch, else `precision` decimals (at most
/// 1074; -128, QLocale::FloatingPointShortest, gives as many as the value needs, any other negative value 6).
UIAPICOMMON_EXPORT QString getUnitJudgeString(void const * view, double value, int precision);
/// Micrometres as text in the view's large unit, 3 decimals.
UIAPICOMMON_EXPORT QString getUnitJudgeStringMetric(void const * view, double value);
/// "Inch" or "MM"; empty for another unit code.
UIAPICOMMON_EXPORT std::string getUnitString(void const * view);
/// "inch" or "mm" (kind 0), "mil" or "my" (kind 1); empty for another unit code or kind.
UIAPICOMMON_EXPORT std::string getUnitStringType(void const * view, int kind);
/// "sq/in" or "sq/mm".
UIAPICOMMON_EXPORT std::string getAreaUnitStringType(void const * view);
/// Square inches as text: six significant digits for inch, else square millimetres with 4 decimals.
UIAPICOMMON_EXPORT QString getAreaUnitJudgeString(void const * view, double value);
/// Fixed notation with six decimals, without trailing zeros: 10.0 gives "10", 0.1234567 "0.123457".
UIAPICOMMON_EXPORT std::string doubleToString(double value);

} // namespace KVCAM::UIAPI
