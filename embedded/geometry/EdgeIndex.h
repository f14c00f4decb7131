#pragma once

#include "geometry/SpatialGrid.h"

#include <kvcam/Records.h>

#include <array>
#include <cstddef>
#include <optional>
#include <vector>

namespace KVCAM::Embedded {

using Edge = std::array<API::point, 2>;

/// Whether an edge counts for a ray from the point to the right. A point with an odd number of such edges is
/// inside.
inline bool isRightOf(API::point const & from, API::point const & to, API::point const & point)
{
    return (from.y > point.y) != (to.y > point.y) &&
           point.x < from.x + (point.y - from.y) / (to.y - from.y) * (to.x - from.x);
}

/// The edges of closed outlines, filled odd-even. A query takes about the logarithm of their number, as long
/// as the edges do not cross each other in masses.
class EdgeIndex
{
public:
    explicit EdgeIndex(std::vector<Edge> edges);

    std::vector<Edge> const & edges() const { return m_edges; }
    SpatialGrid const & grid() const { return m_grid; }

    /// Whether a point is inside.
    bool holds(API::point point) const;
    /// Whether an edge is nearer to a point than this.
    bool isNear(API::point point, double within) const;

private:
    // The heights at which the number of a node's edges that a horizontal line crosses changes between even
    // and odd: the ends of its edges, ascending, without those where two of its edges meet.
    struct Heights
    {
        std::size_t first = 0; // in m_heights
        std::size_t count = 0;
    };

    void collectHeights();

    std::vector<Edge> m_edges;
    SpatialGrid m_grid;
    std::vector<Heights> m_nodes; // by node of the grid
    std::vector<double> m_heights;
};

} // namespace KVCAM::Embedded
