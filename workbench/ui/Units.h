#pragma once

#include <UIAPICommon.h>
#include <UIAPICommonExt.h>

#include <QRegularExpression>
#include <QString>

namespace Workbench {

using KVCAM::UIAPI::Ext::Unit;

/// Gives a view a unit.
inline void giveUnit(void const * view, Unit unit)
{
    KVCAM::UIAPI::setUnit(view, KVCAM::UIAPI::Ext::unitCode(unit));
}

/// Gives a view its other unit.
inline void switchUnit(void const * view)
{
    giveUnit(view, otherUnit(KVCAM::UIAPI::Ext::unitOf(view)));
}

/// The name of a view's large unit (kind 0) or small one (kind 1) on the screen: the library's, but with the
/// micrometre as µm.
inline QString unitName(void const * view, int kind)
{
    QString const name = QString::fromStdString(KVCAM::UIAPI::getUnitStringType(view, kind));
    return name == "my" ? QString::fromUtf8("µm") : name;
}

/// A symbol in words on the screen: the library's, likewise.
inline QString symbolText(QString const & name, Unit unit)
{
    static QRegularExpression const micrometres(R"((?<=\d) my\b)");
    return KVCAM::UIAPI::Ext::describeSymbol(name, unit).replace(micrometres, QString::fromUtf8(" µm"));
}

/// The length of a small unit.
constexpr double micrometresPer(Unit unit)
{
    return nanometresPer(unit, KVCAM::UIAPI::Ext::LengthScale::Small) / 1000.0;
}

} // namespace Workbench
