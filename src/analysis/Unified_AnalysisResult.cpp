#include "analysis/Unified_AnalysisResult.h"

#include "analysis/AnalysisSummary.h"
#include "analysis/UnifiedResultStore.h"
#include "support/Compiler.h"
#include "support/Guard.h"
#include "support/Log.h"
#include "support/Singleton.h"

#include <utility>

namespace KVCAM::UIAPI {

struct Unified_AnalysisResult::Private
{
    UnifiedResultStore results;
    std::string job;
    std::string step;
};

namespace {

// Every public method runs inside this.
template <class Body>
auto guardedResult(Body && body, int line = UIAPI_CALLER_LINE)
{
    return guarded(Log::analysisResult, std::forward<Body>(body), line);
}

// One list per process, created on the first call and never destroyed.
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
    static Unified_AnalysisResult * object = nullptr; // never destroyed
    return Singleton::obtain(
        object, [] { return new Unified_AnalysisResult; }, [](Unified_AnalysisResult &) {});
}

/// What Ext::clearUnifiedResults() sees of the object. A friend function cannot be exported from a DLL.
struct UnifiedResultsAccess
{
    static void clear() { *Unified_AnalysisResult::instance()->d = {}; }
};

void Ext::clearUnifiedResults()
{
    UnifiedResultsAccess::clear();
    layerList().clear();
}

void Unified_AnalysisResult::setJobStep(std::string const & job, std::string const & step)
{
    guardedResult([&] {
        d->job = job;
        d->step = step;
    });
}

void Unified_AnalysisResult::setLayerInfo(std::vector<layer_info> layers)
{
    guardedResult([&] { layerList() = std::move(layers); });
}

bool Unified_AnalysisResult::setDrillCheckResult(
    std::map<std::string, check_reply<drill_check_item, check_info>> & replies)
{
    return guardedResult([&] {
        d->results.fileDrill(replies);
        return true;
    });
}

bool Unified_AnalysisResult::setSignalLayerCheckResult(
    std::map<std::string, std::map<signal_layers_checks_items, signal_check_result>> & replies)
{
    return guardedResult([&] {
        d->results.fileSignal(replies);
        return true;
    });
}

bool Unified_AnalysisResult::setRestResult(
    std::map<unified_check_items, std::map<std::string, unified_check_result>> & results)
{
    return guardedResult([&] {
        d->results.fileRest(results);
        return true;
    });
}

bool Unified_AnalysisResult::getUnifiedResult(
    unified_check_items const & item, int const & group,
    std::vector<std::pair<std::string, std::vector<check_info>>> & out)
{
    return guardedResult([&] {
        d->results.query(item, group, layerList(), out);
        return true;
    });
}

void Unified_AnalysisResult::jsonoutput(std::string & out)
{
    guardedResult([&] { out = summaryText(d->job, d->step, d->results); });
}

} // namespace KVCAM::UIAPI
