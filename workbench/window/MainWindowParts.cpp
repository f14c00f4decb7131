#include "board/BoardView.h"
#include "checks/ResultsPage.h"
#include "job/SaveAs.h"
#include "pages/EdaPortLabel.h"
#include "ui/BoardDrop.h"
#include "ui/FileDialogs.h"
#include "ui/LanguageChange.h"
#include "ui/ToolTips.h"
#include "ui/Units.h"
#include "window/BoardPage.h"
#include "window/EditMenu.h"
#include "window/HotkeyCommands.h"
#include "window/MainWindow.h"

#include <QAction>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>

#include <utility>

// The tools, menus and status bar of the window.

namespace Workbench {

using namespace KVCAM::UIAPI;

void MainWindow::makeToolBar()
{
    m_bar = addToolBar(QString());
    m_bar->setObjectName("tools");
    m_bar->setMovable(false);
    m_bar->toggleViewAction()->setVisible(false);
    m_unit = m_bar->addAction(QString());
    m_unit->setShortcut(Qt::Key_F5);
    connect(m_unit, &QAction::triggered, this, [this] { switchUnit(m_board->currentView()->handle()); });
    m_saveFlag = m_bar->addAction(QString());
    m_saveFlag->setCheckable(true);
    connect(m_saveFlag, &QAction::toggled, this, &MainWindow::switchSaveFlag);
    m_feature = m_bar->addAction(QString());
    m_feature->setShortcut(Qt::Key_F4);
    connect(m_feature, &QAction::triggered, this, [this] { m_board->openFeature(); });
    m_language = new QComboBox;
    m_language->addItem("English", static_cast<int>(LANGUAGE_ENGLISH));
    m_language->addItem(QString::fromUtf8("简体中文"), static_cast<int>(LANGUAGE_CHINESE));
    connect(m_language, QOverload<int>::of(&QComboBox::activated), this,
            [this] { setLanguage(static_cast<LANGUAGE_MODE>(m_language->currentData().toInt())); });
    m_bar->addSeparator();
    m_bar->addWidget(m_language);
    for (auto * button : m_bar->findChildren<QToolButton *>()) {
        button->setAutoRaise(false);
    }
    setTextsNowAndLater(*m_bar, [this] {
        m_bar->setWindowTitle(tr("View"));
        m_unit->setToolTip(withKeys(tr("Switches the unit of the shown step's view"), m_unit->shortcut()));
        m_saveFlag->setText(tr("&Save flag"));
        m_saveFlag->setToolTip(tr("Makes the engine also write what it is told to %1").arg(m_database));
        m_feature->setText(tr("&Feature"));
        m_feature->setToolTip(withKeys(tr("Changes the selected features"), m_feature->shortcut()));
        m_language->setToolTip(tr("Language of all texts"));
    });
}

// The shortcuts are function keys: letters with and without Ctrl belong to the table of hot keys.
void MainWindow::makeMenus()
{
    makeFileMenu();
    auto * edit = new EditMenu(*m_board, *m_commands);
    edit->setParent(menuBar(), edit->windowFlags());
    menuBar()->addMenu(edit);
    makeViewMenu();
    makeHelpMenu();
}

void MainWindow::makeFileMenu()
{
    // The window is deleted after the menu's entry is left.
    auto const want = [this](QString const & path) {
        QTimer::singleShot(0, this, [this, path] { emit boardWanted(path); });
    };
    QMenu * file = addMenu(QT_TR_NOOP("&File"));
    addEntry(*file, QT_TR_NOOP("&Open..."), "F2",
             [this, want] { askForBoard(*this, m_session.directory(), want); });
    m_recent = file->addMenu(QString());
    connect(m_recent, &QMenu::triggered, this,
            [want](QAction const * action) { want(action->data().toString()); });
    setTextsNowAndLater(*file, [this] { m_recent->setTitle(tr("&Recent boards")); });
    addEntry(*file, QT_TR_NOOP("Save &as..."), "Ctrl+Shift+S", [this] { m_saveAs->ask(); });
    file->addSeparator();
    file->addAction(m_feature);
    file->addAction(m_saveFlag);
    file->addSeparator();
    addEntry(*file, QT_TR_NOOP("&Quit"), "", [this] { close(); });
    setRecentBoards({});
    new BoardDrop(*this, [this](QString const & path) { emit boardWanted(path); });
}

void MainWindow::setRecentBoards(QStringList const & paths)
{
    m_recent->clear();
    for (QString const & path : paths) {
        m_recent->addAction(QDir::toNativeSeparators(path).replace('&', "&&"))->setData(path);
    }
    m_recent->setEnabled(!paths.isEmpty());
}

QMenu * MainWindow::addMenu(char const * title)
{
    QMenu * menu = menuBar()->addMenu(QString());
    setTextsNowAndLater(*menu, [menu, title] { menu->setTitle(tr(title)); });
    return menu;
}

void MainWindow::addEntry(QMenu & menu, char const * text, char const * key, std::function<void()> act)
{
    QAction * action = menu.addAction(QString());
    action->setShortcut(QKeySequence(QString::fromLatin1(key)));
    connect(action, &QAction::triggered, this, std::move(act));
    setTextsNowAndLater(menu, [action, text] { action->setText(tr(text)); });
}

void MainWindow::makeViewMenu()
{
    QMenu * view = addMenu(QT_TR_NOOP("&View"));
    view->addAction(m_unit);
    view->addSeparator();
    auto const addZoom = [&](char const * text, char const * key, void (BoardView::*zoom)()) {
        addEntry(*view, text, key, [this, zoom] { (m_board->currentView()->*zoom)(); });
    };
    addZoom(QT_TR_NOOP("&Whole board"), "F6", &BoardView::zoomHome);
    addZoom(QT_TR_NOOP("&All features"), "F9", &BoardView::zoomFit);
    addZoom(QT_TR_NOOP("Zoom &out"), "F7", &BoardView::zoomOut);
    addZoom(QT_TR_NOOP("Zoom &in"), "F8", &BoardView::zoomIn);
    view->addSeparator();
    addEntry(*view, QT_TR_NOOP("Next &violation"), "F12", [this] { m_results->showViolation(1); });
    addEntry(*view, QT_TR_NOOP("Previous violation"), "Shift+F12", [this] { m_results->showViolation(-1); });
    addEntry(*view, QT_TR_NOOP("&Tick all layers"), "", [this] { m_board->tickAllLayers(true); });
    addEntry(*view, QT_TR_NOOP("U&ntick all layers"), "", [this] { m_board->tickAllLayers(false); });
    view->addSeparator();
    m_pageMenu = view->addMenu(QString());
    connect(m_pageMenu, &QMenu::aboutToShow, this, &MainWindow::listPages);
    QMenu * panes = view->addMenu(QString());
    panes->addActions(m_board->paneActions());
    QMenu * language = view->addMenu(QString());
    language->addAction("&English", this, [this] { setLanguage(LANGUAGE_ENGLISH); });
    language->addAction(QString::fromUtf8("&简体中文"), this, [this] { setLanguage(LANGUAGE_CHINESE); });
    setTextsNowAndLater(*view, [this, language, panes] {
        panes->setTitle(tr("Pan&es"));
        m_pageMenu->setTitle(tr("&Page"));
        language->setTitle(tr("&Language"));
    });
}

void MainWindow::makeHelpMenu()
{
    QMenu * help = addMenu(QT_TR_NOOP("&Help"));
    addEntry(*help, QT_TR_NOOP("&Hot keys"), "F1", [this] { showKeys(); });
    addEntry(*help, QT_TR_NOOP("&Using the board picture"), "", [this] { showHelp(); });
    addEntry(*help, QT_TR_NOOP("&About"), "", [this] { showAbout(); });
}

void MainWindow::makeStatusBar()
{
    m_status = new QLabel;
    m_status->setObjectName("hot keys");
    m_status->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // texts may be long
    m_pointer = new QLabel;
    m_pointer->setMinimumWidth(1); // must not widen the window
    m_zoom = new QLabel;
    statusBar()->addWidget(m_status, 1); // all except what the others need
    statusBar()->addWidget(m_pointer);
    statusBar()->addPermanentWidget(makeEdaPortLabel());
    statusBar()->addPermanentWidget(m_zoom);
    connect(m_commands, &HotkeyCommands::status, this, &MainWindow::showStatus);
    connect(m_board, &BoardPage::status, this, &MainWindow::showStatus);
    connect(m_results, &ResultsPage::status, this, &MainWindow::showStatus);
    connect(m_board, &BoardPage::portChanged, this, &MainWindow::showZoom);
    connect(m_board, &BoardPage::pointerMoved, this, [this] {
        m_hasPointed = true;
        showPointer();
    });
}

} // namespace Workbench
