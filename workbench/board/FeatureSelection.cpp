#include "board/FeatureSelection.h"

#include <QPainterPathStroker>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <string>
#include <tuple>

namespace Workbench::FeatureSelection {

namespace {

// Above this number features are marked by their boxes: outlines would take too long to draw.
constexpr std::size_t outlineLimit = 1000;
constexpr int roomOfAll = 20'000; // path elements
constexpr int roomOfOne = 2000;

double distanceToLine(QPointF place, QPointF from, QPointF to)
{
    QPointF const along = to - from;
    double const square = QPointF::dotProduct(along, along);
    double const part =
        square > 0 ? std::clamp(QPointF::dotProduct(place - from, along) / square, 0.0, 1.0) : 0;
    QPointF const away = place - (from + part * along);
    return std::hypot(away.x(), away.y());
}

bool isAt(FeatureShape const & shape, QPointF place, double tolerance)
{
    if (!shape.box.adjusted(-tolerance, -tolerance, tolerance, tolerance).contains(place)) {
        return false;
    }
    if (shape.kind == FeatureShape::Kind::Line) {
        return distanceToLine(place, shape.place, shape.end) <= shape.penWidth / 2 + tolerance;
    }
    if (shape.kind == FeatureShape::Kind::Pad) {
        bool const isOwn = shape.symbol == nullptr || !shape.symbol->parts.empty();
        if (isOwn) {
            return true; // its drawing may have gaps, in which it is meant as well
        }
    }
    QPainterPath const path = shape.kind == FeatureShape::Kind::Pad ? shape.outline() : shape.path;
    QPainterPathStroker stroker;
    stroker.setWidth((shape.filled ? 0 : shape.penWidth) + 2 * tolerance);
    return (shape.filled && path.contains(place)) || stroker.createStroke(path).contains(place);
}

auto looks(KVCAM::API::feature_info const & feature)
{
    return std::make_tuple(feature.kind, feature.symbol, feature.positive);
}

} // namespace

int featureAt(Shapes const & shapes, QPointF place, double tolerance, int after)
{
    std::vector<FeatureShape const *> hits;
    for (auto shape = shapes.rbegin(); shape != shapes.rend(); ++shape) {
        if (isAt(*shape, place, tolerance)) {
            hits.push_back(&*shape);
        }
    }
    if (hits.empty()) {
        return -1;
    }
    std::stable_sort(hits.begin(), hits.end(), [](FeatureShape const * a, FeatureShape const * b) {
        return a->box.width() * a->box.height() < b->box.width() * b->box.height();
    });
    auto const known = std::find_if(hits.begin(), hits.end(),
                                    [after](FeatureShape const * shape) { return shape->feature == after; });
    bool const isLast = known == hits.end() || std::next(known) == hits.end();
    return (isLast ? hits.front() : *std::next(known))->feature;
}

Set all(Features const & features)
{
    return reversed({}, features);
}

Set reversed(Set const & set, Features const & features)
{
    Set others;
    for (auto const & feature : features) {
        if (set.count(feature.index) == 0) {
            others.insert(feature.index);
        }
    }
    return others;
}

Set withSame(Set const & set, Features const & features)
{
    std::set<std::tuple<char, std::string, bool>> wanted;
    for (auto const & feature : features) {
        if (set.count(feature.index) != 0) {
            wanted.insert(looks(feature));
        }
    }
    Set result = set;
    for (auto const & feature : features) {
        if (wanted.count(looks(feature)) != 0) {
            result.insert(feature.index);
        }
    }
    return result;
}

void paint(QPainter & painter, Shapes const & shapes, Set const & set, QTransform const & boardToWidget,
           QRectF const & visible)
{
    if (set.empty()) {
        return;
    }
    std::vector<FeatureShape const *> shown;
    for (FeatureShape const & shape : shapes) {
        // For Qt a box without area, such as that of a vertical line of zero width, intersects nothing.
        if (set.count(shape.feature) != 0 && visible.intersects(shape.box.adjusted(-1, -1, 1, 1))) {
            shown.push_back(&shape);
        }
    }
    bool const hasOutlines = shown.size() <= outlineLimit;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, hasOutlines);
    painter.setPen(QPen(QColor("#e07000"), hasOutlines ? 2 : 1));
    QBrush const inside(QColor(255, 150, 0, 70));
    int room = roomOfAll;
    for (FeatureShape const * shape : shown) {
        painter.setBrush(shape->filled || !hasOutlines ? inside : QBrush());
        if (hasOutlines && shape->kind != FeatureShape::Kind::Line) {
            QPainterPath const path = shape->marking(boardToWidget, std::min(room, roomOfOne));
            room = std::max(room - path.elementCount(), 0);
            painter.drawPath(path);
        } else if (hasOutlines) {
            painter.drawLine(boardToWidget.map(shape->place), boardToWidget.map(shape->end));
        } else {
            painter.drawRect(boardToWidget.mapRect(shape->box));
        }
    }
    if (set.size() == 1 && !shown.empty()) { // to be found however small it is
        constexpr int ring = 14;
        painter.setBrush(Qt::NoBrush);
        painter.drawEllipse(boardToWidget.map(shown.front()->box.center()), ring, ring);
    }
    painter.restore();
}

} // namespace Workbench::FeatureSelection
