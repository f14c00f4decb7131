#include "checks/CheckRecords.h"

#include "support/Narrowing.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace KVCAM::Embedded {

int floorMil(double micrometres)
{
    double const mil = micrometres / 25.4;
    double const whole = std::round(mil);
    return UIAPI::saturatedInt(std::max(0.0, std::abs(mil - whole) < 1e-6 ? whole : std::floor(mil)));
}

int roundedInt(double value)
{
    return UIAPI::saturatedInt(std::round(value));
}

Measurement measurement(int type, double measure, std::initializer_list<double> points)
{
    Measurement result{measure, {type, floorMil(measure), {}}};
    result.info.points.reserve(points.size());
    for (double const value : points) {
        result.info.points.push_back(roundedInt(value));
    }
    return result;
}

std::vector<API::check_info> sorted(std::vector<Measurement> measurements)
{
    std::stable_sort(measurements.begin(), measurements.end(),
                     [](Measurement const & a, Measurement const & b) { return a.measure < b.measure; });
    std::vector<API::check_info> records;
    records.reserve(measurements.size());
    for (Measurement & each : measurements) {
        records.push_back(std::move(each.info));
    }
    return records;
}

} // namespace KVCAM::Embedded
