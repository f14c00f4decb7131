#include "checks/CopperSearch.h"

#include <algorithm>
#include <limits>
#include <tuple>
#include <utility>

namespace KVCAM::Embedded {
namespace {

constexpr double endless = std::numeric_limits<double>::infinity();
constexpr double noise = 2.54e-5; // micrometres: a millionth of a mil, as in the rounding of values

bool holds(Box const & box, API::point point)
{
    return boxGap(box, boxOf(point)) <= 0;
}

} // namespace

NodeLabels::NodeLabels(SpatialGrid const & grid, std::vector<Label> const & labels)
    : m_nodes(grid.nodeCount())
{
    std::vector<Label> open; // of the nodes from the root to the current one
    auto const include = [&open](Label const & label) {
        Label & node = open.back();
        node.net = node.net == nothing || node.net == label.net ? label.net : mixed;
        node.kinds |= label.kinds;
    };
    grid.walk(
        [&](std::size_t /*node*/, Box const & /*box*/) {
            open.emplace_back();
            return true;
        },
        [&](std::size_t index) { include(labels[index]); },
        [&](std::size_t node) {
            m_nodes[node] = open.back();
            open.pop_back();
            if (!open.empty()) {
                include(m_nodes[node]);
            }
        });
}

CopperSearch::CopperSearch(CopperLayer & layer, PlatedHoles const & holes)
    : m_layer(layer), m_pieces(labelsOfPieces()), m_regions(labelsOfRegions())
{
    dropCopies();
    giveWalls(holes);
    markPads(holes, false);
    markPads(holes, true);
    m_pieces = labelsOfPieces();
    m_regions = labelsOfRegions();
}

NodeLabels CopperSearch::labelsOfPieces() const
{
    std::vector<NodeLabels::Label> labels;
    for (std::size_t piece = 0; piece < m_layer.shapes.pieces().size(); ++piece) {
        CopperItem const & item = m_layer.items[m_layer.shapes.pieces().itemOf(piece)];
        labels.push_back({item.net, item.kinds});
    }
    return {m_layer.shapes.grid(), labels};
}

NodeLabels CopperSearch::labelsOfRegions() const
{
    std::vector<NodeLabels::Label> labels;
    for (std::size_t region = 0; region < m_layer.shapes.regionCount(); ++region) {
        CopperItem const & item = m_layer.items[m_layer.shapes.itemOfRegion(region)];
        labels.push_back({item.net, item.kinds});
    }
    return {m_layer.shapes.regionGrid(), labels};
}

// Pads, straight tracks and walls of one net and place: only the first is searched and found. Piled up, they
// would all be measured against each other.
void CopperSearch::dropCopies()
{
    ItemShapes const & shapes = m_layer.shapes;
    std::vector<std::uint32_t> order = shapes.singles();
    auto const compared = [&](std::uint32_t a, std::uint32_t b) {
        auto const key = [&](std::uint32_t item) {
            CopperItem const & its = m_layer.items[item];
            return std::tuple(its.net, its.kinds, its.hole == nothing);
        };
        return key(a) == key(b) ? shapes.compare(a, b) : key(a) < key(b) ? -1 : 1;
    };
    std::sort(order.begin(), order.end(), [&](std::uint32_t a, std::uint32_t b) {
        int const way = compared(a, b);
        return way < 0 || (way == 0 && a < b);
    });
    std::vector<std::uint32_t> copies;
    for (std::size_t i = 1; i < order.size(); ++i) {
        if (compared(order[i - 1], order[i]) == 0) {
            copies.push_back(order[i]);
        }
    }
    for (std::uint32_t const copy : copies) {
        m_layer.items[copy].kinds = 0;
    }
}

// A pad of the net of a wall that is around the hole's centre owns the wall.
void CopperSearch::giveWalls(PlatedHoles const & holes)
{
    ItemShapes const & shapes = m_layer.shapes;
    for (std::uint32_t wall = 0; wall < m_layer.items.size(); ++wall) {
        std::uint32_t const hole = m_layer.items[wall].hole;
        if (hole == nothing) {
            continue;
        }
        API::point const centre = holes.list[hole].place;
        std::uint32_t const net = m_layer.items[wall].net;
        auto const found = shapes.grid().lowest(
            1, [&](Box const & box) { return holds(box, centre) ? 0.0 : 1.0; },
            [&](std::size_t piece) {
                std::uint32_t const item = shapes.pieces().itemOf(piece);
                CopperItem const & its = m_layer.items[item];
                bool const pad = its.net == net && (its.kinds & copperPad) != 0;
                return pad && shapes.covers(item, centre, noise) ? 0.0 : 1.0;
            },
            [&](std::size_t node) { return m_pieces.lacks(node, net, copperPad); });
        if (found) {
            std::uint32_t const pad = shapes.pieces().itemOf(found->item);
            m_layer.items[wall].owner = pad;
            m_layer.items[wall].wall = std::exchange(m_layer.items[pad].wall, wall);
        }
    }
}

void CopperSearch::markPads(PlatedHoles const & holes, bool via)
{
    std::vector<API::point> centres;
    std::vector<Box> boxes;
    for (PlatedHole const & hole : holes.list) {
        if (hole.via == via && m_layer.row >= hole.firstRow && m_layer.row <= hole.lastRow) {
            centres.push_back(hole.place);
            boxes.push_back(boxOf(hole.place));
        }
    }
    SpatialGrid const grid(boxes);
    ItemShapes const & shapes = m_layer.shapes;
    for (std::uint32_t item = 0; item < m_layer.items.size(); ++item) {
        if ((m_layer.items[item].kinds & copperPad) == 0 ||
            shapes.firstPiece(item) == shapes.endPiece(item)) {
            continue;
        }
        Box extent = shapes.grid().box(shapes.firstPiece(item));
        for (std::size_t piece = shapes.firstPiece(item); piece < shapes.endPiece(item); ++piece) {
            include(extent, {shapes.grid().box(piece).left, shapes.grid().box(piece).bottom});
            include(extent, {shapes.grid().box(piece).right, shapes.grid().box(piece).top});
        }
        auto const inside = grid.lowest(
            1, [&](Box const & box) { return boxGap(box, extent) <= 0 ? 0.0 : 1.0; },
            [&](std::size_t hole) { return shapes.covers(item, centres[hole], noise) ? 0.0 : 1.0; });
        m_layer.items[item].kinds |= inside ? (via ? copperVia : copperPth) : 0;
    }
}

std::optional<Neighbour> CopperSearch::nearest(std::uint32_t item, std::uint8_t wanted, double limit) const
{
    std::optional<Neighbour> best;
    for (std::uint32_t part = item; part != nothing; part = m_layer.items[part].wall) {
        searchPieces(part, wanted, best ? best->gap.distance : limit, best);
        if (!best || best->gap.distance > 0) {
            searchRegions(part, wanted, best);
        }
    }
    if (best && m_layer.items[best->item].owner != nothing) {
        best->item = m_layer.items[best->item].owner;
    }
    return best;
}

void CopperSearch::searchPieces(std::uint32_t item, std::uint8_t wanted, double limit,
                                std::optional<Neighbour> & best) const
{
    ItemShapes const & shapes = m_layer.shapes;
    Pieces const & pieces = shapes.pieces();
    std::uint32_t const net = m_layer.items[item].net;
    for (std::size_t piece = shapes.firstPiece(item); piece < shapes.endPiece(item) && limit > 0; ++piece) {
        PieceView const view = pieces[piece];
        Box const box = shapes.grid().box(piece);
        auto const found = shapes.grid().lowest(
            limit, [&](Box const & other) { return boxGap(other, box); },
            [&](std::size_t other) {
                CopperItem const & its = m_layer.items[pieces.itemOf(other)];
                bool const fits = its.net != net && (its.kinds & wanted) != 0;
                return fits ? gapBetween(view, pieces[other]).distance : endless;
            },
            [&](std::size_t node) { return m_pieces.lacksOthers(node, net, wanted); });
        if (found) {
            limit = found->measure;
            best = {pieces.itemOf(found->item), gapBetween(view, pieces[found->item])};
        }
    }
}

void CopperSearch::searchRegions(std::uint32_t item, std::uint8_t wanted,
                                 std::optional<Neighbour> & best) const
{
    ItemShapes const & shapes = m_layer.shapes;
    std::uint32_t const net = m_layer.items[item].net;
    for (std::size_t piece = shapes.firstPiece(item); piece < shapes.endPiece(item); ++piece) {
        if (!shapes.pieces().starts(piece)) {
            continue;
        }
        API::point const at = shapes.pieces()[piece].corners[0];
        auto const found = shapes.regionGrid().lowest(
            1, [&](Box const & box) { return holds(box, at) ? 0.0 : 1.0; },
            [&](std::size_t region) {
                CopperItem const & its = m_layer.items[shapes.itemOfRegion(region)];
                bool const fits = its.net != net && (its.kinds & wanted) != 0;
                return fits && shapes.holds(region, at) ? 0.0 : 1.0;
            },
            [&](std::size_t node) { return m_regions.lacksOthers(node, net, wanted); });
        if (found) {
            best = {shapes.itemOfRegion(found->item), {0, at, at}};
            return;
        }
    }
}

std::optional<std::uint32_t> CopperSearch::around(API::point point) const
{
    auto const found = m_layer.shapes.regionGrid().lowest(
        1, [&](Box const & box) { return holds(box, point) ? 0.0 : 1.0; },
        [&](std::size_t region) { return m_layer.shapes.holds(region, point) ? 0.0 : 1.0; });
    return found ? std::optional(m_layer.shapes.itemOfRegion(found->item)) : std::nullopt;
}

} // namespace KVCAM::Embedded
