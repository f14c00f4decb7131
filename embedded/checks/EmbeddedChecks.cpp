#include "EmbeddedChecks.h"

#include "checks/CopperChecks.h"
#include "checks/CopperItems.h"
#include "checks/Nets.h"
#include "checks/SpacingChecks.h"
#include "state/EngineState.h"

#include <algorithm>
#include <string>
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

void checkAllSpacings(CheckContext & context, std::vector<API::layer_info> const & coppers,
                      std::vector<API::layer_info> const & drills, double reach, CheckResults & results)
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
    results.nets = assignNets(context, layers, holes);
    context.endStage();
    checkCloseHoles(context, holes, reach, results);
    context.endStage();
    for (CopperLayer & layer : layers) {
        checkSpacings(context, layer, holes, rout.size() == 0 ? nullptr : &rout, reach, results);
        layer = {}; // no longer needed, and large
        context.endStage();
    }
}

CheckResults run(CheckContext & context, CheckOptions const & options)
{
    std::vector<API::layer_info> const drills = layers(context, isDrill, "drill");
    std::vector<API::layer_info> const coppers = layers(context, isCopper, "signal");
    auto const routs = static_cast<std::size_t>(std::count_if(
        drills.begin(), drills.end(), [](API::layer_info const & layer) { return layer.type == "rout"; }));
    // Each layer is measured, then collected for the spacings; copper also has its spacings. Nets and holes.
    context.setStages(2 * drills.size() + routs + 3 * coppers.size() + 2);
    context.reportProgress(0, 1);

    CheckResults results;
    std::vector<Hole> holes;
    for (API::layer_info const & layer : drills) {
        checkDrills(context, layer, results, holes);
        context.endStage();
    }
    for (API::layer_info const & layer : coppers) {
        checkCopper(context, layer, holes, results);
        context.endStage();
    }
    double const reach = std::max(leastReach, options.spacingReach) * 25.4;
    checkAllSpacings(context, coppers, drills, reach, results);
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
