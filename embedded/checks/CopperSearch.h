#pragma once

#include "checks/CopperItems.h"
#include "geometry/SpatialGrid.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace KVCAM::Embedded {

/// What the items below each node of a grid have in common, to pass over those that cannot be wanted.
class NodeLabels
{
public:
    struct Label
    {
        std::uint32_t net = nothing; ///< `mixed` if not all are of one net
        std::uint8_t kinds = 0;      ///< of all of them
    };
    static constexpr std::uint32_t mixed = nothing - 1;

    /// `labels`: by box.
    NodeLabels(SpatialGrid const & grid, std::vector<Label> const & labels);

    /// Whether the node holds only items of this net, or none of the wanted kinds.
    bool lacksOthers(std::size_t node, std::uint32_t net, std::uint8_t wanted) const
    {
        return m_nodes[node].net == net || (m_nodes[node].kinds & wanted) == 0;
    }
    /// Whether the node holds no item of this net, or none of the wanted kinds.
    bool lacks(std::size_t node, std::uint32_t net, std::uint8_t wanted) const
    {
        std::uint32_t const its = m_nodes[node].net;
        return (its != net && its != mixed) || (m_nodes[node].kinds & wanted) == 0;
    }

private:
    std::vector<Label> m_nodes;
};

/// The shortest way from an item to another.
struct Neighbour
{
    std::uint32_t item = nothing;
    Gap gap;
};

/// Finds the nearest copper of another net on a layer. A wall that has an owner is part of it.
class CopperSearch
{
public:
    /// Needs the nets. Takes the kinds from an item that is the same as another, drawn again; tells which
    /// pads are around the centre of a plated hole or via, and which walls belong to a pad. The layer must
    /// outlive this object.
    CopperSearch(CopperLayer & layer, PlatedHoles const & holes);

    /// Of the wanted kinds, nearer than `limit`.
    std::optional<Neighbour> nearest(std::uint32_t item, std::uint8_t wanted, double limit) const;
    /// An item whose region holds the point.
    std::optional<std::uint32_t> around(API::point point) const;

private:
    void dropCopies();
    void markPads(PlatedHoles const & holes, bool via);
    void giveWalls(PlatedHoles const & holes);
    NodeLabels labelsOfPieces() const;
    NodeLabels labelsOfRegions() const;
    void searchPieces(std::uint32_t item, std::uint8_t wanted, double limit,
                      std::optional<Neighbour> & best) const;
    void searchRegions(std::uint32_t item, std::uint8_t wanted, std::optional<Neighbour> & best) const;

    CopperLayer & m_layer;
    NodeLabels m_pieces;
    NodeLabels m_regions;
};

} // namespace KVCAM::Embedded
