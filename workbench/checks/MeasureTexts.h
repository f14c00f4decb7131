#pragma once

#include <UIAPICommon.h>

#include <QColor>
#include <QString>

namespace Workbench {

/// A length in mil as text in a view's small unit, without trailing zeros; "–" if not finite.
QString smallUnitText(void const * view, double mil, int decimals = 5);
/// A measured value as text in a view's small unit, rounded to two decimals.
QString measuredText(void const * view, KVCAM::UIAPI::Ext::Length measured);
/// "mil" or "µm".
QString smallUnitName(void const * view);

/// A severity's colour, legible on the background of tables.
QColor colourOf(KVCAM::UIAPI::Ext::Severity severity);

} // namespace Workbench
