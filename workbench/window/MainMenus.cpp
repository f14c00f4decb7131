#include "board/BoardView.h"
#include "layers/LayerTable.h"
#include "window/MainWindow.h"

#include <UIAPICommonVersion.h>

#include <QAction>
#include <QGroupBox>
#include <QMenu>
#include <QMenuBar>
#include <QTabWidget>
#include <QVBoxLayout>

#include <utility>

// The main window's menus. Their shortcuts are function keys: letters with and without Ctrl belong to the
// table of hot keys.

namespace Workbench {

using namespace KVCAM::UIAPI;

QMenu * MainWindow::addMenu(char const * text)
{
    QMenu * menu = menuBar()->addMenu(QString());
    m_texts.emplace_back([menu, text] { menu->setTitle(tr(text)); });
    return menu;
}

QAction * MainWindow::addEntry(QMenu & menu, char const * text, char const * key, std::function<void()> act)
{
    QAction * action = menu.addAction(QString());
    action->setShortcut(QKeySequence(QString::fromLatin1(key)));
    connect(action, &QAction::triggered, this, std::move(act));
    m_texts.emplace_back([action, text] { action->setText(tr(text)); });
    return action;
}

void MainWindow::makeMenus()
{
    QMenu * file = addMenu(QT_TR_NOOP("&File"));
    file->addAction(m_featureAction);
    file->addAction(m_saveFlag);
    file->addSeparator();
    addEntry(*file, QT_TR_NOOP("&Quit"), "", [this] { close(); });

    makeEditMenu();

    QMenu * view = addMenu(QT_TR_NOOP("&View"));
    view->addAction(m_unit);
    view->addSeparator();
    addEntry(*view, QT_TR_NOOP("&Whole board"), "F6", [this] { currentView()->zoomHome(); });
    addEntry(*view, QT_TR_NOOP("&All features"), "F9", [this] { currentView()->zoomFit(); });
    addEntry(*view, QT_TR_NOOP("Zoom &out"), "F7", [this] { currentView()->zoomOut(); });
    addEntry(*view, QT_TR_NOOP("Zoom &in"), "F8", [this] { currentView()->zoomIn(); });
    view->addSeparator();
    addEntry(*view, QT_TR_NOOP("&Tick all layers"), "", [this] { m_layers->tickAll(true); });
    addEntry(*view, QT_TR_NOOP("U&ntick all layers"), "", [this] { m_layers->tickAll(false); });
    view->addSeparator();
    m_pageMenu = view->addMenu(QString());
    m_texts.emplace_back([this] { m_pageMenu->setTitle(tr("&Page")); });
    connect(m_pageMenu, &QMenu::aboutToShow, this, &MainWindow::listPages);
    QMenu * language = view->addMenu(QString());
    m_texts.emplace_back([language] { language->setTitle(tr("&Language")); });
    language->addAction("&English", this, [this] { setLanguage(LANGUAGE_ENGLISH); });
    language->addAction(QString::fromUtf8("&简体中文"), this, [this] { setLanguage(LANGUAGE_CHINESE); });

    QMenu * help = addMenu(QT_TR_NOOP("&Help"));
    addEntry(*help, QT_TR_NOOP("&Hot keys"), "F1", [this] { showKeys(); });
    addEntry(*help, QT_TR_NOOP("&Using the board picture"), "", [this] { showHelp(); });
    addEntry(*help, QT_TR_NOOP("&About"), "", [this] { showAbout(); });
}

void MainWindow::listPages()
{
    m_pageMenu->clear();
    for (int i = 0; i < m_pages->count(); ++i) {
        QAction * action =
            m_pageMenu->addAction(m_pages->tabText(i), this, [this, i] { m_pages->setCurrentIndex(i); });
        action->setCheckable(true);
        action->setChecked(i == m_pages->currentIndex());
    }
}

QWidget * MainWindow::titled(char const * title, QWidget * content)
{
    auto * box = new QGroupBox;
    auto * layout = new QVBoxLayout(box);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->addWidget(content);
    m_texts.emplace_back([box, title] { box->setTitle(tr(title)); });
    return box;
}

void MainWindow::showHelp()
{
    Ext::showMessage(
        {Ext::MessageKind::Information, this, tr("Using the board picture"),
         tr("The wheel zooms about the pointer, dragging moves the board, a click opens a pad or picks "
            "a mark.\nWith the picture in focus the arrow keys move the board, + and - zoom, Home "
            "shows the whole board.\nTicked layers are drawn beside the selected one; Space in the "
            "list of layers sets and clears the tick.\nCtrl and a click selects a feature or takes it out; "
            "the "
            "Delete key deletes what is selected.")});
}

void MainWindow::showAbout()
{
    Ext::showMessage(
        {Ext::MessageKind::Information, this, tr("About"),
         tr("The reference host of UIAPICommon %1: shows a board's job through the library and the "
            "default engine.")
             .arg(UIAPICOMMON_VERSION)});
}

} // namespace Workbench
