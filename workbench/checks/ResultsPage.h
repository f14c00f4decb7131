#pragma once

#include "board/BoardSigns.h"
#include "checks/AnalysisRun.h"

#include <QWidget>

#include <functional>

class QGroupBox;
class QLabel;
class QModelIndex;
class QPushButton;
class QStackedWidget;
class QTableWidget;
class QTreeView;
class QVBoxLayout;

namespace Workbench {

class BoardView;
class LevelsEditor;
class ResultsModel;
class TrackWidthChart;

/// What the engine's checks found on a step, by check and layer, coloured by the levels; the levels
/// themselves, the narrowest track of each layer, and what was not checked. Lengths are in the unit of the
/// shown step's view.
class ResultsPage : public QWidget
{
    Q_OBJECT

public:
    /// The session and the view outlive the page.
    ResultsPage(Session const & session, BoardView & view, QWidget * parent = nullptr);

    AnalysisRun const & run() const { return m_run; }
    /// Takes the step to be checked next and the unit from another view.
    void setView(BoardView & view);
    /// Checks the shown step behind a progress dialog, which may be cancelled. False when the results are not
    /// new; the page says why.
    bool runChecks();
    /// Selects the worst measurement of a check, or else the check. False for one without a row.
    bool showCheck(std::string const & table, int number);

signals:
    /// A measurement is selected: its place, where it has one.
    void measurementSelected(QString step, QString layer, Workbench::Mark mark);
    /// The board with the mark is to be shown.
    void boardWanted();

private:
    QWidget * makeTree();
    QWidget * makeSides();
    void makeEditor();
    void fitColumns();
    void setTexts();
    void refresh();
    void showLevels();
    void showNotChecked();
    void showSelected();
    void changeLevel(char const * level, double mil);
    void saveLevels();
    void exportFile(QString const & title, QString const & name, QString const & filter,
                    std::function<KVCAM::UIAPI::Ext::SaveResult(QString const &)> const & write);
    QString countsText() const;
    KVCAM::UIAPI::Ext::ReportCategory const * selectedCategory() const;

    AnalysisRun m_run;
    BoardView * m_view;
    ResultsModel * m_model;
    QTreeView * m_tree = nullptr;
    QStackedWidget * m_stack = nullptr; ///< the tree, or why there is none
    QLabel * m_empty = nullptr;
    QLabel * m_counts = nullptr;
    QLabel * m_note = nullptr;
    QPushButton * m_runButton = nullptr;
    QPushButton * m_boardButton = nullptr;
    QPushButton * m_summaryButton = nullptr;
    QPushButton * m_reportButton = nullptr;
    QGroupBox * m_levelsBox = nullptr;
    QVBoxLayout * m_levelsLayout = nullptr;
    LevelsEditor * m_editor = nullptr;
    QLabel * m_levelsHint = nullptr;
    QPushButton * m_saveButton = nullptr;
    QGroupBox * m_chartBox = nullptr;
    TrackWidthChart * m_chart = nullptr;
    QGroupBox * m_notCheckedBox = nullptr;
    QTableWidget * m_notChecked = nullptr;
    AnalysisRun::Outcome m_outcome = AnalysisRun::Outcome::Done; ///< of the latest run
};

} // namespace Workbench
