#pragma once

#include "job/Session.h"

#include <QObject>
#include <QPointer>
#include <QString>

#include <functional>

class QWidget;

namespace Workbench {

/// Saves the changed board to a new folder, and asks before its changes are lost. Boxes belong to the window.
class SaveAs : public QObject
{
    Q_OBJECT

public:
    /// Nothing is owned; both outlive the object.
    SaveAs(Session const & session, QWidget & window);

    /// Whether there are changes that are not saved.
    bool isChanged() const;
    /// Marks the window's title if there are.
    void showState();
    /// Asks for a folder and returns at once. `then` is called after the board is saved there.
    void ask(std::function<void()> then = {});
    /// Writes the board to a folder. On failure a box says why, and the result is false.
    bool save(QString const & folder);
    /// Calls `go`: at once if nothing would be lost, else after the user has saved or discarded the changes,
    /// or never. Returns at once.
    void whenSettled(std::function<void()> go);

signals:
    /// The board was written to this folder.
    void saved(QString const & folder);
    /// The same in words.
    void status(QString const & text);

private:
    QString proposal() const;

    Session const & m_session;
    QWidget & m_window;
    QPointer<QWidget> m_question;
};

} // namespace Workbench
