#pragma once

#include "analysis/AnalysisRecords.h"

#include <vector>

namespace KVCAM::Testing {

using Entries = std::vector<UIAPI::check_info>;

inline UIAPI::signal_layers_checks_items signalItem(int number)
{
    return static_cast<UIAPI::signal_layers_checks_items>(number);
}

inline UIAPI::drill_check_item drillItem(int number)
{
    return static_cast<UIAPI::drill_check_item>(number);
}

/// Distinguishes the entries of a case.
inline std::vector<int> valuesOf(Entries const & entries)
{
    std::vector<int> values;
    for (UIAPI::check_info const & entry : entries) {
        values.push_back(entry.value);
    }
    return values;
}

} // namespace KVCAM::Testing
