#pragma once

#include "AnalysisRecords.h"
#include "UIAPICommonExport.h"

#include <map>
#include <string>
#include <utility>
#include <vector>

/// \addtogroup results
namespace KVCAM::UIAPI {

namespace Ext {

/// Resets Unified_AnalysisResult to its initial state between two jobs: results, which kinds were filed, job
/// and step, and the list of setLayerInfo(). GUI thread only.
/// \since 0.1
UIAPICOMMON_EXPORT void clearUnifiedResults();

} // namespace Ext

/// The results of the engine's checks for one job and step, by unified item and layer: filed by the setters,
/// queried by the result views, summarised as one JSON document. One object per process, created by the first
/// call of instance() and never destroyed. Results accumulate until they are replaced or
/// Ext::clearUnifiedResults() is called. GUI thread only; nothing is locked. Only exceptions are logged, for
/// example out of memory; the method then returns false or nothing.
class UIAPICOMMON_EXPORT Unified_AnalysisResult
{
    friend struct UnifiedResultsAccess;

public:
    /// The object, created at the first call.
    static Unified_AnalysisResult * instance();

    Unified_AnalysisResult(Unified_AnalysisResult const &) = delete;
    Unified_AnalysisResult & operator=(Unified_AnalysisResult const &) = delete;

    /// Replaces both names (UTF-8). Filed results are kept.
    void setJobStep(std::string const & job, std::string const & step);
    /// Replaces the list that orders the layers of a query by their rows. One list for the process.
    void setLayerInfo(std::vector<layer_info> layers);

    // --- Filing -------------------------------------------------------------------------------------------
    // The replies are copied and not modified. Always true. Within each group built here the entries are
    // sorted ascending by their measured value: the third, fifth or seventh of their points, by kind (0 and
    // 5; 1 and 2; 3). An entry of any other kind goes before anything it is compared with; an entry without
    // the relevant point goes before nothing.

    /// Files the drill checks of each layer under the items 9, 39 and 40, replacing these items' entries of
    /// the layer.
    bool setDrillCheckResult(std::map<std::string, check_reply<drill_check_item, check_info>> & replies);
    /// Files the signal-layer checks of each layer under the items 4, 5, 6, 7, 11, 12, 13, 14 and 26,
    /// replacing these items' entries of the layer. A check missing from the reply gives an empty entry.
    bool setSignalLayerCheckResult(
        std::map<std::string, std::map<signal_layers_checks_items, signal_check_result>> & replies);
    /// Replaces all layers of each given item; stored as given, unsorted.
    bool setRestResult(std::map<unified_check_items, std::map<std::string, unified_check_result>> & results);

    // --- Queries ------------------------------------------------------------------------------------------

    /// Appends the group (0 to 3) of each layer of an item, then sorts all of `out`, including its previous
    /// content, by the layers' rows. Layers not in the list of setLayerInfo() have row -1. The order of equal
    /// rows is meaningless. A group out of range leaves `out` unchanged. Always true.
    bool getUnifiedResult(unified_check_items const & item, int const & group,
                          std::vector<std::pair<std::string, std::vector<check_info>>> & out);

    /// Replaces `out` with the summary of the board: an array of 49 objects with one key each, indented by
    /// three spaces, pure ASCII (other characters escaped). Values are the engine's, unconverted.
    void jsonoutput(std::string & out);

private:
    Unified_AnalysisResult();
    ~Unified_AnalysisResult();

    struct Private;
    Private * d; // owned
};

} // namespace KVCAM::UIAPI
