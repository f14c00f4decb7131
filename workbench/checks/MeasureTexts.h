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

QColor colourOf(KVCAM::UIAPI::Ext::Severity severity);
/// Icon and letter: "✖ R".
QString signOf(KVCAM::UIAPI::Ext::Severity severity);
/// In words, translated.
QString wordOf(KVCAM::UIAPI::Ext::Severity severity);
/// The worst severity that has an entry.
KVCAM::UIAPI::Ext::Severity worstOf(KVCAM::UIAPI::Ext::SeverityCounts const & counts);

} // namespace Workbench
