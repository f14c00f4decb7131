#pragma once

#include <UIAPICommon.h>
#include <UIAPICommonExt.h>

#include <QString>

#include <cstddef>
#include <vector>

namespace Workbench {

/// Hot keys while the user changes them.
class KeyPlan
{
public:
    using Binding = KVCAM::UIAPI::Ext::HotkeyBinding;

    KeyPlan() = default;
    /// Begins with bindings in the order in which they are searched.
    explicit KeyPlan(std::vector<Binding> bindings);

    /// A row for each binding, and one without keys for each function that has none; by function.
    std::vector<Binding> const & rows() const { return m_rows; }
    /// Gives a row other keys, none if empty. Another row with these keys loses them.
    void change(std::size_t row, QString const & keys);
    /// Gives the function of a row further keys, likewise.
    void add(std::size_t row, QString const & keys);
    /// The first row other than `row` that has these keys; -1 if there is none.
    int holderOf(QString const & keys, std::size_t row) const;
    /// What is to be saved.
    std::vector<Binding> bindings() const;

private:
    void take(QString const & keys);
    void arrange();

    std::vector<Binding> m_rows;
};

/// What giving keys to a row would mean.
enum class KeyVerdict
{
    Free,
    Own,       ///< the row has them
    Taken,     ///< another row loses them
    Impossible ///< they never answer, or no file can name them
};
KeyVerdict verdictOn(KeyPlan const & plan, std::size_t row, QString const & keys);

/// Puts keys that are pressed one after the other into words, as the bindings have them: a key with a
/// modifier alone, plain keys in pairs.
class KeyRecorder
{
public:
    /// Keys that only modify others are passed over.
    void press(int key, Qt::KeyboardModifiers modifiers);
    void clear() { *this = {}; }
    /// "Ctrl+A", "S, G", or "S" while a second key is missing.
    QString const & keys() const { return m_keys; }
    bool isComplete() const { return m_isComplete; }

private:
    QString m_keys;
    bool m_isComplete = false;
};

/// The user's file, from which the library reads the keys.
QString keysFile();

/// The outcome of saving.
struct KeysSaved
{
    QString problem; ///< empty if the file is written and loaded
    QString backup;  ///< the copy of the file that was there; empty without one
    std::vector<KeyPlan::Binding> leftOut;
};

/// Writes bindings as the user's file and loads it. A file that is there is copied to "...bak" first if it
/// holds anything that the library did not read, or with `keepsOld`; an older copy is never overwritten.
/// Without the copy nothing is written.
KeysSaved saveKeys(std::vector<KeyPlan::Binding> const & bindings, bool keepsOld);

} // namespace Workbench
