#include "analysis/CheckKinds.h"

#include <algorithm>
#include <vector>

namespace KVCAM::UIAPI {

std::optional<double> measuredValue(check_info const & info)
{
    CheckKind const & kind = checkKind(info.type);
    if (kind.measured == noPoint || info.points.size() != kind.count) {
        return std::nullopt;
    }
    int const * const points = info.points.data();
    return *std::min_element(points + kind.measured, points + kind.lastMeasured + 1);
}

std::vector<KVCAM::API::point> placesOf(check_info const & info)
{
    std::vector<int> const & points = info.points;
    std::size_t const count = checkKind(info.type).places;
    std::vector<KVCAM::API::point> places;
    for (std::size_t i = 0; i < count && points.size() >= 2 * count; ++i) {
        places.push_back({static_cast<double>(points[2 * i]), static_cast<double>(points[2 * i + 1])});
    }
    return places;
}

std::optional<KVCAM::API::point> positionOf(check_info const & info)
{
    std::vector<KVCAM::API::point> const places = placesOf(info);
    if (places.empty()) {
        return std::nullopt;
    }
    KVCAM::API::point sum{0, 0};
    for (KVCAM::API::point const & place : places) {
        sum.x += place.x;
        sum.y += place.y;
    }
    auto const count = static_cast<double>(places.size());
    return KVCAM::API::point{sum.x / count, sum.y / count};
}

} // namespace KVCAM::UIAPI
