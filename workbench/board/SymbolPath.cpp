#include "board/SymbolPath.h"

#include "ui/Units.h"

#include <QPolygonF>
#include <QTransform>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <vector>

namespace Workbench {

using namespace KVCAM::UIAPI;
using Ext::SymbolFamily;

namespace {

constexpr double mostSize = 1e9; // in a name; painting cannot cope with all that a Length can hold
constexpr double pi = 3.14159265358979323846;
constexpr int mostParts = 32; // spokes of a thermal or rings of a moire drawn; far beyond any real one

// The values of a symbol in the order of its name up to the corners, and the corners that are cut.
struct Sizes
{
    std::vector<double> values; // micrometres, a count or degrees; 0 for the plating
    double corner = 0;          // micrometres
    bool isChamfered = false;
    QString corners = "1234"; // counter-clockwise from the upper right one

    double operator[](std::size_t i) const { return values[i]; }
    QSizeF size() const { return {values[0], values[1]}; }
};

Sizes sizesOf(Ext::Symbol const & symbol)
{
    Sizes sizes;
    for (Ext::SymbolValue const & value : symbol.values()) {
        double const length = std::min(value.number, mostSize) * micrometresPer(value.unit);
        switch (Ext::symbolFieldKind(value.role)) {
        case Ext::SymbolFieldKind::Corner:
            sizes.corner = length;
            sizes.isChamfered = value.isChamfer();
            break;
        case Ext::SymbolFieldKind::CornerList:
            sizes.corners = value.text;
            break;
        case Ext::SymbolFieldKind::Length:
            sizes.values.push_back(length);
            break;
        default:
            sizes.values.push_back(value.number);
        }
    }
    return sizes;
}

QRectF centred(QSizeF size)
{
    return {QPointF(-size.width() / 2, -size.height() / 2), size};
}

QPainterPath ellipse(QSizeF size)
{
    QPainterPath path;
    path.addEllipse(centred(size));
    return path;
}

QPainterPath polygon(std::vector<QPointF> const & corners)
{
    QPainterPath path;
    QPolygonF outline;
    for (QPointF const & corner : corners) {
        outline << corner;
    }
    path.addPolygon(outline);
    path.closeSubpath();
    return path;
}

QPainterPath oval(QSizeF size)
{
    double const radius = std::min(size.width(), size.height()) / 2;
    QPainterPath path;
    path.addRoundedRect(centred(size), radius, radius);
    return path;
}

// A rectangle with its corners cut as the name says.
QPainterPath box(QSizeF size, Sizes const & sizes)
{
    QRectF const frame = centred(size);
    double const cut = std::min({sizes.corner, size.width() / 2, size.height() / 2});
    if (cut <= 0) {
        QPainterPath path;
        path.addRect(frame);
        return path;
    }
    struct Corner
    {
        char digit;
        double x; // direction from the centre
        double y;
        double angle; // start of its arc as Qt counts, in a frame with y upwards
    };
    static constexpr Corner corners[] = {
        {'1', 1, 1, 0}, {'2', -1, 1, -90}, {'3', -1, -1, -180}, {'4', 1, -1, -270}};
    QPainterPath path;
    for (Corner const & corner : corners) {
        QPointF const tip(corner.x * size.width() / 2, corner.y * size.height() / 2);
        bool const isCut = sizes.corners.contains(corner.digit);
        QPointF const centre = tip - QPointF(corner.x, corner.y) * cut;
        // Counter-clockwise: the first and the third corner are entered along their vertical side.
        bool const isUpright = corner.x == corner.y;
        QPointF const enter(isUpright ? tip.x() : centre.x(), isUpright ? centre.y() : tip.y());
        QPointF const leave(isUpright ? centre.x() : tip.x(), isUpright ? tip.y() : centre.y());
        QPointF const first = isCut ? enter : tip;
        path.elementCount() == 0 ? path.moveTo(first) : path.lineTo(first);
        if (isCut && sizes.isChamfered) {
            path.lineTo(leave);
        } else if (isCut) {
            path.arcTo(QRectF(centre.x() - cut, centre.y() - cut, 2 * cut, 2 * cut), corner.angle, -90);
        }
    }
    path.closeSubpath();
    return path;
}

// Two opposite quarters of a circle: upper right and lower left.
QPainterPath roundButterfly(double diameter)
{
    QPainterPath path;
    for (double const start : {-90.0, 90.0}) { // as Qt counts, in a frame with y upwards
        path.moveTo(0, 0);
        path.arcTo(centred({diameter, diameter}), start, 90);
        path.closeSubpath();
    }
    return path;
}

// Two opposite quarters of a square.
QPainterPath squareButterfly(double side)
{
    QPainterPath path;
    path.addRect(0, 0, side / 2, side / 2);
    path.addRect(-side / 2, -side / 2, side / 2, side / 2);
    return path;
}

// The part of a convex polygon on the left of a direction, beyond `distance` from the line through the
// origin.
QPolygonF leftOf(QPolygonF const & polygon, QPointF direction, double distance)
{
    auto const beyond = [&](QPointF p) { return direction.x() * p.y() - direction.y() * p.x() - distance; };
    QPolygonF part;
    for (int i = 0; i < polygon.size(); ++i) {
        QPointF const from = polygon[i];
        QPointF const to = polygon[i + 1 < polygon.size() ? i + 1 : 0];
        double const before = beyond(from);
        double const after = beyond(to);
        if (before >= 0) {
            part << from;
        }
        if ((before < 0) != (after < 0)) {
            part << from + (to - from) * (before / (before - after));
        }
    }
    return part;
}

// A convex outline as a polygon, in steps far below a pixel at any useful zoom.
QPolygonF flattened(QPainterPath const & outline)
{
    QRectF const box = outline.boundingRect();
    double const size = std::max(box.width(), box.height());
    if (outline.isEmpty() || !(size > 0)) {
        return {};
    }
    double const fine = 500 / size; // Qt leaves up to half a unit
    return QTransform::fromScale(1 / fine, 1 / fine)
        .map(outline.toSubpathPolygons(QTransform::fromScale(fine, fine)).value(0));
}

// A ring between two convex outlines, cut by evenly spaced gaps of a given width. Round and square gap ends
// look the same here. Between two gaps lies a part of either outline: cutting off the convex polygons takes a
// fraction of the time of Qt's general operations on paths.
QPainterPath withGaps(QPainterPath const & outer, QPainterPath const & hole, double angle, double spokes,
                      double gap)
{
    int const count = static_cast<int>(std::clamp<double>(spokes, 0, mostParts));
    QPainterPath ring = outer;
    ring.addPath(hole); // odd-even
    if (count == 0 || gap <= 0) {
        return ring;
    }
    QPolygonF const outlines[] = {flattened(outer), flattened(hole)};
    QPainterPath sectors;
    auto const add = [&sectors](QPolygonF const & part) {
        if (part.size() > 2) {
            sectors.addPolygon(part);
            sectors.closeSubpath();
        }
    };
    for (int i = 0; i < count; ++i) {
        double const turn = (angle + i * 360.0 / count) * pi / 180;
        double const next = turn + 2 * pi / count;
        QPointF const gapAt(std::cos(turn), std::sin(turn));
        for (QPolygonF const & outline : outlines) {
            if (count > 1) {
                add(leftOf(leftOf(outline, gapAt, gap / 2), {-std::cos(next), -std::sin(next)}, gap / 2));
                continue;
            }
            QPolygonF const front = leftOf(outline, {gapAt.y(), -gapAt.x()}, 0); // the half with the gap
            add(leftOf(front, gapAt, gap / 2));
            add(leftOf(front, -gapAt, gap / 2));
            add(leftOf(outline, {-gapAt.y(), gapAt.x()}, 0));
        }
    }
    return sectors;
}

QPainterPath moire(Sizes const & sizes)
{
    QPainterPath path; // all outlines run the same way, and the holes the other, so that bars add to rings
    path.setFillRule(Qt::WindingFill);
    int const count = static_cast<int>(std::clamp<double>(sizes[2], 0, mostParts));
    for (int i = 0; i < count; ++i) {
        double const inner = 2 * (i * (sizes[0] + sizes[1]) + sizes[1]);
        double const outer = inner + 2 * sizes[0];
        path.addPath(ellipse({outer, outer}));
        path.addPath(ellipse({inner, inner}).toReversed());
    }
    QTransform const turned = QTransform().rotate(-sizes[5]);
    for (QSizeF const & line : {QSizeF(sizes[4], sizes[3]), QSizeF(sizes[3], sizes[4])}) {
        QPainterPath bar;
        bar.addRect(centred(line));
        path.addPath(turned.map(bar));
    }
    return path;
}

QPainterPath octagon(QSizeF size, double cut)
{
    double const x = size.width() / 2;
    double const y = size.height() / 2;
    return polygon({{x, y - cut},
                    {x - cut, y},
                    {cut - x, y},
                    {-x, y - cut},
                    {-x, cut - y},
                    {cut - x, -y},
                    {x - cut, -y},
                    {x, cut - y}});
}

QSizeF square(double side)
{
    return {side, side};
}

QSizeF shrunk(QSizeF size, double by)
{
    return {std::max(size.width() - 2 * by, 0.0), std::max(size.height() - 2 * by, 0.0)};
}

using Shape = QPainterPath (*)(Sizes const & s);

// How a family is drawn: its outer shape, and the hole in it.
struct Drawing
{
    SymbolFamily family;
    Shape outer;
    Shape hole = nullptr;
};

constexpr Shape roundOuter = [](Sizes const & s) { return ellipse(square(s[0])); };
constexpr Shape squareOuter = [](Sizes const & s) { return box(square(s[0]), s); };
constexpr Shape boxOuter = [](Sizes const & s) { return box(s.size(), s); };
constexpr Shape ovalOuter = [](Sizes const & s) { return oval(s.size()); };
constexpr Shape roundHole = [](Sizes const & s) { return ellipse(square(s[1])); };
constexpr Shape squareHole = [](Sizes const & s) { return box(square(s[1]), {}); };
constexpr Shape halfOval = [](Sizes const & s) { // the round end is on the right
    Sizes rounded = s;
    rounded.corner = std::min(s[0], s[1]) / 2;
    rounded.corners = "14";
    return box(s.size(), rounded);
};
constexpr Shape diamond = [](Sizes const & s) {
    return polygon({{s[0] / 2, 0}, {0, s[1] / 2}, {-s[0] / 2, 0}, {0, -s[1] / 2}});
};
constexpr Shape triangle = [](Sizes const & s) {
    return polygon({{-s[0] / 2, -s[1] / 2}, {s[0] / 2, -s[1] / 2}, {0, s[1] / 2}});
};
constexpr Shape lyingHexagon = [](Sizes const & s) {
    double const x = s[0] / 2;
    double const y = s[1] / 2;
    return polygon({{x, 0}, {x - s[2], y}, {s[2] - x, y}, {-x, 0}, {s[2] - x, -y}, {x - s[2], -y}});
};
constexpr Shape standingHexagon = [](Sizes const & s) {
    double const x = s[0] / 2;
    double const y = s[1] / 2;
    return polygon({{0, y}, {-x, y - s[2]}, {-x, s[2] - y}, {0, -y}, {x, s[2] - y}, {x, y - s[2]}});
};

constexpr std::array drawings{
    Drawing{SymbolFamily::Round, roundOuter},
    Drawing{SymbolFamily::Square, squareOuter},
    Drawing{SymbolFamily::Rectangle, boxOuter},
    Drawing{SymbolFamily::Oval, ovalOuter},
    Drawing{SymbolFamily::HalfOval, halfOval},
    Drawing{SymbolFamily::Diamond, diamond},
    Drawing{SymbolFamily::Octagon, [](Sizes const & s) { return octagon(s.size(), s[2]); }},
    Drawing{SymbolFamily::Ellipse, [](Sizes const & s) { return ellipse(s.size()); }},
    Drawing{SymbolFamily::Triangle, triangle},
    Drawing{SymbolFamily::RoundButterfly, [](Sizes const & s) { return roundButterfly(s[0]); }},
    Drawing{SymbolFamily::SquareButterfly, [](Sizes const & s) { return squareButterfly(s[0]); }},
    Drawing{SymbolFamily::LyingHexagon, lyingHexagon},
    Drawing{SymbolFamily::StandingHexagon, standingHexagon},
    Drawing{SymbolFamily::Hole, roundOuter},
    Drawing{SymbolFamily::RoundDonut, roundOuter, roundHole},
    Drawing{SymbolFamily::SquareDonut, squareOuter, squareHole},
    Drawing{SymbolFamily::SquareRoundDonut, squareOuter, roundHole},
    Drawing{SymbolFamily::OvalDonut, ovalOuter, [](Sizes const & s) { return oval(shrunk(s.size(), s[2])); }},
    Drawing{SymbolFamily::RectangleDonut, boxOuter,
            [](Sizes const & s) { return box(shrunk(s.size(), s[2]), {}); }},
    Drawing{SymbolFamily::RoundThermal, roundOuter, roundHole},
    Drawing{SymbolFamily::RoundSquaredThermal, roundOuter, roundHole},
    Drawing{SymbolFamily::SquareRoundThermal, squareOuter, roundHole},
    Drawing{SymbolFamily::SquareThermal, squareOuter, squareHole},
    Drawing{SymbolFamily::SquareOpenThermal, squareOuter, squareHole},
    Drawing{SymbolFamily::RectangleThermal, boxOuter,
            [](Sizes const & s) { return box(shrunk(s.size(), s[5]), {}); }},
    Drawing{SymbolFamily::RectangleOpenThermal, boxOuter,
            [](Sizes const & s) { return box(shrunk(s.size(), s[5]), {}); }},
    Drawing{SymbolFamily::OvalThermal, ovalOuter,
            [](Sizes const & s) { return oval(shrunk(s.size(), s[5])); }},
    Drawing{SymbolFamily::Moire, moire},
};
static_assert(Ext::isBySymbolFamily(drawings));

// Their angle, number and gap are the third to the fifth size.
bool hasSpokes(Ext::SymbolLayout const & layout)
{
    return layout.count > 4 && layout.fields[3] == Ext::SymbolField::SpokeCount;
}

} // namespace

QPainterPath symbolPath(Ext::Symbol const & symbol)
{
    Sizes const sizes = sizesOf(symbol);
    Drawing const & drawing = drawings[static_cast<std::size_t>(symbol.family())];
    QPainterPath path = drawing.outer(sizes);
    if (drawing.hole != nullptr && hasSpokes(symbol.grammar().layout)) {
        path = withGaps(path, drawing.hole(sizes), sizes[2], sizes[3], sizes[4]);
    } else if (drawing.hole != nullptr) {
        path.addPath(drawing.hole(sizes)); // odd-even
    }
    return path.boundingRect().isEmpty() ? QPainterPath() : path;
}

} // namespace Workbench
