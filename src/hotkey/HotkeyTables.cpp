#include "hotkey/HotkeyTables.h"

#include <algorithm>

namespace KVCAM::UIAPI {
namespace {

template <class Matches>
FuncCode firstCode(std::vector<HotkeyEntry> const & table, Matches const & matches)
{
    auto const entry = std::find_if(table.begin(), table.end(), matches);
    return entry == table.end() ? KP_NoFunction : entry->code;
}

} // namespace

void HotkeyTables::add(HotkeyEntry const & entry)
{
    (entry.isSequence() ? sequences : singles).push_back(entry);
}

void HotkeyTables::addDefaults()
{
    for (HotkeyFunction const & row : HotkeyFunctions::table) {
        add({row.code, row.modifier, row.key, row.second});
    }
}

FuncCode HotkeyTables::find(int key, Qt::KeyboardModifiers modifiers) const
{
    return firstCode(
        singles, [&](HotkeyEntry const & entry) { return entry.key == key && entry.modifiers == modifiers; });
}

FuncCode HotkeyTables::find(std::pair<int, int> const & keys) const
{
    return firstCode(sequences, [&](HotkeyEntry const & entry) {
        return entry.key == keys.first && entry.second == keys.second;
    });
}

std::vector<HotkeyEntry> HotkeyTables::entries() const
{
    std::vector<HotkeyEntry> result = singles;
    result.insert(result.end(), sequences.begin(), sequences.end());
    return result;
}

} // namespace KVCAM::UIAPI
