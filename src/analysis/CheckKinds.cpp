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

std::optional<KVCAM::API::point> positionOf(check_info const & info)
{
    std::vector<int> const & points = info.points;
    std::size_t const places = checkKind(info.type).places;
    if (points.size() < 2 * places) {
        return std::nullopt;
    }
    KVCAM::API::point sum{0, 0};
    for (std::size_t i = 0; i < places; ++i) {
        sum.x += points[2 * i];
        sum.y += points[2 * i + 1];
    }
    auto const count = static_cast<double>(places);
    return KVCAM::API::point{sum.x / count, sum.y / count};
}

} // namespace KVCAM::UIAPI
