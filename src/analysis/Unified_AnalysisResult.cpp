#include "analysis/Unified_AnalysisResult.h"

#include "analysis/AnalysisSummary.h"
#include "analysis/UnifiedResultStore.h"

#include <utility>

namespace KVCAM::UIAPI {

struct Unified_AnalysisResult::Private
{
    UnifiedResultStore results;
    std::string job;
    std::string step;
};

namespace {

// One list for the process, made at the first call and never destroyed.
std::vector<layer_info> & layerList()
{
    static auto * const list = new std::vector<layer_info>;
    return *list;
}

} // namespace

Unified_AnalysisResult::Unified_AnalysisResult() : d(new Private) {}

Unified_AnalysisResult::~Unified_AnalysisResult()
{
    delete d;
}

Unified_AnalysisResult * Unified_AnalysisResult::instance()
{
    static auto * const object = new Unified_AnalysisResult; // never destroyed
    return object;
}

void Unified_AnalysisResult::setJobStep(std::string const & job, std::string const & step)
{
    d->job = job;
    d->step = step;
}

void Unified_AnalysisResult::setLayerInfo(std::vector<layer_info> layers)
{
    layerList() = std::move(layers);
}

bool Unified_AnalysisResult::setDrillCheckResult(
    std::map<std::string, check_reply<drill_check_item, check_info>> & replies)
{
    d->results.fileDrill(replies);
    return true;
}

bool Unified_AnalysisResult::setSignalLayerCheckResult(
    std::map<std::string, std::map<signal_layers_checks_items, signal_check_result>> & replies)
{
    d->results.fileSignal(replies);
    return true;
}

bool Unified_AnalysisResult::setRestResult(
    std::map<unified_check_items, std::map<std::string, unified_check_result>> & results)
{
    d->results.fileRest(results);
    return true;
}

bool Unified_AnalysisResult::getUnifiedResult(
    unified_check_items const & item, int const & group,
    std::vector<std::pair<std::string, std::vector<check_info>>> & out)
{
    d->results.query(item, group, layerList(), out);
    return true;
}

void Unified_AnalysisResult::jsonoutput(std::string & out)
{
    out = summaryText(d->job, d->step, d->results);
}

} // namespace KVCAM::UIAPI
