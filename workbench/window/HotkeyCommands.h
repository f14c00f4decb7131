#pragma once

#include <UIAPICommon.h>

#include <QObject>
#include <QPointer>

#include <memory>

namespace Workbench {

class BoardPage;
class Measuring;

/// Runs the commands of the board's page by their hot keys while the page is in front, and by menu.
class HotkeyCommands : public QObject
{
    Q_OBJECT

public:
    /// The page must be in its window already; it is not owned and outlives the object. Its view gets the
    /// focus.
    HotkeyCommands(BoardPage & board, QObject * parent);
    ~HotkeyCommands() override;

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

private:
    struct Command;

    static Command const & command(KVCAM::FuncCode code);
    void showKeySeen();
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
    std::unique_ptr<Measuring> m_measuring;
    QPointer<KVCAM::UIAPI::Ext::HotkeyAttachment> m_keys; ///< of the window
    QString m_done;                                       ///< what the command of the latest key did
};

} // namespace Workbench
