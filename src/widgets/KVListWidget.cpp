#include "widgets/KVListWidget.h"

KVListWidget::KVListWidget(QWidget * parent) : QListWidget(parent) {}

KVListWidget::~KVListWidget() = default;

// Hiding is all that happens: the base's handling of a lost focus does not run.
void KVListWidget::focusOutEvent(QFocusEvent *)
{
    hide();
}
