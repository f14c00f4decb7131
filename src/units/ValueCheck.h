#pragma once

#include "../support/Result.h"
#include "Length.h"
#include "UIAPICommonExport.h"
#include "Unit.h"

#include <QString>

#include <optional>

/// \addtogroup expressions
namespace KVCAM::UIAPI::Ext {

/// Why a value is refused.
/// \since 0.1
enum class ValueFault : int
{
    None,       ///< it is not
    TooSmall,   ///< below the minimum
    TooLarge,   ///< above the maximum
    NotReadable ///< a calculation that KVLineEdit cannot evaluate
};

/// The verdict on a length: whether it is legal, and if not a translated sentence that says what is allowed:
/// "Allowed: 1 mil to 10 mil, both included."
/// \since 0.1
struct ValueVerdict : Result
{
    ValueFault fault = ValueFault::None; ///< None exactly if ok
    Length minimum = Length::lowest();   ///< the smallest legal value
    Length maximum = Length::highest();  ///< the largest legal value
    int position = 0;                    ///< where the refused number stands in a symbol name
    int size = 0;                        ///< its length; 0 in any other verdict
};

/// The same on a plain number.
/// \since 0.1
struct NumberVerdict : Result
{
    ValueFault fault = ValueFault::None; ///< None exactly if ok
    double minimum = 0;                  ///< the smallest legal value
    double maximum = 0;                  ///< the largest legal value
};

// The checks of typed values without a box, for dialogs that show the sentence beside the field. Nothing is
// shown or logged, and no singleton is created. Bounds are inclusive. A bound at an end of Length's range is
// none, and the sentence leaves it out.
//
// Lengths are compared by the nanometre: 76.2 micrometres are 3 mil. isValueLegal() and isSymbolValueLegal()
// compare doubles, where 3 mil is 76.199999999999989; otherwise they agree.

/// A length against bounds; the sentence shows them in `unit` and `scale`, a micrometre with `sign`.
/// \since 0.1
[[nodiscard]] UIAPICOMMON_EXPORT ValueVerdict checkValue(Length value, Length minimum, Length maximum,
                                                         Unit unit, LengthScale scale = LengthScale::Small,
                                                         MicrometreSign sign = MicrometreSign::My);
/// A plain number, as isNumValueLegal() compares it: NaN is legal.
/// \since 0.1
[[nodiscard]] UIAPICOMMON_EXPORT NumberVerdict checkNumber(double value, double minimum, double maximum);
/// Every number of a symbol name, counts and angles included, as a length in the small unit of `sizes`. The
/// verdict is that on the first illegal number; the sentence quotes it and shows the bounds in `shown`, by
/// default in `sizes`.
/// \since 0.1
[[nodiscard]] UIAPICOMMON_EXPORT ValueVerdict checkSymbol(QString const & name, Length minimum,
                                                          Length maximum, Unit sizes,
                                                          std::optional<Unit> shown = std::nullopt);

} // namespace KVCAM::UIAPI::Ext
