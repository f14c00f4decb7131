#pragma once

#include "analysis/AnalysisRecords.h"

#include <array>
#include <cstddef>
#include <limits>
#include <optional>

/// What the kinds of check results (check_info::type) mean: which of its points say what, in one table.
namespace KVCAM::UIAPI {

/// In place of the number of a point where there is none.
inline constexpr std::size_t noPoint = std::numeric_limits<std::size_t>::max();

/// One kind. Points are numbered from 0.
struct CheckKind
{
    int kind;
    std::size_t count = noPoint;        ///< how many points a result has whose value can be read
    std::size_t measured = noPoint;     ///< the measured value is the smallest of the points from here ...
    std::size_t lastMeasured = noPoint; ///< ... to here; noPoint: the kind is not measured
    std::size_t compared = noPoint;     ///< by which results are sorted; noPoint: the kind has no order
    std::size_t places = 1;             ///< how many places, of two points each, a result begins with
};

/// By kind, which is the row's index.
inline constexpr std::array<CheckKind, 6> checkKinds = {{
    {0, noPoint, noPoint, noPoint, 2, 1},
    {1, 5, 4, 4, 4, 2},
    {2, 5, 4, 4, 4, 2},
    {3, 8, 6, 6, 6, 1},
    {4},
    {5, 4, 2, 3, 2, 1}, // sorted by the third point, although the smaller of two is the measured value
}};

/// The points by which kinds are compared, each once, ascending.
inline constexpr std::array<std::size_t, 3> comparedPoints = {2, 4, 6};

constexpr bool isKindTableSound()
{
    for (std::size_t i = 0; i < checkKinds.size(); ++i) {
        CheckKind const & row = checkKinds[i];
        bool isComparedPoint = row.compared == noPoint;
        for (std::size_t const point : comparedPoints) {
            isComparedPoint = isComparedPoint || row.compared == point;
        }
        bool const isMeasured = row.measured != noPoint;
        if (row.kind != static_cast<int>(i) || !isComparedPoint || row.places == 0 ||
            (isMeasured && (row.measured > row.lastMeasured || row.lastMeasured >= row.count))) {
            return false;
        }
    }
    return true;
}
static_assert(isKindTableSound());

/// Of every kind outside the table.
inline constexpr CheckKind unknownKind = {-1};

/// The row of a kind; unknownKind outside the table.
constexpr CheckKind const & checkKind(int kind) noexcept
{
    return kind >= 0 && kind < static_cast<int>(checkKinds.size())
               ? checkKinds[static_cast<std::size_t>(kind)]
               : unknownKind;
}

/// The measured quantity of a check result, picked by its kind; nothing when kind and count do not agree.
std::optional<double> measuredValue(check_info const & info);

/// Where a result lies, micrometres: the middle of its places. Nothing when it lacks one of them.
std::optional<KVCAM::API::point> positionOf(check_info const & info);

} // namespace KVCAM::UIAPI
