#pragma once

#include "hotkey/FunctionTable.h"

namespace KVCAM::UIAPI {

/// The last two plain keys pressed.
struct KeyBuffer
{
    int previous = noKey;
    int latest = noKey;

    void add(int key)
    {
        if (previous == noKey) {
            previous = key;
            latest = noKey;
            return;
        }
        if (latest != noKey) {
            previous = latest;
        }
        latest = key;
    }
    void clear() { *this = {}; }
    bool hasGroup() const { return isGroup(previous, latest); }
    /// The key that can start a sequence with the next one; noKey if there is none.
    int pending() const { return latest != noKey ? latest : previous; }

    /// Whether two keys can be a sequence. 12 to 15 are literal numbers, not the codes of the arrow keys:
    /// arrow keys never form a sequence.
    static constexpr bool isGroup(int first, int second)
    {
        auto const both = [first, second](int lowest, int highest) {
            return first >= lowest && first <= highest && second >= lowest && second <= highest;
        };
        return both(48, 122) || both(12, 15);
    }
};

} // namespace KVCAM::UIAPI
