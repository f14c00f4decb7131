#pragma once

#include "job/CommandLine.h"
#include "job/Session.h"

#include <UIAPICommon.h>

#include <QMainWindow>

#include <functional>

class QAction;
class QComboBox;
class QLabel;
class QMenu;
class QTabWidget;
class QToolBar;

namespace Workbench {

class BoardPage;
class KeysDialog;
class HotkeyCommands;
class LogLines;
class ResultsPage;
class SaveAs;

/// The window: its pages, of which the board's is the first, with the menus, the tools and the status bar.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// Nothing is owned; session and log outlive the window. The session's counts follow deletions.
    MainWindow(Session & session, LogLines const & log, CommandLine const & commandLine);

    BoardPage & board() const { return *m_board; }
    ResultsPage & results() const { return *m_results; }
    HotkeyCommands & commands() const { return *m_commands; }
    /// Brings a page to the front by its object name, "board" being the first. False for an unknown page.
    bool showPage(QString const & name);
    /// Shows all texts in a language.
    void setLanguage(KVCAM::UIAPI::LANGUAGE_MODE language);
    /// Shows the hot keys. Owned by the window.
    KeysDialog * showKeys();
    /// Restores the window's state from a file, and saves it there when the window is closed. With
    /// `keepsUnit` the views keep their unit.
    void useStateFile(QString const & file, bool keepsUnit);
    /// Divides the page of the board as a window of this size does at first.
    void arrange();
    /// Offers these boards in the menu.
    void setRecentBoards(QStringList const & paths);
    SaveAs & saveAs() const { return *m_saveAs; }
    /// Closes the window without asking.
    void leave()
    {
        m_leaves = true;
        close();
    }

signals:
    /// The user has chosen another board, a folder or an archive.
    void boardWanted(QString const & path);

protected:
    void closeEvent(QCloseEvent * event) override;

private:
    void makeToolBar();
    void addPages();
    void addResults();
    void addPage(QWidget * page, QString const & name, char const * title);
    void makeMenus();
    void makeFileMenu();
    QMenu * addMenu(char const * title);
    void addEntry(QMenu & menu, char const * text, char const * key, std::function<void()> act);
    void makeViewMenu();
    void makeHelpMenu();
    void makeStatusBar();
    void setTexts();
    void listPages();
    void showUnit();
    void showPointer();
    void showZoom();
    void showStatus(QString const & text);
    void showHelp();
    void showAbout();
    void switchSaveFlag(bool on);

    Session & m_session;
    QString m_database;
    QString m_stateFile; ///< empty: the state is not saved
    QTabWidget * m_pages = nullptr;
    BoardPage * m_board = nullptr;
    ResultsPage * m_results = nullptr;
    HotkeyCommands * m_commands = nullptr;
    KeysDialog * m_keys = nullptr;
    QToolBar * m_bar = nullptr;
    QAction * m_unit = nullptr;
    QAction * m_saveFlag = nullptr;
    QAction * m_feature = nullptr;
    QComboBox * m_language = nullptr;
    QMenu * m_recent = nullptr;
    QMenu * m_pageMenu = nullptr;
    QLabel * m_status = nullptr; ///< what the latest command did
    QLabel * m_pointer = nullptr;
    QLabel * m_zoom = nullptr;
    SaveAs * m_saveAs = nullptr;
    bool m_leaves = false;     ///< closing asks no more
    bool m_hasPointed = false; ///< whether the pointer has been over a board
};

} // namespace Workbench
