#pragma once

#include "analysis/AnalysisRecords.h"

#include <array>
#include <cstddef>
#include <limits>
#include <optional>
#include <vector>

/// The kinds of check results (check_info::type): one table with the meaning of their points.
namespace KVCAM::UIAPI {

/// Stands for a missing point.
inline constexpr std::size_t noPoint = std::numeric_limits<std::size_t>::max();

/// One kind. Points are numbered from 0.
struct CheckKind
{
    int kind;
    std::size_t count = noPoint;        ///< how many points a result must have for its value to be read
    std::size_t measured = noPoint;     ///< the measured value is the smallest of the points from here ...
    std::size_t lastMeasured = noPoint; ///< ... to here; noPoint: the kind is not measured
    std::size_t compared = noPoint;     ///< sort key; noPoint: the kind has no order
    std::size_t places = 1;             ///< how many places, two points each, a result starts with
};

/// Indexed by kind.
inline constexpr std::array<CheckKind, 6> checkKinds = {{
    {0, noPoint, noPoint, noPoint, 2, 1},
    {1, 5, 4, 4, 4, 2},
    {2, 5, 4, 4, 4, 2},
    {3, 8, 6, 6, 6, 1},
    {4},
    {5, 4, 2, 3, 2, 1}, // sorted by the third point, although the measured value is the smaller of two
}};

/// The points used as sort keys, each once, ascending.
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

/// The row for every kind outside the table.
inline constexpr CheckKind unknownKind = {-1};

/// The row of a kind; unknownKind outside the table.
constexpr CheckKind const & checkKind(int kind) noexcept
{
    return kind >= 0 && kind < static_cast<int>(checkKinds.size())
               ? checkKinds[static_cast<std::size_t>(kind)]
               : unknownKind;
}

/// The measured quantity of a check result, selected by its kind; nothing if the number of points does not
/// match the kind.
std::optional<double> measuredValue(check_info const & info);

/// The places of a result in micrometres: one, or two for kinds that measure between two items. Empty if one
/// of them is missing.
std::vector<KVCAM::API::point> placesOf(check_info const & info);

/// The position of a result in micrometres: the middle of its places. Nothing if one of them is missing.
std::optional<KVCAM::API::point> positionOf(check_info const & info);

} // namespace KVCAM::UIAPI
