#include "board/SymbolPath.h"

#include "board/PadFamilies.h"
#include "ui/Units.h"

#include <QPolygonF>
#include <QRegularExpression>
#include <QTransform>

#include <algorithm>
#include <cmath>
#include <vector>

namespace Workbench {

namespace {

constexpr double mostSize = 1e9; // in a name, whose digits may exceed any number type
constexpr int mostParts = 100;   // spokes of a thermal or rings of a moire; far beyond any real one

// The sizes in a name, in order and with a plating letter as 0, and the corners that are cut.
struct Sizes
{
    std::vector<double> values; // as in the name
    double scale = 1;           // micrometres per unit of the values
    double corner = 0;          // micrometres
    bool isChamfered = false;
    QString corners = "1234"; // counter-clockwise from the upper right one

    double operator[](std::size_t i) const { return values[i] * scale; }
    QSizeF size() const { return {(*this)[0], (*this)[1]}; }
};

double sizeOf(QString const & text)
{
    return std::min(text.toDouble(), mostSize);
}

Sizes sizesOf(PadName const & name, int unit)
{
    Sizes sizes;
    sizes.scale = micrometresPer(unit);
    sizes.values.push_back(sizeOf(name.first));
    if (!name.second.isEmpty()) {
        sizes.values.push_back(sizeOf(name.second));
    }
    QStringList const rest = name.rest.split('x', Qt::SkipEmptyParts);
    for (int i = 0; i < rest.size(); ++i) {
        static QRegularExpression const cut("^([rc])([0-9.]+)$");
        if (auto const match = cut.match(rest[i]); match.hasMatch()) {
            sizes.corner = sizeOf(match.captured(2)) * sizes.scale;
            sizes.isChamfered = match.captured(1) == "c";
            sizes.corners = i + 1 < rest.size() ? rest[i + 1] : sizes.corners;
            break;
        }
        sizes.values.push_back(sizeOf(rest[i]));
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

// Two opposite quarters of a shape: upper right and lower left.
QPainterPath butterfly(QPainterPath const & whole)
{
    QRectF const frame = whole.boundingRect();
    QPainterPath quarters;
    quarters.addRect(QRectF(frame.center(), frame.bottomRight()));
    quarters.addRect(QRectF(frame.topLeft(), frame.center()));
    return whole.intersected(quarters);
}

// A ring cut by evenly spaced gaps of a given width. Round and square gap ends look the same here.
QPainterPath withGaps(QPainterPath const & ring, double angle, double spokes, double gap)
{
    double const reach = std::hypot(ring.boundingRect().width(), ring.boundingRect().height());
    int const count = static_cast<int>(std::clamp<double>(spokes, 0, mostParts));
    QPainterPath cuts;
    cuts.setFillRule(Qt::WindingFill);
    for (int i = 0; i < count && gap > 0; ++i) {
        QPainterPath cut;
        cut.addRect(0, -gap / 2, reach, gap);
        cuts.addPath(QTransform().rotate(angle + i * 360.0 / count).map(cut));
    }
    return ring.subtracted(cuts);
}

QPainterPath moire(Sizes const & sizes)
{
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    int const count = static_cast<int>(std::clamp<double>(sizes.values[2], 0, mostParts));
    for (int i = 0; i < count; ++i) {
        double const inner = 2 * (i * (sizes[0] + sizes[1]) + sizes[1]);
        double const outer = inner + 2 * sizes[0];
        path.addPath(ellipse({outer, outer}));
        path.addPath(ellipse({inner, inner}).toReversed()); // so that the winding rule leaves it open
    }
    QTransform const turned = QTransform().rotate(-sizes.values[5]);
    for (QSizeF const & line : {QSizeF(sizes[4], sizes[3]), QSizeF(sizes[3], sizes[4])}) {
        QPainterPath bar;
        bar.addRect(centred(line));
        path.addPath(turned.map(bar));
    }
    return path.simplified();
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

// A family: the text before its first size, its minimum number of sizes, its outer shape and its hole. The
// third to fifth size of a thermal are the angle, number and width of its gaps.
struct Family
{
    char const * prefix;
    std::size_t sizes;
    Shape outer;
    Shape hole = nullptr;
    bool isThermal = false;
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

constexpr Family families[] = {
    {"r", 1, roundOuter},
    {"s", 1, squareOuter},
    {"rect", 2, boxOuter},
    {"oval", 2, ovalOuter},
    {"oval_h", 2, halfOval},
    {"di", 2, diamond},
    {"oct", 3, [](Sizes const & s) { return octagon(s.size(), s[2]); }},
    {"el", 2, [](Sizes const & s) { return ellipse(s.size()); }},
    {"tri", 2, triangle},
    {"bfr", 1, [](Sizes const & s) { return butterfly(roundOuter(s)); }},
    {"bfs", 1, [](Sizes const & s) { return butterfly(squareOuter(s)); }},
    {"hex_l", 3, lyingHexagon},
    {"hex_s", 3, standingHexagon},
    {"hole", 1, roundOuter},
    {"donut_r", 2, roundOuter, roundHole},
    {"donut_s", 2, squareOuter, squareHole},
    {"donut_sr", 2, squareOuter, roundHole},
    {"donut_o", 3, ovalOuter, [](Sizes const & s) { return oval(shrunk(s.size(), s[2])); }},
    {"donut_rc", 3, boxOuter, [](Sizes const & s) { return box(shrunk(s.size(), s[2]), {}); }},
    {"thr", 5, roundOuter, roundHole, true},
    {"ths", 5, roundOuter, roundHole, true},
    {"sr_ths", 5, squareOuter, roundHole, true},
    {"s_ths", 5, squareOuter, squareHole, true},
    {"s_tho", 5, squareOuter, squareHole, true},
    {"rc_ths", 6, boxOuter, [](Sizes const & s) { return box(shrunk(s.size(), s[5]), {}); }, true},
    {"rc_tho", 6, boxOuter, [](Sizes const & s) { return box(shrunk(s.size(), s[5]), {}); }, true},
    {"o_ths", 6, ovalOuter, [](Sizes const & s) { return oval(shrunk(s.size(), s[5])); }, true},
    {"moire", 6, moire},
};

} // namespace

std::optional<QPainterPath> symbolPath(std::string const & name, int unit)
{
    auto const parts = parsePadName(QString::fromStdString(name));
    if (!parts) {
        return std::nullopt;
    }
    auto const * family =
        std::find_if(std::begin(families), std::end(families), [&parts](Family const & row) {
            return QLatin1String(row.prefix) == QLatin1String(parts->family->prefix);
        });
    Sizes const sizes = sizesOf(*parts, unit);
    if (family == std::end(families) || sizes.values.size() < family->sizes) {
        return std::nullopt;
    }
    QPainterPath path = family->outer(sizes);
    if (family->hole != nullptr) {
        path.addPath(family->hole(sizes)); // odd-even
    }
    if (family->isThermal) {
        path = withGaps(path, sizes.values[2], sizes.values[3], sizes[4]);
    }
    return path.boundingRect().isEmpty() ? QPainterPath() : path;
}

} // namespace Workbench
