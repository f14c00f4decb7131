#pragma once

// Hot keys: what KVHotKey holds, and the user's file.
//
//   hotkeyFile              where KVHotKey reads the user's file
//   hotkeyBindings()        the bindings held, with the keys in words
//   hotkeyReport()          what is odd about them
//   checkHotkeyFile()       what loading a file would do, without loading it
//   lastHotkeyLoad()        whether the last KVHotKey::uploadHotkeyModel() took the file
//   exportHotkeys()         writes the bindings held as such a file
//   pendingHotkey()         the first key of a sequence that may follow
//   hotkeyContinuations()   the keys that complete it
//
// A page of hot keys: hotkeyBindings() fills the table, checkHotkeyFile(hotkeyFile) its findings,
// exportHotkeys() writes, KVHotKey::uploadHotkeyModel() loads again and lastHotkeyLoad() tells how it went.
// pendingHotkey() and hotkeyContinuations() belong after each KVHotKey::getFunctionCode(), for a hint in the
// status bar.

#include "../hotkey/HotkeyTools.h"
