#include "PadSymbol.h"

#include <UIAPICommon.h>

#include <QRegularExpression>

namespace Workbench {

namespace {

// Family, first size, second size, the rest.
QRegularExpressionMatch match(QString const & name)
{
    static QRegularExpression const pattern(
        R"(^(r|s|rect|oval|oval_h|di|el|oct|tri|donut_[rs])(\d+\.?\d*)(?:x(\d+\.?\d*))?(x.*)?$)");
    return pattern.match(name);
}

} // namespace

QString PadSymbol::in(int otherUnit) const
{
    QString converted = name;
    if (otherUnit != unit) {
        KVCAM::UIAPI::setSymbolUIData(converted, otherUnit);
    }
    return converted;
}

bool readSizes(QString const & name, QString & width, QString & height)
{
    auto const parts = match(name);
    width = parts.captured(2);
    height = parts.captured(3);
    return parts.hasMatch();
}

QString withSizes(QString const & name, QString const & width, QString const & height)
{
    auto const parts = match(name);
    if (!parts.hasMatch() || width.isEmpty()) {
        return name;
    }
    QString const second = parts.captured(3).isEmpty() ? QString() : 'x' + height;
    return parts.captured(1) + width + second + parts.captured(4);
}

} // namespace Workbench
