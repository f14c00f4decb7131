#include "checks/SymbolDrawing.h"

#include "checks/SymbolShapes.h"
#include "formats/JobPaths.h"
#include "geometry/Slabs.h"
#include "geometry/StandardSymbol.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace KVCAM::Embedded {
namespace {

constexpr int deepest = 16;
constexpr std::size_t mostCorners = 20'000;    // of one symbol
constexpr std::size_t mostOfAll = 500'000;     // of all symbols
constexpr std::size_t mostCrossingSides = 400; // of outlines that overlap others
constexpr char const * tooLarge = "its drawing is too large";

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

} // namespace

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
