#include "board/SnapPoint.h"

#include <QLineF>

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

namespace Workbench {

using namespace KVCAM::UIAPI;

namespace {

constexpr std::size_t mostCrossing = 200; // tracks within reach of one place; more are not compared

double distance(QPointF a, QPointF b)
{
    return std::hypot(a.x() - b.x(), a.y() - b.y());
}

QPointF nearestOnLine(QPointF place, QPointF from, QPointF to)
{
    QPointF const along = to - from;
    double const square = QPointF::dotProduct(along, along);
    double const part =
        square > 0 ? std::clamp(QPointF::dotProduct(place - from, along) / square, 0.0, 1.0) : 0;
    return from + part * along;
}

// A piece of a path: four points of a cubic, or the ends of a line with the controls unused.
struct Piece
{
    QPointF from;
    QPointF control1;
    QPointF control2;
    QPointF to;
    bool isCurve = false;

    QPointF at(double t) const
    {
        double const u = 1 - t;
        return isCurve
                   ? u * u * u * from + 3 * u * u * t * control1 + 3 * u * t * t * control2 + t * t * t * to
                   : u * from + t * to;
    }
};

template <class Take>
void forEachPiece(QPainterPath const & path, Take const & take)
{
    QPointF last;
    for (int i = 0; i < path.elementCount(); ++i) {
        QPainterPath::Element const element = path.elementAt(i);
        QPointF const point(element.x, element.y);
        if (element.type == QPainterPath::CurveToElement && i + 2 < path.elementCount()) {
            QPointF const control2(path.elementAt(i + 1).x, path.elementAt(i + 1).y);
            QPointF const end(path.elementAt(i + 2).x, path.elementAt(i + 2).y);
            take(Piece{last, point, control2, end, true});
            last = end;
            i += 2;
            continue;
        }
        if (element.type == QPainterPath::LineToElement) {
            take(Piece{last, {}, {}, point, false});
        }
        last = point;
    }
}

// The centre of the circle that a cubic stands for; none for another curve.
std::optional<QPointF> circleOf(Piece const & piece)
{
    if (!piece.isCurve) {
        return std::nullopt;
    }
    QPointF const tangent = piece.control1 - piece.from;
    QPointF const normal(-tangent.y(), tangent.x());
    QPointF const chord = piece.to - piece.from;
    double const across = 2 * QPointF::dotProduct(normal, chord);
    if (across == 0) {
        return std::nullopt;
    }
    QPointF const centre = piece.from + QPointF::dotProduct(chord, chord) / across * normal;
    QPointF const spoke = piece.to - centre;
    QPointF const arrival = piece.to - piece.control2;
    double const size = std::hypot(spoke.x(), spoke.y()) * std::hypot(arrival.x(), arrival.y());
    bool const isCircle = std::isfinite(size) && std::abs(QPointF::dotProduct(spoke, arrival)) <= 1e-3 * size;
    return isCircle ? std::optional(centre) : std::nullopt;
}

// On the circle itself: the cubic that stands for it is up to a few micrometres beside it.
QPointF nearestOnCircle(QPointF place, QPointF centre, Piece const & piece)
{
    double const radius = distance(centre, piece.from);
    QPointF const way = place - centre;
    double const length = std::hypot(way.x(), way.y());
    QPointF const middle = piece.at(0.5) - centre;
    double const open = QPointF::dotProduct(piece.from - centre, middle); // of the angle to an end
    if (length > 0 && QPointF::dotProduct(way / length * radius, middle) >= open) {
        return centre + way / length * radius;
    }
    return distance(place, piece.from) <= distance(place, piece.to) ? piece.from : piece.to;
}

QPointF nearestOnCurve(QPointF place, Piece const & piece)
{
    constexpr int samples = 16;
    int best = 0;
    for (int i = 1; i <= samples; ++i) {
        if (distance(place, piece.at(i / double(samples))) <
            distance(place, piece.at(best / double(samples)))) {
            best = i;
        }
    }
    double low = std::max(best - 1, 0) / double(samples);
    double high = std::min(best + 1, samples) / double(samples);
    for (int i = 0; i < 60; ++i) {
        double const a = low + (high - low) / 3;
        double const b = high - (high - low) / 3;
        (distance(place, piece.at(a)) < distance(place, piece.at(b)) ? high : low) =
            distance(place, piece.at(a)) < distance(place, piece.at(b)) ? b : a;
    }
    return piece.at((low + high) / 2);
}

QPointF nearestOnPiece(QPointF place, Piece const & piece)
{
    if (!piece.isCurve) {
        return nearestOnLine(place, piece.from, piece.to);
    }
    auto const centre = circleOf(piece);
    return centre ? nearestOnCircle(place, *centre, piece) : nearestOnCurve(place, piece);
}

/// Keeps the point nearest to a place.
class Nearest
{
public:
    Nearest(QPointF place, double reach) : m_place(place), m_distance(reach) {}

    void add(QPointF point)
    {
        double const found = distance(m_place, point);
        if (found < m_distance || (!m_point && found <= m_distance)) {
            m_distance = found;
            m_point = point;
        }
    }
    void addPath(QPainterPath const & path)
    {
        forEachPiece(path, [this](Piece const & piece) { add(nearestOnPiece(m_place, piece)); });
    }
    bool isEmpty() const { return !m_point; }
    QPointF point() const { return m_point.value_or(m_place); }

private:
    QPointF m_place;
    double m_distance;
    std::optional<QPointF> m_point;
};

bool isArc(FeatureShape const & shape)
{
    return shape.kind == FeatureShape::Kind::Path && !shape.filled;
}

void addCentre(Nearest & nearest, FeatureShape const & shape)
{
    if (shape.kind == FeatureShape::Kind::Pad) {
        nearest.add(shape.place);
    } else if (isArc(shape)) {
        forEachPiece(shape.path, [&nearest](Piece const & piece) {
            if (auto const centre = circleOf(piece)) {
                nearest.add(*centre);
            }
        });
    } else if (shape.kind == FeatureShape::Kind::Path) {
        nearest.add(shape.path.boundingRect().center());
    }
}

void addSkeleton(Nearest & nearest, QPointF place, FeatureShape const & shape)
{
    if (shape.kind == FeatureShape::Kind::Pad) {
        nearest.add(shape.place);
    } else if (shape.kind == FeatureShape::Kind::Line) {
        nearest.add(nearestOnLine(place, shape.place, shape.end));
    } else if (isArc(shape)) {
        nearest.addPath(shape.path);
    }
}

void addMiddle(Nearest & nearest, FeatureShape const & shape)
{
    if (shape.kind == FeatureShape::Kind::Line) {
        nearest.add((shape.place + shape.end) / 2);
    } else if (isArc(shape) && shape.path.elementCount() > 1) {
        QPointF const middle = shape.path.pointAtPercent(0.5);
        Nearest onArc(middle, std::numeric_limits<double>::max());
        onArc.addPath(shape.path);
        nearest.add(onArc.point());
    }
}

void addEnds(Nearest & nearest, FeatureShape const & shape)
{
    if (shape.kind == FeatureShape::Kind::Line) {
        nearest.add(shape.place);
        nearest.add(shape.end);
    } else if (isArc(shape) && shape.path.elementCount() > 1) {
        nearest.add(shape.path.elementAt(0));
        nearest.add(shape.path.currentPosition());
    }
}

void addEdge(Nearest & nearest, QPointF place, FeatureShape const & shape)
{
    if (shape.kind != FeatureShape::Kind::Line && !isArc(shape)) {
        nearest.addPath(shape.outline());
        return;
    }
    Nearest middle(place, std::numeric_limits<double>::max());
    addSkeleton(middle, place, shape);
    QPointF const way = place - middle.point();
    double const length = std::hypot(way.x(), way.y());
    if (length > 0) {
        nearest.add(middle.point() + way / length * (shape.penWidth / 2));
    }
}

void addCrossings(Nearest & nearest, std::vector<FeatureShape const *> const & shapes)
{
    std::vector<QLineF> lines;
    for (FeatureShape const * shape : shapes) {
        if (shape->kind == FeatureShape::Kind::Line && lines.size() < mostCrossing) {
            lines.emplace_back(shape->place, shape->end);
        }
    }
    for (std::size_t i = 0; i < lines.size(); ++i) {
        for (std::size_t j = 0; j < i; ++j) {
            QPointF crossing;
            if (lines[i].intersects(lines[j], &crossing) == QLineF::BoundedIntersection) {
                nearest.add(crossing);
            }
        }
    }
}

std::vector<FeatureShape const *> shapesAt(QPointF place, SnapTargets const & targets)
{
    std::vector<FeatureShape const *> found;
    double const reach = targets.reach;
    for (FeatureShape const & shape : targets.shapes) {
        // The centre of an arc may be far from what is painted, that of all others is not.
        if (shape.box.adjusted(-reach, -reach, reach, reach).contains(place)) {
            found.push_back(&shape);
        }
    }
    return found;
}

QPointF onGrid(QPointF place, double grid)
{
    return grid > 0 ? QPointF(std::round(place.x() / grid) * grid, std::round(place.y() / grid) * grid)
                    : place;
}

} // namespace

QPointF snapped(QPointF place, SNAP_TYPE_MODE mode, SnapTargets const & targets)
{
    if (mode == SNAP_GRID) {
        return onGrid(place, targets.grid);
    }
    Nearest nearest(place, targets.reach);
    if (mode == SNAP_PROFILE) {
        nearest.addPath(targets.profile);
        return nearest.point();
    }
    auto const shapes = shapesAt(place, targets);
    bool const isAdvanced = mode == SNAP_ADVANCED;
    if (mode == SNAP_INTERSECT || isAdvanced) {
        addCrossings(nearest, shapes);
    }
    for (FeatureShape const * shape : shapes) {
        if (mode == SNAP_CENTER || isAdvanced) {
            addCentre(nearest, *shape);
        }
        if (mode == SNAP_MIDPOINT || isAdvanced) {
            addMiddle(nearest, *shape);
        }
        if (isAdvanced) {
            addEnds(nearest, *shape);
        }
        if (mode == SNAP_SKELETON || (mode == SNAP_ARC && isArc(*shape))) {
            addSkeleton(nearest, place, *shape);
        }
        if (mode == SNAP_EDGE) {
            addEdge(nearest, place, *shape);
        }
    }
    for (std::size_t i = 0; isAdvanced && nearest.isEmpty() && i < shapes.size(); ++i) {
        addSkeleton(nearest, place, *shapes[i]);
    }
    return nearest.point();
}

} // namespace Workbench
