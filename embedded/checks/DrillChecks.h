#pragma once

#include "checks/CheckContext.h"

#include <limits>
#include <string>
#include <utility>
#include <vector>

namespace KVCAM::Embedded {

enum class HoleKind : int
{
    Plated,
    NonPlated,
    Via
};

/// A round hole and the matrix rows it passes through.
struct Hole
{
    API::point place;
    double diameter = 0;
    HoleKind kind = HoleKind::Plated;
    int firstRow = 0;
    int lastRow = std::numeric_limits<int>::max();
};

/// The kind of a hole or slot, or `other` if neither its attributes nor the tools tell.
HoleKind kindOf(Feature const & feature, double diameter, std::vector<Tool> const & tools,
                HoleKind other = HoleKind::Plated);
/// The rows that a layer passes through; all rows if the matrix does not name both ends.
std::pair<int, int> rowsOf(Matrix const & matrix, std::string const & layer);

/// Measures the holes and slots of a drill or rout layer into the results. Appends the holes to `holes`.
void checkDrills(CheckContext & context, API::layer_info const & layer, CheckResults & results,
                 std::vector<Hole> & holes);

} // namespace KVCAM::Embedded
