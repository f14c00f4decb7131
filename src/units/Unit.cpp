#include "units/Unit.h"

#include "units/UnitConversion.h"

#include <QCoreApplication>

namespace KVCAM::UIAPI::Ext {

static_assert(unitCode(Unit::Inch) == Units::inch && unitCode(Unit::Millimetre) == Units::millimetre);

QString unitSuffix(Unit unit, LengthScale scale, MicrometreSign sign)
{
    bool const isLarge = scale == LengthScale::Large;
    if (unit == Unit::Inch) {
        return isLarge ? QStringLiteral("inch") : QStringLiteral("mil");
    }
    if (isLarge) {
        return QStringLiteral("mm");
    }
    return sign == MicrometreSign::My ? QStringLiteral("my") : QStringLiteral("\u00b5m");
}

QString unitName(Unit unit, LengthScale scale)
{
    bool const isLarge = scale == LengthScale::Large;
    if (unit == Unit::Inch) {
        return isLarge ? QCoreApplication::translate("Units", "inch")
                       : QCoreApplication::translate("Units", "mil");
    }
    return isLarge ? QCoreApplication::translate("Units", "millimetre")
                   : QCoreApplication::translate("Units", "micrometre");
}

} // namespace KVCAM::UIAPI::Ext
