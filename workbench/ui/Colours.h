#pragma once

#include <QColor>
#include <QString>

namespace Workbench {

// The colours with a meaning in more than one place. Those of the severities are the library's.

/// What is wrong: errors, refused input, values that were not saved.
inline constexpr QRgb faultColour = 0xffb00020;
/// Outlines and texts drawn on a board.
inline constexpr QRgb inkColour = 0xff20242a;

/// A style sheet that gives a label's text a colour.
inline QString textStyle(QRgb colour)
{
    return "color: " + QColor(colour).name();
}

/// The style sheet of a text that reports a fault; empty for any other text.
inline QString faultStyle(bool isFault)
{
    return isFault ? textStyle(faultColour) : QString();
}

} // namespace Workbench
