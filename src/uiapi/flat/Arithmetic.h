#pragma once

#include "UIAPICommonExport.h"

#include <QString>

/// \addtogroup expressions
/// Typed expressions and values. What the flat functions reject they show to the user in one modal
/// information box. If the view handle is a living widget, it is the box's parent; otherwise the box has no
/// parent. The additions show nothing.
namespace KVCAM::UIAPI {

/// The value of an expression of numbers and "+", "-", "*", "/", unrounded. Never fails: text that is not a
/// number and missing operands count as 0, one trailing operator is dropped, a leading sign gets a 0 in
/// front, division by zero gives an infinity or NaN. An incoming operator pops at most one operator: 1-2*3+4
/// is -9.
UIAPICOMMON_EXPORT double caculateData(QString expression);
/// False for an empty text (silently) and for two characters in a row that are not '0' to '9' (logged and
/// shown as "CaculateData ERROR"), else true. "*2", "a" and a trailing operator pass.
UIAPICOMMON_EXPORT bool judgeCaculateIsStandard(QString expression);
/// Whether a value in the view's small unit (mil or micrometres) lies between bounds in mil. The bounds are
/// inclusive, there is no tolerance, and NaN is legal. An unknown view is treated as an inch view, after an
/// ERROR line for each bound and, if the value is rejected, for each bound's text.
UIAPICOMMON_EXPORT bool isValueLegal(double value, double minimum, double maximum, void const * view);
/// Same without conversion. The view is only the box's parent.
UIAPICOMMON_EXPORT bool isNumValueLegal(double value, double minimum, double maximum, void const * view);
/// isValueLegal() for every number of a symbol name, counts and angles included, up to the first rejected
/// one.
UIAPICOMMON_EXPORT bool isSymbolValueLegal(QString name, double minimum, double maximum, void const * view);

} // namespace KVCAM::UIAPI
