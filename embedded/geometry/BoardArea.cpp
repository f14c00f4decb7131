#include "geometry/BoardArea.h"

#include "geometry/CheckGeometry.h"
#include "geometry/Stroke.h"

#include <algorithm>
#include <utility>

namespace KVCAM::Embedded {
namespace {

constexpr double tolerance = 1;   // micrometres
constexpr double touching = 1e-9; // micrometres; a distance below it is 0

std::vector<Edge> edgesOf(std::optional<Profile> const & profile)
{
    std::vector<Edge> edges;
    if (profile) {
        for (std::vector<API::point> const & outline : profile->outlines) {
            for (std::size_t i = 0; i < outline.size(); ++i) {
                edges.push_back({outline[i], outline[(i + 1) % outline.size()]});
            }
        }
    }
    return edges;
}

// The points that decide whether a feature lies inside.
std::vector<API::point> witnesses(Feature const & feature)
{
    auto const & p = feature.points;
    switch (feature.kind) {
    case 'P':
        return {p[0]};
    case 'L':
        return {p[0], p[1], {p[0].x / 2 + p[1].x / 2, p[0].y / 2 + p[1].y / 2}};
    case 'A':
        return {p[0], p[1], arcMiddle(p[0], p[1], p[2], feature.clockwise)};
    default:
        return {};
    }
}

// By the tolerance, as what only touches the outline does not cross it.
void shrink(Shape & shape)
{
    if (shape.radius > tolerance) {
        shape.radius -= tolerance;
        return;
    }
    API::point middle;
    for (API::point const & corner : shape.corners) {
        middle.x += corner.x / static_cast<double>(shape.corners.size());
        middle.y += corner.y / static_cast<double>(shape.corners.size());
    }
    for (API::point & corner : shape.corners) {
        double const length = distance(corner, middle);
        double const part = length > 2 * tolerance ? 2 * tolerance / length : 0;
        corner = {corner.x + part * (middle.x - corner.x), corner.y + part * (middle.y - corner.y)};
    }
}

} // namespace

BoardArea::BoardArea(std::optional<Profile> const & profile) : m_all(!profile), m_edges(edgesOf(profile)) {}

bool BoardArea::holds(API::point point) const
{
    return m_all || m_edges.holds(point) || m_edges.isNear(point, tolerance);
}

bool BoardArea::holds(Feature const & feature) const
{
    std::vector<API::point> const points = witnesses(feature);
    return std::all_of(points.begin(), points.end(), [this](API::point point) { return holds(point); });
}

bool BoardArea::holdsSome(Feature const & feature) const
{
    std::vector<API::point> const points = witnesses(feature);
    return std::any_of(points.begin(), points.end(), [this](API::point point) { return holds(point); });
}

bool BoardArea::passes(Box const & box) const
{
    return m_edges.grid()
        .lowest(
            touching, [&box](Box const & edges) { return boxGap(edges, box); },
            [](std::size_t /*edge*/) { return 0.0; })
        .has_value();
}

bool BoardArea::crosses(Shape const & shape) const
{
    auto const gapTo = [&shape](std::vector<API::point> corners) {
        return gapBetween(shape, convexShape(std::move(corners))).distance;
    };
    return m_edges.grid()
        .lowest(
            touching,
            [&](Box const & box) {
                return gapTo({{box.left, box.bottom},
                              {box.right, box.bottom},
                              {box.right, box.top},
                              {box.left, box.top}});
            },
            [&](std::size_t edge) {
                return gapTo({m_edges.edges()[edge][0], m_edges.edges()[edge][1]});
            })
        .has_value();
}

bool BoardArea::crosses(Region const & region) const
{
    for (Shape piece : region.pieces) {
        shrink(piece);
        if (crosses(piece)) {
            return true;
        }
    }
    for (std::vector<API::point> const & outline : region.outlines) {
        for (std::size_t i = 0; i < outline.size(); ++i) {
            if (crosses(convexShape({outline[i], outline[(i + 1) % outline.size()]}))) {
                return true;
            }
        }
    }
    return false;
}

bool BoardArea::isOutline(Feature const & feature, double width) const
{
    std::vector<API::point> const points = witnesses(feature);
    return !m_all && std::all_of(points.begin(), points.end(), [this, width](API::point point) {
        return m_edges.isNear(point, width / 2 + tolerance);
    });
}

bool BoardArea::touchesProfile(PieceView const & piece) const
{
    Box const box = extent(piece);
    return m_edges.grid()
        .lowest(
            tolerance, [&](Box const & other) { return boxGap(other, box); },
            [&](std::size_t edge) {
                return gapBetween(piece, {m_edges.edges()[edge].data(), 2, 0}).distance;
            })
        .has_value();
}

std::optional<API::point> BoardArea::profilePoint() const
{
    return m_edges.edges().empty() ? std::nullopt : std::optional(m_edges.edges().front()[0]);
}

} // namespace KVCAM::Embedded
