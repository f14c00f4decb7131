#pragma once

#include "checks/ItemShapes.h"
#include "geometry/SpatialGrid.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace KVCAM::Embedded {

/// Sets of items that are connected. A set has at most one listed net; sets of different listed nets are
/// never united.
class NetSets
{
public:
    explicit NetSets(std::size_t count);

    void list(std::uint32_t item, std::uint32_t net) { m_listed[item] = net; }
    /// The item that stands for a set.
    std::uint32_t find(std::uint32_t item);
    /// Of the set; `nothing` if none of its items is listed.
    std::uint32_t listedNet(std::uint32_t item) { return m_listed[find(item)]; }
    bool isListed(std::uint32_t item);
    /// Whether two items are in one set or must not be.
    bool isSettled(std::uint32_t a, std::uint32_t b);
    void unite(std::uint32_t a, std::uint32_t b);

private:
    std::vector<std::uint32_t> m_parent;
    std::vector<std::uint32_t> m_listed; // by item that stands for a set
};

/// Finds what touches an item among the boxes of a grid. What is in one set already is found out once for
/// each node of the grid, so that items piled up cost no more than others.
class NetJoin
{
public:
    /// `items`: in the sets, by box.
    NetJoin(SpatialGrid const & grid, std::vector<std::uint32_t> items, NetSets & sets);

    /// Unites the item with what touches it: touches(index of a box) is asked only if the boxes are within
    /// `margin` and it matters.
    template <class Touches>
    void join(std::uint32_t item, Box const & box, double margin, Touches const & touches)
    {
        m_grid.walk(
            [&](std::size_t node, Box const & nodeBox) {
                bool const open = isOpen(m_nodes[node], item) && boxGap(nodeBox, box) <= margin;
                if (open) {
                    m_open.push_back({});
                } else {
                    include(m_nodes[node]);
                }
                return open;
            },
            [&](std::size_t index) {
                std::uint32_t const other = m_items[index];
                if (!m_sets.isSettled(item, other) && boxGap(m_grid.box(index), box) <= margin &&
                    touches(index)) {
                    m_sets.unite(item, other);
                }
                include({other, true, m_sets.isListed(other)});
            },
            [&](std::size_t node) {
                m_nodes[node] = m_open.back();
                m_open.pop_back();
                include(m_nodes[node]);
            });
    }

private:
    // What is known of the items below a node; it stays true.
    struct Known
    {
        std::uint32_t one = UINT32_MAX; // any of them; none yet while the node is being visited
        bool together = true;           // all are in one set
        bool listed = true;             // all have a listed net
    };

    bool isOpen(Known const & known, std::uint32_t item);
    void include(Known const & below);

    SpatialGrid const & m_grid;
    std::vector<std::uint32_t> m_items;
    NetSets & m_sets;
    std::vector<Known> m_nodes;
    std::vector<Known> m_open; // the nodes being visited, root first
};

} // namespace KVCAM::Embedded
