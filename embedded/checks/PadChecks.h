#pragma once

#include "checks/CheckRecords.h"
#include "checks/DrillChecks.h"
#include "geometry/Region.h"
#include "geometry/SpatialGrid.h"

#include <array>
#include <cstdint>
#include <vector>

namespace KVCAM::Embedded {

/// A pad as drawn.
struct Pad
{
    Placement where;
    SymbolShape const * shape = nullptr;
    bool smd = false;
    std::uint32_t net = RecordNets::unknown;
};

/// Measures between the pads of one layer and their neighbours or holes.
class PadChecks
{
public:
    PadChecks(std::vector<Pad> pads, CheckContext const & context);

    /// The sizes of the pads.
    std::vector<Measurement> sizes() const;
    /// Each SMD pad and its nearest neighbour, each pair once.
    std::vector<Measurement> smdSpacings() const;
    /// Whether there are so many corners that smdSpacings() measures the boxes around large symbols.
    bool isCoarse() const { return m_coarse; }
    struct Rings
    {
        std::array<std::vector<Measurement>, 3> byKind; ///< by kind of hole
        // Plated holes without a ring.
        int withoutPad = 0; ///< no pad touches the hole
        int beside = 0;     ///< a pad does, but its solid copper does not cover the hole's centre
    };
    /// The rings of the holes and slots through a matrix row.
    Rings rings(std::vector<Hole> const & holes, int row) const;

private:
    static Region copper(Pad const & pad, bool coarse);
    bool isTouched(Hole const & hole, SpatialGrid const & grid) const;

    std::vector<Pad> m_pads; // no two of the same shape in the same place
    CheckContext const & m_context;
    bool m_coarse = false;
};

} // namespace KVCAM::Embedded
