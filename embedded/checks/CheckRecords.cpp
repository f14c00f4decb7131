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

Measurement measurement(int type, double measure, std::initializer_list<double> points,
                        RecordNets::Numbers nets)
{
    Measurement result{measure, {type, floorMil(measure), {}}, nets};
    result.info.points.reserve(points.size());
    for (double const value : points) {
        result.info.points.push_back(roundedInt(value));
    }
    return result;
}

SortedRecords sorted(std::vector<Measurement> measurements)
{
    std::stable_sort(measurements.begin(), measurements.end(),
                     [](Measurement const & a, Measurement const & b) { return a.measure < b.measure; });
    SortedRecords out;
    out.records.reserve(measurements.size());
    out.nets.reserve(measurements.size());
    for (Measurement & each : measurements) {
        out.records.push_back(std::move(each.info));
        out.nets.push_back(each.nets);
    }
    return out;
}

void fileNets(RecordNets & all, char const * table, int item, std::string const & layer,
              std::vector<RecordNets::Numbers> nets)
{
    bool const isKnown = std::any_of(nets.begin(), nets.end(), [](RecordNets::Numbers const & each) {
        return each[0] != RecordNets::unknown || each[1] != RecordNets::unknown;
    });
    if (isKnown) {
        all.lists[{table, item, layer}] = std::move(nets);
    }
}

} // namespace KVCAM::Embedded
