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
                 bool outer, FeatureNets const & named, CheckResults & results)
{
    std::vector<Measurement> widths;
    std::vector<Pad> all;
    context.forEachMeasurable(
        layer, "signal", [&](std::uint32_t index, Feature const & feature, SymbolShape const & shape) {
            std::uint32_t const net = named.of(layer.name, index);
            auto const & p = feature.points;
            if (feature.kind == 'P') {
                all.push_back({placement(p[0], feature.angle, feature.mirrored), &shape,
                               (feature.marks & markSmd) != 0, net});
            } else if (double const width = trackWidth(feature, shape);
                       !context.area().isOutline(feature, width)) {
                bool const arc = feature.kind == 'A';
                API::point const middle = arc ? arcMiddle(p[0], p[1], p[2], feature.clockwise) : API::point();
                API::point const from = arc ? middle : p[0];
                API::point const to = arc ? middle : p[1];
                widths.push_back(
                    measurement(1, width, {from.x, from.y, to.x, to.y, width}, {net, RecordNets::unknown}));
            }
        });
    PadChecks const checks(std::move(all), context);

    Lists & lists = results.signal[layer.name];
    auto const file = [&](int item, std::vector<Measurement> measurements) {
        SortedRecords measured = sorted(std::move(measurements));
        list(lists, item) = std::move(measured.records);
        fileNets(results.recordNets, "signal", item, layer.name, std::move(measured.nets));
    };
    file(lines, std::move(widths));
    file(pads, checks.sizes());
    file(smdToSmd, checks.smdSpacings());
    if (checks.isCoarse()) {
        context.note({"signal", -1, layer.name,
                      "The SMD pads drawn with large symbols of the job's own are too many: their spacing is "
                      "that of the boxes around them."});
    }
    PadChecks::Rings found = checks.rings(holes, layer.row);
    for (std::size_t kind = 0; kind < rings.size(); ++kind) {
        file(rings.at(kind), std::move(found.byKind.at(kind)));
    }
    if (outer && found.withoutPad != 0) {
        context.note({"signal", -1, layer.name,
                      "Plated holes without a pad on this outer layer (" + std::to_string(found.withoutPad) +
                          "): they have no ring."});
    }
    if (found.beside != 0) {
        context.note({"signal", -1, layer.name,
                      "Plated holes whose pad does not cover their centre with solid copper (" +
                          std::to_string(found.beside) + "): they have no ring."});
    }
    agreeOnTies(lists);
}

} // namespace KVCAM::Embedded
