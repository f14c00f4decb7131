#pragma once

#include <QColor>

namespace Workbench {

/// The contrast of two opaque colours by their relative luminance, from 1 (none) to 21 (black and white).
double contrast(QColor const & a, QColor const & b);

/// The colour, made lighter or darker until it can be read on a background. It is kept if it can be read
/// already. Colours that are chosen for light backgrounds so serve the dark ones of a desktop, too.
QColor legible(QColor colour, QColor const & background);
/// The same on the background of the program's fields and tables.
QColor legibleText(QColor const & colour);
/// Text that steps back behind the other: what is filtered out, what cannot be used.
QColor dimmedText();

} // namespace Workbench
