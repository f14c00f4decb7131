#pragma once

#include "CommandLine.h"
#include "Session.h"

#include <UIAPICommon.h>

#include <QMainWindow>

#include <vector>

class QAction;
class QComboBox;
class QLabel;
class QTabWidget;

namespace Workbench {

class BoardView;
class CheatSheet;
class EnginePane;
class FeatureDialog;
class LayerTable;
class LogLines;
class SymbolsPage;

/// The window: one view per step with the job's layers beside it, what the engine was told, and the log.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// Nothing is owned; session and log outlive the window.
    MainWindow(Session const & session, LogLines const & log, CommandLine const & commandLine);

    std::vector<BoardView *> const & views() const { return m_views; }
    BoardView * currentView() const;
    /// Brings a page to the front by its object name, "board" being the first. False for an unknown page.
    bool showPage(QString const & name);
    /// Opens the dialog on a pad of the shown layer in place of the one that is open. Owned by the window.
    FeatureDialog * openFeature(int feature);
    /// The first pad of the shown layer whose symbol has sizes; -1 if there is none.
    int firstPad() const;
    /// Shows the library's texts in a language.
    void setLanguage(KVCAM::UIAPI::LANGUAGE_MODE language);
    /// Shows the step in front and its state anew.
    void refresh();
    /// Shows the hot keys. Owned by the window.
    CheatSheet * showKeys();

protected:
    void closeEvent(QCloseEvent * event) override;

private:
    void makeViews(int unit);
    QWidget * makeBoardPage(LogLines const & log);
    void makeToolBar();
    void addPages();
    void addHotkeys();
    void addPage(QWidget * page, QString const & name, QString const & title);
    void showStep();
    void showLayer(int layer);
    void showPointer();
    void openFirstPad();
    void closeFeature();
    void refreshUnit();
    void switchSaveFlag(bool on);

    Session const & m_session;
    QString m_database;
    QString m_formFile;
    std::vector<BoardView *> m_views;
    QTabWidget * m_pages = nullptr;
    QTabWidget * m_steps = nullptr;
    LayerTable * m_layers = nullptr;
    EnginePane * m_engine = nullptr;
    SymbolsPage * m_symbols = nullptr;
    FeatureDialog * m_feature = nullptr;
    CheatSheet * m_keys = nullptr;
    QLabel * m_outline = nullptr;
    QLabel * m_pointer = nullptr;
    QAction * m_unit = nullptr;
    QAction * m_saveFlag = nullptr;
};

} // namespace Workbench
