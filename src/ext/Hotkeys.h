#pragma once

// Hot keys: those of a dialog, what KVHotKey holds, and the user's file.
//
//   attachHotkeys()         gives a dialog or page hot keys
//   HotkeyAttachment        its hot keys: which repeat, when they are off, what was pressed
//   hotkeyFile              the path of the user's file
//   hotkeyBindings()        the bindings held, with the keys in words
//   defaultHotkeyBindings() the bindings before any file is loaded
//   hotkeyReport()          what is odd about them
//   checkHotkeyFile()       what loading a file would do, without loading it
//   lastHotkeyLoad()        whether the last KVHotKey::uploadHotkeyModel() loaded the file
//   exportHotkeys()         writes the bindings held as such a file
//   checkHotkeyBindings()   what such a file of other bindings would be reported for
//   saveHotkeys()           writes other bindings
//   pendingHotkey()         the first key of a sequence that may follow
//   hotkeyContinuations()   the keys that complete it
//
// A page of hot keys: hotkeyBindings() fills the table, checkHotkeyFile(hotkeyFile) its findings,
// exportHotkeys() writes, KVHotKey::uploadHotkeyModel() loads again and lastHotkeyLoad() has the result. To
// change a key, change a copy of hotkeyBindings(), ask checkHotkeyBindings(), saveHotkeys() and load again.
// For a hint in the status bar, call pendingHotkey() and hotkeyContinuations() after each
// HotkeyAttachment::keySeen(), or each KVHotKey::getFunctionCode() of one's own.

#include "../hotkey/HotkeyAttachment.h"
#include "../hotkey/HotkeyTools.h"
