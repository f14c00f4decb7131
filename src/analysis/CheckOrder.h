#pragma once

#include "analysis/AnalysisRecords.h"

#include <optional>
#include <vector>

namespace KVCAM::UIAPI {

/// Whether `a` goes before `b`: the sort-key point of a's kind (see CheckKinds.h) is smaller in `a`. False if
/// either lacks that point. Always true for kinds without a sort key. Not a strict weak order; deliberate.
bool goesBefore(check_info const & a, check_info const & b);

/// The entries of the lists, concatenated and sorted ascending by goesBefore(); stable where that is a strict
/// weak order.
std::vector<check_info> sortedByMeasure(std::vector<std::vector<check_info> const *> const & lists);

/// The value of a layer: that of the first entry of the first non-empty group. None without entries.
std::optional<int> layerValue(unified_check_result const & result);

} // namespace KVCAM::UIAPI
