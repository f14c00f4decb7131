#pragma once

#include "hotkey/HotkeyNames.h"
#include "hotkey/HotkeyTables.h"
#include "hotkey/KVHotKey.h"
#include "hotkey/KeyBuffer.h"
#include "support/Result.h"

namespace KVCAM {

struct KVHotKey::Private
{
    UIAPI::HotkeyNames names;
    UIAPI::HotkeyTables tables;
    UIAPI::KeyBuffer buffer;
    UIAPI::Ext::Result lastLoad; ///< result of the last load
};

/// Gives the tools read access to the object's state.
struct UIAPI::HotkeyAccess
{
    static KVHotKey::Private const & read() { return *KVHotKey::getInstance()->d; }
};

} // namespace KVCAM
