#include "checks/CopperChecks.h"

#include "checks/CheckRecords.h"
#include "checks/PadChecks.h"

#include <algorithm>
#include <map>
#include <utility>

namespace KVCAM::Embedded {
namespace {

using Lists = std::map<API::signal_layers_checks_items, API::signal_check_result>;

constexpr int pads = 45;
constexpr int lines = 46; // and arcs: the layer's least track width is taken from this item
constexpr int smdToSmd = 12;
// Annular rings by kind of hole: plated, non-plated, via.
constexpr std::array<int, 3> rings{31, 36, 33};

double trackWidth(Feature const & feature, SymbolShape const & shape)
{
    API::point const direction{feature.points[1].x - feature.points[0].x,
                               feature.points[1].y - feature.points[0].y};
    bool const straight = feature.kind == 'L' && (direction.x != 0 || direction.y != 0);
    return straight ? widthAcross(shape.inner, direction) : shape.narrower;
}

std::vector<API::check_info> & list(Lists & lists, int item)
{
    return lists[static_cast<API::signal_layers_checks_items>(item)].lists[0];
}

// The ring lists are merged by points, and several values can fall on the same micrometre.
void agreeOnTies(Lists & lists)
{
    std::map<int, int> lowest; // value by ring in micrometres
    for (int const item : rings) {
        for (API::check_info const & ring : list(lists, item)) {
            auto const known = lowest.emplace(ring.points[6], ring.value).first;
            known->second = std::min(known->second, ring.value);
        }
    }
    for (int const item : rings) {
        for (API::check_info & ring : list(lists, item)) {
            ring.value = lowest.at(ring.points[6]);
        }
    }
}

} // namespace

void checkCopper(CheckContext & context, API::layer_info const & layer, std::vector<Hole> const & holes,
                 CheckResults & results)
{
    std::vector<Measurement> widths;
    std::vector<Measurement> sizes;
    std::vector<Pad> all;
    context.forEachMeasurable(layer, "signal", [&](Feature const & feature, SymbolShape const & shape) {
        auto const & p = feature.points;
        if (feature.kind == 'P') {
            sizes.push_back(measurement(5, shape.narrower, {p[0].x, p[0].y, shape.narrower, shape.wider}));
            all.push_back(
                {placement(p[0], feature.angle, feature.mirrored), &shape, (feature.marks & markSmd) != 0});
        } else if (double const width = trackWidth(feature, shape);
                   !context.area().isOutline(feature, width)) {
            widths.push_back(measurement(1, width, {p[0].x, p[0].y, p[1].x, p[1].y, width}));
        }
    });
    PadChecks const checks(std::move(all), context);

    Lists & lists = results.signal[layer.name];
    list(lists, lines) = sorted(std::move(widths));
    list(lists, pads) = sorted(std::move(sizes));
    list(lists, smdToSmd) = sorted(checks.smdSpacings());
    std::array<std::vector<Measurement>, 3> found = checks.rings(holes, layer.row);
    for (std::size_t kind = 0; kind < rings.size(); ++kind) {
        list(lists, rings.at(kind)) = sorted(std::move(found.at(kind)));
    }
    agreeOnTies(lists);
}

} // namespace KVCAM::Embedded
