#pragma once

#include "checks/CheckRecords.h"
#include "checks/DrillChecks.h"

#include <array>
#include <vector>

namespace KVCAM::Embedded {

/// A pad as drawn.
struct Pad
{
    Placement where;
    SymbolShape const * shape = nullptr;
    bool smd = false;
};

/// Measures between the pads of one layer and their neighbours or holes.
class PadChecks
{
public:
    PadChecks(std::vector<Pad> pads, CheckContext const & context);

    /// Each SMD pad and its nearest neighbour, each pair once.
    std::vector<Measurement> smdSpacings() const;
    /// The rings of the holes through a matrix row, by kind of hole.
    std::array<std::vector<Measurement>, 3> rings(std::vector<Hole> const & holes, int row) const;

private:
    std::vector<Pad> m_pads; // no two of the same shape in the same place
    CheckContext const & m_context;
};

} // namespace KVCAM::Embedded
