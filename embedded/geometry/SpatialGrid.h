#pragma once

#include "EmbeddedRecords.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace KVCAM::Embedded {

/// Boxes stored by their centres in the cells of a grid. A crowded cell is itself a grid over its contents,
/// so the cost of a query stays about the same whatever the distribution. Memory is roughly linear in the
/// number of boxes. Coordinates must be finite.
class SpatialGrid
{
public:
    explicit SpatialGrid(std::vector<Box> boxes);

    struct Found
    {
        std::size_t item = 0; ///< index into the boxes
        double measure = 0;
    };

    /// The item with the lowest measure(item) below `limit`; any of them if several tie. bound(box) is a
    /// lower bound for the measures of the items within that box; items that it rules out are not measured.
    template <class Bound, class Measure>
    std::optional<Found> lowest(double limit, Bound const & bound, Measure const & measure) const
    {
        Found best{m_boxes.size(), limit};
        if (!m_nodes.empty() && bound(m_nodes.front().box) < limit) {
            descend(m_nodes.front(), bound, measure, best);
        }
        return best.item == m_boxes.size() ? std::nullopt : std::optional(best);
    }

    /// Calls visit(item) for each item whose box touches `area`.
    template <class Visit>
    void forEachTouching(Box const & area, Visit const & visit) const
    {
        if (!m_nodes.empty()) {
            collect(m_nodes.front(), area, visit);
        }
    }

private:
    static constexpr std::size_t across = 4; // cells of a grid in each direction
    static constexpr std::size_t most = 8;   // capacity of a cell before it becomes a grid

    struct Node
    {
        Box box;
        std::uint32_t first = 0; // index into m_order for a cell, into m_nodes for a grid
        std::uint32_t count = 0;
        bool cell = true;
    };
    using Starts = std::array<std::size_t, across * across + 1>;

    static bool touch(Box const & a, Box const & b)
    {
        return a.left <= b.right && b.left <= a.right && a.bottom <= b.top && b.bottom <= a.top;
    }

    template <class Bound, class Measure>
    void descend(Node const & node, Bound const & bound, Measure const & measure, Found & best) const
    {
        if (node.cell) {
            for (std::uint32_t i = node.first; i < node.first + node.count; ++i) {
                std::size_t const item = m_order[i];
                if (bound(m_boxes[item]) < best.measure) {
                    double const value = measure(item);
                    best = value < best.measure ? Found{item, value} : best;
                }
            }
            return;
        }
        struct Way
        {
            double bound;
            Node const * node;
        };
        std::array<Way, across * across> ways{};
        for (std::uint32_t i = 0; i < node.count; ++i) {
            Node const & child = m_nodes[node.first + i];
            ways[i] = {bound(child.box), &child};
        }
        std::sort(ways.begin(), ways.begin() + node.count,
                  [](Way const & a, Way const & b) { return a.bound < b.bound; });
        for (std::uint32_t i = 0; i < node.count && ways[i].bound < best.measure; ++i) {
            descend(*ways[i].node, bound, measure, best);
        }
    }

    template <class Visit>
    void collect(Node const & node, Box const & area, Visit const & visit) const
    {
        if (!touch(node.box, area)) {
            return;
        }
        for (std::uint32_t i = node.first; i < node.first + node.count; ++i) {
            if (!node.cell) {
                collect(m_nodes[i], area, visit);
            } else if (touch(m_boxes[m_order[i]], area)) {
                visit(static_cast<std::size_t>(m_order[i]));
            }
        }
    }

    void build(std::size_t index, std::size_t first, std::size_t count);
    Starts splitByPlace(std::size_t first, std::size_t count, Box const & centres);
    Starts splitBySize(std::size_t first, std::size_t count);

    std::vector<Box> m_boxes;
    std::vector<std::uint32_t> m_order; // items, those of a cell adjacent
    std::vector<Node> m_nodes;          // the root first; the children of a grid adjacent
};

} // namespace KVCAM::Embedded
