#pragma once

#include "EmbeddedChecks.h"

#include <initializer_list>
#include <string>
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
    RecordNets::Numbers nets{RecordNets::unknown, RecordNets::unknown};
};

/// `points` are rounded to the nearest micrometre and saturate. The value is the measure in mil.
Measurement measurement(int type, double measure, std::initializer_list<double> points,
                        RecordNets::Numbers nets = {RecordNets::unknown, RecordNets::unknown});

/// The records, smallest measure first, and their nets.
struct SortedRecords
{
    std::vector<API::check_info> records;
    std::vector<RecordNets::Numbers> nets;
};
SortedRecords sorted(std::vector<Measurement> measurements);

/// Files the nets of an item's records on a layer, unless all are unknown.
void fileNets(RecordNets & all, char const * table, int item, std::string const & layer,
              std::vector<RecordNets::Numbers> nets);

} // namespace KVCAM::Embedded
