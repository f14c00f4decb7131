#include "EmbeddedEngine.h"

#include "formats/JobPaths.h"
#include "state/EngineState.h"
#include "state/JobSaving.h"

#include <utility>

namespace KVCAM::Embedded {
namespace {

// Checks an operation, records it and does it; false, with lastError() set, if one of these fails.
bool perform(std::string const & job, std::string const & step, std::string const & layer,
             std::vector<int> const & indices, SymbolEntry const & symbol)
{
    return withLastError(false, [&](EngineState & state) {
        Job & owner = state.job(job);
        std::string const stepName = lowerCase(step);
        Operation operation = owner.checked(stepName, lowerCase(layer), indices, symbol);
        if (state.database.isOpen()) {
            state.addRow([&](long long number) {
                state.database.addOperation(number, lowerCase(owner.name()), stepName, operation);
            });
        }
        owner.apply(stepName, std::move(operation));
        return true;
    });
}

} // namespace

bool deleteFeatures(std::string const & job, std::string const & step, std::string const & layer,
                    std::vector<int> const & indices)
{
    return perform(job, step, layer, indices, {});
}

bool changeSymbol(std::string const & job, std::string const & step, std::string const & layer,
                  std::vector<int> const & indices, std::string const & symbol, int unit)
{
    if (symbol.empty() || unit < 0 || unit > 1) {
        EngineState::get().lastError = symbol.empty() ? "the symbol has no name" : "no such unit";
        return false;
    }
    return perform(job, step, layer, indices, {symbol, unit});
}

std::string featureNet(std::string const & job, std::string const & step, std::string const & layer,
                       int index)
{
    return withLastError(std::string(), [&](EngineState & state) {
        return state.job(job).net(lowerCase(step), lowerCase(layer), index);
    });
}

std::vector<FeatureAttribute> featureAttributes(std::string const & job, std::string const & step,
                                                std::string const & layer, int index)
{
    return withLastError(std::vector<FeatureAttribute>(), [&](EngineState & state) {
        return state.job(job).attributes(lowerCase(step), lowerCase(layer), index);
    });
}

bool isJobChanged(std::string const & job)
{
    return withLastError(false, [&](EngineState & state) { return state.job(job).isChanged(); });
}

bool saveJobAs(std::string const & job, std::string const & folder)
{
    return withLastError(false, [&](EngineState & state) {
        Job & owner = state.job(job);
        saveJob(owner, QString::fromStdString(folder));
        owner.setSaved();
        return true;
    });
}

} // namespace KVCAM::Embedded
