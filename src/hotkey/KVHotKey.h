#pragma once

#include "FuncCode.h"
#include "UIAPICommonExport.h"

#include <QObject>

class QJsonArray;
class QKeyEvent;

namespace KVCAM {

namespace UIAPI {
struct HotkeyAccess;
}

/// Turns key presses into function codes: a key with modifiers (Ctrl+A), or two plain keys one after the
/// other (S, G). One object, created by the first call that needs it and alive until the process ends. Use it
/// from the GUI thread only; nothing is locked.
///
/// It starts from a default table, which the user's "./config/keyboard.json", relative to the current
/// directory, replaces when it is there and parses. Nothing is logged but what is thrown, as when memory is
/// short (the method then gives its neutral result); Ext::checkHotkeyFile() tells what is wrong with a file.
///
/// The file is a JSON array of objects with texts: "func_name" with "Modifier" ("", "Shift", "Ctrl") and
/// "key", or "func_name" with "key1" and "key2". Keys are the characters "0" to "`", "a" to "z" for the same
/// letters, and "Up", "Left", "Right", "Down". An element that binds nothing is left out; a missing member is
/// the empty text; of two bindings of the same keys the first answers.
class UIAPICOMMON_EXPORT KVHotKey : public QObject
{
    Q_OBJECT

public:
    /// The object, created at the first call. Not to be deleted.
    static KVHotKey * getInstance();
    /// Null until getInstance() was called for the first time. Not to be assigned to.
    static KVHotKey * m_pKVHotKeyInstance;

    ~KVHotKey() override;
    KVHotKey(KVHotKey const &) = delete;
    KVHotKey & operator=(KVHotKey const &) = delete;

    /// What the key press asks for, KP_NoFunction for nothing and for a null event. Of the event only its key
    /// and its modifiers count; it is not owned.
    ///
    /// A plain key is added to the key buffer and gives the code of the sequence that the buffer then holds.
    /// A key with any modifier, that of the keypad included, clears the buffer and gives the code of the
    /// binding with that key and exactly these modifiers. A plain key is therefore never a binding by itself,
    /// and after S, S a following O is S, O: a match does not clear the buffer.
    FuncCode getFunctionCode(QKeyEvent * event);

    /// Adds a key to the buffer of the last two plain keys.
    void buffAddKey(Qt::Key key);
    /// Empties the buffer.
    void buffClear();
    /// Whether the buffer holds two keys that can be a sequence: both in 48 to 122, or both in 12 to 15.
    bool buffHasGroup();

    /// Replaces the bindings of single keys by the default ones. The default sequences are added to those
    /// that are there.
    void initHotkeyTable();
    /// Replaces all bindings by those of "./config/keyboard.json". A file that cannot be read or parsed
    /// changes nothing; one that is not an array leaves no binding at all. Ext::lastHotkeyLoad() tells.
    void uploadHotkeyModel();

private:
    friend struct UIAPI::HotkeyAccess;
    struct Private;

    KVHotKey();
    void initKeyNameMap();
    void initKeyboardModifiersMap();
    void initFuncNameMap();
    void initAllMap();
    void updateHotkeyTable(QJsonArray const & array);

    Private * d; // owned
};

} // namespace KVCAM
