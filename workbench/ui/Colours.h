#pragma once

#include "ui/Legible.h"

#include <QColor>
#include <QString>

namespace Workbench {

// Colours used in more than one place. The library defines those of the severities.

/// What is wrong: errors, refused input, values that were not saved.
inline constexpr QRgb faultColour = 0xffb00020;
/// Outlines and texts drawn on a board.
inline constexpr QRgb inkColour = 0xff20242a;

/// A style sheet that gives a label's text a colour, or one like it that can be read.
inline QString textStyle(QRgb colour)
{
    return "color: " + legibleText(QColor(colour)).name();
}

/// The style sheet of a text that may report a fault; empty if it does not.
inline QString faultStyle(bool isFault)
{
    return isFault ? textStyle(faultColour) : QString();
}

} // namespace Workbench
