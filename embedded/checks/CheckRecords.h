#pragma once

#include <kvcam/Records.h>

#include <initializer_list>
#include <vector>

namespace KVCAM::Embedded {

/// Micrometres to whole mil, rounded down. A value less than a millionth of a mil short of the next mil
/// counts as that mil, since an exact 8 mil can come out of the conversions slightly low or high. At least 0;
/// saturates.
int floorMil(double micrometres);

/// To the nearest integer; saturates.
int roundedInt(double value);

/// A record and its unrounded measure in micrometres.
struct Measurement
{
    double measure = 0;
    API::check_info info;
};

/// `points` are rounded to the nearest micrometre and saturate. The value is the measure in mil.
Measurement measurement(int type, double measure, std::initializer_list<double> points);

/// The records, smallest measure first.
std::vector<API::check_info> sorted(std::vector<Measurement> measurements);

} // namespace KVCAM::Embedded
