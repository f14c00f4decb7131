#include "geometry/Profile.h"

#include "formats/LineReader.h"
#include "geometry/CheckGeometry.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

namespace KVCAM::Embedded {
namespace {

constexpr std::size_t mostPoints = 10'000'000; // more than a file of straight sides can hold
constexpr int chordsPerTurn = 72; // a multiple of four, to include the extreme points of a circle

// Appends the points between the ends of an arc. Equal ends make a full circle.
void appendArc(std::vector<API::point> & points, API::point from, Side const & side)
{
    double const radius = distance(from, side.centre);
    double const unit = 2 * pi / chordsPerTurn;
    double const direction = side.clockwise ? -1 : 1;
    double const begin = std::atan2(from.y - side.centre.y, from.x - side.centre.x);
    double const sweep = arcSweep(from, side.to, side.centre, side.clockwise);

    // In units of a chord, counted in the arc's direction: the integers strictly inside the sweep.
    double const first = direction * begin / unit;
    auto const last = static_cast<int>(std::ceil(first + sweep / unit - 1e-9));
    for (int step = static_cast<int>(std::floor(first + 1e-9)) + 1; step < last; ++step) {
        double const angle = direction * step * unit;
        points.push_back(
            {side.centre.x + radius * std::cos(angle), side.centre.y + radius * std::sin(angle)});
    }
}

// Fails when more than `most` points are needed, of which `used` are there already.
std::vector<API::point> polygon(FeaturesFile const & file, Contour const & contour, std::size_t used,
                                std::size_t most)
{
    std::vector<API::point> points{contour.start};
    for (Side const & side : contour.sides) {
        if (side.arc) {
            appendArc(points, points.back(), side);
        }
        if (!isSame(side.to, points.back())) {
            points.push_back(side.to);
        }
        if (used + points.size() > most) {
            throw JobError(file.path.toStdString() + ": the outlines take more than " + std::to_string(most) +
                           " points");
        }
    }
    if (points.size() > 1 && isSame(points.front(), points.back())) {
        points.pop_back();
    }
    points.shrink_to_fit();
    return points;
}

void appendOutlines(FeaturesFile const & file, Feature const & feature, std::size_t & total, std::size_t most,
                    std::vector<std::vector<API::point>> & polygons)
{
    for (Contour const & contour : feature.contours) {
        polygons.push_back(polygon(file, contour, total, most));
        total += polygons.back().size();
    }
}

} // namespace

std::vector<std::vector<API::point>> outlines(FeaturesFile const & file, Feature const & feature,
                                              std::size_t & total)
{
    std::vector<std::vector<API::point>> polygons;
    polygons.reserve(feature.contours.size());
    appendOutlines(file, feature, total, mostPoints, polygons);
    return polygons;
}

std::optional<Profile> profileOf(FeaturesFile const & file, long long most)
{
    Profile profile;
    std::size_t total = 0;
    for (Feature const & feature : file.features) {
        appendOutlines(file, feature, total, static_cast<std::size_t>(std::max(most, 0LL)), profile.outlines);
    }
    if (profile.outlines.empty()) {
        return std::nullopt;
    }
    Box box = boxOf(profile.outlines.front().front());
    for (std::vector<API::point> const & outline : profile.outlines) {
        for (API::point const & point : outline) {
            include(box, point);
        }
    }
    profile.box = box;
    return profile;
}

} // namespace KVCAM::Embedded
