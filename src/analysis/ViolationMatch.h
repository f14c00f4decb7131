#pragma once

#include "analysis/ReportRecords.h"
#include "analysis/ViolationId.h"
#include "units/Length.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

/// Finding violations again. Comparisons and waivers share it, so that both mean the same by "the same".
namespace KVCAM::UIAPI::Ext {

/// What a violation is found by.
struct MatchedViolation
{
    std::string id;                 ///< see violationIds()
    ViolationName name;             ///< what the id stands for
    std::optional<Length> measured; ///< tells apart what is at one place
};

/// For each of `after` the one of `before` that is the same violation: that of the same id, else one within
/// the tolerance (isSameViolation()), the nearest pairs first; at one distance those of the closest values.
/// Each is paired at most once. Neither order matters while ids are not repeated. The time grows with n log
/// n, also in a crowd: there not all pairs are compared, so that the pairs need not be the nearest ones.
std::vector<std::optional<std::size_t>> matchViolations(std::vector<MatchedViolation> const & before,
                                                        std::vector<MatchedViolation> const & after,
                                                        Length tolerance);

} // namespace KVCAM::UIAPI::Ext
