#pragma once

#include "support/NumberRuns.h"
#include "units/DecimalText.h"

#include <QString>
#include <QStringView>

/// Whether a value is in its range, and the message to the user if not.
namespace KVCAM::UIAPI::ValueLegality {

/// The bounds are inclusive and there is no tolerance: 3 mil is 76.199999999999989 micrometres, so 76.2 is
/// above it. NaN is in every range, and every value is in a range whose bounds are NaN.
constexpr bool isWithin(double value, double minimum, double maximum) noexcept
{
    return !(minimum > value || value > maximum);
}

/// Whether `accept` accepts the value of every number run of a name, in order, stopping at the first
/// rejection. Counts and angles are numbers like lengths.
template <class Accept>
bool everyNumber(QStringView name, Accept const & accept)
{
    while (!name.isEmpty()) {
        TextRun const run = takeNumberRun(name);
        if (run.isNumber && !accept(decimalValue(run.text))) {
            return false;
        }
    }
    return true;
}

/// The message for a value outside bounds given as texts, translated as a whole.
QString lengthMessage(QString const & minimum, QString const & maximum);
/// The message for a plain number outside its bounds, translated as a whole.
QString numberMessage(double value, double minimum, double maximum);

} // namespace KVCAM::UIAPI::ValueLegality
