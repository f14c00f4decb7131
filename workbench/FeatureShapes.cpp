#include "FeatureShapes.h"

#include <QRegularExpression>
#include <QString>

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

QPainterPath padPath(std::string const & symbol, QSizeF size, QPointF centre)
{
    QPainterPath path;
    if (size.isEmpty()) {
        path.moveTo(centre - QPointF(crossSize, 0));
        path.lineTo(centre + QPointF(crossSize, 0));
        path.moveTo(centre - QPointF(0, crossSize));
        path.lineTo(centre + QPointF(0, crossSize));
        return path;
    }
    bool const isDonut = symbol.rfind("donut", 0) == 0;
    QSizeF const outer = isDonut ? QSizeF(size.width(), size.width()) : size;
    QRectF const box(centre - QPointF(outer.width() / 2, outer.height() / 2), outer);
    if (symbol.rfind("oval", 0) == 0) {
        double const radius = std::min(size.width(), size.height()) / 2;
        path.addRoundedRect(box, radius, radius);
    } else if (isRoundFamily(symbol)) {
        path.addEllipse(box);
    } else {
        path.addRect(box);
    }
    if (isDonut) {
        path.addEllipse(centre, size.height() / 2, size.height() / 2); // a donut's second size is its hole
    }
    return path;
}

QPainterPath arcPath(QPointF start, QPointF end, QPointF centre)
{
    QPointF const from = start - centre;
    QPointF const to = end - centre;
    double const radius = std::hypot(from.x(), from.y());
    QRectF const circle(centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius);
    QPainterPath path(start);
    if (start == end) {
        path.addEllipse(circle);
        return path;
    }
    // Qt counts angles against a y axis that points down.
    double const startAngle = std::atan2(-from.y(), from.x()) * 180 / M_PI;
    double sweep = std::atan2(-to.y(), to.x()) * 180 / M_PI - startAngle;
    sweep = std::remainder(sweep, 360);
    path.arcTo(circle, startAngle, sweep);
    return path;
}

// A surface's record is one run of points; a contour ends where it comes back to its first point.
QPainterPath surfacePath(std::vector<KVCAM::API::point> const & points)
{
    QPainterPath path;
    bool inContour = false;
    QPointF first;
    for (KVCAM::API::point const & point : points) {
        QPointF const here = toPoint(point);
        if (!inContour) {
            path.moveTo(here);
            first = here;
            inContour = true;
            continue;
        }
        path.lineTo(here);
        inContour = here != first;
    }
    return path;
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

std::vector<FeatureShape> featureShapes(std::vector<feature_info> const & features,
                                        std::vector<KVCAM::Embedded::SymbolUse> const & symbols)
{
    std::map<std::string, QSizeF> sizes;
    for (KVCAM::Embedded::SymbolUse const & symbol : symbols) {
        sizes.emplace(symbol.name, symbolExtent(symbol.name, symbol.unit));
    }
    std::vector<FeatureShape> shapes;
    shapes.reserve(features.size());
    for (feature_info const & feature : features) {
        auto const known = sizes.find(feature.symbol);
        QSizeF const size = known == sizes.end() ? QSizeF() : known->second;
        auto const & points = feature.points;
        FeatureShape shape;
        shape.feature = feature.index;
        shape.positive = feature.positive;
        if (feature.kind == 'P' && !points.empty()) {
            shape.filled = !size.isEmpty();
            shape.path = padPath(feature.symbol, size, toPoint(points[0]));
        } else if (feature.kind == 'S') {
            shape.path = surfacePath(points);
        } else if (feature.kind == 'L' && points.size() >= 2) {
            shape.filled = false;
            shape.path.moveTo(toPoint(points[0]));
            shape.path.lineTo(toPoint(points[1]));
        } else if (feature.kind == 'A' && points.size() >= 3) {
            shape.filled = false;
            shape.path = arcPath(toPoint(points[0]), toPoint(points[1]), toPoint(points[2]));
        }
        shape.penWidth = shape.filled ? 0 : std::min(size.width(), size.height());
        shapes.push_back(std::move(shape));
    }
    return shapes;
}

} // namespace Workbench
