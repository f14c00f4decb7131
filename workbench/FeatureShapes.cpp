#include "FeatureShapes.h"

#include "PadFamilies.h"

#include <QPolygonF>
#include <QString>
#include <QTransform>

#include <algorithm>
#include <cmath>

namespace Workbench {

namespace {

using KVCAM::API::feature_info;

constexpr double micrometresPerMil = 25.4;
constexpr double crossSize = 300; // half the arm of the cross that stands for a user-defined symbol

double micrometresPer(int unit)
{
    return unit == 0 ? micrometresPerMil : 1;
}

QPointF toPoint(KVCAM::API::point const & point)
{
    return {point.x, point.y};
}

QRectF centred(QSizeF size)
{
    return {QPointF(-size.width() / 2, -size.height() / 2), size};
}

QPainterPath padPath(std::string const & symbol, int unit)
{
    QPainterPath path;
    QSizeF const size = symbolExtent(symbol, unit);
    if (size.isEmpty()) {
        path.moveTo(-crossSize, 0);
        path.lineTo(crossSize, 0);
        path.moveTo(0, -crossSize);
        path.lineTo(0, crossSize);
        return path;
    }
    auto const name = parsePadName(QString::fromStdString(symbol));
    QRectF const box = centred(size);
    switch (name->family->outline) {
    case PadFamily::Outline::Oval: {
        double const radius = std::min(size.width(), size.height()) / 2;
        path.addRoundedRect(box, radius, radius);
        break;
    }
    case PadFamily::Outline::Round:
        path.addEllipse(box);
        break;
    case PadFamily::Outline::Box:
        path.addRect(box);
        break;
    }
    double const hole = name->second.toDouble() * micrometresPer(unit);
    if (name->family->second == PadFamily::Second::RoundHole) {
        path.addEllipse(centred({hole, hole}));
    } else if (name->family->second == PadFamily::Second::SquareHole) {
        path.addRect(centred({hole, hole}));
    }
    return path;
}

QPainterPath arcPath(QPointF start, QPointF end, QPointF centre, bool clockwise)
{
    QPointF const from = start - centre;
    QPointF const to = end - centre;
    double const radius = std::hypot(from.x(), from.y());
    // Qt counts angles counter-clockwise against a y axis that points down; the board's points up.
    double const startAngle = std::atan2(-from.y(), from.x()) * 180 / M_PI;
    double sweep = std::atan2(-to.y(), to.x()) * 180 / M_PI - startAngle;
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

FeatureShape featureShape(feature_info const & feature, KVCAM::Embedded::FeatureDrawing const & drawing)
{
    QSizeF const size = symbolExtent(feature.symbol, drawing.unit);
    auto const & points = feature.points;
    FeatureShape shape;
    shape.feature = feature.index;
    shape.unit = drawing.unit;
    shape.positive = feature.positive;
    shape.filled = feature.kind == 'S' || (feature.kind == 'P' && !size.isEmpty());
    shape.penWidth = shape.filled ? 0 : std::min(size.width(), size.height());
    switch (feature.kind) {
    case 'P': {
        QPointF const place = toPoint(points.at(0));
        QTransform const turned = QTransform::fromTranslate(place.x(), place.y()).rotate(-drawing.angle);
        shape.path = turned.map(padPath(feature.symbol, drawing.unit));
        break;
    }
    case 'L':
        shape.path.moveTo(toPoint(points.at(0)));
        shape.path.lineTo(toPoint(points.at(1)));
        break;
    case 'A':
        shape.path =
            arcPath(toPoint(points.at(0)), toPoint(points.at(1)), toPoint(points.at(2)), drawing.clockwise);
        break;
    default:
        shape.path = surfacePath(drawing.outlines);
        break;
    }
    return shape;
}

} // namespace

QSizeF symbolExtent(std::string const & name, int unit)
{
    auto const parts = parsePadName(QString::fromStdString(name));
    if (!parts) {
        return {};
    }
    double const width = parts->first.toDouble() * micrometresPer(unit);
    switch (parts->family->second) {
    case PadFamily::Second::Height:
        return {width, parts->second.toDouble() * micrometresPer(unit)};
    case PadFamily::Second::RingGap: { // x rings x line width x line length x angle
        double const line = parts->rest.section('x', 3, 3).toDouble() * micrometresPer(unit);
        return {line, line};
    }
    default:
        return {width, width};
    }
}

std::vector<FeatureShape> featureShapes(std::vector<KVCAM::API::feature_info> const & features,
                                        std::vector<KVCAM::Embedded::FeatureDrawing> const & drawings)
{
    std::vector<FeatureShape> shapes;
    shapes.reserve(features.size());
    for (std::size_t i = 0; i < features.size() && i < drawings.size(); ++i) {
        shapes.push_back(featureShape(features[i], drawings[i]));
    }
    return shapes;
}

} // namespace Workbench
