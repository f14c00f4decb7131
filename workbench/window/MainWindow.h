#pragma once

#include "job/CommandLine.h"
#include "job/Session.h"

#include <UIAPICommon.h>

#include <QMainWindow>

#include <functional>
#include <vector>

class QAction;
class QComboBox;
class QLabel;
class QMenu;
class QTabWidget;
class QToolBar;

namespace Workbench {

class BoardView;
class CheatSheet;
class EnginePane;
class FeatureDialog;
class FilterBar;
class HotkeyCommands;
class LayerTable;
class LogLines;
class ReferencesPage;
class ResultsPage;
class SymbolsPage;
struct Mark;

/// What became of the files of the checks' results.
struct WrittenResults
{
    QStringList files;  ///< that were written
    QStringList errors; ///< what could not be done, in sentences
};

/// The window: one view per step with the job's layers beside it, what the engine was told, and the log.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// Nothing is owned; session and log outlive the window. The session's counts follow what is deleted.
    MainWindow(Session & session, LogLines const & log, CommandLine const & commandLine);

    std::vector<BoardView *> const & views() const { return m_views; }
    BoardView * currentView() const;
    /// Brings a page to the front by its object name, "board" being the first. False for an unknown page.
    bool showPage(QString const & name);
    /// Opens the dialog on a pad of the shown layer in place of the one that is open. Owned by the window.
    FeatureDialog * openFeature(int feature);
    /// The first pad of the shown layer whose symbol has sizes; -1 if there is none.
    int firstPad() const;
    /// Shows all texts in a language.
    void setLanguage(KVCAM::UIAPI::LANGUAGE_MODE language);
    /// Reads the step in front again and shows its state anew.
    void refresh();
    /// Takes the latest operation on the step in front back; the library asks first.
    void undoLast();
    /// Deletes the selected features of the shown layer, without a question: it can be undone. The result is
    /// how many went; when that fails, the window says why.
    int deleteSelected();
    /// Brings a step to the front, in whatever case it is named. False for an unknown one.
    bool showStepOf(QString const & name);
    ResultsPage & results() const { return *m_results; }
    /// Runs the checks on the step in front and writes the files that the command line asks for.
    WrittenResults writeResults(CommandLine const & commandLine);
    /// Shows the hot keys. Owned by the window.
    CheatSheet * showKeys();
    /// Brings the window back as it was kept in a file, and keeps it there when it is closed. The unit is
    /// left alone when `keepsUnit`.
    void useStateFile(QString const & file, bool keepsUnit);

protected:
    void closeEvent(QCloseEvent * event) override;
    void changeEvent(QEvent * event) override;

private:
    void makeViews(int unit);
    QWidget * makeBoardPage(LogLines const & log);
    void makeMenus();
    void makeToolBar();
    QMenu * addMenu(char const * text);
    QAction * addEntry(QMenu & menu, char const * text, char const * key, std::function<void()> act);
    QWidget * titled(char const * title, QWidget * content);
    void listPages();
    void setTexts();
    void addPages();
    QWidget * makeLayerPane();
    void makeEditMenu();
    void setEditTexts();
    void tellSelection();
    void tell(QString const & text);
    void addResults();
    void markMeasurement(QString const & step, QString const & layer, Mark const & mark);
    void addHotkeys();
    void addPage(QWidget * page, QString const & name, QString const & title);
    void showStep();
    void showLayer(int layer);
    void showTicked();
    void showPointer();
    void showZoom();
    void showHelp();
    void showAbout();
    void switchUnit();
    void openFirstPad();
    void closeFeature();
    void refreshUnit();
    void switchSaveFlag(bool on);

    Session & m_session;
    QString m_database;
    QString m_formFile;
    std::vector<BoardView *> m_views;
    QTabWidget * m_pages = nullptr;
    QTabWidget * m_steps = nullptr;
    LayerTable * m_layers = nullptr;
    FilterBar * m_filter = nullptr;
    ReferencesPage * m_references = nullptr;
    HotkeyCommands * m_commands = nullptr;
    std::vector<QAction *> m_editActions; ///< in the order of the menu
    EnginePane * m_engine = nullptr;
    ResultsPage * m_results = nullptr;
    SymbolsPage * m_symbols = nullptr;
    FeatureDialog * m_feature = nullptr;
    CheatSheet * m_keys = nullptr;
    QLabel * m_outline = nullptr;
    QLabel * m_pointer = nullptr;
    QLabel * m_zoom = nullptr;
    QLabel * m_told = nullptr; ///< what the latest command did
    QAction * m_unit = nullptr;
    QAction * m_saveFlag = nullptr;
    QAction * m_featureAction = nullptr;
    bool m_hasPointed = false; ///< whether the pointer was over a board yet
    QToolBar * m_bar = nullptr;
    QComboBox * m_language = nullptr;
    QMenu * m_pageMenu = nullptr;
    std::vector<std::function<void()>> m_texts; ///< each sets what is to be told in another language
    QString m_stateFile;                        ///< empty: the state is not kept
};

} // namespace Workbench
