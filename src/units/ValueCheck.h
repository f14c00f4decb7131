#pragma once

#include "UIAPICommonExport.h"

#include <QString>

namespace KVCAM::UIAPI::Ext {

/// Result of a check: the verdict, and the text that the box would show (empty for a legal value).
struct ValueVerdict
{
    bool legal = true; ///< the verdict
    QString text;      ///< translated
};

// The checks of typed values without the box, for dialogs that show the text beside the field. Verdict and
// text match isValueLegal(), isNumValueLegal() and isSymbolValueLegal(). The bounds are inclusive, there is
// no tolerance, and NaN is legal. `unit` is the unit code of the view: 0 is inch, any other code metric.
// Nothing is shown or logged, and no singleton is created.

/// A value in the small unit (mil or micrometres) against bounds in mil.
/// \since 0.1
[[nodiscard]] UIAPICOMMON_EXPORT ValueVerdict checkValue(double value, double minimum, double maximum,
                                                         int unit);
/// A plain number; nothing is converted.
[[nodiscard]] UIAPICOMMON_EXPORT ValueVerdict checkNumber(double value, double minimum, double maximum);
/// Every number of a symbol name, counts and angles included, in the small unit against bounds in mil. The
/// text describes the first illegal number.
[[nodiscard]] UIAPICOMMON_EXPORT ValueVerdict checkSymbol(QString const & name, double minimum,
                                                          double maximum, int unit);

} // namespace KVCAM::UIAPI::Ext
