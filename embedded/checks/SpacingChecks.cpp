#include "checks/SpacingChecks.h"

#include "checks/CheckRecords.h"
#include "checks/CopperSearch.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <deque>
#include <iterator>
#include <limits>
#include <map>
#include <string>
#include <tuple>
#include <utility>

namespace KVCAM::Embedded {
namespace {

constexpr double endless = std::numeric_limits<double>::infinity();
constexpr std::size_t chunk = 256; // items between two progress reports

struct Category
{
    int item;
    std::uint8_t from; // each item of these kinds ...
    std::uint8_t to;   // ... and its nearest neighbour of those, and the other way round
};
constexpr std::array<Category, 6> categories{{
    {3, anyCopper, anyCopper},
    {4, copperTrack, copperTrack},
    {14, copperVia, copperVia},
    {15, copperPth, copperPth},
    {26, copperPth, copperTrack},
    {29, copperVia, copperTrack},
}};
constexpr int routToCopper = 43;

struct CloseHoles
{
    int item;
    bool via;
    bool sameNet;
};
constexpr std::array<CloseHoles, 4> closeHoles{{
    {28, false, true},
    {29, false, false},
    {34, true, true},
    {35, true, false},
}};

// Millions of them exist at once, so the places are kept as the record tells them.
struct Pair
{
    std::uint32_t first;
    std::uint32_t second;
    double distance;
    std::array<int, 4> places; // of the gap's ends, in micrometres
};
using Pairs = std::deque<Pair>; // grows without a second copy

Pair pairOf(std::uint32_t item, std::uint32_t other, Gap const & gap)
{
    auto const [from, to] = item < other ? std::pair(gap.from, gap.to) : std::pair(gap.to, gap.from);
    return {std::min(item, other),
            std::max(item, other),
            gap.distance,
            {roundedInt(from.x), roundedInt(from.y), roundedInt(to.x), roundedInt(to.y)}};
}

// Equal for pairs that are told alike, whichever end comes first.
std::tuple<std::array<int, 2>, std::array<int, 2>, int> placeOf(Pair const & pair)
{
    std::array<int, 2> const from{pair.places[0], pair.places[1]};
    std::array<int, 2> const to{pair.places[2], pair.places[3]};
    return {std::min(from, to), std::max(from, to), roundedInt(pair.distance)};
}

// The pairs without those that equal an earlier one, in the order of less().
template <class Less, class Same>
void sortDistinct(Pairs & pairs, Less const & less, Same const & same)
{
    std::sort(pairs.begin(), pairs.end(), less);
    pairs.erase(std::unique(pairs.begin(), pairs.end(), same), pairs.end());
}

// Each pair once, and once what several pairs of the same nets and place tell alike; the smallest first.
template <class NetOf>
SortedRecords recordsOf(Pairs pairs, NetOf const & netOf)
{
    auto const nets = [&netOf](Pair const & pair) {
        return std::minmax({netOf(pair.first), netOf(pair.second)});
    };
    auto const items = [](Pair const & pair) { return std::tie(pair.first, pair.second); };
    auto const rest = [](Pair const & pair) { return std::tie(pair.distance, pair.places); };
    sortDistinct(
        pairs,
        [&](Pair const & a, Pair const & b) {
            return items(a) != items(b) ? items(a) < items(b) : rest(a) < rest(b);
        },
        [&](Pair const & a, Pair const & b) { return items(a) == items(b); });
    sortDistinct(
        pairs,
        [&](Pair const & a, Pair const & b) {
            auto const place = placeOf(a);
            auto const otherPlace = placeOf(b);
            return place != otherPlace
                       ? place < otherPlace
                       : std::tuple(nets(a), rest(a), items(a)) < std::tuple(nets(b), rest(b), items(b));
        },
        [&](Pair const & a, Pair const & b) { return placeOf(a) == placeOf(b) && nets(a) == nets(b); });
    std::sort(pairs.begin(), pairs.end(), [&](Pair const & a, Pair const & b) {
        return a.distance != b.distance ? a.distance < b.distance
                                        : std::tuple(placeOf(a), items(a)) < std::tuple(placeOf(b), items(b));
    });
    SortedRecords out;
    out.records.reserve(pairs.size());
    out.nets.reserve(pairs.size());
    for (Pair const & pair : pairs) {
        auto const & p = pair.places;
        out.records.push_back(
            {2, floorMil(pair.distance), {p[0], p[1], p[2], p[3], roundedInt(pair.distance)}});
        out.nets.push_back({netOf(pair.first), netOf(pair.second)});
    }
    return out;
}

// Leaves out the numbers of nets without a name.
void fileNamed(RecordNets & all, char const * table, int item, std::string const & layer,
               std::vector<RecordNets::Numbers> nets)
{
    for (RecordNets::Numbers & pair : nets) {
        for (std::uint32_t & net : pair) {
            net = net < all.names.size() ? net : RecordNets::unknown;
        }
    }
    fileNets(all, table, item, layer, std::move(nets));
}

// What an item of these kinds is measured to; 0 if the category does not concern it.
std::uint8_t wantedBy(std::uint8_t kinds, Category const & category)
{
    return static_cast<std::uint8_t>(((kinds & category.from) != 0 ? category.to : 0) |
                                     ((kinds & category.to) != 0 ? category.from : 0));
}

// The pairs of each category.
std::array<Pairs, categories.size()> pairsOf(CheckContext const & context, CopperLayer const & layer,
                                             CopperSearch const & search, double limit)
{
    std::array<Pairs, categories.size()> pairs;
    for (std::uint32_t item = 0; item < layer.items.size(); ++item) {
        if (item % chunk == 0) {
            context.reportProgress(item, layer.items.size() * 5 / 4 + 1);
        }
        if (layer.items[item].owner != nothing || layer.items[item].kinds == 0) {
            continue;
        }
        // The nearest of all is the nearest of its kinds, too.
        auto const nearest = search.nearest(item, anyCopper, limit);
        for (std::size_t i = 0; nearest && i < categories.size(); ++i) {
            std::uint8_t const wanted = wantedBy(layer.items[item].kinds, categories.at(i));
            if (wanted == 0) {
                continue;
            }
            auto const found = (layer.items[nearest->item].kinds & wanted) != 0
                                   ? nearest
                                   : search.nearest(item, wanted, limit);
            if (found) {
                pairs.at(i).push_back(pairOf(item, found->item, found->gap));
            }
        }
    }
    return pairs;
}

// Each item and the nearest rout.
Pairs routPairs(CheckContext const & context, CopperLayer const & layer, CopperSearch const & search,
                ItemShapes const & rout, double limit)
{
    Pairs pairs;
    std::size_t const total = layer.items.size();
    for (std::uint32_t item = 0; item < total; ++item) {
        if (item % chunk == 0) {
            context.reportProgress(total + item / 4, total * 5 / 4 + 1);
        }
        if (layer.items[item].owner != nothing || layer.items[item].kinds == 0) {
            continue;
        }
        Gap best{limit, {}, {}};
        for (std::size_t piece = layer.shapes.firstPiece(item);
             piece < layer.shapes.endPiece(item) && best.distance > 0; ++piece) {
            PieceView const view = layer.shapes.pieces()[piece];
            Box const box = layer.shapes.grid().box(piece);
            auto const found = rout.grid().lowest(
                best.distance, [&](Box const & other) { return boxGap(other, box); },
                [&](std::size_t other) { return gapBetween(view, rout.pieces()[other]).distance; });
            best = found ? gapBetween(view, rout.pieces()[found->item]) : best;
        }
        if (best.distance < limit) {
            pairs.push_back(pairOf(item, nothing, best));
        }
    }
    // A path inside copper that does not reach its edges.
    for (std::size_t piece = 0; piece < rout.pieces().size(); ++piece) {
        API::point const at = rout.pieces()[piece].corners[0];
        if (auto const item = rout.pieces().starts(piece) ? search.around(at) : std::nullopt) {
            pairs.push_back(pairOf(*item, nothing, {0, at, at}));
        }
    }
    return pairs;
}

// Holes of two layers that have only one row in common are one above the other.
bool isBeside(PlatedHole const & a, PlatedHole const & b)
{
    return a.layer == b.layer || std::max(a.firstRow, b.firstRow) < std::min(a.lastRow, b.lastRow);
}

// Which holes do not count: the same drawn again, and slots of rout layers.
std::vector<bool> ignored(PlatedHoles const & holes)
{
    auto const key = [&holes](std::uint32_t hole) {
        PieceView const first = holes.shapes.pieces()[holes.shapes.firstPiece(hole)];
        PlatedHole const & each = holes.list[hole];
        return std::tuple(each.net, each.via, each.firstRow, each.lastRow, first.count, first.corners[0].x,
                          first.corners[0].y, first.corners[first.count - 1].x,
                          first.corners[first.count - 1].y, first.radius);
    };
    std::vector<std::uint32_t> order;
    for (std::uint32_t hole = 0; hole < holes.list.size(); ++hole) {
        order.push_back(hole);
    }
    std::sort(order.begin(), order.end(), [&](std::uint32_t a, std::uint32_t b) {
        return std::tuple(key(a), a) < std::tuple(key(b), b);
    });
    std::vector<bool> out(holes.list.size());
    for (std::size_t i = 0; i < order.size(); ++i) {
        out[i] = holes.layers[holes.list[i].layer].type != "drill";
    }
    for (std::size_t i = 1; i < order.size(); ++i) {
        bool const round = holes.shapes.endPiece(order[i]) == holes.shapes.firstPiece(order[i]) + 1;
        out[order[i]] = out[order[i]] || (round && key(order[i]) == key(order[i - 1]));
    }
    return out;
}

// The nearest hole of the same kind beside a hole, of the same net or of another; `nothing` beyond the limit.
Neighbour nearestHole(PlatedHoles const & holes, NodeLabels const & nodes, std::vector<bool> const & out,
                      std::uint32_t hole, bool sameNet, double limit)
{
    ItemShapes const & shapes = holes.shapes;
    PlatedHole const & its = holes.list[hole];
    std::uint8_t const wanted = its.via ? copperVia : copperPth;
    Neighbour best{nothing, {limit, {}, {}}};
    for (std::size_t piece = shapes.firstPiece(hole); piece < shapes.endPiece(hole); ++piece) {
        PieceView const view = shapes.pieces()[piece];
        auto const found = shapes.grid().lowest(
            best.gap.distance, [&](Box const & box) { return boxGap(box, shapes.grid().box(piece)); },
            [&](std::size_t otherPiece) {
                std::uint32_t const other = shapes.pieces().itemOf(otherPiece);
                PlatedHole const & that = holes.list[other];
                bool const fits = other != hole && that.via == its.via && !out[other] &&
                                  (that.net == its.net) == sameNet && isBeside(its, that);
                return fits ? gapBetween(view, shapes.pieces()[otherPiece]).distance : endless;
            },
            [&](std::size_t node) {
                return sameNet ? nodes.lacks(node, its.net, wanted)
                               : nodes.lacksOthers(node, its.net, wanted);
            });
        if (found) {
            best = {shapes.pieces().itemOf(found->item), gapBetween(view, shapes.pieces()[found->item])};
        }
    }
    return best;
}

} // namespace

void checkSpacings(CheckContext const & context, CopperLayer & layer, PlatedHoles const & holes,
                   ItemShapes const * rout, double reach, CheckResults & results)
{
    double const limit = std::nextafter(reach, endless);
    std::string const layerName = layer.name;
    std::array<Pairs, categories.size()> pairs;
    Pairs toRout;
    {
        CopperSearch const search(layer, holes);
        pairs = pairsOf(context, layer, search, limit);
        if (rout != nullptr) {
            toRout = routPairs(context, layer, search, *rout, limit);
        }
    }
    std::vector<std::uint32_t> nets; // by item
    nets.reserve(layer.items.size());
    for (CopperItem const & item : layer.items) {
        nets.push_back(item.net);
    }
    layer = {}; // as large as the records that follow
    auto & lists = results.signal[layerName];
    auto const file = [&](int item, Pairs & found) {
        SortedRecords all = recordsOf(
            std::move(found), [&nets](std::uint32_t each) { return each == nothing ? nothing : nets[each]; });
        lists[static_cast<API::signal_layers_checks_items>(item)].lists[0] = std::move(all.records);
        fileNamed(results.recordNets, "signal", item, layerName, std::move(all.nets));
    };
    for (std::size_t i = 0; i < categories.size(); ++i) {
        file(categories.at(i).item, pairs.at(i));
    }
    if (rout != nullptr) {
        file(routToCopper, toRout);
    }
}

void checkCloseHoles(CheckContext const & context, PlatedHoles const & holes, double reach,
                     CheckResults & results)
{
    double const limit = std::nextafter(reach, endless);
    ItemShapes const & shapes = holes.shapes;
    std::vector<NodeLabels::Label> labels;
    for (std::size_t piece = 0; piece < shapes.pieces().size(); ++piece) {
        PlatedHole const & hole = holes.list[shapes.pieces().itemOf(piece)];
        labels.push_back({hole.net, hole.via ? copperVia : copperPth});
    }
    NodeLabels const nodes(shapes.grid(), labels);
    std::vector<bool> const out = ignored(holes);
    std::size_t done = 0;
    for (CloseHoles const & check : closeHoles) {
        std::map<std::uint32_t, Pairs> byLayer;
        for (std::uint32_t hole = 0; hole < holes.list.size(); ++hole) {
            PlatedHole const & its = holes.list[hole];
            if (++done % chunk == 0) {
                context.reportProgress(done, closeHoles.size() * holes.list.size() + 1);
            }
            if (its.via != check.via || out[hole]) {
                continue;
            }
            Neighbour const best = nearestHole(holes, nodes, out, hole, check.sameNet, limit);
            if (best.item != nothing) {
                byLayer[holes.list[std::min(hole, best.item)].layer].push_back(
                    pairOf(hole, best.item, best.gap));
            }
        }
        for (auto & [layer, pairs] : byLayer) {
            std::string const & name = holes.layers[layer].name;
            auto & reply = results.drill[name];
            SortedRecords all =
                recordsOf(std::move(pairs), [&holes](std::uint32_t hole) { return holes.list[hole].net; });
            for (API::check_info & record : all.records) {
                reply.add(static_cast<API::drill_check_item>(check.item), 0, std::move(record));
            }
            fileNamed(results.recordNets, "drill", check.item, name, std::move(all.nets));
        }
    }
}

} // namespace KVCAM::Embedded
