#include "board/BoardView.h"
#include "layers/FilterBar.h"
#include "layers/LayerTable.h"
#include "window/HotkeyCommands.h"
#include "window/MainWindow.h"

#include <glog/logging.h>

#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QTabWidget>
#include <QVBoxLayout>

#include <iterator>

// The main window's list of layers with its filter, and what is done to the features of a layer.

namespace Workbench {

using namespace KVCAM;
using namespace KVCAM::UIAPI;

namespace {

// The commands of the Edit menu that have a hot key, in its order; deleting follows.
constexpr FuncCode editCommands[] = {KP_EditUndo, KP_AllSelect, KP_ReverseSelect, KP_SelectSameFeature};

// The keys that give a command, as a menu shows them. They are no shortcut of the menu: the table of hot keys
// decides what a key does.
QString keysOf(FuncCode code)
{
    for (Ext::HotkeyBinding const & binding : Ext::bindings()) {
        if (binding.code == code && binding.answers) {
            return '\t' + binding.keys;
        }
    }
    return {};
}

} // namespace

QWidget * MainWindow::makeLayerPane()
{
    m_layers = new LayerTable;
    m_filter = new FilterBar(m_session);
    connect(m_filter, &FilterBar::changed, this,
            [this] { m_layers->showMatches(m_filter->matches(), m_filter->hidesOthers()); });
    auto * pane = new QWidget;
    auto * layout = new QVBoxLayout(pane);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_filter);
    layout->addWidget(m_layers, 1);
    return pane;
}

void MainWindow::makeEditMenu()
{
    QMenu * edit = addMenu(QT_TR_NOOP("&Edit"));
    for (FuncCode const code : editCommands) {
        m_editActions.push_back(
            edit->addAction(QString(), this, [this, code] { m_commands->perform(code); }));
    }
    m_editActions.push_back(edit->addAction(QString(), this, &MainWindow::deleteSelected));
    connect(edit, &QMenu::aboutToShow, this, &MainWindow::setEditTexts);
    m_texts.emplace_back([this] { setEditTexts(); });
}

void MainWindow::setEditTexts()
{
    for (std::size_t i = 0; i < std::size(editCommands); ++i) {
        QString text = HotkeyCommands::text(editCommands[i]);
        if (editCommands[i] == KP_EditUndo) {
            int const count = Ext::undoCount(QString::fromStdString(m_session.job()),
                                             QString::fromStdString(currentView()->step()));
            text += " (" + QString::number(count) + ')';
        }
        m_editActions[i]->setText(text + keysOf(editCommands[i]));
    }
    m_editActions.back()->setText(tr("Delete the selected features") + '\t' +
                                  QKeySequence(Qt::Key_Delete).toString(QKeySequence::NativeText));
}

void MainWindow::refresh()
{
    closeFeature(); // its pad may be gone
    auto const step = static_cast<std::size_t>(m_steps->currentIndex());
    m_session.recount(step);
    currentView()->reload();
    showStep();
    setEditTexts();
}

void MainWindow::undoLast()
{
    undo(QString::fromStdString(m_session.job()), QString::fromStdString(currentView()->step()), this);
    refresh();
}

int MainWindow::deleteSelected()
{
    BoardView const & view = *currentView();
    std::vector<int> const features(view.selected().begin(), view.selected().end());
    if (features.empty()) {
        tell(tr("Nothing is selected: Ctrl and a click selects a feature."));
        return 0;
    }
    if (!Embedded::deleteFeatures(m_session.job(), view.step(), view.layer(), features)) {
        QString const reason = QString::fromStdString(Embedded::lastError()).simplified();
        LOG(ERROR) << "workbench: cannot delete features: " << reason.toStdString();
        tell(tr("Nothing was deleted: %1").arg(reason));
        return 0;
    }
    refresh();
    tell(tr("Deleted features: %1").arg(features.size()));
    return static_cast<int>(features.size());
}

void MainWindow::tellSelection()
{
    tell(HotkeyCommands::tr("selected features: %1").arg(currentView()->selected().size()));
}

void MainWindow::tell(QString const & text)
{
    m_told->setText(text);
    m_told->setToolTip(text); // where the window is too narrow
}

} // namespace Workbench
