#include "FeatureShapes.h"

#include <QPolygonF>
#include <QRegularExpression>
#include <QString>
#include <QTransform>

#include <algorithm>
#include <cmath>

namespace Workbench {

namespace {

using KVCAM::API::feature_info;

constexpr double micrometresPerMil = 25.4;
constexpr double crossSize = 300; // half the arm of the cross that stands for a user-defined symbol

QPointF toPoint(KVCAM::API::point const & point)
{
    return {point.x, point.y};
}

bool isRoundFamily(std::string const & name)
{
    for (char const * prefix : {"oval", "donut_r", "el", "thr", "moire", "hole", "r_"}) {
        if (name.rfind(prefix, 0) == 0) {
            return true;
        }
    }
    return name.size() > 1 && name[0] == 'r' && name[1] >= '0' && name[1] <= '9';
}

QPainterPath padPath(std::string const & symbol, QSizeF size)
{
    QPainterPath path;
    if (size.isEmpty()) {
        path.moveTo(-crossSize, 0);
        path.lineTo(crossSize, 0);
        path.moveTo(0, -crossSize);
        path.lineTo(0, crossSize);
        return path;
    }
    bool const isDonut = symbol.rfind("donut", 0) == 0;
    QSizeF const outer = isDonut ? QSizeF(size.width(), size.width()) : size;
    QRectF const box(QPointF(-outer.width() / 2, -outer.height() / 2), outer);
    if (symbol.rfind("oval", 0) == 0) {
        double const radius = std::min(size.width(), size.height()) / 2;
        path.addRoundedRect(box, radius, radius);
    } else if (isRoundFamily(symbol)) {
        path.addEllipse(box);
    } else {
        path.addRect(box);
    }
    if (isDonut) {
        path.addEllipse(QPointF(), size.height() / 2, size.height() / 2); // its second size is the hole
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

FeatureShape featureShape(feature_info const & feature, KVCAM::Embedded::FeatureDrawing const & drawing,
                          QSizeF size)
{
    auto const & points = feature.points;
    FeatureShape shape;
    shape.feature = feature.index;
    shape.positive = feature.positive;
    shape.filled = feature.kind == 'S' || (feature.kind == 'P' && !size.isEmpty());
    shape.penWidth = shape.filled ? 0 : std::min(size.width(), size.height());
    switch (feature.kind) {
    case 'P': {
        QPointF const place = toPoint(points.at(0));
        QTransform const turned = QTransform::fromTranslate(place.x(), place.y()).rotate(-drawing.angle);
        shape.path = turned.map(padPath(feature.symbol, size));
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
    static QRegularExpression const standard(
        "^(?:r|s|rect|oval|oval_h|di|oct|el|tri|bfr|bfs|hex_[ls]|hole|donut_\\w+|\\w*th[rso]|moire)"
        "(\\d+(?:\\.\\d+)?)(?:x(\\d+(?:\\.\\d+)?))?(?:x|$)");
    auto const match = standard.match(QString::fromStdString(name));
    if (!match.hasMatch()) {
        return {};
    }
    double const scale = unit == 0 ? micrometresPerMil : 1;
    double const width = match.captured(1).toDouble() * scale;
    double const height = match.capturedLength(2) > 0 ? match.captured(2).toDouble() * scale : width;
    return {width, height};
}

std::vector<FeatureShape> featureShapes(std::string const & job, std::string const & step,
                                        std::string const & layer)
{
    std::map<std::string, QSizeF> sizes;
    for (KVCAM::Embedded::SymbolUse const & symbol : KVCAM::Embedded::layerSymbols(job, step, layer)) {
        sizes.emplace(symbol.name, symbolExtent(symbol.name, symbol.unit));
    }
    auto const features = KVCAM::Embedded::features(job, step, layer);
    auto const drawings = KVCAM::Embedded::featureDrawings(job, step, layer);
    std::vector<FeatureShape> shapes;
    shapes.reserve(features.size());
    for (std::size_t i = 0; i < features.size(); ++i) {
        feature_info const & feature = features[i];
        auto const known = sizes.find(feature.symbol);
        QSizeF const size = known == sizes.end() ? QSizeF() : known->second;
        shapes.push_back(featureShape(feature, drawings[i], size));
    }
    return shapes;
}

} // namespace Workbench
