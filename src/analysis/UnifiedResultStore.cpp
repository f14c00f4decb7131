#include "analysis/UnifiedResultStore.h"

#include "analysis/BoundedMergeSort.h"
#include "analysis/CheckOrder.h"

#include <array>
#include <cstddef>
#include <string_view>
#include <unordered_map>

namespace KVCAM::UIAPI {
namespace {

constexpr int noItem = -1;

// The engine checks grouped under one unified item, in order.
struct Filing
{
    unified_check_items item;
    std::array<int, 3> checks;
};

constexpr std::array<Filing, 3> drillFilings = {{
    {UNIFIED_HOLE_SUMMARY, {2, 1, noItem}},
    {UNIFIED_CLOSE_PTHS, {28, 34, noItem}},
    {UNIFIED_CLOSE_VIAS, {29, 35, noItem}},
}};

constexpr std::array<Filing, 9> signalFilings = {{
    {UNIFIED_LINES, {46, noItem, noItem}},
    {UNIFIED_CIRCUIT_TO_CIRCUIT, {3, noItem, noItem}},
    {UNIFIED_PADS, {45, noItem, noItem}},
    {UNIFIED_SMD_TO_SMD, {12, noItem, noItem}},
    {UNIFIED_ANNULAR_RINGS, {33, 31, 36}},
    {UNIFIED_HOLE_TO_HOLE, {14, 15, noItem}},
    {UNIFIED_HOLE_TO_LINE, {26, 29, noItem}},
    {UNIFIED_ROUT_TO_COPPER, {43, noItem, noItem}},
    {UNIFIED_LINE_TO_LINE, {4, noItem, noItem}},
}};

// One group of each check, as found by `listOf(check, group)`; null if there is none.
template <class ListOf>
unified_check_result gather(std::array<int, 3> const & checks, ListOf listOf)
{
    unified_check_result result;
    for (std::size_t group = 0; group < result.groups.size(); ++group) {
        std::vector<std::vector<check_info> const *> lists;
        for (int const check : checks) {
            std::vector<check_info> const * list = check == noItem ? nullptr : listOf(check, group);
            if (list != nullptr) {
                lists.push_back(list);
            }
        }
        result.groups[group] = sortedByMeasure(lists);
    }
    return result;
}

} // namespace

void UnifiedResultStore::fileDrill(DrillReplies const & replies)
{
    constexpr std::size_t levels = 3; // a reply has no more levels; the fourth group stays empty
    for (auto const & [layer, reply] : replies) {
        auto const listOf = [&reply = reply](int check, std::size_t level) {
            return level < levels ? &reply.list(static_cast<drill_check_item>(check), static_cast<int>(level))
                                  : nullptr;
        };
        for (Filing const & filing : drillFilings) {
            m_items[filing.item].insert_or_assign(layer, gather(filing.checks, listOf));
        }
    }
    m_hasDrill = true;
}

void UnifiedResultStore::fileSignal(SignalReplies const & replies)
{
    for (auto const & [layer, reply] : replies) {
        auto const listOf = [&reply = reply](int check, std::size_t group) {
            auto const found = reply.find(static_cast<signal_layers_checks_items>(check));
            return found == reply.end() ? nullptr : &found->second.lists[group];
        };
        for (Filing const & filing : signalFilings) {
            m_items[filing.item].insert_or_assign(layer, gather(filing.checks, listOf));
        }
    }
    m_hasSignal = true;
}

void UnifiedResultStore::fileRest(Items const & results)
{
    for (auto const & [item, layers] : results) {
        m_items.insert_or_assign(item, layers);
    }
}

UnifiedResultStore::Layers const * UnifiedResultStore::find(unified_check_items item) const
{
    auto const found = m_items.find(item);
    return found == m_items.end() ? nullptr : &found->second;
}

void UnifiedResultStore::query(unified_check_items item, int group, std::vector<layer_info> const & layers,
                               std::vector<LayerEntries> & out) const
{
    if (group < 0 || group >= static_cast<int>(unified_check_result{}.groups.size())) {
        return;
    }
    if (Layers const * filed = find(item)) {
        out.reserve(out.size() + filed->size());
        for (auto const & [layer, result] : *filed) {
            out.emplace_back(layer, result.groups[static_cast<std::size_t>(group)]);
        }
    }
    sortByRow(out, layers);
}

void sortByRow(std::vector<LayerEntries> & entries, std::vector<layer_info> const & layers)
{
    struct RowKey
    {
        int row = -1;
        std::size_t index = 0;
    };
    std::unordered_map<std::string_view, int> rows;
    for (layer_info const & layer : layers) {
        rows.try_emplace(layer.name, layer.row);
    }
    std::vector<RowKey> keys;
    keys.reserve(entries.size());
    for (LayerEntries const & entry : entries) {
        auto const found = rows.find(entry.first);
        keys.push_back({found == rows.end() ? -1 : found->second, keys.size()});
    }
    boundedMergeSort(keys, [](RowKey const & a, RowKey const & b) { return a.row <= b.row; });
    permute(entries, keys);
}

} // namespace KVCAM::UIAPI
