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

std::optional<HoleKind> kindOf(Tool const & tool)
{
    static std::map<std::string, HoleKind> const kinds{
        {"plated", HoleKind::Plated}, {"non_plated", HoleKind::NonPlated}, {"via", HoleKind::Via}};
    auto const found = kinds.find(tool.type);
    return found == kinds.end() ? std::nullopt : std::optional(found->second);
}

} // namespace

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
    Box const box = extent(shape.outer);
    double const half = (shape.wider - shape.narrower) / 2;
    bool const lying = box.right - box.left > box.top - box.bottom;
    API::point const end{lying ? half : 0, lying ? 0 : half};
    Placement const where = placement(feature.points[0], feature.angle, feature.mirrored);
    return {placed(API::point{-end.x, -end.y}, where), placed(end, where)};
}

struct Slot
{
    Measurement record;
    API::point from;
    API::point to;
};

// Drops full circles and anything joined end to end with another element: they are the rout path. The same
// slot drawn twice is not a path.
std::vector<Measurement> withoutPaths(std::vector<Slot> slots)
{
    using Key = std::pair<std::int64_t, std::int64_t>;
    auto const key = [](API::point p) { return Key(UIAPI::nearestInt64(p.x), UIAPI::nearestInt64(p.y)); };
    std::map<Key, std::set<Key>> joined;
    for (Slot const & slot : slots) {
        joined[key(slot.from)].insert(key(slot.to));
        joined[key(slot.to)].insert(key(slot.from));
    }
    std::vector<Measurement> records;
    for (Slot & slot : slots) {
        Key const from = key(slot.from);
        Key const to = key(slot.to);
        if (from != to && joined.at(from).size() == 1 && joined.at(to).size() == 1) {
            records.push_back(std::move(slot.record));
        }
    }
    return records;
}

std::vector<Measurement> recordsOf(std::vector<Slot> slots)
{
    std::vector<Measurement> records;
    records.reserve(slots.size());
    for (Slot & slot : slots) {
        records.push_back(std::move(slot.record));
    }
    return records;
}

} // namespace

void checkDrills(CheckContext & context, API::layer_info const & layer, CheckResults & results,
                 std::vector<Hole> & holes)
{
    bool const drill = layer.type == "drill";
    std::vector<Tool> const tools = context.job().tools(context.step(), layer.name);
    std::pair<int, int> const rows = rowsOf(context.job().matrix(), layer.name);
    std::vector<Slot> slots;
    std::array<std::vector<Measurement>, 3> summaries;

    context.forEachMeasurable(layer, "drill", [&](Feature const & feature, SymbolShape const & shape) {
        double const width = shape.narrower;
        auto const [from, to] = middleLine(feature, shape);
        bool const round = feature.kind != 'A' && distance(from, to) == 0;
        if (round && drill) {
            HoleKind const kind = kindOf(feature, width, tools);
            holes.push_back({from, width, kind, rows.first, rows.second});
            summaries.at(static_cast<std::size_t>(kind))
                .push_back(measurement(5, width, {from.x, from.y, width, width}));
        } else if (!round && (feature.kind == 'P' || !context.area().isOutline(feature, width))) {
            slots.push_back({measurement(1, width, {from.x, from.y, to.x, to.y, width}), from, to});
        }
    });

    results.rest[slotItem][layer.name].at(slotList) =
        sorted(drill ? recordsOf(std::move(slots)) : withoutPaths(std::move(slots)));
    if (drill) {
        auto & reply = results.drill[layer.name];
        for (std::size_t kind = 0; kind < summaries.size(); ++kind) {
            for (API::check_info & record : sorted(std::move(summaries.at(kind)))) {
                reply.add(static_cast<API::drill_check_item>(summaryItems.at(kind)), 0, std::move(record));
            }
        }
    }
}

} // namespace KVCAM::Embedded
