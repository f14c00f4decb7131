#include "checks/MeasureTexts.h"

#include "ui/Legible.h"

#include "ui/Units.h"

#include <QCoreApplication>

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

QString signOf(Ext::Severity severity)
{
    Ext::SeverityMark const & mark = Ext::markOf(severity);
    return severity == Ext::Severity::None ? QString::fromUtf8(mark.icon)
                                           : QString::fromUtf8(mark.icon) + ' ' + QLatin1Char(mark.letter);
}

QString wordOf(Ext::Severity severity)
{
    switch (severity) {
    case Ext::Severity::Red:
        return QCoreApplication::translate("Workbench", "red");
    case Ext::Severity::Yellow:
        return QCoreApplication::translate("Workbench", "yellow");
    case Ext::Severity::Green:
        return QCoreApplication::translate("Workbench", "green");
    case Ext::Severity::None:
        break;
    }
    return QCoreApplication::translate("Workbench", "none");
}

Ext::Severity worstOf(Ext::SeverityCounts const & counts)
{
    for (std::size_t row = counts.size(); row-- > 0;) {
        if (counts[row] != 0) {
            return static_cast<Ext::Severity>(row);
        }
    }
    return Ext::Severity::None;
}

} // namespace Workbench
