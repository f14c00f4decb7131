#pragma once

#include "UIAPICommonExport.h"

#include <QString>

/// Typed expressions and values. A refused value or text is shown to the user in one modal information box.
/// A view handle that is a living widget is the box's parent; any other handle gives a box without one.
namespace KVCAM::UIAPI {

/// The value of an expression of numbers and "+", "-", "*", "/", unrounded. Never fails: a text that is no
/// number and an operand that is missing count as 0, one trailing operator is dropped, a leading sign gets a
/// 0 in front, division by zero gives an infinity or NaN. An arriving operator takes only one waiting
/// operator off: 1-2*3+4 is -9.
UIAPICOMMON_EXPORT double caculateData(QString expression);
/// False for an empty text (without a word) and for two characters in a row that are not '0' to '9' (logged
/// and shown as "CaculateData ERROR"), else true. "*2" and "a" pass, and so does a trailing operator.
UIAPICOMMON_EXPORT bool judgeCaculateIsStandard(QString expression);
/// Whether a value in the view's small unit (mil or micrometres) lies between bounds in mil. The bounds
/// belong to the range, there is no tolerance, and NaN is legal. An unknown view counts as an inch view,
/// after an ERROR line for each bound and, when the value is refused, for each bound's text.
UIAPICOMMON_EXPORT bool isValueLegal(double value, double minimum, double maximum, void const * view);
/// The same without conversion. The view is only the box's parent.
UIAPICOMMON_EXPORT bool isNumValueLegal(double value, double minimum, double maximum, void const * view);
/// isValueLegal() for every number of a symbol name, counts and angles included, up to the first refused one.
UIAPICOMMON_EXPORT bool isSymbolValueLegal(QString name, double minimum, double maximum, void const * view);

} // namespace KVCAM::UIAPI
