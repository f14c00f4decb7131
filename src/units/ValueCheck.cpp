#include "units/ValueCheck.h"

#include "units/UnitConversion.h"
#include "units/ValueLegality.h"

namespace KVCAM::UIAPI::Ext {

ValueVerdict checkValue(double value, double minimum, double maximum, int unit)
{
    if (ValueLegality::isWithin(value, Units::milToSmallUnit(unit, minimum),
                                Units::milToSmallUnit(unit, maximum))) {
        return {};
    }
    return {false,
            ValueLegality::lengthMessage(Units::milText(unit, minimum, 2), Units::milText(unit, maximum, 2))};
}

ValueVerdict checkNumber(double value, double minimum, double maximum)
{
    if (ValueLegality::isWithin(value, minimum, maximum)) {
        return {};
    }
    return {false, ValueLegality::numberMessage(value, minimum, maximum)};
}

ValueVerdict checkSymbol(QString const & name, double minimum, double maximum, int unit)
{
    ValueVerdict verdict;
    ValueLegality::everyNumber(name, [&](double value) {
        verdict = checkValue(value, minimum, maximum, unit);
        return verdict.legal;
    });
    return verdict;
}

} // namespace KVCAM::UIAPI::Ext
