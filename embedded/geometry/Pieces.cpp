#include "geometry/Pieces.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace KVCAM::Embedded {
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
