#include "checks/MeasureTexts.h"

#include "ui/Legible.h"
#include "ui/Units.h"

#include <cmath>

namespace Workbench {

using namespace KVCAM::UIAPI;

QString smallUnitText(void const * view, double mil, int decimals)
{
    double const shown = getUnitJudgeDouble(view, mil);
    if (!std::isfinite(shown)) {
        return QStringLiteral("–");
    }
    double const places = std::pow(10.0, decimals);
    double const rounded = std::round(shown * places) / places;
    return QString::fromStdString(doubleToString(std::isfinite(rounded) ? rounded : shown));
}

QString measuredText(void const * view, KVCAM::UIAPI::Ext::Length measured)
{
    return smallUnitText(view, measured.toMil(), 2);
}

QString smallUnitName(void const * view)
{
    return unitName(view, 1);
}

QColor colourOf(Ext::Severity severity)
{
    return legibleText(static_cast<QRgb>(Ext::markOf(severity).rgb));
}

} // namespace Workbench
