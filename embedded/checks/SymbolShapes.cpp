#include "checks/SymbolShapes.h"

#include "checks/DrawingExtent.h"
#include "geometry/Stroke.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <vector>

namespace KVCAM::Embedded {
namespace {

constexpr double largest = 2.54e10; // micrometres; nothing on a board is larger
constexpr std::size_t mostCorners = 1000;

Shape rounded(double width, double height, double corner)
{
    double const r = std::min({corner, width / 2, height / 2});
    double const x = width / 2 - r;
    double const y = height / 2 - r;
    return convexShape({{-x, -y}, {x, -y}, {x, y}, {-x, y}}, r);
}

Shape cut(double width, double height, double corner)
{
    double const c = std::min({corner, width / 2, height / 2});
    double const x = width / 2;
    double const y = height / 2;
    return convexShape({{-x + c, -y},
                        {x - c, -y},
                        {x, -y + c},
                        {x, y - c},
                        {x - c, y},
                        {-x + c, y},
                        {-x, y - c},
                        {-x, -y + c}});
}

Shape circle(double diameter)
{
    return {{{0, 0}}, diameter / 2};
}

// An ellipse's polygon: circumscribed when `about`, else inscribed.
Shape ellipse(double width, double height, bool about)
{
    constexpr int corners = 32;
    double const factor = about ? 1 / std::cos(pi / corners) : 1;
    std::vector<API::point> points;
    for (int i = 0; i < corners; ++i) {
        double const angle = 2 * pi * (i + (about ? 0.5 : 0)) / corners;
        points.push_back({factor * width / 2 * std::cos(angle), factor * height / 2 * std::sin(angle)});
    }
    return convexShape(std::move(points));
}

SymbolShape solid(double width, double height, Shape outer, std::optional<Shape> inner = std::nullopt)
{
    SymbolShape shape;
    shape.kind = width > 0 && height > 0 ? SymbolShape::Kind::Drawn : SymbolShape::Kind::Empty;
    shape.narrower = std::min(width, height);
    shape.wider = std::max(width, height);
    shape.along = width >= height ? API::point{1, 0} : API::point{0, 1};
    shape.inner = inner ? std::move(*inner) : outer;
    shape.outer = std::move(outer);
    return shape;
}

SymbolShape hollow(SymbolShape shape)
{
    shape.inner = {};
    return shape;
}

SymbolShape donut(SymbolShape shape, double opening)
{
    shape.opening = opening;
    return shape;
}

// A donut with copper `line` wide all round.
SymbolShape donut(SymbolShape shape, double width, double height, double line)
{
    double const x = width / 2 - line;
    double const y = height / 2 - line;
    return donut(std::move(shape), x > 0 && y > 0 ? std::hypot(x, y) : 0);
}

SymbolShape rectangle(double width, double height, StandardSymbol const & symbol, double scale)
{
    double const corner = symbol.corner * scale;
    Shape shape = symbol.cut ? cut(width, height, corner) : rounded(width, height, corner);
    return solid(width, height, symbol.someCorners ? rounded(width, height, 0) : shape, shape);
}

SymbolShape oval(double width, double height)
{
    return solid(width, height, rounded(width, height, std::min(width, height)));
}

// The round end is on the right.
SymbolShape halfOval(double width, double height)
{
    SymbolShape shape = solid(width, height, rounded(width, height, 0), oval(width, height).inner);
    double const x = width / 2;
    double const y = height / 2;
    double const end = x - std::min(x, y);
    shape.copper.pieces = {shape.inner, convexShape({{-x, -y}, {end, -y}, {end, y}, {-x, y}})};
    return shape;
}

// Families other than rectangles, ovals and circles and their donuts and thermals.
SymbolShape cornered(SymbolFamily family, double w, double h, double corner)
{
    double const x = w / 2;
    double const y = h / 2;
    switch (family) {
    case SymbolFamily::HalfOval:
        return halfOval(w, h);
    case SymbolFamily::Diamond:
        return solid(w, h, convexShape({{-x, 0}, {0, -y}, {x, 0}, {0, y}}));
    case SymbolFamily::Octagon:
        return solid(w, h, cut(w, h, corner));
    case SymbolFamily::Ellipse:
        return solid(w, h, ellipse(w, h, true), ellipse(w, h, false));
    case SymbolFamily::Triangle:
        return solid(w, h, convexShape({{-x, -y}, {x, -y}, {0, y}}));
    case SymbolFamily::LyingHexagon: {
        double const c = x - std::min(corner, x);
        return solid(w, h, convexShape({{-x, 0}, {-c, -y}, {c, -y}, {x, 0}, {c, y}, {-c, y}}));
    }
    case SymbolFamily::StandingHexagon: {
        double const c = y - std::min(corner, y);
        return solid(w, h, convexShape({{0, -y}, {x, -c}, {x, c}, {0, y}, {-x, c}, {-x, -c}}));
    }
    default:
        return {};
    }
}

SymbolShape shapeOf(StandardSymbol const & symbol, double scale)
{
    double const w = symbol.first * scale;
    double const h = symbol.second * scale;
    double const third = symbol.fields[2] * scale;
    switch (symbol.family) {
    case SymbolFamily::Round:
    case SymbolFamily::Hole:
        return solid(w, w, circle(w));
    case SymbolFamily::RoundDonut:
        return donut(solid(w, w, circle(w)), h / 2);
    case SymbolFamily::RoundButterfly:
    case SymbolFamily::RoundThermal:
    case SymbolFamily::RoundSquaredThermal:
        return hollow(solid(w, w, circle(w)));
    case SymbolFamily::Moire: {
        // Ring width, gap, number of rings, then width and length of the cross.
        double const cross = std::hypot(symbol.fields[3], symbol.fields[4]) * scale;
        double const size = std::max(cross, 2 * (w + h) * symbol.fields[2]);
        return hollow(solid(size, size, circle(size)));
    }
    case SymbolFamily::Square:
        return rectangle(w, w, symbol, scale);
    case SymbolFamily::SquareButterfly:
    case SymbolFamily::SquareRoundThermal:
    case SymbolFamily::SquareThermal:
    case SymbolFamily::SquareOpenThermal:
        return hollow(rectangle(w, w, symbol, scale));
    case SymbolFamily::SquareDonut:
        return donut(rectangle(w, w, symbol, scale), std::hypot(h, h) / 2);
    case SymbolFamily::SquareRoundDonut:
        return donut(rectangle(w, w, symbol, scale), h / 2);
    case SymbolFamily::Rectangle:
        return rectangle(w, h, symbol, scale);
    case SymbolFamily::RectangleThermal:
    case SymbolFamily::RectangleOpenThermal:
        return hollow(rectangle(w, h, symbol, scale));
    case SymbolFamily::RectangleDonut:
        return donut(rectangle(w, h, symbol, scale), w, h, third);
    case SymbolFamily::Oval:
        return oval(w, h);
    case SymbolFamily::OvalThermal:
        return hollow(oval(w, h));
    case SymbolFamily::OvalDonut:
        return donut(oval(w, h), w, h, third);
    case SymbolFamily::HalfOval:
    case SymbolFamily::Diamond:
    case SymbolFamily::Octagon:
    case SymbolFamily::Ellipse:
    case SymbolFamily::Triangle:
    case SymbolFamily::LyingHexagon:
    case SymbolFamily::StandingHexagon:
        return cornered(symbol.family, w, h, third);
    }
    return {};
}

SymbolShape shapeOf(SymbolDrawing const & drawing)
{
    SymbolShape shape;
    shape.problem = drawing.problem;
    if (!drawing.problem.empty()) {
        return shape;
    }
    if (drawing.parts.empty()) {
        shape.kind = SymbolShape::Kind::Empty;
        shape.problem = "its drawing is empty";
        return shape;
    }
    DrawingExtent const extents = extentOf(drawing);
    Box const box = extent(drawing.copper);
    shape.narrower = extents.narrower;
    shape.wider = std::max(extents.narrower, extents.wider);
    shape.along = extents.along;
    shape.middle = extents.middle;
    shape.outer = convexShape(
        {{box.left, box.bottom}, {box.right, box.bottom}, {box.right, box.top}, {box.left, box.top}});
    if (shape.wider > 0 && shape.wider <= largest) {
        shape.kind = SymbolShape::Kind::Drawn;
        shape.copper = drawing.copper;
        shape.isLarge = drawing.corners > mostCorners;
    } else {
        shape.problem = "its drawing has no measurable size";
    }
    return shape;
}

} // namespace

SymbolShape standardShape(StandardSymbol const & symbol, int unit)
{
    SymbolShape shape = shapeOf(symbol, unit == 0 ? 25.4 : 1);
    if (shape.wider > largest) {
        return {};
    }
    if (shape.copper.pieces.empty() && shape.kind == SymbolShape::Kind::Drawn) {
        shape.copper.pieces = {shape.outer};
    }
    return shape;
}

SymbolShape const & SymbolShapes::find(Job const & job, SymbolEntry const & symbol)
{
    auto const [place, added] = m_shapes.try_emplace({symbol.name, symbol.unit});
    if (added) {
        if (auto const standard = standardSymbol(symbol.name)) {
            place->second = standardShape(*standard, symbol.unit);
        } else {
            place->second = shapeOf(m_drawings.find(job, symbol.name));
        }
    }
    return place->second;
}

} // namespace KVCAM::Embedded
