#include "EmbeddedChecks.h"

#include "checks/CheckRecords.h"
#include "checks/CopperChecks.h"
#include "checks/CopperItems.h"
#include "checks/Nets.h"
#include "checks/SpacingChecks.h"
#include "formats/LineReader.h"
#include "state/EngineState.h"

#include <algorithm>
#include <limits>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace KVCAM::Embedded {
namespace {

constexpr int routToCopper = 43;
constexpr double leastReach = 20; // mil

bool isCopper(API::layer_info const & layer)
{
    return layer.type == "signal" || layer.type == "power_ground" || layer.type == "mixed";
}

bool isDrill(API::layer_info const & layer)
{
    return layer.type == "drill" || layer.type == "rout";
}

// The positive board layers of the given types; notes the negative ones.
std::vector<API::layer_info> layers(CheckContext & context, bool (*wanted)(API::layer_info const &),
                                    char const * table)
{
    std::vector<API::layer_info> found;
    for (API::layer_info const & layer : context.job().matrix().layers) {
        if (layer.context != "board" || !wanted(layer)) {
            continue;
        }
        if (layer.polarity == "POS") {
            found.push_back(layer);
        } else {
            context.note({table, -1, layer.name, "The layer is negative: it draws what is taken away."});
        }
    }
    return found;
}

// A repeated step has the same measures in each of its places.
void noteRepeats(CheckContext & context)
{
    std::map<std::string, long long> counts;
    for (StepRepeat const & repeat : context.job().step(context.step()).header.repeats) {
        counts[repeat.name] += static_cast<long long>(repeat.nx) * repeat.ny;
    }
    for (auto const & [name, count] : counts) {
        context.note({"signal",
                      -1,
                      {},
                      "The step repeats " + validText(name) + ' ' + std::to_string(count) +
                          " times; measure that step."});
    }
}

// The rows of the first and the last copper layer.
std::pair<int, int> outerRows(Matrix const & matrix)
{
    std::pair<int, int> rows{std::numeric_limits<int>::max(), std::numeric_limits<int>::min()};
    for (API::layer_info const & layer : matrix.layers) {
        if (layer.context == "board" && isCopper(layer)) {
            rows = {std::min(rows.first, layer.row), std::max(rows.second, layer.row)};
        }
    }
    return rows;
}

// The records of holes have the numbers of features until the nets are known.
void nameHoles(FeatureNets const & named, RecordNets & all)
{
    decltype(all.lists) lists;
    std::swap(lists, all.lists);
    for (auto & [key, nets] : lists) {
        auto const & [table, item, layer] = key;
        for (RecordNets::Numbers & each : nets) {
            each[0] = named.of(layer, each[0]);
        }
        fileNets(all, table.c_str(), item, layer, std::move(nets));
    }
}

FeatureNets checkAllSpacings(CheckContext & context, std::vector<API::layer_info> const & coppers,
                             std::vector<API::layer_info> const & drills, double reach,
                             CheckResults & results)
{
    PlatedHoles holes = collectHoles(context, drills);
    ItemShapes const rout = collectRout(context, drills);
    if (rout.size() == 0) {
        context.note({"signal", routToCopper, {}, "The job has neither a rout layer nor a profile."});
    }
    std::vector<CopperLayer> layers;
    for (API::layer_info const & layer : coppers) {
        layers.push_back(collectCopper(context, layer, holes));
        context.endStage();
    }
    FeatureNets named = assignNets(context, layers, holes, results);
    nameHoles(named, results.recordNets);
    context.endStage();
    checkCloseHoles(context, holes, reach, results);
    context.endStage();
    for (CopperLayer & layer : layers) {
        checkSpacings(context, layer, holes, rout.size() == 0 ? nullptr : &rout, reach, results);
        context.endStage();
    }
    return named;
}

CheckResults run(CheckContext & context, CheckOptions const & options)
{
    noteRepeats(context);
    std::vector<API::layer_info> const drills = layers(context, isDrill, "drill");
    std::vector<API::layer_info> const coppers = layers(context, isCopper, "signal");
    auto const routs = static_cast<std::size_t>(std::count_if(
        drills.begin(), drills.end(), [](API::layer_info const & layer) { return layer.type == "rout"; }));
    // Each layer is measured, then collected for the spacings; copper also has its spacings. Nets and holes.
    context.setStages(2 * drills.size() + routs + 3 * coppers.size() + 2);
    context.reportProgress(0, 1);

    CheckResults results;
    std::vector<Hole> holes;
    std::vector<std::size_t> ends; // of the holes, by drill layer
    for (API::layer_info const & layer : drills) {
        checkDrills(context, layer, results, holes);
        ends.push_back(holes.size());
        context.endStage();
    }
    // First, since they need the most memory and few records exist yet.
    double const reach = std::max(leastReach, options.spacingReach) * 25.4;
    FeatureNets const named = checkAllSpacings(context, coppers, drills, reach, results);
    for (std::size_t hole = 0, layer = 0; hole < holes.size(); ++hole) {
        for (; hole == ends[layer]; ++layer) {
        }
        holes[hole].net = named.of(drills[layer].name, holes[hole].feature);
    }
    std::pair<int, int> const rows = outerRows(context.job().matrix());
    for (API::layer_info const & layer : coppers) {
        bool const outer = layer.row == rows.first || layer.row == rows.second;
        checkCopper(context, layer, holes, outer, named, results);
        context.endStage();
    }
    results.notChecked = context.takeNotes();
    return results;
}

} // namespace

bool runChecks(std::string const & job, std::string const & step, CheckResults & out,
               CheckProgress const & progress)
{
    return runChecks(job, step, out, progress, {});
}

bool runChecks(std::string const & job, std::string const & step, CheckResults & out,
               CheckProgress const & progress, CheckOptions const & options)
{
    out = {};
    return withLastError(false, [&](EngineState & state) {
        CheckContext context(job, step, progress);
        out = run(context, options);
        state.lastError.clear(); // set by calls from `progress`
        return true;
    });
}

} // namespace KVCAM::Embedded
