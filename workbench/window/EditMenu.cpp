#include "window/EditMenu.h"

#include "board/BoardView.h"
#include "ui/LanguageChange.h"
#include "window/BoardPage.h"
#include "window/HotkeyCommands.h"

#include <UIAPICommon.h>

#include <QKeySequence>

#include <iterator>

namespace Workbench {

using namespace KVCAM;
using namespace KVCAM::UIAPI;

namespace {

// In the menu's order. Deleting follows, which has no code.
constexpr FuncCode hotkeyCommands[] = {KP_EditUndo, KP_AllSelect, KP_ReverseSelect, KP_SelectSameFeature};

// The keys of a command, after the tab that a menu shows them behind. They are no shortcut of the menu.
QString keysOf(FuncCode code)
{
    for (Ext::HotkeyBinding const & binding : Ext::hotkeyBindings()) {
        if (binding.code == code && binding.answers) {
            return '\t' + binding.keys;
        }
    }
    return {};
}

} // namespace

EditMenu::EditMenu(BoardPage & board, HotkeyCommands & commands) : m_board(board)
{
    for (FuncCode const code : hotkeyCommands) {
        m_hotkeyActions.push_back(addAction(QString(), this, [&commands, code] { commands.perform(code); }));
    }
    m_delete = addAction(QString(), &board, &BoardPage::deleteSelected);
    connect(this, &QMenu::aboutToShow, this, [this] { setTexts(); });
    connect(&board, &BoardPage::refreshed, this, [this] { setTexts(); });
    setTextsNowAndLater(*this, [this] { setTexts(); });
}

void EditMenu::setTexts()
{
    setTitle(tr("&Edit"));
    for (std::size_t i = 0; i < std::size(hotkeyCommands); ++i) {
        QString text = HotkeyCommands::text(hotkeyCommands[i]);
        if (hotkeyCommands[i] == KP_EditUndo) {
            BoardView const & view = *m_board.currentView();
            int const count =
                Ext::undoCount(QString::fromStdString(view.job()), QString::fromStdString(view.step()));
            text += " (" + QString::number(count) + ')';
        }
        m_hotkeyActions[i]->setText(text + keysOf(hotkeyCommands[i]));
    }
    m_delete->setText(tr("Delete the selected features") + '\t' +
                      QKeySequence(Qt::Key_Delete).toString(QKeySequence::NativeText));
}

} // namespace Workbench
