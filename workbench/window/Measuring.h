#pragma once

#include <QObject>
#include <QPointF>
#include <QString>

namespace Workbench {

class BoardPage;
class BoardView;

/// Measures on the board: the first press takes the pointer's place, a line follows the pointer, and the
/// second press ends it there. Places snap as set for the view. The line stays until the next one, or until
/// end().
class Measuring : public QObject
{
    Q_OBJECT

public:
    /// The page is not owned and outlives the object.
    explicit Measuring(BoardPage & board);

    /// Takes the pointer's place in the view in front. Returns what to say.
    QString press();
    /// Removes the line. False if there is none.
    bool end();

signals:
    /// The length of the line that follows the pointer.
    void status(QString const & text);

private:
    void follow();
    QPointF snappedPointer() const;

    BoardPage & m_board;
    BoardView * m_view = nullptr; ///< the one with the line; views live as long as the page
    bool m_isOpen = false;        ///< the line follows the pointer
    QPointF m_from;
};

} // namespace Workbench
