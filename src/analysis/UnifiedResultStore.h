#pragma once

#include "analysis/AnalysisRecords.h"

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace KVCAM::UIAPI {

using LayerEntries = std::pair<std::string, std::vector<check_info>>;

/// Sorts by the layers' rows. A layer not in the list has row -1; of duplicates the first counts. The
/// comparison is "less than or equal", so equal rows swap places.
void sortByRow(std::vector<LayerEntries> & entries, std::vector<layer_info> const & layers);

/// The stored results by unified item and layer.
class UnifiedResultStore
{
public:
    using Layers = std::map<std::string, unified_check_result>;
    using Items = std::map<unified_check_items, Layers>;
    using DrillReplies = std::map<std::string, check_reply<drill_check_item, check_info>>;
    using SignalReplies = std::map<std::string, std::map<signal_layers_checks_items, signal_check_result>>;

    void fileDrill(DrillReplies const & replies);
    void fileSignal(SignalReplies const & replies);
    void fileRest(Items const & results);

    /// The layers of an item; null for an item never filed.
    Layers const * find(unified_check_items item) const;
    /// Appends a group of each layer of an item and sorts all of `out` by `layers`. No effect for a group out
    /// of range.
    void query(unified_check_items item, int group, std::vector<layer_info> const & layers,
               std::vector<LayerEntries> & out) const;
    /// Whether drill or signal-layer results were ever filed.
    bool hasDrill() const { return m_hasDrill; }
    bool hasSignal() const { return m_hasSignal; }

private:
    Items m_items;
    bool m_hasDrill = false;
    bool m_hasSignal = false;
};

} // namespace KVCAM::UIAPI
