#pragma once

#include "../support/Result.h"
#include "Length.h"
#include "UIAPICommonExport.h"
#include "Unit.h"

#include <QStringView>

#include <optional>

/// \addtogroup expressions
namespace KVCAM::UIAPI::Ext {

/// What an evaluation is to give.
/// \since 0.1
enum class EvaluateAs : int
{
    Either, ///< a length or a number, whichever the text is
    Length, ///< anything else is an error
    Number  ///< anything else is an error
};

/// How a text is read.
/// \since 0.1
struct EvaluateOptions
{
    /// The unit of numbers without one, together with `defaultScale`. Without it, adding such a number to a
    /// length is an error, and the text "10" is a number.
    std::optional<Unit> defaultUnit;
    LengthScale defaultScale = LengthScale::Small; ///< which unit of the system
    EvaluateAs as = EvaluateAs::Either;            ///< what is wanted
    /// Whether a comma is a decimal sign as well as the point: "1,5" is 1.5. There are no digit separators: a
    /// number with two signs ("1.000,5") is an error, and so is any comma without this option.
    bool decimalComma = false;
};

/// Why a text has no value. The comment says which part is marked.
/// \since 0.1
enum class EvaluateFault : int
{
    None,                 ///< there is a value
    Empty,                ///< nothing but blanks; the whole text
    NumberMissing,        ///< a number was expected: what stands there, or at the end the last character
    OperatorMissing,      ///< two values side by side: the start of the second
    UnknownCharacter,     ///< a character without a meaning
    CommaNotAllowed,      ///< a comma
    SecondDecimalSign,    ///< the second decimal sign of a number
    UnknownUnit,          ///< letters after a number that are no unit
    ParenthesisNotClosed, ///< the opening parenthesis
    ParenthesisNotOpened, ///< the closing parenthesis
    NestedTooDeep,        ///< the parenthesis beyond evaluateDepth
    DivisionByZero,       ///< the divisor
    LengthTimesLength,    ///< the right factor
    NumberByLength,       ///< a number divided by a length: the divisor
    UnitMissing,          ///< a number without a unit where a length is needed
    RatioWithLength,      ///< the ratio of two lengths, which takes no default unit, in a sum with a length
    NotALength,           ///< the whole text is a ratio, but a length is wanted
    NotANumber,           ///< the whole text is a length, but a number is wanted
    TooLarge              ///< a number or result beyond double, or a length beyond 9.2e18 nanometres
};
/// Number of faults, None included.
inline constexpr int evaluateFaultCount = 19;

/// How deep parentheses may be nested.
inline constexpr int evaluateDepth = 200;

/// A value, or why there is none: `reason` is a translated sentence.
/// \since 0.1
struct Evaluation : Result
{
    EvaluateFault fault = EvaluateFault::None; ///< None exactly if ok
    int position = 0;                          ///< of the fault in the text, in UTF-16 units
    int size = 0;                              ///< of the faulty part; 0 only for an empty text
    bool isLength = false;                     ///< which of the two values counts
    Length length;                             ///< to the nearest nanometre, halves away from zero
    double number = 0;                         ///< the nearest double
    /// Whether caculateData() gives another value for the same text than ordinary precedence, rounding aside:
    /// "100-2*3+4" is 98, and 90 there. Looked at only if ok, and if the text is one that
    /// judgeCaculateIsStandard() accepts, of nothing but digits, points and operators.
    bool differs = false;
    double classicValue =
        0; ///< if it differs, the value that caculateData() gives; a length is in the default unit
};

/// The value of a typed text: numbers such as "10", ".5" and "2.", + - * / with ordinary precedence, signs,
/// parentheses, and units after numbers, with or without a blank: mm, um, µm (either micro sign), my, mil,
/// mils, thou, in, inch, " and cm, in upper or lower case. No exponents, no hexadecimal numbers, no digits of
/// other scripts.
///
/// Lengths may be added, multiplied and divided by numbers, and divided by lengths, which gives a ratio: a
/// number that takes no default unit. A number without a unit in a sum with a length has the default unit,
/// and so has a result without one unless a number is wanted.
///
/// Decimal fractions are exact: 0.1mm+0.2mm is 300000 nanometres. Only where a fraction of 64-bit integers
/// does not suffice is it rounded to a double. Independent of locale and system, in linear time. Throws
/// nothing, shows and logs nothing, and creates no singleton.
/// \since 0.1
[[nodiscard]] UIAPICOMMON_EXPORT Evaluation evaluate(QStringView text, EvaluateOptions const & options = {});

} // namespace KVCAM::UIAPI::Ext
