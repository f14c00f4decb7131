#include "EmbeddedEngine.h"

#include "formats/JobPaths.h"
#include "formats/LineReader.h"
#include "geometry/Profile.h"
#include "state/EngineState.h"
#include "state/Panel.h"

#include <algorithm>
#include <map>
#include <memory>
#include <tuple>
#include <utility>

namespace KVCAM::Embedded {
namespace {

API::feature_info infoOf(FeaturesFile const & file, std::size_t index)
{
    Feature const & feature = file.features[index];
    return {static_cast<int>(index), feature.kind,
            feature.symbol < 0 ? std::string() : file.symbols.at(feature.symbol).name, feature.positive,
            recordPoints(feature)};
}

// `points` counts those of the outlines.
FeatureDrawing drawingOf(FeaturesFile const & file, std::size_t index, std::size_t & points)
{
    Feature const & feature = file.features[index];
    return {feature.angle, feature.mirrored, feature.clockwise,
            feature.symbol < 0 ? 0 : file.symbols.at(feature.symbol).unit, outlines(file, feature, points)};
}

// The symbols of layers, one entry per name and unit.
struct SymbolUses
{
    void add(LayerGraphics const & graphics)
    {
        std::map<int, std::size_t> byIndex;
        for (auto const & [index, symbol] : graphics.file.symbols) {
            auto const [place, added] = known.emplace(std::pair(symbol.name, symbol.unit), list.size());
            if (added) {
                list.push_back({symbol.name, symbol.unit, 0});
            }
            byIndex[index] = place->second;
        }
        for (std::size_t i = 0; i < graphics.deleted.size(); ++i) {
            if (Feature const & feature = graphics.file.features[i];
                !graphics.deleted[i] && feature.symbol >= 0) {
                ++list[byIndex.at(feature.symbol)].features;
            }
        }
    }

    std::vector<SymbolUse> list;
    std::map<std::pair<std::string, int>, std::size_t> known; // places in the list
};

} // namespace

std::string lastError()
{
    return EngineState::get().lastError;
}

bool setSaveFlag(bool on)
{
    return withLastError(false, [on](EngineState & state) {
        if (!on) {
            state.database.close();
        } else if (!state.database.isOpen()) {
            state.openDatabase();
        }
        return true;
    });
}

void setDatabaseFile(std::string const & path)
{
    EngineState::get().databaseFile = path;
}

std::string databaseFile()
{
    return EngineState::get().databaseFile;
}

LiveState liveState()
{
    return EngineState::get().live;
}

std::vector<PluginCommand> pluginCommands()
{
    auto const & commands = EngineState::get().pluginCommands;
    return {commands.begin(), commands.end()};
}

void setJobLimits(JobLimits const & limits)
{
    EngineState::get().limits = limits;
}

JobLimits jobLimits()
{
    return EngineState::get().limits;
}

std::string openArchive(std::string const & path)
{
    return withLastError(std::string(), [&](EngineState & state) {
        std::unique_ptr<Job> opened = Job::fromArchive(path, state.limits);
        std::string name = opened->name();
        state.take(std::move(opened));
        return name;
    });
}

std::vector<std::string> openJobs()
{
    std::vector<std::string> names;
    for (auto const & job : EngineState::get().jobs) {
        names.push_back(job->name());
    }
    return names;
}

bool closeJob(std::string const & job)
{
    return withLastError(false, [&](EngineState & state) {
        Job const & closing = state.job(job);
        if (state.database.isOpen()) {
            state.database.removeOperations(lowerCase(closing.name()), {});
        }
        state.jobs.erase(std::find_if(state.jobs.begin(), state.jobs.end(),
                                      [&closing](auto const & open) { return open.get() == &closing; }));
        return true;
    });
}

bool profileBox(std::string const & job, std::string const & step, Box & box)
{
    return withLastError(false, [&](EngineState & state) {
        Step const & found = state.job(job).step(lowerCase(step));
        auto const extent = found.extent();
        box = extent.value_or(box);
        return extent.has_value();
    });
}

std::vector<std::vector<API::point>> profileOutlines(std::string const & job, std::string const & step)
{
    using Outlines = std::vector<std::vector<API::point>>;
    return withLastError(Outlines(), [&](EngineState & state) {
        Step const & found = state.job(job).step(lowerCase(step));
        return found.profile ? found.profile->outlines : Outlines();
    });
}

std::vector<StepRepeat> stepRepeats(std::string const & job, std::string const & step)
{
    return withLastError(std::vector<StepRepeat>(), [&](EngineState & state) {
        return state.job(job).step(lowerCase(step)).header.repeats;
    });
}

std::vector<StepPlacement> stepPlacements(std::string const & job, std::string const & step, int limit)
{
    return withLastError(std::vector<StepPlacement>(), [&](EngineState & state) {
        Job & owner = state.job(job);
        return placements(owner.steps(), owner.step(lowerCase(step)),
                          static_cast<std::size_t>(std::max(limit, 0)));
    });
}

std::vector<API::feature_info> features(std::string const & job, std::string const & step,
                                        std::string const & layer)
{
    return withLastError(std::vector<API::feature_info>(), [&](EngineState & state) {
        LayerGraphics const & graphics = state.job(job).graphics(lowerCase(step), lowerCase(layer));
        std::vector<API::feature_info> list;
        list.reserve(graphics.file.features.size());
        for (std::size_t i = 0; i < graphics.file.features.size(); ++i) {
            if (!graphics.deleted[i]) {
                list.push_back(infoOf(graphics.file, i));
            }
        }
        return list;
    });
}

int featureCount(std::string const & job, std::string const & step, std::string const & layer)
{
    return withLastError(-1, [&](EngineState & state) {
        LayerGraphics const & graphics = state.job(job).graphics(lowerCase(step), lowerCase(layer));
        return static_cast<int>(std::count(graphics.deleted.begin(), graphics.deleted.end(), false));
    });
}

std::vector<FeatureDrawing> featureDrawings(std::string const & job, std::string const & step,
                                            std::string const & layer)
{
    return withLastError(std::vector<FeatureDrawing>(), [&](EngineState & state) {
        LayerGraphics const & graphics = state.job(job).graphics(lowerCase(step), lowerCase(layer));
        std::size_t points = 0;
        std::vector<FeatureDrawing> list;
        list.reserve(graphics.file.features.size());
        for (std::size_t i = 0; i < graphics.file.features.size(); ++i) {
            if (!graphics.deleted[i]) {
                list.push_back(drawingOf(graphics.file, i, points));
            }
        }
        return list;
    });
}

SymbolGraphics symbolGraphics(std::string const & job, std::string const & name)
{
    return withLastError(SymbolGraphics(), [&](EngineState & state) {
        Job const & owner = state.job(job);
        auto const file = owner.symbolDrawing(name);
        if (!file) {
            throw JobError(owner.name() + ": no drawing of the symbol " + quoted(name));
        }
        SymbolGraphics graphics;
        std::size_t points = 0;
        for (std::size_t i = 0; i < file->features.size(); ++i) {
            graphics.features.push_back(infoOf(*file, i));
            graphics.drawings.push_back(drawingOf(*file, i, points));
        }
        return graphics;
    });
}

bool isCutToTables(std::string const & job, std::string const & step, std::string const & layer)
{
    return withLastError(false, [&](EngineState & state) {
        return state.job(job).graphics(lowerCase(step), lowerCase(layer)).cutToTables;
    });
}

std::vector<SymbolUse> layerSymbols(std::string const & job, std::string const & step,
                                    std::string const & layer)
{
    return withLastError(std::vector<SymbolUse>(), [&](EngineState & state) {
        SymbolUses uses;
        uses.add(state.job(job).graphics(lowerCase(step), lowerCase(layer)));
        return std::move(uses.list);
    });
}

std::vector<SymbolUse> jobSymbols(std::string const & job)
{
    return withLastError(std::vector<SymbolUse>(), [&](EngineState & state) {
        Job & owner = state.job(job);
        SymbolUses all;
        for (Step const & step : owner.steps()) {
            for (API::layer_info const & layer : owner.matrix().layers) {
                try {
                    all.add(owner.graphics(step.name, layer.name));
                } catch (JobError const & error) {
                    state.lastError = state.lastError.empty() ? error.what() : state.lastError;
                }
            }
        }
        std::vector<SymbolUse> uses = std::move(all.list);
        std::sort(uses.begin(), uses.end(), [](SymbolUse const & a, SymbolUse const & b) {
            return std::tie(a.name, a.unit) < std::tie(b.name, b.unit);
        });
        return uses;
    });
}

std::vector<Tool> tools(std::string const & job, std::string const & step, std::string const & layer)
{
    return withLastError(std::vector<Tool>(), [&](EngineState & state) {
        return state.job(job).tools(lowerCase(step), lowerCase(layer));
    });
}

} // namespace KVCAM::Embedded
