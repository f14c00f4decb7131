#pragma once

#include "analysis/AnalysisRecords.h"

#include <optional>
#include <vector>

namespace KVCAM::UIAPI {

/// Whether `a` goes before `b`: the point by which a's kind is compared (see CheckKinds.h) is smaller in `a`.
/// False where one of them lacks that point; always true for a kind without one, which is no order and kept
/// as it is.
bool goesBefore(check_info const & a, check_info const & b);

/// The entries of the lists, one list after the other, sorted ascending by goesBefore(), stably where that is
/// an order.
std::vector<check_info> sortedByMeasure(std::vector<std::vector<check_info> const *> const & lists);

/// The value of a layer: that of the first entry of the first group that has one. None without entries.
std::optional<int> layerValue(unified_check_result const & result);

} // namespace KVCAM::UIAPI
