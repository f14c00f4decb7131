#pragma once

#include "AnalysisRecords.h"
#include "UIAPICommonExport.h"

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace KVCAM::UIAPI {

namespace Ext {

/// Empties Unified_AnalysisResult between two jobs, as it was at the start: results, which kinds were filed,
/// job and step, and the list of setLayerInfo(). GUI thread only.
/// \since 0.1
UIAPICOMMON_EXPORT void clearUnifiedResults();

} // namespace Ext

/// The results of the engine's checks for one job and step, by unified item and layer: filed by the setters,
/// queried by the result views, summarised as one JSON document. One object per process, created by the first
/// call of instance() and alive until the process ends. Results accumulate until other ones are filed in
/// their place or Ext::clearUnifiedResults() is called. GUI thread only; nothing is locked. Nothing is logged
/// but what is thrown, as when memory is short: the method then returns false or nothing.
class UIAPICOMMON_EXPORT Unified_AnalysisResult
{
    friend void Ext::clearUnifiedResults();

public:
    /// The object, created at the first call.
    static Unified_AnalysisResult * instance();

    Unified_AnalysisResult(Unified_AnalysisResult const &) = delete;
    Unified_AnalysisResult & operator=(Unified_AnalysisResult const &) = delete;

    /// Replaces both names (UTF-8). What is filed stays.
    void setJobStep(std::string const & job, std::string const & step);
    /// Replaces the list that orders the layers of a query by their rows. One list for the process.
    void setLayerInfo(std::vector<layer_info> layers);

    // --- Filing -------------------------------------------------------------------------------------------
    // The replies are copied and left as they are. Always true. Within each group that is built here the
    // entries are sorted ascending by their measured value, the third, fifth or seventh of their points by
    // kind (0 and 5; 1 and 2; 3). An entry of any other kind goes before whatever it is compared with; one
    // without the point in question goes before nothing.

    /// Files the drill checks of each layer under the items 9, 39 and 40, replacing these items' entries of
    /// the layer.
    bool setDrillCheckResult(std::map<std::string, check_reply<drill_check_item, check_info>> & replies);
    /// Files the signal-layer checks of each layer under the items 4, 5, 6, 7, 11, 12, 13, 14 and 26,
    /// replacing these items' entries of the layer. A check that the reply lacks gives an empty entry.
    bool setSignalLayerCheckResult(
        std::map<std::string, std::map<signal_layers_checks_items, signal_check_result>> & replies);
    /// Replaces all layers of each item handed in; stored as given, unsorted.
    bool setRestResult(std::map<unified_check_items, std::map<std::string, unified_check_result>> & results);

    // --- Asking -------------------------------------------------------------------------------------------

    /// Appends the group (0 to 3) of each layer of an item, then sorts all of `out`, what was in it before
    /// included, by the layers' rows; layers that the list of setLayerInfo() lacks have the row -1. The order
    /// of equal rows means nothing. A group out of range leaves `out` untouched. Always true.
    bool getUnifiedResult(unified_check_items const & item, int const & group,
                          std::vector<std::pair<std::string, std::vector<check_info>>> & out);

    /// Replaces `out` by the summary of the board: an array of 49 objects of one key each, styled with three
    /// spaces, pure ASCII (other characters escaped). Values are the engine's, unconverted.
    void jsonoutput(std::string & out);

private:
    Unified_AnalysisResult();
    ~Unified_AnalysisResult();

    struct Private;
    Private * d; // owned
};

} // namespace KVCAM::UIAPI
