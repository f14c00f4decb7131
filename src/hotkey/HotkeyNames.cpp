#include "hotkey/HotkeyNames.h"

#include "hotkey/FunctionTable.h"

#include <array>
#include <iterator>

namespace KVCAM::UIAPI {
namespace {

// A character in this range is its own key code: digits, punctuation and the upper-case letters.
constexpr char characters[] = "0123456789:;<=>?@ABCDEFGHIJKLMNOPQRSTUVWXYZ[\\]^_`";
constexpr char smallLetters[] = "abcdefghijklmnopqrstuvwxyz";
constexpr std::size_t characterCount = std::size(characters) - 1;
constexpr std::size_t letterCount = std::size(smallLetters) - 1;
static_assert(characterCount == '`' - '0' + 1 && letterCount == 26);

constexpr HotkeyWord<int> arrows[] = {
    {"Up", Qt::Key_Up},       {"UP", Qt::Key_Up},     {"up", Qt::Key_Up},       {"Left", Qt::Key_Left},
    {"LEFT", Qt::Key_Left},   {"left", Qt::Key_Left}, {"Right", Qt::Key_Right}, {"RIGHT", Qt::Key_Right},
    {"right", Qt::Key_Right}, {"Down", Qt::Key_Down}, {"DOWN", Qt::Key_Down},   {"down", Qt::Key_Down},
};

constexpr auto makeKeys()
{
    std::array<HotkeyWord<int>, characterCount + letterCount + std::size(arrows)> rows{};
    std::size_t row = 0;
    for (std::size_t i = 0; i < characterCount; ++i) {
        rows[row++] = {{characters + i, 1}, characters[i]};
    }
    for (std::size_t i = 0; i < letterCount; ++i) {
        rows[row++] = {{smallLetters + i, 1}, smallLetters[i] - 'a' + 'A'};
    }
    for (HotkeyWord<int> const & arrow : arrows) {
        rows[row++] = arrow;
    }
    return rows;
}

constexpr auto makeFunctions()
{
    std::array<HotkeyWord<FuncCode>, std::size(HotkeyFunctions::table) - 1> rows{};
    std::size_t row = 0;
    for (HotkeyFunction const & function : HotkeyFunctions::table) {
        if (function.name != nullptr) {
            rows[row++] = {function.name, function.code};
        }
    }
    return rows;
}

constexpr auto keyWords = makeKeys();
constexpr HotkeyWord<Qt::KeyboardModifier> modifierWords[] = {
    {"", Qt::NoModifier},          {"Shift", Qt::ShiftModifier},  {"SHIFT", Qt::ShiftModifier},
    {"shift", Qt::ShiftModifier},  {"Ctrl", Qt::ControlModifier}, {"CTRL", Qt::ControlModifier},
    {"ctrl", Qt::ControlModifier},
};
constexpr auto functionWords = makeFunctions();

template <class Table, class Value>
QString firstWord(Table const & table, Value value)
{
    auto const row = std::find_if(std::begin(table), std::end(table),
                                  [value](auto const & each) { return each.value == value; });
    return row == std::end(table) ? QString()
                                  : QString::fromLatin1(row->text.data(), static_cast<int>(row->text.size()));
}

} // namespace

void HotkeyNames::addKeys()
{
    keys = {keyWords.data(), keyWords.size()};
}

void HotkeyNames::addModifiers()
{
    modifiers = {modifierWords, std::size(modifierWords)};
}

void HotkeyNames::addFunctions()
{
    functions = {functionWords.data(), functionWords.size()};
}

QString nameOfKey(int key)
{
    return firstWord(keyWords, key);
}

QString nameOfModifiers(Qt::KeyboardModifiers modifiers)
{
    return firstWord(modifierWords, modifiers);
}

QString nameOfFunction(FuncCode code)
{
    return firstWord(functionWords, code);
}

} // namespace KVCAM::UIAPI
