#include "geometry/Pieces.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace KVCAM::Embedded {
namespace {

constexpr double pi = 3.14159265358979323846;

double cross(API::point a, API::point b, API::point c)
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
        double const side = cross(piece.corners[i], next(piece, i), point);
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
        double const u = cross(a, b, c) / -along;
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

void Pieces::add(std::uint32_t item, PieceView const & piece, bool starts)
{
    Piece stored{};
    stored.radius = piece.radius;
    stored.first = static_cast<std::uint32_t>(m_corners.size()); // a file holds less than 2^32
    stored.item = item;
    stored.count = static_cast<std::uint32_t>(piece.count) & 0x7FFFFFFFU;
    stored.starts = starts;
    m_pieces.push_back(stored);
    m_corners.insert(m_corners.end(), piece.corners, piece.corners + piece.count);
}

void Pieces::cut(std::size_t first)
{
    if (first < m_pieces.size()) {
        m_corners.resize(m_pieces[first].first);
        m_pieces.resize(first);
    }
}

void Pieces::shrink()
{
    m_pieces.shrink_to_fit();
    m_corners.shrink_to_fit();
}

std::vector<Box> Pieces::boxes() const
{
    std::vector<Box> boxes;
    boxes.reserve(size());
    for (std::size_t piece = 0; piece < size(); ++piece) {
        boxes.push_back(extent((*this)[piece]));
    }
    return boxes;
}

double chordCount(API::point start, API::point end, API::point centre, bool clockwise, double tolerance)
{
    constexpr double most = 4096; // chords a turn
    double const widest = std::max(distance(start, centre), distance(end, centre));
    double const chord =
        widest <= tolerance ? pi / 2 : std::min(pi / 2, 2 * std::acos(1 - tolerance / widest));
    return std::ceil(arcSweep(start, end, centre, clockwise) / std::max(chord, 2 * pi / most));
}

double appendChords(std::vector<API::point> & points, API::point start, API::point end, API::point centre,
                    bool clockwise, double tolerance)
{
    double const radius = distance(start, centre);
    double const last = distance(end, centre);
    double const begin = std::atan2(start.y - centre.y, start.x - centre.x);
    auto const count = static_cast<int>(chordCount(start, end, centre, clockwise, tolerance));
    double const step = arcSweep(start, end, centre, clockwise) / count;
    for (int i = 1; i < count; ++i) {
        // The ends of an arc may differ in radius by what rounding made of them.
        double const r = radius + (last - radius) * i / count;
        double const angle = begin + (clockwise ? -step : step) * i;
        points.push_back({centre.x + r * std::cos(angle), centre.y + r * std::sin(angle)});
    }
    points.push_back(end);
    return std::max(radius, last) * (1 - std::cos(step / 2));
}

} // namespace KVCAM::Embedded
