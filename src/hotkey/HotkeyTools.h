#pragma once

#include "../support/Finding.h"
#include "../support/Result.h"
#include "FuncCode.h"
#include "UIAPICommonExport.h"

#include <QString>

#include <vector>

/// Additions to the hot keys. They read what KVHotKey holds, creating it at the first call, and change
/// nothing of it. What a keyboard layout cannot type is not known here.
namespace KVCAM::UIAPI::Ext {

/// The user's hot-key file, relative to the current directory.
inline constexpr char const * hotkeyFile = "./config/keyboard.json";

/// Keys and the function that they give.
struct HotkeyBinding
{
    FuncCode code = KP_NoFunction; ///< the function
    QString name;                  ///< the function's name in the file; empty for the code that has none
    QString keys;                  ///< "Ctrl+A", or "S, G" for a sequence; the same in every language
    bool answers = false;          ///< whether pressing the keys gives this code
};

/// All bindings, those of single keys first, each kind in the order in which it is searched.
/// \since 0.1
[[nodiscard]] UIAPICOMMON_EXPORT std::vector<HotkeyBinding> hotkeyBindings();

/// What can be odd about an element of the file or about the bindings.
enum class HotkeyFindingKind : int
{
    Unreadable,      ///< the file cannot be read or is not JSON: loading it changes nothing
    NotAnArray,      ///< the top level is an object: loading the file leaves no binding
    UnknownFunction, ///< "func_name" names no function
    UnknownKey,      ///< "key", "key1" or "key2" names no key
    UnknownModifier, ///< "Modifier" names no modifier
    KeyBesidePair,   ///< "key" stands beside "key1" and "key2"
    SameKeys,        ///< the keys are bound already; the first binding answers
    NeverFires,      ///< a plain key, or a sequence with keys that cannot form one
    WithoutKey       ///< no keys give the function
};

/// One odd thing. `where` is the place in the file, "[3].key1" or "[3]"; empty in hotkeyReport().
struct HotkeyFinding : Finding<HotkeyFindingKind>
{
    int element = -1; ///< which element of the file, counting from 0; -1 for the whole
};

/// What is odd about the bindings that KVHotKey holds: keys bound twice, bindings that never fire, in the
/// order of hotkeyBindings(), and then the functions without a key, by code.
[[nodiscard]] UIAPICOMMON_EXPORT std::vector<HotkeyFinding> hotkeyReport();

/// What loading a file would do.
struct HotkeyFileCheck
{
    bool loads = false;                  ///< whether it would replace the bindings
    std::vector<HotkeyFinding> findings; ///< by element, then those of the whole
    std::vector<HotkeyBinding> bindings; ///< that would be there, in the order of the file
};

/// Reads a file of hot keys as KVHotKey would and tells, without loading it, why each element that binds
/// nothing does not, and what hotkeyReport() would say of the rest.
[[nodiscard]] UIAPICOMMON_EXPORT HotkeyFileCheck checkHotkeyFile(QString const & path);

/// What became of the latest KVHotKey::uploadHotkeyModel(), that of the object's making included: whether the
/// file's bindings took the place of those before, and if not why. A missing file is such a reason, too.
[[nodiscard]] UIAPICOMMON_EXPORT Result lastHotkeyLoad();

/// What became of an export.
struct HotkeyExport
{
    Result result;                      ///< whether the file was written
    std::vector<HotkeyBinding> leftOut; ///< what the file has no words for: the code without a name
};

/// Writes the bindings that KVHotKey holds as a file that it can load. An old file is replaced whole or stays
/// as it was; the folder must be there.
[[nodiscard]] UIAPICOMMON_EXPORT HotkeyExport exportHotkeys(QString const & path);

/// The plain key that the next one can complete to a sequence, "S"; empty when there is none. Whether a
/// sequence begins with it is what hotkeyContinuations() tells.
[[nodiscard]] UIAPICOMMON_EXPORT QString pendingHotkey();

/// A key that completes a sequence.
struct HotkeyContinuation
{
    QString key;                   ///< the key to press
    FuncCode code = KP_NoFunction; ///< what the sequence gives
    QString name;                  ///< the function's name in the file
};

/// The plain keys that give a code when pressed next, in the order of the bindings.
[[nodiscard]] UIAPICOMMON_EXPORT std::vector<HotkeyContinuation> hotkeyContinuations();

} // namespace KVCAM::UIAPI::Ext
