#include "embedded/BruteForce.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace KVCAM::Testing::Brute {
namespace {

constexpr double farthest = 1000; // what is farther apart does not matter
constexpr double turn = 6.283185307179586;

// The drawing of a symbol around its place: corners of what it encloses, rounded by a radius.
struct Stamp
{
    std::vector<Point> corners;
    double radius = 0;
};

Stamp stampOf(std::string const & name, double unit)
{
    std::vector<double> sizes;
    std::string const digits = "0123456789.";
    std::string const family = name.substr(0, name.find_first_of(digits));
    for (std::size_t at = family.size(); at < name.size();) {
        std::size_t used = 0;
        sizes.push_back(std::stod(name.substr(at), &used) * unit / 2);
        at = std::min(name.find_first_of(digits, at + used), name.size());
    }
    double const x = sizes[0];
    double const y = sizes.size() > 1 ? sizes[1] : x;
    double const r = family == "r"      ? x
                     : family == "oval" ? std::min(x, y)
                     : sizes.size() > 2 ? 2 * sizes[2]
                                        : 0;
    if (family != "r" && family != "oval" && family != "s" && family != "rect") {
        throw std::runtime_error("unknown symbol " + name);
    }
    return {{{-x + r, -y + r}, {x - r, -y + r}, {x - r, y - r}, {-x + r, y - r}}, r};
}

void addArc(Graphic & graphic, Point from, Point to, Point centre, bool clockwise, double radius)
{
    double const begin = std::atan2(from.y - centre.y, from.x - centre.x);
    double sweep = std::atan2(to.y - centre.y, to.x - centre.x) - begin;
    sweep = clockwise ? -sweep : sweep;
    while (sweep <= 1e-9) {
        sweep += turn;
    }
    double const r = std::hypot(from.x - centre.x, from.y - centre.y);
    int const parts = 1 + static_cast<int>(sweep * std::sqrt(r / 1.6));
    Point last = from;
    for (int i = 1; i <= parts; ++i) {
        double const angle = begin + (clockwise ? -sweep : sweep) * i / parts;
        Point const next =
            i == parts ? to : Point{centre.x + r * std::cos(angle), centre.y + r * std::sin(angle)};
        graphic.strokes.push_back({last, next, radius});
        last = next;
    }
}

Point apart(Point from, Point to)
{
    return {to.x - from.x, to.y - from.y};
}

double side(Point a, Point b, Point p)
{
    return apart(a, b).x * apart(a, p).y - apart(a, b).y * apart(a, p).x;
}

double distance(Point p, Point a, Point b)
{
    Point const way = apart(a, b);
    double const length = std::hypot(way.x, way.y);
    if (length == 0 || apart(a, p).x * way.x + apart(a, p).y * way.y <= 0) {
        return std::hypot(apart(a, p).x, apart(a, p).y);
    }
    if (apart(b, p).x * way.x + apart(b, p).y * way.y >= 0) {
        return std::hypot(apart(b, p).x, apart(b, p).y);
    }
    return std::abs(side(a, b, p)) / length;
}

double distance(Stroke const & a, Stroke const & b)
{
    bool const across = side(a.from, a.to, b.from) * side(a.from, a.to, b.to) < 0 &&
                        side(b.from, b.to, a.from) * side(b.from, b.to, a.to) < 0;
    double const axes = across ? 0
                               : std::min({distance(a.from, b.from, b.to), distance(a.to, b.from, b.to),
                                           distance(b.from, a.from, a.to), distance(b.to, a.from, a.to)});
    return std::max(0.0, axes - a.radius - b.radius);
}

void addSurfaceLine(Graphic & graphic, std::istringstream & words, std::string const & letter, double unit,
                    Point & start, Point & last)
{
    Point to;
    words >> to.x >> to.y;
    to = {to.x * unit, to.y * unit};
    if (letter == "OB") {
        start = to;
    } else if (letter == "OS") {
        graphic.strokes.push_back({last, to, 0});
    } else if (letter == "OC") {
        Point centre;
        std::string clockwise;
        words >> centre.x >> centre.y >> clockwise;
        addArc(graphic, last, to, {centre.x * unit, centre.y * unit}, clockwise == "Y", 0);
    } else if (letter == "OE") {
        graphic.strokes.push_back({last, start, 0});
    }
    last = to;
}

Graphic readPad(std::istringstream & words, double unit, std::map<int, Stamp> const & stamps)
{
    Graphic pad;
    Point at;
    int symbol = 0;
    std::string rest;
    int orientation = 0;
    double angle = 0;
    words >> at.x >> at.y >> symbol >> rest >> rest >> orientation;
    if (orientation >= 8) {
        words >> angle;
    } else {
        angle = 90.0 * (orientation % 4);
    }
    bool const mirrored = orientation == 9 || (orientation >= 4 && orientation < 8);
    Stamp const & stamp = stamps.at(symbol);
    std::vector<Point> corners;
    double const turned = angle * turn / 360;
    for (Point const & corner : stamp.corners) {
        double const x = corner.x * std::cos(turned) + corner.y * std::sin(turned);
        double const y = corner.y * std::cos(turned) - corner.x * std::sin(turned);
        corners.push_back({at.x * unit + (mirrored ? -x : x), at.y * unit + y});
    }
    for (std::size_t i = 0; i < corners.size(); ++i) {
        pad.strokes.push_back({corners[i], corners[(i + 1) % corners.size()], stamp.radius});
    }
    pad.edges = corners.size();
    return pad;
}

Graphic readWay(std::istringstream & words, bool arc, double unit, std::map<int, Stamp> const & stamps)
{
    Graphic way;
    Point from;
    Point to;
    Point centre;
    int symbol = 0;
    std::string polarity;
    std::string clockwise;
    words >> from.x >> from.y >> to.x >> to.y;
    if (arc) {
        words >> centre.x >> centre.y;
    }
    words >> symbol >> polarity >> clockwise >> clockwise;
    for (Point * each : {&from, &to, &centre}) {
        *each = {each->x * unit, each->y * unit};
    }
    double const radius = stamps.at(symbol).radius; // round pens only
    if (arc) {
        addArc(way, from, to, centre, clockwise[0] == 'Y', radius);
    } else {
        way.strokes.push_back({from, to, radius});
    }
    return way;
}

bool isInside(Graphic const & graphic, Point point)
{
    bool inside = false;
    for (std::size_t i = 0; i < graphic.edges; ++i) {
        Stroke const & edge = graphic.strokes[i];
        bool const up = edge.from.y <= point.y && edge.to.y > point.y;
        bool const down = edge.to.y <= point.y && edge.from.y > point.y;
        double const left = side(edge.from, edge.to, point);
        inside = inside != ((up && left > 0) || (down && left < 0));
    }
    return inside;
}

// The strokes of a graphic that can matter for its distance to another.
std::vector<Stroke> strokesNear(Graphic const & graphic, Graphic const & other)
{
    std::vector<Stroke> near;
    for (Stroke const & stroke : graphic.strokes) {
        double const more = farthest + stroke.radius;
        if (std::max(stroke.from.x, stroke.to.x) + more >= other.box[0] &&
            std::min(stroke.from.x, stroke.to.x) - more <= other.box[2] &&
            std::max(stroke.from.y, stroke.to.y) + more >= other.box[1] &&
            std::min(stroke.from.y, stroke.to.y) - more <= other.box[3]) {
            near.push_back(stroke);
        }
    }
    return near;
}

} // namespace

std::vector<Graphic> readLayer(std::string const & path)
{
    std::ifstream file(path);
    std::vector<Graphic> graphics;
    std::map<int, Stamp> stamps;
    double unit = 25400;
    Point start;
    Point last;
    for (std::string line; std::getline(file, line);) {
        std::istringstream words(line.substr(0, line.find(';')));
        std::string letter;
        words >> letter;
        if (line.find("UNITS=MM") == 0 || line.find("U MM") == 0) {
            unit = 1000;
        } else if (letter.size() > 1 && letter[0] == '$') {
            std::string name;
            std::string mark;
            words >> name >> mark;
            bool const mils = mark == "I" || (mark != "M" && unit != 1000);
            stamps[std::stoi(letter.substr(1))] = stampOf(name, mils ? 25.4 : 1);
        } else if (letter == "P" || letter == "L" || letter == "A" || letter == "S") {
            Graphic graphic = letter == "P"   ? readPad(words, unit, stamps)
                              : letter == "S" ? Graphic()
                                              : readWay(words, letter == "A", unit, stamps);
            graphic.index = graphics.size();
            graphic.kind = letter[0];
            graphics.push_back(graphic);
        } else if (letter[0] == 'O' && !graphics.empty()) {
            addSurfaceLine(graphics.back(), words, letter, unit, start, last);
            graphics.back().edges = graphics.back().strokes.size();
        }
    }
    std::for_each(graphics.begin(), graphics.end(), measureBox);
    return graphics;
}

std::map<std::size_t, std::string> readNets(std::string const & path, std::string const & layer)
{
    std::ifstream file(path);
    std::map<std::size_t, std::string> nets;
    std::string net;
    int wanted = -1;
    for (std::string line; std::getline(file, line);) {
        std::istringstream words(line);
        std::string key;
        std::string kind;
        words >> key;
        int number = 0;
        std::size_t feature = 0;
        if (key == "NET") {
            words >> net;
        } else if (key == "FID" && words >> kind >> number >> feature && number == wanted &&
                   net != "$NONE$") {
            nets[feature] = net;
        }
        for (std::string name; key == "LYR" && words >> name; ++number) {
            wanted = name == layer ? number : wanted;
        }
    }
    return nets;
}

double distance(Graphic const & a, Graphic const & b)
{
    double best = farthest;
    std::vector<Stroke> const mine = strokesNear(a, b);
    std::vector<Stroke> const its = strokesNear(b, a);
    for (Stroke const & one : mine) {
        for (Stroke const & other : its) {
            best = std::min(best, distance(one, other));
        }
    }
    auto const begins = [](Graphic const & outer, Graphic const & inner) {
        for (std::size_t i = 0; i < inner.strokes.size(); ++i) {
            Point const from = inner.strokes[i].from;
            bool const joined =
                i > 0 && inner.strokes[i - 1].to.x == from.x && inner.strokes[i - 1].to.y == from.y;
            if (!joined && isInside(outer, from)) {
                return true;
            }
        }
        return false;
    };
    return best > 0 && (begins(a, b) || begins(b, a)) ? 0 : best;
}

void measureBox(Graphic & graphic)
{
    std::array<double, 4> & box = graphic.box;
    for (Stroke const & stroke : graphic.strokes) {
        for (Point const & p : {stroke.from, stroke.to}) {
            box = {std::min(box[0], p.x - stroke.radius), std::min(box[1], p.y - stroke.radius),
                   std::max(box[2], p.x + stroke.radius), std::max(box[3], p.y + stroke.radius)};
        }
    }
}

bool areApart(Graphic const & a, Graphic const & b, double distance)
{
    return a.box[0] > b.box[2] + distance || b.box[0] > a.box[2] + distance ||
           a.box[1] > b.box[3] + distance || b.box[1] > a.box[3] + distance;
}

} // namespace KVCAM::Testing::Brute
