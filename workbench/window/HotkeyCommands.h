#pragma once

#include <UIAPICommon.h>

#include <QObject>
#include <QPointF>

class QKeyEvent;
class QWidget;

namespace Workbench {

class BoardView;
class MainWindow;

/// Runs the window's commands by their hot keys while the page with the board is in front. Widgets with a
/// text of their own keep their keys; all others give up what is a hot key or begins a sequence.
class HotkeyCommands : public QObject
{
    Q_OBJECT

public:
    /// Nothing is owned; the window, whose page `board` is, outlives the object. The board gets the focus.
    HotkeyCommands(MainWindow & window, QWidget & board, QObject * parent);

    /// Runs the command of a code on the view in front. The result is one line for the status bar.
    QString run(KVCAM::FuncCode code);

    /// Runs the command as its key would, which tells the result.
    void perform(KVCAM::FuncCode code);

    /// What a code means, in a few words.
    static QString text(KVCAM::FuncCode code);
    /// Whether this host has something for the code.
    static bool isAvailable(KVCAM::FuncCode code);

signals:
    /// After each key that the commands saw: what was done, and which keys can follow. May be empty.
    void told(QString const & text);

protected:
    bool eventFilter(QObject * receiver, QEvent * event) override;

private:
    struct Command;

    static Command const & command(KVCAM::FuncCode code);
    bool isOurs(QObject * receiver) const;
    bool press(QKeyEvent & event);
    void const * view() const;
    // Each returns what to tell besides the command's text.
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
    QString home(int);
    QString move(int direction);
    QString pan(int direction);
    QString centre(int);
    QString measure(int);
    QString snap(int mode);

    MainWindow & m_window;
    QWidget & m_board;
    BoardView const * m_measured = nullptr; ///< the view that the first point stands in
    QPointF m_measuredFrom;
};

} // namespace Workbench
