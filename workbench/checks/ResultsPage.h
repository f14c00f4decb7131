#pragma once

#include "board/BoardSigns.h"
#include "checks/AnalysisRun.h"

#include <QWidget>

#include <functional>
#include <memory>

class QGroupBox;
class QLabel;
class QModelIndex;
class QPushButton;
class QStackedWidget;
class QTableWidget;
class QTreeView;

namespace Workbench {

class BoardView;
class LevelsBox;
class ResultsModel;
class TrackWidthChart;

/// The results of the engine's checks on a step, by check and layer, coloured by the levels; the levels
/// themselves, the narrowest track of each layer, and what was not checked. Lengths are in the unit of the
/// step's view.
class ResultsPage : public QWidget
{
    Q_OBJECT

public:
    /// The session and the view outlive the page.
    ResultsPage(Session const & session, BoardView & view, QWidget * parent = nullptr);

    AnalysisRun const & run() const { return *m_run; }
    /// Takes the next step to check and the unit from another view.
    void setView(BoardView & view);
    /// Checks the step with a progress dialog, which can be cancelled. False when there are no new results;
    /// the page says why, unless it was deleted meanwhile.
    bool runChecks();
    /// Selects the worst measurement of a check, or the check if it has none. False if it has no row.
    bool showCheck(std::string const & table, int number);

signals:
    /// A measurement with a place was selected.
    void measurementSelected(QString step, QString layer, Workbench::Mark mark);
    /// The user wants to see the board with the mark.
    void boardWanted();

private:
    QWidget * makeTree();
    QWidget * makeSides();
    void fitColumns();
    void setTexts();
    void refresh();
    void showLevels();
    void showNotChecked();
    void showSelected();
    void exportFile(QString const & title, QString const & name, QString const & filter,
                    std::function<KVCAM::UIAPI::Ext::Result(QString const &)> const & write);
    QString countsText() const;

    std::shared_ptr<AnalysisRun> m_run;
    BoardView * m_view;
    ResultsModel * m_model;
    QTreeView * m_tree = nullptr;
    QStackedWidget * m_stack = nullptr; ///< the tree, or a text that says why it is empty
    QLabel * m_empty = nullptr;
    QLabel * m_counts = nullptr;
    QLabel * m_note = nullptr;
    QPushButton * m_runButton = nullptr;
    QPushButton * m_boardButton = nullptr;
    QPushButton * m_summaryButton = nullptr;
    QPushButton * m_reportButton = nullptr;
    LevelsBox * m_levels = nullptr;
    QGroupBox * m_chartBox = nullptr;
    TrackWidthChart * m_chart = nullptr;
    QGroupBox * m_notCheckedBox = nullptr;
    QTableWidget * m_notChecked = nullptr;
    AnalysisRun::Outcome m_outcome = AnalysisRun::Outcome::Done; ///< of the latest run
};

} // namespace Workbench
