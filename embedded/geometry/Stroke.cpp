#include "geometry/Stroke.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace KVCAM::Embedded {
namespace {

constexpr double widest = pi / 4; // half the angle of a piece of the smallest arcs

double angleOf(API::point point, API::point centre)
{
    return std::atan2(point.y - centre.y, point.x - centre.x);
}

double sweepOf(Arc const & arc)
{
    return arcSweep(arc.start, arc.end, arc.centre, arc.clockwise);
}

API::point polar(API::point centre, double radius, double angle)
{
    return {centre.x + radius * std::cos(angle), centre.y + radius * std::sin(angle)};
}

double turn(API::point a, API::point b, API::point c)
{
    return (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
}

} // namespace

Shape convexShape(std::vector<API::point> corners, double radius)
{
    corners.erase(std::unique(corners.begin(), corners.end(), isSame), corners.end());
    while (corners.size() > 1 && isSame(corners.front(), corners.back())) {
        corners.pop_back();
    }
    return {std::move(corners), radius};
}

std::vector<API::point> convexHull(std::vector<API::point> points)
{
    std::sort(points.begin(), points.end(),
              [](API::point a, API::point b) { return std::pair(a.x, a.y) < std::pair(b.x, b.y); });
    points.erase(std::unique(points.begin(), points.end(), isSame), points.end());
    if (points.size() < 3) {
        return points;
    }
    std::vector<API::point> hull;
    auto const addChain = [&hull](auto begin, auto end) {
        std::size_t const first = hull.size();
        for (auto point = begin; point != end; ++point) {
            while (hull.size() >= first + 2 && turn(hull[hull.size() - 2], hull.back(), *point) <= 0) {
                hull.pop_back();
            }
            hull.push_back(*point);
        }
        hull.pop_back(); // begins the other chain
    };
    addChain(points.begin(), points.end());
    addChain(points.rbegin(), points.rend());
    return hull;
}

Shape moved(Shape shape, API::point by)
{
    for (API::point & corner : shape.corners) {
        corner = {corner.x + by.x, corner.y + by.y};
    }
    return shape;
}

Shape swept(Shape const & pen, API::point from, API::point to)
{
    if (pen.corners.size() == 1) {
        return convexShape({moved(pen, from).corners.front(), moved(pen, to).corners.front()}, pen.radius);
    }
    std::vector<API::point> corners = moved(pen, from).corners;
    Shape const end = moved(pen, to);
    corners.insert(corners.end(), end.corners.begin(), end.corners.end());
    return {convexHull(std::move(corners)), pen.radius};
}

Arc placed(Arc arc, Placement const & where)
{
    return {placed(arc.start, where), placed(arc.end, where), placed(arc.centre, where),
            arc.clockwise != where.mirrored};
}

double arcPieces(Arc const & arc)
{
    double const radius = std::max(distance(arc.start, arc.centre), distance(arc.end, arc.centre));
    double const half = std::min(widest, std::acos(radius / (radius + arcTolerance)));
    return std::ceil(sweepOf(arc) / (2 * half));
}

std::vector<API::point> arcPoints(Arc const & arc, std::size_t count, double outwards)
{
    double const begin = angleOf(arc.start, arc.centre);
    double const sweep = sweepOf(arc) * (arc.clockwise ? -1 : 1);
    double const first = distance(arc.start, arc.centre);
    double const last = distance(arc.end, arc.centre);
    std::vector<API::point> points;
    points.reserve(count + 1);
    for (std::size_t i = 0; i <= count; ++i) {
        double const part = static_cast<double>(i) / static_cast<double>(count);
        points.push_back(polar(arc.centre, first + part * (last - first) + outwards, begin + part * sweep));
    }
    if (outwards == 0) {
        points.front() = arc.start;
        points.back() = arc.end;
    }
    return points;
}

std::vector<Shape> swept(Shape const & pen, Arc const & arc, std::size_t pieces)
{
    // The pieces cross the arc, so that they are off it by half as much on either side.
    constexpr double off = arcTolerance / 2;
    std::vector<API::point> const points = arcPoints(arc, pieces, off);
    std::vector<Shape> shapes;
    shapes.reserve(pieces);
    for (std::size_t i = 0; i < pieces; ++i) {
        shapes.push_back(swept(pen, points[i], points[i + 1]));
        shapes.back().radius += off;
    }
    return shapes;
}

std::vector<Shape> arcCovers(Arc const & arc, std::vector<API::point> const & points)
{
    double const sweep = sweepOf(arc) * (arc.clockwise ? -1 : 1);
    double const begin = angleOf(arc.start, arc.centre);
    auto const count = static_cast<double>(points.size() - 1);
    std::vector<Shape> shapes;
    for (std::size_t i = 0; i + 1 < points.size(); ++i) {
        double const radius = std::max(distance(points[i], arc.centre), distance(points[i + 1], arc.centre));
        double const middle = begin + sweep * (static_cast<double>(i) + 0.5) / count;
        API::point const outside = polar(arc.centre, radius / std::cos(sweep / count / 2), middle);
        shapes.push_back(convexShape({points[i], outside, points[i + 1]}));
    }
    return shapes;
}

double support(Shape const & shape, API::point direction)
{
    double farthest = -std::numeric_limits<double>::infinity();
    for (API::point const & corner : shape.corners) {
        farthest = std::max(farthest, corner.x * direction.x + corner.y * direction.y);
    }
    return farthest + shape.radius;
}

double support(Arc const & arc, API::point direction)
{
    auto const along = [&direction](API::point p) { return p.x * direction.x + p.y * direction.y; };
    double const ends = std::max(along(arc.start), along(arc.end));
    double const radius = distance(arc.start, arc.centre);
    double const angle = std::atan2(direction.y, direction.x) - angleOf(arc.start, arc.centre);
    double const turned = std::fmod((arc.clockwise ? -angle : angle) + 4 * pi, 2 * pi);
    return turned <= sweepOf(arc) ? std::max(ends, along(arc.centre) + radius) : ends;
}

} // namespace KVCAM::Embedded
