#include "checks/DrawingExtent.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace KVCAM::Embedded {
namespace {

constexpr std::size_t mostDirections = 180; // in which a least width is looked for
constexpr std::size_t mostSearches = 4;     // of them around which it is looked for

double reachOf(SymbolDrawing const & drawing, API::point direction)
{
    double farthest = -std::numeric_limits<double>::infinity();
    for (DrawnPart const & part : drawing.parts) {
        farthest = std::max(farthest,
                            support(part.shape, direction) + (part.arc ? support(*part.arc, direction) : 0));
    }
    return farthest;
}

double widthIn(SymbolDrawing const & drawing, API::point direction)
{
    return reachOf(drawing, direction) + reachOf(drawing, {-direction.x, -direction.y});
}

double widthAt(SymbolDrawing const & drawing, double angle)
{
    return widthIn(drawing, {std::cos(angle), std::sin(angle)});
}

// Across the sides of the hull, the longest first: there a width has its minima.
std::vector<API::point> directions(Region const & region)
{
    std::vector<API::point> points;
    for (Shape const & piece : region.pieces) {
        for (API::point const & corner : piece.corners) {
            for (int i = 0; i < (piece.radius > 0 ? 32 : 1); ++i) {
                points.push_back({corner.x + piece.radius * std::cos(i * pi / 16),
                                  corner.y + piece.radius * std::sin(i * pi / 16)});
            }
        }
    }
    for (std::vector<API::point> const & outline : region.outlines) {
        points.insert(points.end(), outline.begin(), outline.end());
    }
    std::vector<API::point> const hull = convexHull(std::move(points));
    std::vector<API::point> across;
    for (std::size_t i = 0; i < hull.size(); ++i) {
        API::point const & next = hull[(i + 1) % hull.size()];
        across.push_back({hull[i].y - next.y, next.x - hull[i].x});
    }
    std::stable_sort(across.begin(), across.end(),
                     [](API::point a, API::point b) { return std::hypot(a.x, a.y) > std::hypot(b.x, b.y); });
    across.resize(std::min(across.size(), mostDirections));
    for (API::point & each : across) {
        double const length = std::hypot(each.x, each.y);
        each = length > 0 ? API::point{each.x / length, each.y / length} : API::point{1, 0};
    }
    return across;
}

// A minimum near an angle, by golden section.
double leastNear(SymbolDrawing const & drawing, double angle)
{
    constexpr double ratio = 0.61803398874989485;
    double low = angle - 0.1;
    double high = angle + 0.1;
    for (int i = 0; i < 50; ++i) {
        double const a = high - ratio * (high - low);
        double const b = low + ratio * (high - low);
        bool const isLower = widthAt(drawing, a) < widthAt(drawing, b);
        (isLower ? high : low) = isLower ? b : a;
    }
    return low / 2 + high / 2;
}

} // namespace

DrawingExtent extentOf(SymbolDrawing const & drawing)
{
    struct Candidate
    {
        double width;
        API::point direction;
    };
    std::vector<Candidate> found;
    for (API::point const direction : {API::point{1, 0}, API::point{0, 1}}) {
        found.push_back({widthIn(drawing, direction), direction});
    }
    for (API::point const direction : directions(drawing.copper)) {
        found.push_back({widthIn(drawing, direction), direction});
    }
    constexpr double noise = 1e-6; // the upright directions are preferred
    auto const isLess = [](Candidate const & a, Candidate const & b) { return a.width < b.width - noise; };
    Candidate best = *std::min_element(found.begin(), found.end(), isLess);
    std::stable_sort(found.begin(), found.end(),
                     [](Candidate const & a, Candidate const & b) { return a.width < b.width; });
    for (std::size_t i = 0; i < std::min(found.size(), mostSearches); ++i) {
        double const angle = leastNear(drawing, std::atan2(found[i].direction.y, found[i].direction.x));
        Candidate const refined{widthAt(drawing, angle), {std::cos(angle), std::sin(angle)}};
        best = isLess(refined, best) ? refined : best;
    }
    API::point const u = best.direction;
    API::point const v{-u.y, u.x};
    double const acrossMiddle = (reachOf(drawing, u) - reachOf(drawing, {-u.x, -u.y})) / 2;
    double const alongMiddle = (reachOf(drawing, v) - reachOf(drawing, {-v.x, -v.y})) / 2;
    return {best.width,
            widthIn(drawing, v),
            v,
            {acrossMiddle * u.x + alongMiddle * v.x, acrossMiddle * u.y + alongMiddle * v.y}};
}

} // namespace KVCAM::Embedded
