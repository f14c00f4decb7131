#pragma once

#include <kvcam/Records.h>

#include <initializer_list>
#include <vector>

namespace KVCAM::Embedded {

/// Micrometres in whole mil, rounded down. What lacks less than a millionth of the next mil has reached it,
/// since an exact 8 mil comes out of its conversions a little below or above. At least 0; saturates.
int floorMil(double micrometres);

/// A record together with what it says before any rounding, in micrometres.
struct Measurement
{
    double measure = 0;
    API::check_info info;
};

/// `points` are rounded to the nearest and saturate; the value is the measure in mil.
Measurement measurement(int type, double measure, std::initializer_list<double> points);

/// The records, smallest measure first.
std::vector<API::check_info> sorted(std::vector<Measurement> measurements);

} // namespace KVCAM::Embedded
