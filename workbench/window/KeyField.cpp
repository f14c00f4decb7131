#include "window/KeyField.h"

#include <QKeyEvent>

namespace Workbench {

KeyField::KeyField(QWidget * parent) : QLineEdit(parent)
{
    setReadOnly(true);
    setContextMenuPolicy(Qt::NoContextMenu);
    setAttribute(Qt::WA_InputMethodEnabled, false);
}

void KeyField::empty()
{
    m_recorder.clear();
    clear();
    emit keysChanged();
}

// Keys that are shortcuts elsewhere come here as keys.
bool KeyField::event(QEvent * event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        event->accept();
        return true;
    }
    return QLineEdit::event(event);
}

void KeyField::keyPressEvent(QKeyEvent * event)
{
    bool const isPlain = event->modifiers() == Qt::NoModifier;
    if (isPlain && event->key() == Qt::Key_Escape && !keys().isEmpty()) {
        return empty();
    }
    if (isPlain && (event->key() == Qt::Key_Escape || event->key() == Qt::Key_Tab)) {
        event->ignore();
        return;
    }
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        emit confirmed();
        return;
    }
    if (!event->isAutoRepeat()) {
        m_recorder.press(event->key(), event->modifiers());
        setText(m_recorder.keys());
        emit keysChanged();
    }
}

} // namespace Workbench
