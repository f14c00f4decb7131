#pragma once

#include <qnamespace.h>

class QWidget;

/// Which keys belong to the widget with the focus, and are no hot keys there.
namespace KVCAM::UIAPI {

/// What a widget with the focus does with keys.
enum class KeyTaker
{
    Nothing,  ///< a picture, a button: all keys may be hot keys
    EveryKey, ///< takes a key to name it: a field for key sequences
    Text,     ///< is typed into: a field, also that of a spin box or a combo box
    ReadText, ///< can be marked and copied, but not typed into
    Choice,   ///< is searched by typing: a combo box without a field
    List,     ///< the same for a list, tree or table, whose cells can be copied
    MultiList ///< one in which several rows can be selected
};

/// An unknown class that accepts input methods is typed into.
KeyTaker keyTakerOf(QWidget const & widget);

/// Whether a key belongs to the widget and therefore is no hot key. What is typed into a text or searches a
/// list belongs to it, and so do the combinations that it uses. Shift with a letter searches nothing that
/// the letter would not find.
bool keepsKey(KeyTaker taker, int key, Qt::KeyboardModifiers modifiers);

} // namespace KVCAM::UIAPI
