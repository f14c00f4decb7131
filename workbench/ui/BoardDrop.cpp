#include "ui/BoardDrop.h"

#include <QDropEvent>
#include <QMimeData>
#include <QTimer>
#include <QUrl>
#include <QWidget>

#include <utility>

namespace Workbench {

namespace {

// Empty if something else is dragged.
QString pathIn(QDropEvent const & event)
{
    QList<QUrl> const urls = event.mimeData()->urls();
    return urls.size() == 1 ? urls.first().toLocalFile() : QString();
}

} // namespace

BoardDrop::BoardDrop(QWidget & target, std::function<void(QString const &)> open)
    : QObject(&target), m_open(std::move(open))
{
    target.setAcceptDrops(true);
    target.installEventFilter(this);
}

bool BoardDrop::eventFilter(QObject * watched, QEvent * event)
{
    if (event->type() != QEvent::DragEnter && event->type() != QEvent::Drop) {
        return QObject::eventFilter(watched, event);
    }
    auto & drop = *static_cast<QDropEvent *>(event); // a QDragEnterEvent is one, too
    QString const path = pathIn(drop);
    drop.setAccepted(!path.isEmpty());
    if (!path.isEmpty()) {
        drop.setDropAction(Qt::CopyAction); // a moved board would be deleted by the program it comes from
        if (event->type() == QEvent::Drop) {
            QTimer::singleShot(0, this, [this, path] { m_open(path); });
        }
    }
    return true;
}

} // namespace Workbench
