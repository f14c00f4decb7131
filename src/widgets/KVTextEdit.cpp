#include "widgets/KVTextEdit.h"

#include <QPointer>

KVTextEdit::KVTextEdit(QWidget * parent) : QTextEdit(parent)
{
    setFocusPolicy(Qt::StrongFocus);
}

KVTextEdit::~KVTextEdit() = default;

void KVTextEdit::focusOutEvent(QFocusEvent * event)
{
    QPointer<KVTextEdit> const alive(this);
    QTextEdit::focusOutEvent(event);
    if (alive) {
        emit LostFocus(toPlainText());
    }
}
