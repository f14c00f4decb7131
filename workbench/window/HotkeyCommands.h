#pragma once

#include <UIAPICommon.h>

#include <QObject>
#include <QPointF>

class QKeyEvent;

namespace Workbench {

class BoardPage;
class BoardView;

/// Runs the commands of the board's page by their hot keys while the page is in front. Keys that
/// belong to the widget with the focus (keepsKey) reach it; of all others it gets what is no hot key and
/// begins no sequence.
class HotkeyCommands : public QObject
{
    Q_OBJECT

public:
    /// The page must be in its window already; it is not owned and outlives the object. Its view gets the
    /// focus.
    HotkeyCommands(BoardPage & board, QObject * parent);

    /// Runs the command of a code on the view in front, as its key would.
    void perform(KVCAM::FuncCode code);

    /// What a code means, in a few words.
    static QString text(KVCAM::FuncCode code);
    /// Whether the code is available in this host.
    static bool isAvailable(KVCAM::FuncCode code);

signals:
    /// After each key that the commands saw, and after each change of the selection: what was done, and which
    /// keys can follow. May be empty.
    void status(QString const & text);

protected:
    bool eventFilter(QObject * receiver, QEvent * event) override;

private:
    struct Command;

    static Command const & command(KVCAM::FuncCode code);
    bool isOurs(QObject * receiver) const;
    bool press(QKeyEvent & event);
    QString run(KVCAM::FuncCode code);
    void const * view() const;
    // Each returns what the status shows besides the command's text.
    QString changeUnit(int);
    QString changeNegative(int);
    QString changeProfile(int);
    QString changeWidth(int);
    QString undo(int);
    QString selectAll(int);
    QString reverseSelection(int);
    QString selectSame(int);
    QString selectionText() const;
    QString refresh(int);
    QString compare(int);
    QString home(int);
    QString move(int direction);
    QString pan(int direction);
    QString centre(int);
    QString measure(int);
    QString snap(int mode);

    BoardPage & m_board;
    BoardView const * m_measured = nullptr; ///< the view of the first point
    QPointF m_measuredFrom;
};

} // namespace Workbench
