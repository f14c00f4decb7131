#include "geometry/BoardArea.h"

#include "geometry/CheckGeometry.h"

#include <algorithm>
#include <utility>

namespace KVCAM::Embedded {
namespace {

constexpr double tolerance = 1; // micrometres

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
