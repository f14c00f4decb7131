#include "analysis/Grade.h"

#include "units/UnitConversion.h"

#include <cmath>

namespace KVCAM::UIAPI::Ext {

Severity grade(Analysis_Ranges_Record const & record, double value, Sense sense)
{
    // Negation turns larger-is-worse into smaller-is-worse.
    double const sign = sense == Sense::SmallerIsWorse ? 1.0 : -1.0;
    double const red = sign * record.redLv;
    double const yellow = sign * record.yellowLv;
    double const green = sign * record.greenLv;
    double const measured = sign * value;
    bool const isFinite =
        std::isfinite(red) && std::isfinite(yellow) && std::isfinite(green) && std::isfinite(measured);
    if (!isFinite || red > yellow || yellow > green || measured > green) {
        return Severity::None;
    }
    if (measured <= red) {
        return Severity::Red;
    }
    return measured <= yellow ? Severity::Yellow : Severity::Green;
}

Sense senseOf(Analysis_Ranges_Record const & record)
{
    return record.redLv > record.greenLv ? Sense::LargerIsWorse : Sense::SmallerIsWorse;
}

Severity gradeMeasured(Analysis_Ranges_Record const & record, Length measured, Unit levels)
{
    auto const inMicrometres = [levels](double level) {
        return std::round(levels == Unit::Inch ? level * Units::millimetresPerInch : level);
    };
    Analysis_Ranges_Record const converted{
        {}, inMicrometres(record.redLv), inMicrometres(record.yellowLv), inMicrometres(record.greenLv)};
    return grade(converted, measured.toMicrometres(), senseOf(record));
}

} // namespace KVCAM::UIAPI::Ext
