#pragma once

#include <QObject>

#include <functional>

class QWidget;

namespace Workbench {

/// Lets the user drop a board onto a window: one folder or file of this machine.
class BoardDrop : public QObject
{
    Q_OBJECT

public:
    /// `open` gets the path after the drop has ended, so it may take its time. Owned by the target.
    BoardDrop(QWidget & target, std::function<void(QString const &)> open);

protected:
    bool eventFilter(QObject * watched, QEvent * event) override;

private:
    std::function<void(QString const &)> m_open;
};

} // namespace Workbench
