#pragma once

#include "support/NumberRuns.h"
#include "units/DecimalText.h"

#include <QString>
#include <QStringView>

/// Whether a value lies in its range, and what the user reads when it does not.
namespace KVCAM::UIAPI::ValueLegality {

/// The bounds belong to the range and there is no tolerance: 3 mil is 76.199999999999989 micrometres, so 76.2
/// lies above it. NaN lies in every range, and every value in one whose bounds are NaN.
constexpr bool isWithin(double value, double minimum, double maximum) noexcept
{
    return !(minimum > value || value > maximum);
}

/// Whether `accept` takes the value of every number run of a name, asked in order up to the first it refuses.
/// Counts and angles are numbers like lengths.
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

/// What is said of a value outside bounds that are given as texts, translated as a whole.
QString lengthMessage(QString const & minimum, QString const & maximum);
/// What is said of a plain number outside its bounds, translated as a whole.
QString numberMessage(double value, double minimum, double maximum);

} // namespace KVCAM::UIAPI::ValueLegality
