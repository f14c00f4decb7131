#pragma once

#include "hotkey/FunctionTable.h"

#include <qnamespace.h>

#include <utility>
#include <vector>

namespace KVCAM::UIAPI {

/// One binding as plain numbers.
struct HotkeyEntry
{
    FuncCode code = KP_NoFunction;
    Qt::KeyboardModifiers modifiers; ///< for a single key
    int key = noKey;                 ///< the key, or the first of a sequence
    int second = noKey;              ///< the second key of a sequence, else noKey

    bool isSequence() const { return second != noKey; }
};

/// The two tables of bindings. Entries keep the order in which they were added. Duplicates are allowed; the
/// first one answers.
struct HotkeyTables
{
    std::vector<HotkeyEntry> singles;
    std::vector<HotkeyEntry> sequences;

    void add(HotkeyEntry const & entry);
    /// The bindings of the default table.
    void addDefaults();
    /// The code of a key with exactly these modifiers, else KP_NoFunction.
    FuncCode find(int key, Qt::KeyboardModifiers modifiers) const;
    /// The code of a sequence, else KP_NoFunction.
    FuncCode find(std::pair<int, int> const & keys) const;
    /// All bindings, the single keys first.
    std::vector<HotkeyEntry> entries() const;
};

} // namespace KVCAM::UIAPI
