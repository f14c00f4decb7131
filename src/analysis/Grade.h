#pragma once

#include "../units/Length.h"
#include "../units/Unit.h"
#include "AnalysisRecords.h"
#include "UIAPICommonExport.h"

#include <array>
#include <cstddef>

/// \addtogroup ranges
namespace KVCAM::UIAPI::Ext {

/// How bad a measured value is, in ascending order.
enum class Severity : int
{
    None, ///< beyond the green level, or nothing to compare against
    Green,
    Yellow,
    Red
};
/// Number of severities.
inline constexpr int severityCount = 4;

/// Which side of a level is bad.
enum class Sense : int
{
    SmallerIsWorse, ///< widths, rings, spacings: red <= yellow <= green
    LargerIsWorse   ///< lengths, counts: red >= yellow >= green
};

/// The severity of a value in the unit of the levels. A value at a level has that level's severity; a value
/// between two levels has that of the better one. With levels 3, 4 and 5 and smaller being worse, 3 is red,
/// 3.5 yellow, 5 green and 6 none. None if the value or a level is not finite, or if the levels are not in
/// the order of the sense (levels may be equal): contradictory levels grade nothing.
/// \since 0.1
[[nodiscard]] UIAPICOMMON_EXPORT Severity grade(Analysis_Ranges_Record const & record, double value,
                                                Sense sense);

/// The sense of a record's levels: LargerIsWorse if the red level is above the green one, else
/// SmallerIsWorse.
[[nodiscard]] UIAPICOMMON_EXPORT Sense senseOf(Analysis_Ranges_Record const & record);

/// grade() of a measurement against levels in the small unit of `levels`, which the files do not specify, in
/// the levels' own sense. The engine measures in whole micrometres, and levels are compared at that
/// resolution: a 4 mil track, measured as 102 micrometres, is at level 4 (101.6), not beyond it.
[[nodiscard]] UIAPICOMMON_EXPORT Severity gradeMeasured(Analysis_Ranges_Record const & record,
                                                        Length measured, Unit levels = Unit::Inch);

/// How a severity is displayed. The colours are distinguishable with red-green blindness and have a contrast
/// of at least 3 on white; letter and icon convey the same without colour.
struct SeverityMark
{
    Severity severity = Severity::None; ///< the severity displayed
    unsigned rgb = 0;                   ///< 0xRRGGBB
    char letter = '-';                  ///< 'R', 'Y', 'G', '-'
    char const * icon = "";             ///< one character, UTF-8
    char const * name = "";             ///< "red", "yellow", "green", "none", as written in reports
};

/// By severity, ascending.
inline constexpr std::array<SeverityMark, severityCount> severityPalette = {{
    {Severity::None, 0x8f8f8f, '-', "–", "none"},
    {Severity::Green, 0x007a87, 'G', "●", "green"},
    {Severity::Yellow, 0xc07000, 'Y', "▲", "yellow"},
    {Severity::Red, 0x8b0015, 'R', "✖", "red"},
}};

/// The mark of a severity; that of None for an invalid number.
constexpr SeverityMark const & markOf(Severity severity)
{
    auto const row = static_cast<std::size_t>(severity);
    return severityPalette[row < severityPalette.size() ? row : 0];
}

} // namespace KVCAM::UIAPI::Ext
