#pragma once

#include <QObject>
#include <QPointF>
#include <QString>

class QShortcut;

namespace Workbench {

class BoardPage;
class BoardView;

/// Measures on the board: the first press takes the pointer's place, a line follows the pointer, and the
/// second press ends it there. Places snap as set for the view. The line stays until the next one, Escape, or
/// another step.
class Measuring : public QObject
{
    Q_OBJECT

public:
    /// The page is not owned and outlives the object.
    explicit Measuring(BoardPage & board);

    /// Takes the pointer's place in the view in front. Returns what to say.
    QString press();
signals:
    /// The length of the line that follows the pointer; nothing once Escape has removed it.
    void status(QString const & text);

private:
    void end();
    void follow();
    QPointF snappedPointer() const;

    BoardPage & m_board;
    QShortcut * m_escape;         ///< on while there is a line
    BoardView * m_view = nullptr; ///< the one with the line; views live as long as the page
    bool m_isOpen = false;        ///< the line follows the pointer
    QPointF m_from;
};

} // namespace Workbench
