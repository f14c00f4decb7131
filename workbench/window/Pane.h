#pragma once

#include <QString>
#include <QWidget>

class QAction;

namespace Workbench {

/// A part of a page with a title, which the user can close and open again.
class Pane : public QWidget
{
    Q_OBJECT

public:
    /// The title is given untranslated, in the window's context. The pane owns its content.
    Pane(QString const & name, char const * title, QWidget * content);

    void setOpen(bool open);
    /// Whether the user wants it, also while its page or window is not shown.
    bool isOpen() const;
    /// Opens and closes the pane; for a menu. Owned by the pane.
    QAction * openAction() const { return m_open; }

private:
    QAction * m_open;
};

} // namespace Workbench
