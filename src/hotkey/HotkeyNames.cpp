#include "hotkey/HotkeyNames.h"

#include "hotkey/FunctionTable.h"

#include <algorithm>

namespace KVCAM::UIAPI {
namespace {

/// A key or modifier with special spellings; the first one is written.
template <class Value>
struct Spelled
{
    Value value;
    char const * names[3];
};

constexpr Spelled<Qt::Key> arrows[] = {
    {Qt::Key_Up, {"Up", "UP", "up"}},
    {Qt::Key_Left, {"Left", "LEFT", "left"}},
    {Qt::Key_Right, {"Right", "RIGHT", "right"}},
    {Qt::Key_Down, {"Down", "DOWN", "down"}},
};
constexpr Spelled<Qt::KeyboardModifier> modifierWords[] = {
    {Qt::ShiftModifier, {"Shift", "SHIFT", "shift"}},
    {Qt::ControlModifier, {"Ctrl", "CTRL", "ctrl"}},
};

// A character in this range is its own key code: digits, punctuation and the upper-case letters.
constexpr int firstCharacter = '0';
constexpr int lastCharacter = '`';
constexpr int lowerToUpper = 'a' - 'A';

template <class Value, class Table>
void addSpelled(QMap<QString, Value> & map, Table const & table)
{
    for (auto const & entry : table) {
        for (char const * name : entry.names) {
            map.insert(QLatin1String(name), entry.value);
        }
    }
}

template <class Table, class Value>
QString firstSpelling(Table const & table, Value value)
{
    auto const entry = std::find_if(std::begin(table), std::end(table),
                                    [value](auto const & each) { return each.value == value; });
    return entry == std::end(table) ? QString() : QString::fromLatin1(entry->names[0]);
}

} // namespace

void HotkeyNames::addKeys()
{
    for (int character = firstCharacter; character <= lastCharacter; ++character) {
        keys.insert(QChar(character), character);
    }
    for (int letter = 'a'; letter <= 'z'; ++letter) {
        keys.insert(QChar(letter), letter - lowerToUpper);
    }
    addSpelled(keys, arrows);
}

void HotkeyNames::addModifiers()
{
    modifiers.insert(QString(), Qt::NoModifier);
    addSpelled(modifiers, modifierWords);
}

void HotkeyNames::addFunctions()
{
    for (HotkeyFunction const & row : HotkeyFunctions::table) {
        if (row.name != nullptr) {
            functions.insert(QLatin1String(row.name), row.code);
        }
    }
}

QString nameOfKey(int key)
{
    bool const isCharacter = key >= firstCharacter && key <= lastCharacter;
    return isCharacter ? QString(QChar(key)) : firstSpelling(arrows, key);
}

QString nameOfModifiers(Qt::KeyboardModifiers modifiers)
{
    return modifiers == Qt::NoModifier ? QString("") : firstSpelling(modifierWords, modifiers);
}

QString nameOfFunction(FuncCode code)
{
    auto const & table = HotkeyFunctions::table;
    bool const isKnown = code >= table[0].code && code <= std::prev(std::end(table))->code;
    return isKnown ? QString::fromLatin1(table[code - 1].name) : QString();
}

} // namespace KVCAM::UIAPI
