#include "widgets/KVTextEdit.h"

KVTextEdit::KVTextEdit(QWidget * parent) : QTextEdit(parent)
{
    setFocusPolicy(Qt::StrongFocus);
}

KVTextEdit::~KVTextEdit() = default;

void KVTextEdit::focusOutEvent(QFocusEvent * event)
{
    QTextEdit::focusOutEvent(event);
    emit LostFocus(toPlainText());
}
