#include "widgets/KVListWidget.h"

KVListWidget::KVListWidget(QWidget * parent) : QListWidget(parent) {}

KVListWidget::~KVListWidget() = default;

// Only hides: the base's focus-out handling does not run.
void KVListWidget::focusOutEvent(QFocusEvent *)
{
    hide();
}
