#include "board/FeatureShapes.h"

#include "board/SymbolPath.h"

#include <UIAPICommonExt.h>

#include <QPolygonF>
#include <QTransform>

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>
#include <utility>

namespace Workbench {

namespace Ext = KVCAM::UIAPI::Ext;

namespace {

using KVCAM::API::feature_info;

constexpr double crossSize = 300; // micrometres; half the arm of the cross for a user-defined symbol
constexpr double pi = 3.14159265358979323846;
constexpr double halfDiagonal = 0.70710678118654752440; // of a square of side 1

QPointF toPoint(KVCAM::API::point const & point)
{
    return {point.x, point.y};
}

// What a symbol name stands for; looked up once per name and unit of a layer.
struct Symbol
{
    std::optional<QPainterPath> path; // nothing for a job's own
    double width = 0;                 // of a stroke drawn with it
    bool isSquare = false;
};

class Symbols
{
public:
    Symbol const & find(std::string const & name, Unit unit)
    {
        auto const [place, added] = m_symbols.emplace(std::pair(name, unit), Symbol());
        if (added) {
            Symbol & symbol = place->second;
            auto const standard = Ext::Symbol::parse(QString::fromStdString(name), unit).symbol;
            if (standard) {
                symbol.path = symbolPath(*standard);
                QRectF const box = symbol.path->boundingRect();
                symbol.width = std::min(box.width(), box.height());
                symbol.isSquare = standard->family() == Ext::SymbolFamily::Square ||
                                  standard->family() == Ext::SymbolFamily::Rectangle;
            }
        }
        return place->second;
    }

private:
    std::map<std::pair<std::string, Unit>, Symbol> m_symbols;
};

QPainterPath const & cross()
{
    static QPainterPath const path = [] {
        QPainterPath lines(QPointF(-crossSize, 0));
        lines.lineTo(crossSize, 0);
        lines.moveTo(0, -crossSize);
        lines.lineTo(0, crossSize);
        return lines;
    }();
    return path;
}

QPainterPath arcPath(QPointF start, QPointF end, QPointF centre, bool clockwise)
{
    QPointF const from = start - centre;
    QPointF const to = end - centre;
    double const radius = std::hypot(from.x(), from.y());
    // Qt counts angles counter-clockwise with a y axis that points down; the board's points up.
    double const startAngle = std::atan2(-from.y(), from.x()) * 180 / pi;
    double sweep = std::atan2(-to.y(), to.x()) * 180 / pi - startAngle;
    if (clockwise) {
        sweep += sweep <= 0 ? 360 : 0;
    } else {
        sweep -= sweep >= 0 ? 360 : 0;
    }
    QPainterPath path(start);
    path.arcTo(QRectF(centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius), startAngle, sweep);
    return path;
}

QPainterPath surfacePath(std::vector<std::vector<KVCAM::API::point>> const & outlines)
{
    QPainterPath path; // odd-even, so that holes stay open
    for (auto const & outline : outlines) {
        QPolygonF polygon;
        for (KVCAM::API::point const & corner : outline) {
            polygon << toPoint(corner);
        }
        path.addPolygon(polygon);
        path.closeSubpath();
    }
    return path;
}

void placePad(FeatureShape & shape, Symbol const & symbol, KVCAM::Embedded::FeatureDrawing const & drawing)
{
    shape.kind = FeatureShape::Kind::Pad;
    shape.filled = symbol.path.has_value();
    shape.path = symbol.path.value_or(cross());
    shape.angle = drawing.angle;
    shape.mirrored = drawing.mirrored;
    shape.box = shape.path.isEmpty() ? QRectF(shape.place, QSizeF()) : shape.outline().boundingRect();
}

void strokeWith(FeatureShape & shape, Symbol const & symbol)
{
    shape.filled = false;
    shape.penWidth = symbol.width;
    shape.squareEnds = symbol.isSquare;
    double const reach = symbol.width * (symbol.isSquare ? halfDiagonal : 0.5);
    QRectF const box = shape.kind == FeatureShape::Kind::Line ? QRectF(shape.place, shape.end).normalized()
                                                              : shape.path.boundingRect();
    shape.box = box.adjusted(-reach, -reach, reach, reach);
}

FeatureShape featureShape(feature_info const & feature, KVCAM::Embedded::FeatureDrawing const & drawing,
                          Symbols & symbols)
{
    auto const & points = feature.points;
    FeatureShape shape;
    shape.feature = feature.index;
    shape.unit = Ext::unitOfCode(drawing.unit);
    shape.positive = feature.positive;
    if (feature.kind == 'S') {
        shape.path = surfacePath(drawing.outlines);
        shape.box = shape.path.boundingRect();
        return shape;
    }
    Symbol const & symbol = symbols.find(feature.symbol, Ext::unitOfCode(drawing.unit));
    shape.place = toPoint(points.at(0));
    switch (feature.kind) {
    case 'P':
        placePad(shape, symbol, drawing);
        break;
    case 'L':
        shape.kind = FeatureShape::Kind::Line;
        shape.end = toPoint(points.at(1));
        strokeWith(shape, symbol);
        break;
    default:
        shape.path = arcPath(shape.place, toPoint(points.at(1)), toPoint(points.at(2)), drawing.clockwise);
        strokeWith(shape, symbol);
        break;
    }
    return shape;
}

} // namespace

QPainterPath FeatureShape::outline() const
{
    if (kind == Kind::Line) {
        QPainterPath line(place);
        line.lineTo(end);
        return line;
    }
    if (kind == Kind::Path) {
        return path;
    }
    QTransform placed = QTransform::fromTranslate(place.x(), place.y()).scale(mirrored ? -1 : 1, 1);
    return placed.rotate(-angle).map(path); // the last call acts first
}

std::vector<FeatureShape> featureShapes(std::vector<KVCAM::API::feature_info> const & features,
                                        std::vector<KVCAM::Embedded::FeatureDrawing> const & drawings)
{
    std::vector<FeatureShape> shapes;
    shapes.reserve(features.size());
    Symbols symbols;
    for (std::size_t i = 0; i < features.size() && i < drawings.size(); ++i) {
        shapes.push_back(featureShape(features[i], drawings[i], symbols));
    }
    return shapes;
}

} // namespace Workbench
