#include "checks/ItemShapes.h"

#include "geometry/CheckGeometry.h"
#include "geometry/Stroke.h"

#include <algorithm>
#include <utility>

namespace KVCAM::Embedded {
namespace {

constexpr std::size_t fewEdges = 32; // not worth an index
constexpr double finest = 0.1;       // micrometres
constexpr double mostChords = 4e6;

double chordsOf(std::vector<Feature> const & features, double tolerance)
{
    double count = 0;
    for (Feature const & feature : features) {
        auto const & p = feature.points;
        if (feature.kind == 'A') {
            count += chordCount(p[0], p[1], p[2], feature.clockwise, tolerance);
        }
        for (Contour const & contour : feature.contours) {
            API::point from = contour.start;
            for (Side const & side : contour.sides) {
                count += side.arc ? chordCount(from, side.to, side.centre, side.clockwise, tolerance) : 0;
                from = side.to;
            }
        }
    }
    return count;
}

} // namespace

double chordTolerance(std::vector<Feature> const & features)
{
    constexpr double coarsest = 1e5;
    double tolerance = finest;
    while (tolerance < coarsest && chordsOf(features, tolerance) > mostChords) {
        tolerance *= 4; // twice as long chords
    }
    return tolerance;
}

void ItemShapes::begin()
{
    m_first.push_back(static_cast<std::uint32_t>(m_pieces.size()));
}

void ItemShapes::drop()
{
    m_pieces.cut(m_first.back());
    m_first.pop_back();
    while (!m_regions.empty() && m_regions.back().item == size()) {
        m_regions.pop_back();
    }
}

void ItemShapes::addPieces(Region const & region)
{
    for (Shape const & piece : region.pieces) {
        m_pieces.add(size() - 1, viewOf(piece), true);
    }
    if (!region.outlines.empty()) {
        std::size_t const first = m_pieces.size();
        for (std::vector<API::point> const & outline : region.outlines) {
            for (std::size_t i = 0; i < outline.size(); ++i) {
                addEdge(outline[i], outline[i + 1 == outline.size() ? 0 : i + 1], 0, i == 0);
            }
        }
        m_regions.push_back({size() - 1, first, m_pieces.size(), nullptr});
    }
}

void ItemShapes::addPieces(ItemShapes const & from, std::uint32_t item)
{
    for (std::size_t piece = from.firstPiece(item); piece < from.endPiece(item); ++piece) {
        m_pieces.add(size() - 1, from.m_pieces[piece], from.m_pieces.starts(piece));
    }
}

void ItemShapes::addWay(Shape const & pen, API::point from, API::point to)
{
    m_pieces.add(size() - 1, viewOf(swept(pen, from, to)), true);
}

void ItemShapes::addArc(Shape const & pen, Feature const & arc)
{
    std::vector<API::point> points{arc.points[0]};
    Shape wider = pen;
    wider.radius +=
        appendChords(points, arc.points[0], arc.points[1], arc.points[2], arc.clockwise, m_tolerance);
    for (std::size_t i = 0; i + 1 < points.size(); ++i) {
        m_pieces.add(size() - 1, viewOf(swept(wider, points[i], points[i + 1])), i == 0);
    }
}

void ItemShapes::addContours(Contours const & contours)
{
    std::size_t const first = m_pieces.size();
    for (Contour const & contour : contours) {
        addOutline(contour);
    }
    m_regions.push_back({size() - 1, first, m_pieces.size(), nullptr});
}

void ItemShapes::addOutline(Contour const & contour)
{
    std::size_t const first = m_pieces.size();
    std::vector<API::point> points;
    API::point from = contour.start;
    for (Side const & side : contour.sides) {
        points.assign(1, from);
        double radius = 0;
        if (side.arc) {
            radius = appendChords(points, from, side.to, side.centre, side.clockwise, m_tolerance);
        } else {
            points.push_back(side.to);
        }
        for (std::size_t i = 0; i + 1 < points.size(); ++i) {
            addEdge(points[i], points[i + 1], radius, m_pieces.size() == first);
        }
        from = side.to;
    }
    addEdge(from, contour.start, 0, m_pieces.size() == first);
}

void ItemShapes::addEdge(API::point from, API::point to, double radius, bool starts)
{
    if (!isSame(from, to)) {
        Edge const edge{from, to};
        m_pieces.add(size() - 1, {edge.data(), edge.size(), radius}, starts);
    }
}

void ItemShapes::index()
{
    m_pieces.shrink();
    m_first.shrink_to_fit();
    std::vector<Box> boxes = m_pieces.boxes();
    std::vector<Box> regionBoxes;
    for (Filled & region : m_regions) {
        std::vector<Edge> edges;
        Box box = region.first < region.end ? boxes[region.first] : Box();
        for (std::size_t piece = region.first; piece < region.end; ++piece) {
            include(box, {boxes[piece].left, boxes[piece].bottom});
            include(box, {boxes[piece].right, boxes[piece].top});
            if (region.end - region.first > fewEdges) {
                PieceView const edge = m_pieces[piece];
                edges.push_back({edge.corners[0], edge.corners[1]});
            }
        }
        regionBoxes.push_back(box);
        region.edges = edges.empty() ? nullptr : std::make_unique<EdgeIndex>(std::move(edges));
    }
    m_grid = SpatialGrid(boxes);
    m_regionGrid = SpatialGrid(regionBoxes);
}

bool ItemShapes::holds(std::size_t region, API::point point) const
{
    Filled const & filled = m_regions[region];
    return filled.edges ? filled.edges->holds(point) : scan(filled, point);
}

bool ItemShapes::covers(std::uint32_t item, API::point point, double margin) const
{
    PieceView const at{&point, 1, 0};
    for (std::size_t piece = firstPiece(item); piece < endPiece(item); ++piece) {
        if (gapBetween(at, m_pieces[piece]).distance <= margin) {
            return true;
        }
    }
    auto const region =
        std::lower_bound(m_regions.begin(), m_regions.end(), item,
                         [](Filled const & each, std::uint32_t wanted) { return each.item < wanted; });
    return region != m_regions.end() && region->item == item &&
           holds(static_cast<std::size_t>(region - m_regions.begin()), point);
}

int ItemShapes::compare(std::uint32_t a, std::uint32_t b) const
{
    PieceView const first = m_pieces[firstPiece(a)];
    PieceView const second = m_pieces[firstPiece(b)];
    if (std::pair(first.count, first.radius) != std::pair(second.count, second.radius)) {
        return std::pair(first.count, first.radius) < std::pair(second.count, second.radius) ? -1 : 1;
    }
    for (std::size_t i = 0; i < first.count; ++i) {
        std::pair const one(first.corners[i].x, first.corners[i].y);
        std::pair const other(second.corners[i].x, second.corners[i].y);
        if (one != other) {
            return one < other ? -1 : 1;
        }
    }
    return 0;
}

std::vector<std::uint32_t> ItemShapes::singles() const
{
    std::vector<std::uint32_t> items;
    for (std::uint32_t item = 0; item < size(); ++item) {
        if (firstPiece(item) + 1 == endPiece(item)) {
            items.push_back(item);
        }
    }
    return items;
}

bool ItemShapes::latestHolds(API::point point) const
{
    return !m_regions.empty() && m_regions.back().item + 1 == size() && scan(m_regions.back(), point);
}

bool ItemShapes::scan(Filled const & region, API::point point) const
{
    bool inside = false;
    for (std::size_t piece = region.first; piece < region.end; ++piece) {
        PieceView const edge = m_pieces[piece];
        inside = inside != isRightOf(edge.corners[0], edge.corners[1], point);
    }
    return inside;
}

} // namespace KVCAM::Embedded
