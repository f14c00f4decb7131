#include "hotkey/KeyOwner.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QKeySequence>
#include <QKeySequenceEdit>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>

#include <algorithm>
#include <initializer_list>

namespace KVCAM::UIAPI {
namespace {

using Keys = std::initializer_list<QKeySequence::StandardKey>;

constexpr Keys readingKeys = {
    QKeySequence::Copy,
    QKeySequence::SelectAll,
    QKeySequence::MoveToNextWord,
    QKeySequence::MoveToPreviousWord,
    QKeySequence::MoveToStartOfDocument,
    QKeySequence::MoveToEndOfDocument,
    QKeySequence::SelectNextChar,
    QKeySequence::SelectPreviousChar,
    QKeySequence::SelectNextWord,
    QKeySequence::SelectPreviousWord,
    QKeySequence::SelectNextLine,
    QKeySequence::SelectPreviousLine,
    QKeySequence::SelectStartOfDocument,
    QKeySequence::SelectEndOfDocument,
};
constexpr Keys editingKeys = {
    QKeySequence::Cut,
    QKeySequence::Paste,
    QKeySequence::Undo,
    QKeySequence::Redo,
    QKeySequence::DeleteStartOfWord,
    QKeySequence::DeleteEndOfWord,
    QKeySequence::DeleteEndOfLine,
    QKeySequence::DeleteCompleteLine,
};

bool isOneOf(Keys keys, int key, Qt::KeyboardModifiers modifiers)
{
    QKeySequence const pressed(key | static_cast<int>(modifiers));
    return std::any_of(keys.begin(), keys.end(), [&pressed](QKeySequence::StandardKey each) {
        return QKeySequence::keyBindings(each).contains(pressed);
    });
}

// Also with Ctrl, which moves in a list without changing what is selected.
bool movesInList(int key)
{
    return (key >= Qt::Key_Home && key <= Qt::Key_PageDown) || key == Qt::Key_Space;
}

bool isTypedInto(QWidget const & widget, bool & isReadOnly)
{
    if (auto const * line = qobject_cast<QLineEdit const *>(&widget)) {
        isReadOnly = line->isReadOnly();
    } else if (auto const * text = qobject_cast<QTextEdit const *>(&widget)) {
        isReadOnly = text->isReadOnly();
    } else if (auto const * plain = qobject_cast<QPlainTextEdit const *>(&widget)) {
        isReadOnly = plain->isReadOnly();
    } else if (auto const * spin = qobject_cast<QAbstractSpinBox const *>(&widget)) {
        isReadOnly = spin->isReadOnly();
    } else {
        isReadOnly = qobject_cast<QLabel const *>(&widget) != nullptr;
        return isReadOnly;
    }
    return true;
}

} // namespace

KeyTaker keyTakerOf(QWidget const & widget)
{
    if (bool isReadOnly = false; isTypedInto(widget, isReadOnly)) {
        return isReadOnly ? KeyTaker::ReadText : KeyTaker::Text;
    }
    if (auto const * choice = qobject_cast<QComboBox const *>(&widget)) {
        return choice->isEditable() ? KeyTaker::Text : KeyTaker::Choice;
    }
    if (auto const * list = qobject_cast<QAbstractItemView const *>(&widget)) {
        auto const mode = list->selectionMode();
        bool const isSingle =
            mode == QAbstractItemView::SingleSelection || mode == QAbstractItemView::NoSelection;
        return isSingle ? KeyTaker::List : KeyTaker::MultiList;
    }
    if (qobject_cast<QKeySequenceEdit const *>(&widget) != nullptr) {
        return KeyTaker::EveryKey;
    }
    return widget.testAttribute(Qt::WA_InputMethodEnabled) ? KeyTaker::Text : KeyTaker::Nothing;
}

bool keepsKey(KeyTaker taker, int key, Qt::KeyboardModifiers modifiers)
{
    modifiers &= ~Qt::KeypadModifier;
    bool const isPlain = modifiers == Qt::NoModifier;
    bool const isShift = modifiers == Qt::ShiftModifier;
    bool const isLetter = key >= Qt::Key_A && key <= Qt::Key_Z;
    bool const isSearch = isPlain || (isShift && !isLetter);
    bool const moves = modifiers == Qt::ControlModifier && movesInList(key);
    switch (taker) {
    case KeyTaker::Nothing:
        return false;
    case KeyTaker::EveryKey:
        return true;
    case KeyTaker::Text:
        return isPlain || isShift || isOneOf(readingKeys, key, modifiers) ||
               isOneOf(editingKeys, key, modifiers);
    case KeyTaker::ReadText:
        return isOneOf(readingKeys, key, modifiers);
    case KeyTaker::Choice:
        return isSearch;
    case KeyTaker::List:
        return isSearch || moves || isOneOf({QKeySequence::Copy}, key, modifiers);
    case KeyTaker::MultiList:
        break;
    }
    return isSearch || moves || isOneOf({QKeySequence::Copy, QKeySequence::SelectAll}, key, modifiers);
}

} // namespace KVCAM::UIAPI
