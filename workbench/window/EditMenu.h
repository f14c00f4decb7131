#pragma once

#include <QCoreApplication>
#include <QMenu>

#include <vector>

namespace Workbench {

class BoardPage;
class HotkeyCommands;

/// The commands on a layer's features. The menu shows the keys of the hot-key table, which decides what a key
/// does, and how many operations can be undone.
class EditMenu : public QMenu
{
    Q_DECLARE_TR_FUNCTIONS(Workbench::MainWindow)

public:
    /// Board and commands are not owned and outlive the menu.
    EditMenu(BoardPage & board, HotkeyCommands & commands);

private:
    void setTexts();

    BoardPage & m_board;
    std::vector<QAction *> m_hotkeyActions; ///< in the menu's order
    QAction * m_delete;
};

} // namespace Workbench
