#include "checks/SymbolDrawing.h"

#include "checks/SymbolShapes.h"
#include "formats/JobPaths.h"
#include "geometry/StandardSymbol.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>
#include <utility>

namespace KVCAM::Embedded {
namespace {

constexpr double pi = 3.14159265358979323846;
constexpr int deepest = 16;
constexpr std::size_t mostCorners = 20'000;    // of one symbol
constexpr std::size_t mostOfAll = 500'000;     // of all symbols
constexpr std::size_t mostCrossingSides = 400; // of outlines that overlap others
constexpr std::size_t mostDirections = 180;    // in which a least width is looked for
constexpr std::size_t mostSearches = 4;        // of them around which it is looked for
constexpr char const * tooLarge = "its drawing is too large";

using Outlines = std::vector<std::vector<API::point>>;

// Adds the graphics of a drawing to its region.
class Builder
{
public:
    explicit Builder(SymbolDrawing & to) : m_to(to) {}

    // Room for so many more corners; marks the drawing as too large otherwise.
    bool takes(double corners)
    {
        if (corners <= static_cast<double>(mostCorners - m_to.corners)) {
            m_to.corners += static_cast<std::size_t>(corners);
            return true;
        }
        m_to.problem = tooLarge;
        return false;
    }

    void add(Shape shape)
    {
        if (takes(static_cast<double>(shape.corners.size()))) {
            m_to.copper.pieces.push_back(std::move(shape));
        }
    }

    void add(Shape const & pen, Arc const & arc)
    {
        double const pieces = arcPieces(arc);
        if (takes(2 * pieces * static_cast<double>(pen.corners.size()))) {
            for (Shape & piece : swept(pen, arc, static_cast<std::size_t>(pieces))) {
                m_to.copper.pieces.push_back(std::move(piece));
            }
        }
    }

    void add(SymbolDrawing const & nested, Placement const & where);
    void addSurface(Feature const & surface);
    void addOutlines(Outlines outlines);

private:
    SymbolDrawing & m_to;
};

bool overlap(Box const & a, Box const & b)
{
    return a.left <= b.right && b.left <= a.right && a.bottom <= b.top && b.bottom <= a.top;
}

struct Edge
{
    API::point low;
    API::point high;

    double at(double y) const
    {
        return y <= low.y    ? low.x
               : y >= high.y ? high.x
                             : low.x + (y - low.y) / (high.y - low.y) * (high.x - low.x);
    }
};

std::vector<Edge> edgesOf(Outlines const & outlines)
{
    std::vector<Edge> edges;
    for (std::vector<API::point> const & outline : outlines) {
        for (std::size_t i = 0; i < outline.size(); ++i) {
            API::point const & a = outline[i];
            API::point const & b = outline[(i + 1) % outline.size()];
            if (a.y != b.y) {
                edges.push_back(a.y < b.y ? Edge{a, b} : Edge{b, a});
            }
        }
    }
    return edges;
}

// The heights of the corners, and those at which edges cross.
std::vector<double> heightsOf(std::vector<Edge> const & edges)
{
    std::vector<double> heights;
    for (std::size_t i = 0; i < edges.size(); ++i) {
        heights.push_back(edges[i].low.y);
        heights.push_back(edges[i].high.y);
        for (std::size_t j = 0; j < i; ++j) {
            double const low = std::max(edges[i].low.y, edges[j].low.y);
            double const high = std::min(edges[i].high.y, edges[j].high.y);
            double const before = edges[i].at(low) - edges[j].at(low);
            double const after = edges[i].at(high) - edges[j].at(high);
            if (low < high && (before < 0) != (after < 0)) {
                heights.push_back(low + (high - low) * before / (before - after));
            }
        }
    }
    std::sort(heights.begin(), heights.end());
    heights.erase(std::unique(heights.begin(), heights.end()), heights.end());
    return heights;
}

// Cuts the inside of outlines into horizontal slabs in which no edges meet.
template <class Take>
void forEachSlab(Outlines const & outlines, Take const & take)
{
    std::vector<Edge> const edges = edgesOf(outlines);
    std::vector<double> const heights = heightsOf(edges);
    for (std::size_t i = 0; i + 1 < heights.size(); ++i) {
        double const low = heights[i];
        double const high = heights[i + 1];
        std::vector<std::pair<double, double>> through; // at the lower and the upper end
        for (Edge const & edge : edges) {
            if (edge.low.y <= low && edge.high.y >= high) {
                through.emplace_back(edge.at(low), edge.at(high));
            }
        }
        std::sort(through.begin(), through.end(), [](auto const & a, auto const & b) {
            return a.first / 2 + a.second / 2 < b.first / 2 + b.second / 2;
        });
        for (std::size_t j = 0; j + 1 < through.size(); j += 2) {
            take(convexShape({{through[j].first, low},
                              {through[j + 1].first, low},
                              {through[j + 1].second, high},
                              {through[j].second, high}}));
        }
    }
}

void Builder::addSurface(Feature const & surface)
{
    Outlines outlines;
    for (Contour const & contour : surface.contours) {
        std::vector<API::point> outline{contour.start};
        API::point from = contour.start;
        for (Side const & side : contour.sides) {
            Arc const arc{from, side.to, side.centre, side.clockwise};
            double const pieces = side.arc ? arcPieces(arc) : 1;
            if (!takes(side.arc ? 4 * pieces : 1)) { // three of each cover
                return;
            }
            if (side.arc) {
                std::vector<API::point> const points = arcPoints(arc, static_cast<std::size_t>(pieces));
                outline.insert(outline.end(), points.begin() + 1, points.end() - 1);
                for (Shape & cover : arcCovers(arc, points)) {
                    m_to.copper.pieces.push_back(std::move(cover));
                }
            }
            outline.push_back(side.to);
            from = side.to;
        }
        outline = convexShape(std::move(outline)).corners; // without repeated points
        outlines.push_back(std::move(outline));
    }
    addOutlines(std::move(outlines));
}

// Outlines of one region are filled odd-even, so what overlaps others is cut into pieces.
void Builder::addOutlines(Outlines outlines)
{
    if (outlines.empty()) {
        return;
    }
    Region const added{{}, outlines};
    Box const box = extent(added);
    bool const isFirst = m_to.copper.outlines.empty();
    if (isFirst || !overlap(box, m_to.outlines)) {
        m_to.outlines = isFirst ? box : m_to.outlines;
        include(m_to.outlines, {box.left, box.bottom});
        include(m_to.outlines, {box.right, box.top});
        std::move(outlines.begin(), outlines.end(), std::back_inserter(m_to.copper.outlines));
        return;
    }
    if (size(added) > mostCrossingSides) {
        for (std::vector<API::point> & outline : outlines) {
            add({convexHull(std::move(outline)), 0});
        }
        return;
    }
    forEachSlab(outlines, [this](Shape slab) { add(std::move(slab)); });
}

void Builder::add(SymbolDrawing const & nested, Placement const & where)
{
    if (!takes(static_cast<double>(nested.corners))) {
        return;
    }
    Region region = placed(nested.copper, where);
    std::move(region.pieces.begin(), region.pieces.end(), std::back_inserter(m_to.copper.pieces));
    addOutlines(std::move(region.outlines));
    Placement turned = where;
    turned.place = {};
    for (DrawnPart const & part : nested.parts) {
        m_to.parts.push_back(part.arc ? DrawnPart{placed(part.shape, turned), placed(*part.arc, where)}
                                      : DrawnPart{placed(part.shape, where), {}});
    }
}

void addParts(Feature const & surface, std::vector<DrawnPart> & parts)
{
    for (Contour const & contour : surface.contours) {
        API::point from = contour.start;
        parts.push_back({{{from}, 0}, {}});
        for (Side const & side : contour.sides) {
            if (side.arc) {
                parts.push_back({{{{0, 0}}, 0}, Arc{from, side.to, side.centre, side.clockwise}});
            }
            parts.push_back({{{side.to}, 0}, {}});
            from = side.to;
        }
    }
}

double reachOf(SymbolDrawing const & drawing, API::point direction)
{
    double farthest = -std::numeric_limits<double>::infinity();
    for (DrawnPart const & part : drawing.parts) {
        farthest = std::max(farthest,
                            support(part.shape, direction) + (part.arc ? support(*part.arc, direction) : 0));
    }
    return farthest;
}

double widthIn(SymbolDrawing const & drawing, API::point direction)
{
    return reachOf(drawing, direction) + reachOf(drawing, {-direction.x, -direction.y});
}

double widthAt(SymbolDrawing const & drawing, double angle)
{
    return widthIn(drawing, {std::cos(angle), std::sin(angle)});
}

// Across the sides of the hull, the longest first: there a width has its minima.
std::vector<API::point> directions(Region const & region)
{
    std::vector<API::point> points;
    for (Shape const & piece : region.pieces) {
        for (API::point const & corner : piece.corners) {
            for (int i = 0; i < (piece.radius > 0 ? 32 : 1); ++i) {
                points.push_back({corner.x + piece.radius * std::cos(i * pi / 16),
                                  corner.y + piece.radius * std::sin(i * pi / 16)});
            }
        }
    }
    for (std::vector<API::point> const & outline : region.outlines) {
        points.insert(points.end(), outline.begin(), outline.end());
    }
    std::vector<API::point> const hull = convexHull(std::move(points));
    std::vector<API::point> across;
    for (std::size_t i = 0; i < hull.size(); ++i) {
        API::point const & next = hull[(i + 1) % hull.size()];
        across.push_back({hull[i].y - next.y, next.x - hull[i].x});
    }
    std::stable_sort(across.begin(), across.end(),
                     [](API::point a, API::point b) { return std::hypot(a.x, a.y) > std::hypot(b.x, b.y); });
    across.resize(std::min(across.size(), mostDirections));
    for (API::point & each : across) {
        double const length = std::hypot(each.x, each.y);
        each = length > 0 ? API::point{each.x / length, each.y / length} : API::point{1, 0};
    }
    return across;
}

// A minimum near an angle, by golden section.
double leastNear(SymbolDrawing const & drawing, double angle)
{
    constexpr double ratio = 0.61803398874989485;
    double low = angle - 0.1;
    double high = angle + 0.1;
    for (int i = 0; i < 50; ++i) {
        double const a = high - ratio * (high - low);
        double const b = low + ratio * (high - low);
        bool const isLower = widthAt(drawing, a) < widthAt(drawing, b);
        (isLower ? high : low) = isLower ? b : a;
    }
    return low / 2 + high / 2;
}

} // namespace

DrawingExtent extentOf(SymbolDrawing const & drawing)
{
    struct Candidate
    {
        double width;
        API::point direction;
    };
    std::vector<Candidate> found;
    for (API::point const direction : {API::point{1, 0}, API::point{0, 1}}) {
        found.push_back({widthIn(drawing, direction), direction});
    }
    for (API::point const direction : directions(drawing.copper)) {
        found.push_back({widthIn(drawing, direction), direction});
    }
    constexpr double noise = 1e-6; // the upright directions are preferred
    auto const isLess = [](Candidate const & a, Candidate const & b) { return a.width < b.width - noise; };
    Candidate best = *std::min_element(found.begin(), found.end(), isLess);
    std::stable_sort(found.begin(), found.end(),
                     [](Candidate const & a, Candidate const & b) { return a.width < b.width; });
    for (std::size_t i = 0; i < std::min(found.size(), mostSearches); ++i) {
        double const angle = leastNear(drawing, std::atan2(found[i].direction.y, found[i].direction.x));
        Candidate const refined{widthAt(drawing, angle), {std::cos(angle), std::sin(angle)}};
        best = isLess(refined, best) ? refined : best;
    }
    API::point const u = best.direction;
    API::point const v{-u.y, u.x};
    double const acrossMiddle = (reachOf(drawing, u) - reachOf(drawing, {-u.x, -u.y})) / 2;
    double const alongMiddle = (reachOf(drawing, v) - reachOf(drawing, {-v.x, -v.y})) / 2;
    return {best.width,
            widthIn(drawing, v),
            v,
            {acrossMiddle * u.x + alongMiddle * v.x, acrossMiddle * u.y + alongMiddle * v.y}};
}

SymbolDrawing const & SymbolDrawings::find(Job const & job, std::string const & name)
{
    return find(job, name, 0);
}

SymbolDrawing const & SymbolDrawings::find(Job const & job, std::string const & name, int depth)
{
    static SymbolDrawing const tooDeep = [] {
        SymbolDrawing drawing;
        drawing.problem = "it contains symbols within symbols without end";
        return drawing;
    }();
    std::string const key = lowerCase(name);
    if (auto const known = m_drawings.find(key); known != m_drawings.end()) {
        return known->second;
    }
    if (depth > deepest) {
        return tooDeep;
    }
    m_drawings[key] = tooDeep; // as long as it is being read
    auto const file = job.symbolDrawing(name);
    SymbolDrawing made;
    if (!file) {
        made.problem = "the job has no drawing of it";
    } else if (m_corners > mostOfAll) {
        made.problem = "the drawings of the job's symbols are too large";
    } else {
        made = drawing(job, *file, depth);
    }
    m_corners += made.corners;
    return m_drawings[key] = std::move(made);
}

SymbolDrawing SymbolDrawings::drawing(Job const & job, FeaturesFile const & file, int depth)
{
    SymbolDrawing result;
    for (Feature const & feature : file.features) {
        if (feature.positive) {
            draw(job, file, feature, depth, result);
        }
        if (!result.problem.empty()) {
            SymbolDrawing failed;
            failed.problem = result.problem;
            return failed;
        }
    }
    return result;
}

void SymbolDrawings::draw(Job const & job, FeaturesFile const & file, Feature const & feature, int depth,
                          SymbolDrawing & to)
{
    Builder builder(to);
    auto const & p = feature.points;
    if (feature.kind == 'S') {
        addParts(feature, to.parts);
        builder.addSurface(feature);
        return;
    }
    SymbolEntry const & symbol = file.symbols.at(feature.symbol);
    Placement const where = placement(p[0], feature.angle, feature.mirrored);
    auto const standard = standardSymbol(symbol.name);
    if (!standard && feature.kind == 'P') {
        SymbolDrawing const & nested = find(job, symbol.name, depth + 1);
        if (nested.problem.empty()) {
            builder.add(nested, where);
        } else {
            to.problem = "of \"" + symbol.name + "\" in it, " + nested.problem;
        }
        return;
    }
    SymbolShape const shape = standard ? standardShape(*standard, symbol.unit) : SymbolShape();
    if (shape.kind == SymbolShape::Kind::Empty) {
        return;
    }
    if (shape.kind == SymbolShape::Kind::Unknown) {
        to.problem = "\"" + symbol.name + "\" in it cannot be measured so";
        return;
    }
    Shape const & inner = shape.inner.corners.empty() ? shape.outer : shape.inner;
    if (feature.kind == 'P') {
        for (Shape & piece : placed(shape.copper, where).pieces) {
            builder.add(std::move(piece));
        }
        to.parts.push_back({placed(inner, where), {}});
    } else if (feature.kind == 'L') {
        builder.add(swept(shape.outer, p[0], p[1]));
        to.parts.push_back({swept(inner, p[0], p[1]), {}});
    } else {
        Arc const arc{p[0], p[1], p[2], feature.clockwise};
        builder.add(shape.outer, arc);
        to.parts.push_back({inner, arc});
    }
}

} // namespace KVCAM::Embedded
