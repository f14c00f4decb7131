#include "geometry/CheckGeometry.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <optional>

namespace KVCAM::Embedded {
namespace {

constexpr double pi = 3.14159265358979323846;
constexpr double endless = std::numeric_limits<double>::infinity();

API::point operator+(API::point a, API::point b)
{
    return {a.x + b.x, a.y + b.y};
}

API::point operator-(API::point a, API::point b)
{
    return {a.x - b.x, a.y - b.y};
}

API::point operator*(double factor, API::point a)
{
    return {factor * a.x, factor * a.y};
}

double dot(API::point a, API::point b)
{
    return a.x * b.x + a.y * b.y;
}

double cross(API::point a, API::point b)
{
    return a.x * b.y - a.y * b.x;
}

// A polygon with two corners has one side. A polygon with one corner has one side of length zero.
std::size_t sides(Shape const & shape)
{
    return shape.corners.size() < 3 ? 1 : shape.corners.size();
}

API::point next(Shape const & shape, std::size_t corner)
{
    return shape.corners[(corner + 1) % shape.corners.size()];
}

// The distance from a point inside the polygon to the nearest side. Nothing for a point outside.
std::optional<double> insideBy(Shape const & shape, API::point point)
{
    if (shape.corners.size() < 3) {
        return std::nullopt;
    }
    double nearest = endless;
    int left = 0;
    int right = 0;
    for (std::size_t i = 0; i < shape.corners.size(); ++i) {
        API::point const side = next(shape, i) - shape.corners[i];
        double const offset = cross(side, point - shape.corners[i]) / std::hypot(side.x, side.y);
        left += offset > 0 ? 1 : 0;
        right += offset < 0 ? 1 : 0;
        nearest = std::min(nearest, std::abs(offset));
    }
    // A polygon flattened by rounding has no inside.
    return (left != 0) == (right != 0) ? std::nullopt : std::optional(nearest);
}

// The intersection of two sides that are not parallel.
std::optional<API::point> crossing(API::point a, API::point b, API::point c, API::point d)
{
    double const along = cross(b - a, d - c);
    if (along == 0) {
        return std::nullopt;
    }
    double const t = cross(c - a, d - c) / along;
    double const u = cross(c - a, b - a) / along;
    bool const both = t >= 0 && t <= 1 && u >= 0 && u <= 1;
    return both ? std::optional(a + t * (b - a)) : std::nullopt;
}

void take(Gap & best, API::point from, API::point to)
{
    if (double const length = distance(from, to); length < best.distance) {
        best = {length, from, to};
    }
}

// Between the polygons; the radii are ignored.
Gap gapBetweenPolygons(Shape const & a, Shape const & b)
{
    if (insideBy(b, a.corners.front())) {
        return {0, a.corners.front(), a.corners.front()};
    }
    if (insideBy(a, b.corners.front())) {
        return {0, b.corners.front(), b.corners.front()};
    }
    Gap best{endless, {}, {}};
    for (std::size_t i = 0; i < sides(a); ++i) {
        API::point const from = a.corners[i];
        API::point const fromEnd = next(a, i);
        for (std::size_t j = 0; j < sides(b); ++j) {
            API::point const to = b.corners[j];
            API::point const toEnd = next(b, j);
            if (auto const common = crossing(from, fromEnd, to, toEnd)) {
                return {0, *common, *common};
            }
            take(best, from, nearestOnSide(from, to, toEnd));
            take(best, fromEnd, nearestOnSide(fromEnd, to, toEnd));
            take(best, nearestOnSide(to, from, fromEnd), to);
            take(best, nearestOnSide(toEnd, from, fromEnd), toEnd);
        }
    }
    return best;
}

} // namespace

Placement placement(API::point place, double degreesClockwise, bool mirrored)
{
    double turn = std::fmod(degreesClockwise, 360);
    turn += turn < 0 ? 360 : 0;
    double const quarters = turn / 90;
    if (quarters == std::floor(quarters)) {
        constexpr std::array<double, 5> cosines{1, 0, -1, 0, 1};
        constexpr std::array<double, 5> sines{0, 1, 0, -1, 0};
        auto const quarter = static_cast<std::size_t>(quarters);
        return {place, cosines.at(quarter), sines.at(quarter), mirrored};
    }
    return {place, std::cos(turn * pi / 180), std::sin(turn * pi / 180), mirrored};
}

API::point placed(API::point point, Placement const & where)
{
    double const x = point.x * where.cosine + point.y * where.sine;
    return {where.place.x + (where.mirrored ? -x : x),
            where.place.y - point.x * where.sine + point.y * where.cosine};
}

Shape placed(Shape shape, Placement const & where)
{
    for (API::point & corner : shape.corners) {
        corner = placed(corner, where);
    }
    return shape;
}

API::point unplaced(API::point point, Placement const & where)
{
    API::point moved = point - where.place;
    moved.x = where.mirrored ? -moved.x : moved.x;
    return {moved.x * where.cosine - moved.y * where.sine, moved.x * where.sine + moved.y * where.cosine};
}

double distance(API::point a, API::point b)
{
    return std::hypot(a.x - b.x, a.y - b.y);
}

API::point nearestOnSide(API::point p, API::point a, API::point b)
{
    API::point const side = b - a;
    double const square = dot(side, side);
    double const t = square > 0 ? std::clamp(dot(p - a, side) / square, 0.0, 1.0) : 0;
    return t == 1 ? b : a + t * side;
}

double boxGap(Box const & a, Box const & b)
{
    double const x = std::max({0.0, a.left - b.right, b.left - a.right});
    double const y = std::max({0.0, a.bottom - b.top, b.bottom - a.top});
    return x == 0 ? y : y == 0 ? x : std::hypot(x, y);
}

void include(Box & box, API::point point)
{
    box.left = std::min(box.left, point.x);
    box.bottom = std::min(box.bottom, point.y);
    box.right = std::max(box.right, point.x);
    box.top = std::max(box.top, point.y);
}

Box boxOf(API::point point)
{
    return {point.x, point.y, point.x, point.y};
}

Box extent(Shape const & shape)
{
    Box box = boxOf(shape.corners.front());
    for (API::point const & corner : shape.corners) {
        include(box, corner);
    }
    double const r = shape.radius;
    return {box.left - r, box.bottom - r, box.right + r, box.top + r};
}

double depth(Shape const & shape, API::point point)
{
    if (auto const inside = insideBy(shape, point)) {
        return shape.radius + *inside;
    }
    double nearest = endless;
    for (std::size_t i = 0; i < sides(shape); ++i) {
        nearest = std::min(nearest, distance(point, nearestOnSide(point, shape.corners[i], next(shape, i))));
    }
    return shape.radius - nearest;
}

double reach(Shape const & shape, API::point point)
{
    double farthest = 0;
    for (API::point const & corner : shape.corners) {
        farthest = std::max(farthest, distance(point, corner));
    }
    return farthest + shape.radius;
}

double widthAcross(Shape const & shape, API::point direction)
{
    double const length = std::hypot(direction.x, direction.y);
    API::point const across{-direction.y / length, direction.x / length};
    double least = endless;
    double most = -endless;
    for (API::point const & corner : shape.corners) {
        double const offset = dot(corner, across);
        least = std::min(least, offset);
        most = std::max(most, offset);
    }
    return most - least + 2 * shape.radius;
}

Gap gapBetween(Shape const & a, Shape const & b)
{
    Gap const inner = gapBetweenPolygons(a, b);
    double const radii = a.radius + b.radius;
    if (radii == 0) {
        return inner;
    }
    API::point const way = inner.to - inner.from;
    if (inner.distance <= radii) {
        API::point const common = inner.from + a.radius / radii * way;
        return {0, common, common};
    }
    return {inner.distance - radii, inner.from + a.radius / inner.distance * way,
            inner.to - b.radius / inner.distance * way};
}

double arcSweep(API::point start, API::point end, API::point centre, bool clockwise)
{
    double const begin = std::atan2(start.y - centre.y, start.x - centre.x);
    double const finish = std::atan2(end.y - centre.y, end.x - centre.x);
    double const sweep = clockwise ? begin - finish : finish - begin;
    return sweep + (sweep <= 1e-12 ? 2 * pi : 0);
}

API::point arcMiddle(API::point start, API::point end, API::point centre, bool clockwise)
{
    double const radius = distance(start, centre);
    double const begin = std::atan2(start.y - centre.y, start.x - centre.x);
    double const sweep = arcSweep(start, end, centre, clockwise);
    double const middle = begin + (clockwise ? -sweep : sweep) / 2;
    return {centre.x + radius * std::cos(middle), centre.y + radius * std::sin(middle)};
}

} // namespace KVCAM::Embedded
