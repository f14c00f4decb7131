#pragma once

#include "checks/CheckContext.h"

#include <cstdint>
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

/// A round hole or a straight slot, and the matrix rows it passes through.
struct Hole
{
    API::point place;                        ///< the centre; of a slot one end of its centre line
    API::point end;                          ///< of a slot the other end; of a round hole its place
    double diameter = 0;                     ///< of a slot its width
    std::uint32_t feature = 0;               ///< in its layer's file
    std::uint32_t net = RecordNets::unknown; ///< its number
    HoleKind kind = HoleKind::Plated;
    int firstRow = 0;
    int lastRow = std::numeric_limits<int>::max();
};

/// The kind of what nothing tells the kind of: drilled before plating, or routed after it.
HoleKind usualKind(API::layer_info const & layer);
/// The kind of a hole or slot, or `other` if neither its attributes nor the tools tell.
HoleKind kindOf(Feature const & feature, double diameter, std::vector<Tool> const & tools,
                HoleKind other = HoleKind::Plated);
/// The rows that a layer passes through; all rows if the matrix does not name both ends.
std::pair<int, int> rowsOf(Matrix const & matrix, std::string const & layer);

/// Measures the holes and slots of a drill or rout layer into the results. Appends them to `holes`, except
/// slots that are arcs.
void checkDrills(CheckContext & context, API::layer_info const & layer, CheckResults & results,
                 std::vector<Hole> & holes);

} // namespace KVCAM::Embedded
