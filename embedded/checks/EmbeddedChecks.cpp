#include "EmbeddedChecks.h"

#include "checks/CopperChecks.h"
#include "formats/LineReader.h"
#include "state/EngineState.h"

#include <algorithm>
#include <array>
#include <limits>
#include <map>
#include <string>
#include <utility>

namespace KVCAM::Embedded {
namespace {

struct LeftOut
{
    char const * table;
    int item;
    char const * reason;
};

constexpr char const * needsNets =
    "It takes a net list to tell what belongs to one net; the engine reads none.";
constexpr std::array leftOut{
    LeftOut{"signal", 3, needsNets},
    LeftOut{"signal", 4, needsNets},
    LeftOut{"signal", 14, needsNets},
    LeftOut{"signal", 15, needsNets},
    LeftOut{"signal", 26, needsNets},
    LeftOut{"signal", 29, needsNets},
    LeftOut{"signal", 43, "It takes the path of the rout; the engine reads none."},
    LeftOut{"drill", 28, needsNets},
    LeftOut{"drill", 29, needsNets},
    LeftOut{"drill", 34, needsNets},
    LeftOut{"drill", 35, needsNets},
};

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

CheckResults run(CheckContext & context)
{
    noteRepeats(context);
    for (LeftOut const & each : leftOut) {
        context.note({each.table, each.item, {}, each.reason});
    }
    std::vector<API::layer_info> const drills = layers(context, isDrill, "drill");
    std::vector<API::layer_info> const coppers = layers(context, isCopper, "signal");
    context.setStages(std::max<std::size_t>(drills.size() + coppers.size(), 1));
    context.reportProgress(0, 1);

    CheckResults results;
    std::vector<Hole> holes;
    for (API::layer_info const & layer : drills) {
        checkDrills(context, layer, results, holes);
        context.endStage();
    }
    std::pair<int, int> const rows = outerRows(context.job().matrix());
    for (API::layer_info const & layer : coppers) {
        bool const outer = layer.row == rows.first || layer.row == rows.second;
        checkCopper(context, layer, holes, outer, results);
        context.endStage();
    }
    results.notChecked = context.takeNotes();
    return results;
}

} // namespace

bool runChecks(std::string const & job, std::string const & step, CheckResults & out,
               CheckProgress const & progress)
{
    out = {};
    return withLastError(false, [&](EngineState & state) {
        CheckContext context(job, step, progress);
        out = run(context);
        state.lastError.clear(); // set by calls from `progress`
        return true;
    });
}

} // namespace KVCAM::Embedded
