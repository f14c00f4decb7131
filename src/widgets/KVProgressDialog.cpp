#include "widgets/KVProgressDialog.h"

#include <QEvent>
#include <QKeyEvent>

KVProgressDialog::KVProgressDialog(QWidget * parent) : QProgressDialog(parent) {}

KVProgressDialog::KVProgressDialog(QString const &, QString const &, int, int, QWidget * parent,
                                   Qt::WindowFlags)
    : QProgressDialog(parent)
{}

KVProgressDialog::~KVProgressDialog() = default;

bool KVProgressDialog::isDialogStop() const
{
    return m_isStopped;
}

// The base cancels on Escape through a shortcut, which key handlers never see. Accepting the override makes
// Escape an ordinary key.
bool KVProgressDialog::event(QEvent * event)
{
    if (event->type() == QEvent::ShortcutOverride &&
        static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape) {
        event->accept();
        return true;
    }
    return QProgressDialog::event(event);
}

void KVProgressDialog::keyPressEvent(QKeyEvent * event)
{
    if (event->key() == Qt::Key_Escape) {
        return;
    }
    // Bypass QDialog: no key may press a button or close the dialog.
    QWidget::keyPressEvent(event); // NOLINT(bugprone-parent-virtual-call)
}

void KVProgressDialog::keyReleaseEvent(QKeyEvent * event)
{
    if (event->key() == Qt::Key_F1) {
        m_isStopped = true;
    }
    QWidget::keyReleaseEvent(event);
}
