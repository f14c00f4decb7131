#include "checks/DrillChecks.h"

#include "checks/CheckRecords.h"

#include "support/Narrowing.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <limits>
#include <map>
#include <optional>
#include <set>
#include <utility>

namespace KVCAM::Embedded {
namespace {

constexpr int slotItem = 10;
constexpr std::size_t slotList = 3; // the list that the board's summary counts
// Drill checks by kind of hole.
constexpr std::array<int, 3> summaryItems{0, 1, 2};
constexpr std::array<int, 3> slotSummaryItems{3, 4, 3};
constexpr double roundness = 1; // micrometres; a hole that is hardly longer than wide is round

std::optional<HoleKind> kindOf(Tool const & tool)
{
    static std::map<std::string, HoleKind> const kinds{
        {"plated", HoleKind::Plated}, {"non_plated", HoleKind::NonPlated}, {"via", HoleKind::Via}};
    auto const found = kinds.find(tool.type);
    return found == kinds.end() ? std::nullopt : std::optional(found->second);
}

} // namespace

HoleKind usualKind(API::layer_info const & layer)
{
    return layer.type == "drill" ? HoleKind::Plated : HoleKind::NonPlated;
}

HoleKind kindOf(Feature const & feature, double diameter, std::vector<Tool> const & tools, HoleKind other)
{
    if (feature.drill >= 0) {
        return static_cast<HoleKind>(feature.drill);
    }
    auto tool = std::find_if(tools.begin(), tools.end(),
                             [&feature](Tool const & each) { return each.number == feature.code; });
    if (tool == tools.end()) {
        // Sizes are written with few decimals, in either unit.
        tool = std::find_if(tools.begin(), tools.end(), [diameter](Tool const & each) {
            return std::abs(each.finishSize - diameter) < 0.1 || std::abs(each.drillSize - diameter) < 0.1;
        });
    }
    return tool == tools.end() ? other : kindOf(*tool).value_or(other);
}

std::pair<int, int> rowsOf(Matrix const & matrix, std::string const & layer)
{
    auto const row = [&matrix](std::string const & name) {
        auto const found = std::find_if(matrix.layers.begin(), matrix.layers.end(),
                                        [&name](API::layer_info const & each) { return each.name == name; });
        return found == matrix.layers.end() ? 0 : found->row;
    };
    auto const & [start, end] = matrix.spans.at(layer);
    int const first = row(start);
    int const last = row(end);
    bool const named = first != 0 && last != 0;
    return named ? std::pair(std::min(first, last), std::max(first, last))
                 : std::pair(0, std::numeric_limits<int>::max());
}

namespace {

// The ends of a slot's centre line; equal for a round hole.
std::pair<API::point, API::point> middleLine(Feature const & feature, SymbolShape const & shape)
{
    if (feature.kind != 'P') {
        return {feature.points[0], feature.points[1]};
    }
    double const length = shape.wider - shape.narrower;
    double const half = length < roundness ? 0 : length / 2;
    API::point const way{half * shape.along.x, half * shape.along.y};
    Placement const where = placement(feature.points[0], feature.angle, feature.mirrored);
    return {placed(API::point{shape.middle.x - way.x, shape.middle.y - way.y}, where),
            placed(API::point{shape.middle.x + way.x, shape.middle.y + way.y}, where)};
}

struct Slot
{
    Hole hole;
    std::optional<API::point> arcMiddle; // of a slot that is an arc
};

Measurement recordOf(Slot const & slot)
{
    API::point const from = slot.arcMiddle.value_or(slot.hole.place);
    API::point const to = slot.arcMiddle.value_or(slot.hole.end);
    double const width = slot.hole.diameter;
    return measurement(1, width, {from.x, from.y, to.x, to.y, width},
                       {slot.hole.feature, RecordNets::unknown});
}

// Drops full circles and anything joined end to end with another element: they are the rout path. The same
// slot drawn twice is not a path.
std::vector<Slot> withoutPaths(std::vector<Slot> const & slots)
{
    using Key = std::pair<std::int64_t, std::int64_t>;
    auto const key = [](API::point p) { return Key(UIAPI::nearestInt64(p.x), UIAPI::nearestInt64(p.y)); };
    std::map<Key, std::set<Key>> joined;
    for (Slot const & slot : slots) {
        joined[key(slot.hole.place)].insert(key(slot.hole.end));
        joined[key(slot.hole.end)].insert(key(slot.hole.place));
    }
    std::vector<Slot> kept;
    for (Slot const & slot : slots) {
        Key const from = key(slot.hole.place);
        Key const to = key(slot.hole.end);
        if (from != to && joined.at(from).size() == 1 && joined.at(to).size() == 1) {
            kept.push_back(slot);
        }
    }
    return kept;
}

// Their nets are the features until the nets are known.
void fileDrill(CheckResults & results, std::string const & layer, int item,
               std::vector<Measurement> measurements)
{
    SortedRecords all = sorted(std::move(measurements));
    auto & reply = results.drill[layer];
    for (API::check_info & record : all.records) {
        reply.add(static_cast<API::drill_check_item>(item), 0, std::move(record));
    }
    fileNets(results.recordNets, "drill", item, layer, std::move(all.nets));
}

void fileSlots(CheckContext & context, std::string const & layer, std::vector<Slot> const & slots,
               CheckResults & results, std::vector<Hole> & holes)
{
    std::vector<Measurement> records;
    std::map<int, std::vector<Measurement>> summaries;
    int arcs = 0;
    for (Slot const & slot : slots) {
        records.push_back(recordOf(slot));
        summaries[slotSummaryItems.at(static_cast<std::size_t>(slot.hole.kind))].push_back(recordOf(slot));
        if (slot.arcMiddle) {
            ++arcs;
        } else {
            holes.push_back(slot.hole);
        }
    }
    results.rest[slotItem][layer].at(slotList) = sorted(std::move(records)).records;
    for (auto & [item, summary] : summaries) {
        fileDrill(results, layer, item, std::move(summary));
    }
    if (arcs != 0) {
        context.note(
            {"drill", -1, layer, "The rings of slots that are arcs (" + std::to_string(arcs) + ")."});
    }
}

} // namespace

void checkDrills(CheckContext & context, API::layer_info const & layer, CheckResults & results,
                 std::vector<Hole> & holes)
{
    bool const drill = layer.type == "drill";
    HoleKind const usual = usualKind(layer);
    std::vector<Tool> const tools = context.job().tools(context.step(), layer.name);
    std::pair<int, int> const rows = rowsOf(context.job().matrix(), layer.name);
    std::vector<Slot> slots;
    std::array<std::vector<Measurement>, 3> summaries;

    context.forEachMeasurable(
        layer, "drill", [&](std::uint32_t index, Feature const & feature, SymbolShape const & shape) {
            double const width = shape.narrower;
            auto const [from, to] = middleLine(feature, shape);
            bool const arc = feature.kind == 'A';
            bool const round = !arc && distance(from, to) == 0;
            HoleKind const kind = kindOf(feature, width, tools, usual);
            Hole const hole{from, to, width, index, RecordNets::unknown, kind, rows.first, rows.second};
            if (round && drill) {
                holes.push_back(hole);
                summaries.at(static_cast<std::size_t>(hole.kind))
                    .push_back(
                        measurement(5, width, {from.x, from.y, width, width}, {index, RecordNets::unknown}));
            } else if (!round && (feature.kind == 'P' || !context.area().isOutline(feature, width))) {
                slots.push_back(
                    {hole, arc ? std::optional(arcMiddle(from, to, feature.points[2], feature.clockwise))
                               : std::nullopt});
            }
        });

    fileSlots(context, layer.name, drill ? slots : withoutPaths(slots), results, holes);
    if (drill) {
        for (std::size_t kind = 0; kind < summaries.size(); ++kind) {
            fileDrill(results, layer.name, summaryItems.at(kind), std::move(summaries.at(kind)));
        }
    }
}

} // namespace KVCAM::Embedded
