#include "checks/PadChecks.h"

#include "geometry/SpatialGrid.h"

#include "support/Narrowing.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <limits>
#include <numeric>
#include <optional>
#include <tuple>
#include <utility>

namespace KVCAM::Embedded {
namespace {

constexpr double endless = std::numeric_limits<double>::infinity();
constexpr double noise = 2.54e-5;  // micrometres: a millionth of a mil, as in the rounding of values
constexpr std::size_t chunk = 256; // pads or holes between two progress reports

// Equal for pads that cover the same area, however they are described: a square rotated by 90 degrees equals
// itself. In nanometres, so that rounding errors do not separate them.
std::vector<std::int64_t> footprint(Pad const & pad)
{
    auto const nanometres = [](double value) { return UIAPI::nearestInt64(value * 1000); };
    std::vector<API::point> corners = placed(pad.shape->outer, pad.where).corners;
    std::sort(corners.begin(), corners.end(), [&](API::point const & a, API::point const & b) {
        return std::pair(nanometres(a.x), nanometres(a.y)) < std::pair(nanometres(b.x), nanometres(b.y));
    });
    std::vector<std::int64_t> key{pad.shape->inner.corners.empty() ? -1 : nanometres(pad.shape->opening),
                                  nanometres(pad.shape->outer.radius)};
    for (API::point const & corner : corners) {
        key.push_back(nanometres(corner.x));
        key.push_back(nanometres(corner.y));
    }
    return key;
}

// The pads with distinct footprints, in order. If any of several equal pads is an SMD pad, so is the
// remaining one.
std::vector<Pad> distinct(std::vector<Pad> const & pads)
{
    std::vector<std::vector<std::int64_t>> keys;
    keys.reserve(pads.size());
    std::transform(pads.begin(), pads.end(), std::back_inserter(keys), footprint);
    std::vector<std::size_t> order(pads.size());
    std::iota(order.begin(), order.end(), 0U);
    std::sort(order.begin(), order.end(),
              [&keys](std::size_t a, std::size_t b) { return std::tie(keys[a], a) < std::tie(keys[b], b); });
    std::vector<Pad> marked = pads;
    std::vector<bool> keep(pads.size(), true);
    for (std::size_t i = 1, first = 0; i < order.size(); ++i) {
        if (keys[order[i]] == keys[order[first]]) {
            keep[order[i]] = false;
            marked[order[first]].smd = marked[order[first]].smd || pads[order[i]].smd;
        } else {
            first = i;
        }
    }
    std::vector<Pad> kept;
    for (std::size_t i = 0; i < pads.size(); ++i) {
        if (keep[i]) {
            kept.push_back(marked[i]);
        }
    }
    return kept;
}

std::vector<Box> extents(std::vector<Shape> const & shapes)
{
    std::vector<Box> boxes;
    boxes.reserve(shapes.size());
    std::transform(shapes.begin(), shapes.end(), std::back_inserter(boxes),
                   [](Shape const & shape) { return extent(shape); });
    return boxes;
}

// The depth of a hole's centre in the pad; nothing if the pad leaves the hole no ring.
std::optional<double> depthOf(Hole const & hole, Pad const & pad)
{
    API::point const centre = unplaced(hole.place, pad.where);
    double const radius = hole.diameter / 2 + noise;
    SymbolShape const & shape = *pad.shape;
    bool const opened = shape.opening > 0 && distance(centre, {}) + shape.opening > radius;
    bool const drilledAway = hole.kind == HoleKind::NonPlated && reach(shape.outer, centre) <= radius;
    double const within = opened || drilledAway ? -1 : depth(shape.inner, centre);
    return within >= 0 ? std::optional(within) : std::nullopt;
}

} // namespace

PadChecks::PadChecks(std::vector<Pad> pads, CheckContext const & context)
    : m_pads(distinct(pads)), m_context(context)
{}

std::vector<Measurement> PadChecks::smdSpacings() const
{
    std::vector<Shape> shapes;
    for (Pad const & pad : m_pads) {
        if (pad.smd) {
            shapes.push_back(placed(pad.shape->outer, pad.where));
        }
    }
    std::vector<Box> const boxes = extents(shapes);
    SpatialGrid const grid(boxes);
    std::vector<std::pair<std::size_t, std::size_t>> pairs;
    for (std::size_t i = 0; i < shapes.size(); ++i) {
        auto const nearest = grid.lowest(
            endless, [&](Box const & box) { return boxGap(box, boxes[i]); },
            [&](std::size_t other) {
                return other == i ? endless : gapBetween(shapes[i], shapes[other]).distance;
            });
        if (nearest) {
            pairs.emplace_back(std::min(i, nearest->item), std::max(i, nearest->item));
        }
        if (i % chunk == 0) {
            m_context.reportProgress(3 * shapes.size() + i, 6 * shapes.size()); // the fourth of six parts
        }
    }
    std::sort(pairs.begin(), pairs.end());
    pairs.erase(std::unique(pairs.begin(), pairs.end()), pairs.end());

    std::vector<Measurement> spacings;
    spacings.reserve(pairs.size());
    for (auto const & [a, b] : pairs) {
        Gap const gap = gapBetween(shapes[a], shapes[b]);
        spacings.push_back(
            measurement(2, gap.distance, {gap.from.x, gap.from.y, gap.to.x, gap.to.y, gap.distance}));
    }
    return spacings;
}

std::array<std::vector<Measurement>, 3> PadChecks::rings(std::vector<Hole> const & holes, int row) const
{
    std::vector<Pad> pads;
    std::vector<Shape> shapes;
    for (Pad const & pad : m_pads) {
        if (!pad.shape->inner.corners.empty()) {
            pads.push_back(pad);
            shapes.push_back(placed(pad.shape->inner, pad.where));
        }
    }
    SpatialGrid const grid(extents(shapes));
    std::array<std::vector<Measurement>, 3> rings;
    for (std::size_t i = 0; i < holes.size(); ++i) {
        Hole const & hole = holes[i];
        if (i % chunk == 0) {
            m_context.reportProgress(2 * holes.size() + i, 3 * holes.size()); // the last of three parts
        }
        if (row < hole.firstRow || row > hole.lastRow) {
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
                auto const within = depthOf(hole, pads[pad]);
                return within ? -*within : endless;
            });
        if (deepest) {
            Pad const & pad = pads[deepest->item];
            double const ring = std::max(0.0, -deepest->measure - hole.diameter / 2);
            rings.at(static_cast<std::size_t>(hole.kind))
                .push_back(measurement(3, ring,
                                       {at.x, at.y, hole.diameter, pad.where.place.x, pad.where.place.y,
                                        pad.shape->narrower, ring, distance(at, pad.where.place)}));
        }
    }
    return rings;
}

} // namespace KVCAM::Embedded
