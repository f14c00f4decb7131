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
/// number of boxes, which are kept in single precision, rounded outwards. Coordinates must be finite and
/// within 1e30.
class SpatialGrid
{
public:
    explicit SpatialGrid(std::vector<Box> const & boxes);

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
        return lowest(limit, bound, measure, [](std::size_t) { return false; });
    }

    /// The same without the items of the nodes for which skip(node) is true.
    template <class Bound, class Measure, class Skip>
    std::optional<Found> lowest(double limit, Bound const & bound, Measure const & measure,
                                Skip const & skip) const
    {
        Found best{m_boxes.size(), limit};
        if (!m_nodes.empty() && bound(m_nodes.front().box.wide()) < limit && !skip(0)) {
            descend(0, bound, measure, skip, best);
        }
        return best.item == m_boxes.size() ? std::nullopt : std::optional(best);
    }

    /// The nodes are numbered from 0, the root.
    std::size_t nodeCount() const { return m_nodes.size(); }
    /// Around the item's box.
    Box box(std::size_t item) const { return m_boxes[item].wide(); }

    /// Goes from the root down: below a node only if enter(node, its box), through its nodes or its items,
    /// and then leave(node). Calls visit(item) for each item met.
    template <class Enter, class Visit, class Leave>
    void walk(Enter const & enter, Visit const & visit, Leave const & leave) const
    {
        if (!m_nodes.empty()) {
            walkBelow(0, enter, visit, leave);
        }
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

    struct NarrowBox
    {
        float left = 0;
        float bottom = 0;
        float right = 0;
        float top = 0;

        Box wide() const
        {
            return {static_cast<double>(left), static_cast<double>(bottom), static_cast<double>(right),
                    static_cast<double>(top)};
        }
    };
    static NarrowBox around(Box const & box);

    struct Node
    {
        NarrowBox box;
        std::uint32_t first = 0;  // index into m_order for a cell, into m_nodes for a grid
        std::uint32_t count : 31; // with `cell` in four bytes
        std::uint32_t cell : 1;
    };
    using Starts = std::array<std::size_t, across * across + 1>;

    static bool touch(Box const & a, Box const & b)
    {
        return a.left <= b.right && b.left <= a.right && a.bottom <= b.top && b.bottom <= a.top;
    }

    template <class Bound, class Measure, class Skip>
    void descend(std::size_t index, Bound const & bound, Measure const & measure, Skip const & skip,
                 Found & best) const
    {
        Node const & node = m_nodes[index];
        if (node.cell) {
            for (std::uint32_t i = node.first; i < node.first + node.count; ++i) {
                std::size_t const item = m_order[i];
                if (bound(box(item)) < best.measure) {
                    double const value = measure(item);
                    best = value < best.measure ? Found{item, value} : best;
                }
            }
            return;
        }
        struct Way
        {
            double bound;
            std::uint32_t node;
        };
        std::array<Way, across * across> ways{};
        std::size_t count = 0;
        for (std::uint32_t child = node.first; child < node.first + node.count; ++child) {
            double const least = bound(m_nodes[child].box.wide());
            if (least < best.measure && !skip(child)) {
                ways[count++] = {least, child};
            }
        }
        std::sort(ways.begin(), ways.begin() + static_cast<std::ptrdiff_t>(count),
                  [](Way const & a, Way const & b) { return a.bound < b.bound; });
        for (std::size_t i = 0; i < count && ways[i].bound < best.measure; ++i) {
            descend(ways[i].node, bound, measure, skip, best);
        }
    }

    template <class Enter, class Visit, class Leave>
    void walkBelow(std::size_t index, Enter const & enter, Visit const & visit, Leave const & leave) const
    {
        Node const & node = m_nodes[index];
        if (!enter(index, node.box.wide())) {
            return;
        }
        for (std::uint32_t i = node.first; i < node.first + node.count; ++i) {
            if (node.cell) {
                visit(static_cast<std::size_t>(m_order[i]));
            } else {
                walkBelow(i, enter, visit, leave);
            }
        }
        leave(index);
    }

    template <class Visit>
    void collect(Node const & node, Box const & area, Visit const & visit) const
    {
        if (!touch(node.box.wide(), area)) {
            return;
        }
        for (std::uint32_t i = node.first; i < node.first + node.count; ++i) {
            if (!node.cell) {
                collect(m_nodes[i], area, visit);
            } else if (touch(box(m_order[i]), area)) {
                visit(static_cast<std::size_t>(m_order[i]));
            }
        }
    }

    void build(std::size_t index, std::size_t first, std::size_t count);
    Starts splitByPlace(std::size_t first, std::size_t count, Box const & centres);
    Starts splitBySize(std::size_t first, std::size_t count);

    std::vector<NarrowBox> m_boxes;
    std::vector<std::uint32_t> m_order; // items, those of a cell adjacent
    std::vector<Node> m_nodes;          // the root first; the children of a grid adjacent
};

} // namespace KVCAM::Embedded
