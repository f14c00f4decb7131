#include "hotkey/HotkeyTables.h"

#include <algorithm>

namespace KVCAM::UIAPI {
namespace {

template <class Table, class Matches>
FuncCode firstCode(Table const & table, Matches const & matches)
{
    auto const entry = std::find_if(table.begin(), table.end(), matches);
    return entry == table.end() ? KP_NoFunction : entry->code;
}

} // namespace

void HotkeyTables::add(HotkeyEntry const & entry)
{
    if (entry.isSequence()) {
        sequences.push_back({std::make_unique<std::pair<int, int>>(entry.key, entry.second), entry.code});
    } else {
        singles.push_back(
            {std::make_unique<QKeyEvent>(QEvent::KeyPress, entry.key, entry.modifiers), entry.code});
    }
}

void HotkeyTables::addDefaults()
{
    for (HotkeyFunction const & row : HotkeyFunctions::table) {
        add({row.code, row.modifier, row.key, row.second});
    }
}

FuncCode HotkeyTables::find(int key, Qt::KeyboardModifiers modifiers) const
{
    return firstCode(singles, [&](Single const & entry) {
        return entry.event->key() == key && entry.event->modifiers() == modifiers;
    });
}

FuncCode HotkeyTables::find(std::pair<int, int> const & keys) const
{
    return firstCode(sequences, [&](Sequence const & entry) { return *entry.keys == keys; });
}

std::vector<HotkeyEntry> HotkeyTables::entries() const
{
    std::vector<HotkeyEntry> result;
    result.reserve(singles.size() + sequences.size());
    for (Single const & entry : singles) {
        result.push_back({entry.code, entry.event->modifiers(), entry.event->key(), noKey});
    }
    for (Sequence const & entry : sequences) {
        result.push_back({entry.code, Qt::NoModifier, entry.keys->first, entry.keys->second});
    }
    return result;
}

} // namespace KVCAM::UIAPI
