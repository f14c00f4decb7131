#pragma once

#include "FuncCode.h"
#include "UIAPICommonExport.h"

#include <QObject>

class QJsonArray;
class QKeyEvent;

/// \addtogroup hot_keys
namespace KVCAM {

namespace UIAPI {
struct HotkeyAccess;
}

/// Turns key presses into function codes: a key with modifiers (Ctrl+A), or two plain keys one after the
/// other (S, G). One object, created by the first call that needs it and never destroyed. GUI thread only;
/// nothing is locked.
///
/// It starts with a default table. The user's "./config/keyboard.json", relative to the current directory,
/// replaces it if it exists and parses. Only exceptions are logged, for example out of memory (the method
/// then returns its neutral result); Ext::checkHotkeyFile() reports what is wrong with a file.
///
/// The file is a JSON array of objects with strings: "func_name" with "Modifier" ("", "Shift", "Ctrl") and
/// "key", or "func_name" with "key1" and "key2". Keys are the characters "0" to "`", "a" to "z" for the same
/// letters, and "Up", "Left", "Right", "Down". An element that binds nothing is skipped. A missing member is
/// the empty text. Of two bindings of the same keys the first answers.
class UIAPICOMMON_EXPORT KVHotKey : public QObject
{
    Q_OBJECT

public:
    /// The object, created at the first call. Do not delete it.
    static KVHotKey * getInstance();
    /// Null until the first call of getInstance(). Do not assign to it.
    static KVHotKey * m_pKVHotKeyInstance;

    ~KVHotKey() override;
    KVHotKey(KVHotKey const &) = delete;
    KVHotKey & operator=(KVHotKey const &) = delete;

    /// The function requested by the key press; KP_NoFunction for none and for a null event. Only the event's
    /// key and modifiers are used; it is not owned.
    ///
    /// A plain key is added to the key buffer and gives the code of the sequence then in the buffer. A key
    /// with any modifier, including the keypad's, clears the buffer and gives the code of the binding with
    /// that key and exactly these modifiers. A plain key is therefore never a binding by itself. A match does
    /// not clear the buffer: after S, S a following O gives S, O.
    FuncCode getFunctionCode(QKeyEvent * event);

    /// Adds a key to the buffer of the last two plain keys.
    void buffAddKey(Qt::Key key);
    /// Empties the buffer.
    void buffClear();
    /// Whether the buffer holds two keys that can be a sequence: both in 48 to 122, or both in 12 to 15.
    bool buffHasGroup();

    /// Replaces the single-key bindings with the default ones. The default sequences are added to the
    /// existing ones.
    void initHotkeyTable();
    /// Replaces all bindings with those of "./config/keyboard.json". A file that cannot be read or parsed
    /// changes nothing; a file that is not an array leaves no bindings at all. Ext::lastHotkeyLoad() reports
    /// the result.
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
