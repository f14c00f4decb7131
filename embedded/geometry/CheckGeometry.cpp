#include "geometry/CheckGeometry.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <optional>

namespace KVCAM::Embedded {
namespace {

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

double turn(API::point a, API::point b, API::point c)
{
    return (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
}

double square(API::point a, API::point b)
{
    return (a.x - b.x) * (a.x - b.x) + (a.y - b.y) * (a.y - b.y);
}

// A polygon with one or two corners has one side.
std::size_t sides(PieceView const & piece)
{
    return piece.count < 3 ? 1 : piece.count;
}

API::point const & next(PieceView const & piece, std::size_t corner)
{
    return piece.corners[corner + 1 == piece.count ? 0 : corner + 1];
}

bool holds(PieceView const & piece, API::point point)
{
    bool left = false;
    bool right = false;
    for (std::size_t i = 0; piece.count > 2 && i < piece.count; ++i) {
        double const side = turn(piece.corners[i], next(piece, i), point);
        left = left || side > 0;
        right = right || side < 0;
    }
    return left != right; // a polygon flattened by rounding has no inside
}

// The shortest path found so far between two polygons.
struct Shortest
{
    double square = std::numeric_limits<double>::infinity();
    API::point from;
    API::point to;

    void take(API::point a, API::point b)
    {
        if (double const value = Embedded::square(a, b); value < square) {
            *this = {value, a, b};
        }
    }
};

void takeSides(Shortest & best, API::point a, API::point b, API::point c, API::point d)
{
    double const along = (b.x - a.x) * (d.y - c.y) - (b.y - a.y) * (d.x - c.x);
    if (along != 0) {
        double const t = ((c.x - a.x) * (d.y - c.y) - (c.y - a.y) * (d.x - c.x)) / along;
        double const u = turn(a, b, c) / -along;
        if (t >= 0 && t <= 1 && u >= 0 && u <= 1) {
            API::point const common{a.x + t * (b.x - a.x), a.y + t * (b.y - a.y)};
            best = {0, common, common};
            return;
        }
    }
    best.take(a, nearestOnSide(a, c, d));
    best.take(b, nearestOnSide(b, c, d));
    best.take(nearestOnSide(c, a, b), c);
    best.take(nearestOnSide(d, a, b), d);
}

Shortest between(PieceView const & a, PieceView const & b)
{
    if (holds(b, a.corners[0])) {
        return {0, a.corners[0], a.corners[0]};
    }
    if (holds(a, b.corners[0])) {
        return {0, b.corners[0], b.corners[0]};
    }
    Shortest best;
    for (std::size_t i = 0; i < sides(a); ++i) {
        for (std::size_t j = 0; j < sides(b) && best.square > 0; ++j) {
            takeSides(best, a.corners[i], next(a, i), b.corners[j], next(b, j));
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

PieceView viewOf(Shape const & shape)
{
    return {shape.corners.data(), shape.corners.size(), shape.radius};
}

Gap gapBetween(PieceView const & a, PieceView const & b)
{
    Shortest const way = between(a, b);
    double const length = std::sqrt(way.square);
    double const radii = a.radius + b.radius;
    if (radii == 0) {
        return {length, way.from, way.to};
    }
    double const whole = std::max(length, radii);
    double const first = a.radius / whole;
    double const last = length <= radii ? first : 1 - b.radius / whole;
    API::point const step{way.to.x - way.from.x, way.to.y - way.from.y};
    return {std::max(0.0, length - radii),
            {way.from.x + first * step.x, way.from.y + first * step.y},
            {way.from.x + last * step.x, way.from.y + last * step.y}};
}

Box extent(PieceView const & piece)
{
    Box box = boxOf(piece.corners[0]);
    for (std::size_t i = 1; i < piece.count; ++i) {
        include(box, piece.corners[i]);
    }
    double const r = piece.radius;
    return {box.left - r, box.bottom - r, box.right + r, box.top + r};
}

Box extent(Shape const & shape)
{
    return extent(viewOf(shape));
}

Gap gapBetween(Shape const & a, Shape const & b)
{
    return gapBetween(viewOf(a), viewOf(b));
}

double arcSweep(API::point start, API::point end, API::point centre, bool clockwise)
{
    double const begin = std::atan2(start.y - centre.y, start.x - centre.x);
    double const finish = std::atan2(end.y - centre.y, end.x - centre.x);
    double sweep = clockwise ? begin - finish : finish - begin;
    sweep += sweep < 0 ? 2 * pi : 0;
    return sweep <= 1e-12 ? 2 * pi : sweep; // also from -180 to 180 degrees
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
