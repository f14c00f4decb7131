#pragma once

#include "../support/Finding.h"
#include "../support/Result.h"
#include "FuncCode.h"
#include "UIAPICommonExport.h"

#include <QString>

#include <vector>

/// \addtogroup hot_keys
/// Keys and the functions that they request. The additions read the bindings of KVHotKey, creating it at the
/// first call, and do not change them. Keyboard layouts are not considered: a key that a layout cannot type
/// is not reported. GUI thread only.
namespace KVCAM::UIAPI::Ext {

/// The user's hot-key file, relative to the current directory.
inline constexpr char const * hotkeyFile = "./config/keyboard.json";

/// A binding: keys and the function that they request.
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

/// What can be wrong with an element of the file or with the bindings.
enum class HotkeyFindingKind : int
{
    Unreadable,      ///< the file cannot be read or is not JSON: loading it changes nothing
    NotAnArray,      ///< the top level is an object: loading the file leaves no binding
    UnknownFunction, ///< "func_name" names no function
    UnknownKey,      ///< "key", "key1" or "key2" names no key
    UnknownModifier, ///< "Modifier" names no modifier
    KeyBesidePair,   ///< "key" appears together with "key1" and "key2"
    SameKeys,        ///< the keys are bound already; the first binding answers
    NeverFires,      ///< a plain key, or a sequence with keys that cannot form one
    WithoutKey       ///< no keys trigger the function
};

/// One finding. `where` is the place in the file, "[3].key1" or "[3]"; empty in hotkeyReport().
struct HotkeyFinding : Finding<HotkeyFindingKind>
{
    int element = -1; ///< which element of the file, counting from 0; -1 for the whole
};

/// The bindings that KVHotKey starts with, in the same order; whatever it holds now.
[[nodiscard]] UIAPICOMMON_EXPORT std::vector<HotkeyBinding> defaultHotkeyBindings();

/// What is wrong with the bindings held by KVHotKey: keys bound twice, bindings that never fire, in the order
/// of hotkeyBindings(), and then the functions without a key, by code.
[[nodiscard]] UIAPICOMMON_EXPORT std::vector<HotkeyFinding> hotkeyReport();

/// What loading a file would do.
struct HotkeyFileCheck
{
    bool loads = false;                  ///< whether it would replace the bindings
    std::vector<HotkeyFinding> findings; ///< by element, then those of the whole file
    std::vector<HotkeyBinding> bindings; ///< that would result, in file order
};

/// Reads a hot-key file as KVHotKey would, without loading it; a relative path is that of userFile(). Reports
/// why elements bind nothing, and what hotkeyReport() would report for the rest.
[[nodiscard]] UIAPICOMMON_EXPORT HotkeyFileCheck checkHotkeyFile(QString const & path);

/// The result of the latest KVHotKey::uploadHotkeyModel(), including the one at creation: whether the file's
/// bindings replaced the previous ones, and if not, why. A missing file is also such a reason.
[[nodiscard]] UIAPICOMMON_EXPORT Result lastHotkeyLoad();

/// The result of an export.
struct HotkeyExport
{
    Result result;                      ///< whether the file was written
    std::vector<HotkeyBinding> leftOut; ///< what the file cannot express: the code without a name
};

/// Writes the bindings held by KVHotKey as a file that it can load; a relative path is that of userFile(). An
/// old file is replaced as a whole or left unchanged; the folder must exist.
[[nodiscard]] UIAPICOMMON_EXPORT HotkeyExport exportHotkeys(QString const & path);

/// What saving these bindings and loading the file would find, as checkHotkeyFile() does; `element` counts in
/// `bindings`. Only their codes and keys are used, with the keys as hotkeyBindings() gives them. What the
/// file cannot express is an UnknownFunction or an UnknownKey.
[[nodiscard]] UIAPICOMMON_EXPORT std::vector<HotkeyFinding>
checkHotkeyBindings(std::vector<HotkeyBinding> const & bindings);

/// Writes other bindings than those held, in the same way as exportHotkeys(). KVHotKey keeps what it holds.
[[nodiscard]] UIAPICOMMON_EXPORT HotkeyExport saveHotkeys(QString const & path,
                                                          std::vector<HotkeyBinding> const & bindings);

/// The plain key that the next one can complete to a sequence, "S"; empty if there is none.
/// hotkeyContinuations() tells whether a sequence starts with it.
[[nodiscard]] UIAPICOMMON_EXPORT QString pendingHotkey();

/// A key that completes a sequence.
struct HotkeyContinuation
{
    QString key;                   ///< the key to press
    FuncCode code = KP_NoFunction; ///< the function that the sequence requests
    QString name;                  ///< the function's name in the file
};

/// The plain keys that give a code if pressed next, in binding order.
[[nodiscard]] UIAPICOMMON_EXPORT std::vector<HotkeyContinuation> hotkeyContinuations();

} // namespace KVCAM::UIAPI::Ext
