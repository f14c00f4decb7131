#include "board/FeatureShapes.h"

#include "board/FeatureSymbols.h"
#include "board/Paths.h"

#include <UIAPICommonExt.h>

#include <QPolygonF>
#include <QTransform>

#include <algorithm>
#include <cmath>
#include <memory>
#include <utility>

namespace Workbench {

namespace Ext = KVCAM::UIAPI::Ext;

namespace {

using KVCAM::API::feature_info;

constexpr int mostExact = 64; // elements of a path
constexpr double pi = 3.14159265358979323846;
constexpr double halfDiagonal = 0.70710678118654752440; // of a square of side 1

QPointF toPoint(KVCAM::API::point const & point)
{
    return {point.x, point.y};
}

QPainterPath arcPath(QPointF start, QPointF end, QPointF centre, bool clockwise)
{
    QPointF const from = start - centre;
    QPointF const to = end - centre;
    double const radius = std::hypot(from.x(), from.y());
    // Qt counts angles counter-clockwise with a y axis that points down; the board's points up.
    double const startAngle = std::atan2(-from.y(), from.x()) * 180 / pi;
    double const turn = std::atan2(-to.y(), to.x()) * 180 / pi - startAngle;
    double sweep = clockwise ? turn : -turn;
    sweep += sweep < 0 ? 360 : 0;
    sweep = sweep == 0 ? 360 : sweep; // also from -180 to 180 degrees
    QPainterPath path(start);
    path.arcTo(QRectF(centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius), startAngle,
               clockwise ? sweep : -sweep);
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

// Of a placed symbol: exact for quarter turns and small paths, otherwise that of its turned box.
QRectF placedBox(FeatureSymbol const & symbol, QTransform const & place)
{
    bool const isExact = place.type() <= QTransform::TxScale || !symbol.parts.empty() ||
                         symbol.path.elementCount() > mostExact;
    return isExact ? place.mapRect(symbol.box) : place.map(symbol.path).boundingRect();
}

void placePad(FeatureShape & shape, std::shared_ptr<FeatureSymbol const> symbol,
              KVCAM::Embedded::FeatureDrawing const & drawing)
{
    shape.kind = FeatureShape::Kind::Pad;
    shape.filled = symbol->filled;
    shape.path = symbol->path;
    shape.angle = drawing.angle;
    shape.mirrored = drawing.mirrored;
    shape.box = shape.path.isEmpty()
                    ? QRectF(shape.place, QSizeF())
                    : placedBox(*symbol, placement(shape.place, shape.angle, shape.mirrored));
    shape.symbol = std::move(symbol);
}

void strokeWith(FeatureShape & shape, FeatureSymbol const & symbol)
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
                          FeatureSymbols & symbols)
{
    auto const & points = feature.points;
    FeatureShape shape;
    shape.feature = feature.index;
    shape.unit = Ext::unitOfCode(drawing.unit);
    shape.positive = feature.positive;
    if (feature.kind == 'S') {
        shape.path = surfacePath(drawing.outlines);
        settle(shape.path);
        shape.box = shape.path.boundingRect();
        return shape;
    }
    std::shared_ptr<FeatureSymbol const> const symbol = symbols.find(feature.symbol, shape.unit);
    shape.place = toPoint(points.at(0));
    switch (feature.kind) {
    case 'P':
        placePad(shape, symbol, drawing);
        break;
    case 'L':
        shape.kind = FeatureShape::Kind::Line;
        shape.end = toPoint(points.at(1));
        strokeWith(shape, *symbol);
        break;
    default:
        shape.path = arcPath(shape.place, toPoint(points.at(1)), toPoint(points.at(2)), drawing.clockwise);
        strokeWith(shape, *symbol);
        settle(shape.path);
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
    return placement(place, angle, mirrored).map(path);
}

QPainterPath FeatureShape::marking(QTransform const & boardToWidget, int room) const
{
    QPainterPath marking;
    if (path.elementCount() <= 100 * room) { // beyond it, not even worth a look
        marking = thinned(boardToWidget.map(outline()), 1);
    }
    if (marking.isEmpty() || marking.elementCount() > room) {
        marking = {};
        marking.addRect(boardToWidget.mapRect(box));
    }
    return marking;
}

std::vector<FeatureShape> featureShapes(std::vector<KVCAM::API::feature_info> const & features,
                                        std::vector<KVCAM::Embedded::FeatureDrawing> const & drawings,
                                        SymbolSource const & source)
{
    FeatureSymbols symbols(source);
    return featureShapes(features, drawings, symbols);
}

std::vector<FeatureShape> featureShapes(std::vector<KVCAM::API::feature_info> const & features,
                                        std::vector<KVCAM::Embedded::FeatureDrawing> const & drawings,
                                        FeatureSymbols & symbols)
{
    std::vector<FeatureShape> shapes;
    shapes.reserve(features.size());
    for (std::size_t i = 0; i < features.size() && i < drawings.size(); ++i) {
        shapes.push_back(featureShape(features[i], drawings[i], symbols));
    }
    return shapes;
}

QRectF joined(QRectF const & a, QRectF const & b)
{
    return {QPointF(std::min(a.left(), b.left()), std::min(a.top(), b.top())),
            QPointF(std::max(a.right(), b.right()), std::max(a.bottom(), b.bottom()))};
}

} // namespace Workbench
