#pragma once

#include "hotkey/FuncCode.h"

#include <QString>
#include <qnamespace.h>

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace KVCAM::UIAPI {

/// A word of the hot-key file and its meaning.
template <class Value>
struct HotkeyWord
{
    std::string_view text;
    Value value;
};

/// A constexpr table of words. The first word of a value is the one that is written.
template <class Value>
struct HotkeyWords
{
    HotkeyWord<Value> const * first = nullptr;
    std::size_t count = 0;

    HotkeyWord<Value> const * begin() const { return first; }
    HotkeyWord<Value> const * end() const { return first + count; }

    /// The meaning of a word, compared exactly; null if there is no such word.
    Value const * find(QString const & word) const
    {
        auto const * const row = std::find_if(begin(), end(), [&word](HotkeyWord<Value> const & each) {
            return word == QLatin1String(each.text.data(), static_cast<int>(each.text.size()));
        });
        return row == end() ? nullptr : &row->value;
    }
};

/// The words of the hot-key file: none until registered.
struct HotkeyNames
{
    HotkeyWords<int> keys;
    HotkeyWords<Qt::KeyboardModifier> modifiers;
    HotkeyWords<FuncCode> functions;

    void addKeys();
    void addModifiers();
    void addFunctions();
};

// The reverse look-ups, used for writing the file. Null if there is no such word.

QString nameOfKey(int key);
QString nameOfModifiers(Qt::KeyboardModifiers modifiers);
QString nameOfFunction(FuncCode code);

} // namespace KVCAM::UIAPI
