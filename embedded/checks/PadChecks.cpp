#include "checks/PadChecks.h"

#include "geometry/Stroke.h"

#include "support/Narrowing.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <limits>
#include <map>
#include <numeric>
#include <optional>
#include <utility>

namespace KVCAM::Embedded {
namespace {

constexpr double endless = std::numeric_limits<double>::infinity();
constexpr double noise = 2.54e-5; // micrometres: a millionth of a mil, as in the rounding of values
constexpr std::size_t mostCorners = 1'000'000; // of large symbols
constexpr std::size_t chunk = 256;             // pads or holes between two progress reports

std::int64_t nanometres(double micrometres)
{
    return UIAPI::nearestInt64(micrometres * 1000);
}

using Corners = std::vector<std::pair<std::int64_t, std::int64_t>>;

Corners rounded(std::vector<API::point> const & points)
{
    Corners corners;
    for (API::point const & point : points) {
        corners.emplace_back(nanometres(point.x), nanometres(point.y));
    }
    return corners;
}

void append(Corners & key, Shape const & shape)
{
    Corners corners = rounded(shape.corners);
    std::sort(corners.begin(), corners.end()); // those of a convex shape have but one order
    key.emplace_back(nanometres(shape.radius), corners.size());
    key.insert(key.end(), corners.begin(), corners.end());
}

// Equal for pads in one place that cover the same area, however they are described: a square rotated by 90
// degrees equals itself. In nanometres, so that rounding errors do not separate them.
Corners footprint(Pad const & pad)
{
    SymbolShape const & shape = *pad.shape;
    Corners key;
    if (shape.inner.corners.empty()) { // not solid: by the pieces, which depend on the drawing
        Region const region = placed(shape.copper, pad.where);
        for (Shape const & piece : region.pieces) {
            append(key, piece);
        }
        for (std::vector<API::point> const & outline : region.outlines) {
            Corners const corners = rounded(outline);
            key.emplace_back(-1, corners.size());
            key.insert(key.end(), corners.begin(), corners.end());
        }
    } else {
        key.emplace_back(nanometres(shape.opening), 0);
        append(key, placed(shape.outer, pad.where));
        append(key, placed(shape.inner, pad.where));
    }
    return key;
}

// The pads without those that repeat another, in order. If any of several equal pads is an SMD pad, so is the
// remaining one.
std::vector<Pad> distinct(std::vector<Pad> pads)
{
    auto const place = [&pads](std::size_t pad) {
        API::point const at = pads[pad].where.place;
        return std::pair(nanometres(at.x), nanometres(at.y));
    };
    std::vector<std::size_t> order(pads.size());
    std::iota(order.begin(), order.end(), 0U);
    std::stable_sort(order.begin(), order.end(),
                     [&place](std::size_t a, std::size_t b) { return place(a) < place(b); });
    std::vector<bool> repeated(pads.size(), false);
    for (std::size_t first = 0, end = 0; first < order.size(); first = end) {
        while (end < order.size() && place(order[end]) == place(order[first])) {
            ++end;
        }
        std::map<Corners, std::size_t> known;
        for (std::size_t i = first; i < end && end - first > 1; ++i) {
            auto const [same, added] = known.try_emplace(footprint(pads[order[i]]), order[i]);
            repeated[order[i]] = !added;
            pads[same->second].smd = pads[same->second].smd || pads[order[i]].smd;
        }
    }
    std::size_t kept = 0;
    for (std::size_t i = 0; i < pads.size(); ++i) {
        if (!repeated[i]) {
            pads[kept++] = pads[i];
        }
    }
    pads.resize(kept);
    return pads;
}

// The depth of a hole's centre, or of the shallower end of a slot's centre line, in the pad; nothing if the
// pad leaves the hole no ring.
std::optional<double> depthOf(Hole const & hole, Pad const & pad)
{
    API::point const from = unplaced(hole.place, pad.where);
    API::point const to = unplaced(hole.end, pad.where);
    double const radius = hole.diameter / 2 + noise;
    SymbolShape const & shape = *pad.shape;
    auto const offset = [&](API::point point) { return distance(point, nearestOnSide(point, from, to)); };
    bool const opened = shape.opening > 0 && offset({}) + shape.opening > radius;
    auto const & corners = shape.outer.corners;
    bool const drilledAway = hole.kind == HoleKind::NonPlated &&
                             std::all_of(corners.begin(), corners.end(), [&](API::point corner) {
                                 return offset(corner) + shape.outer.radius <= radius;
                             });
    double const within =
        opened || drilledAway ? -1 : std::min(depth(shape.inner, from), depth(shape.inner, to));
    return within >= 0 ? std::optional(within) : std::nullopt;
}

Measurement ringOf(Hole const & hole, Pad const & pad, double depth)
{
    API::point const middle{hole.place.x / 2 + hole.end.x / 2, hole.place.y / 2 + hole.end.y / 2};
    API::point const place = pad.where.place;
    double const ring = std::max(0.0, depth - hole.diameter / 2);
    return measurement(3, ring,
                       {middle.x, middle.y, hole.diameter, place.x, place.y, pad.shape->narrower, ring,
                        distance(middle, place)},
                       {hole.net, pad.net});
}

Shape shapeOf(Hole const & hole)
{
    return convexShape({hole.place, hole.end}, hole.diameter / 2);
}

} // namespace

PadChecks::PadChecks(std::vector<Pad> pads, CheckContext const & context)
    : m_pads(distinct(std::move(pads))), m_context(context)
{
    std::size_t corners = 0;
    for (std::size_t i = 0; i < m_pads.size() && corners <= mostCorners; ++i) {
        SymbolShape const & shape = *m_pads[i].shape;
        corners += m_pads[i].smd && shape.isLarge ? size(shape.copper) : 0;
    }
    m_coarse = corners > mostCorners;
}

Region PadChecks::copper(Pad const & pad, bool coarse)
{
    return placed(coarse && pad.shape->isLarge ? Region{{pad.shape->outer}, {}} : pad.shape->copper,
                  pad.where);
}

std::vector<Measurement> PadChecks::sizes() const
{
    std::vector<Measurement> sizes;
    sizes.reserve(m_pads.size());
    for (Pad const & pad : m_pads) {
        API::point const at = pad.where.place;
        double const least = pad.shape->narrower;
        sizes.push_back(
            measurement(5, least, {at.x, at.y, least, pad.shape->wider}, {pad.net, RecordNets::unknown}));
    }
    return sizes;
}

std::vector<Measurement> PadChecks::smdSpacings() const
{
    std::vector<Pad const *> smds;
    std::vector<Box> boxes; // around the copper
    for (Pad const & pad : m_pads) {
        if (pad.smd) {
            smds.push_back(&pad);
            boxes.push_back(extent(placed(pad.shape->outer, pad.where)));
        }
    }
    auto const copperOf = [&](std::size_t i) { return copper(*smds[i], m_coarse); };
    SpatialGrid const grid(boxes);
    boxes = {};
    std::vector<std::pair<std::size_t, std::size_t>> pairs;
    for (std::size_t i = 0; i < smds.size(); ++i) {
        Region const own = copperOf(i);
        auto const nearest = grid.lowest(
            endless, [&](Box const & box) { return boxGap(box, grid.box(i)); },
            [&](std::size_t other) {
                return other == i ? endless : gapBetween(own, copperOf(other)).distance;
            });
        if (nearest) {
            pairs.emplace_back(std::min(i, nearest->item), std::max(i, nearest->item));
        }
        if (i % chunk == 0) {
            m_context.reportProgress(3 * smds.size() + i, 6 * smds.size()); // the fourth of six parts
        }
    }
    std::sort(pairs.begin(), pairs.end());
    pairs.erase(std::unique(pairs.begin(), pairs.end()), pairs.end());

    std::vector<Measurement> spacings;
    spacings.reserve(pairs.size());
    for (auto const & [a, b] : pairs) {
        Gap const gap = gapBetween(copperOf(a), copperOf(b));
        spacings.push_back(measurement(2, gap.distance,
                                       {gap.from.x, gap.from.y, gap.to.x, gap.to.y, gap.distance},
                                       {smds[a]->net, smds[b]->net}));
    }
    return spacings;
}

PadChecks::Rings PadChecks::rings(std::vector<Hole> const & holes, int row) const
{
    auto const passes = [row](Hole const & hole) { return row >= hole.firstRow && row <= hole.lastRow; };
    if (std::none_of(holes.begin(), holes.end(), passes)) {
        return {};
    }
    std::vector<std::uint32_t> solid; // by box
    std::vector<Box> boxes;
    for (std::uint32_t pad = 0; pad < m_pads.size(); ++pad) {
        if (Pad const & each = m_pads[pad]; !each.shape->inner.corners.empty()) {
            solid.push_back(pad);
            boxes.push_back(extent(placed(each.shape->inner, each.where)));
        }
    }
    SpatialGrid const grid(boxes);
    boxes.clear();
    for (Pad const & pad : m_pads) {
        boxes.push_back(extent(placed(pad.shape->outer, pad.where)));
    }
    SpatialGrid const all(boxes);
    boxes = {};
    Rings rings;
    for (std::size_t i = 0; i < holes.size(); ++i) {
        Hole const & hole = holes[i];
        if (i % chunk == 0) {
            m_context.reportProgress(2 * holes.size() + i, 3 * holes.size()); // the last of three parts
        }
        if (!passes(hole)) {
            continue;
        }
        // The deepest pad has the lowest measure. No pad is deeper than its box.
        API::point const at = hole.place;
        auto const deepest = grid.lowest(
            noise,
            [&at](Box const & box) {
                return -std::min({at.x - box.left, box.right - at.x, at.y - box.bottom, box.top - at.y});
            },
            [&](std::size_t pad) {
                auto const within = depthOf(hole, m_pads[solid[pad]]);
                return within ? -*within : endless;
            });
        if (deepest) {
            rings.byKind.at(static_cast<std::size_t>(hole.kind))
                .push_back(ringOf(hole, m_pads[solid[deepest->item]], -deepest->measure));
        } else if (hole.kind != HoleKind::NonPlated) {
            ++(isTouched(hole, all) ? rings.beside : rings.withoutPad);
        }
    }
    return rings;
}

bool PadChecks::isTouched(Hole const & hole, SpatialGrid const & grid) const
{
    Region const drilled{{shapeOf(hole)}, {}};
    Box const box = extent(drilled);
    return grid
        .lowest(
            noise, [&box](Box const & pad) { return boxGap(pad, box); },
            [&](std::size_t pad) { return gapBetween(drilled, copper(m_pads[pad], true)).distance; })
        .has_value();
}

} // namespace KVCAM::Embedded
