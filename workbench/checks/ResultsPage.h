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

/// What the engine's checks found on a step, by check and layer, coloured by the levels; the levels
/// themselves, the narrowest track of each layer, and what was not checked. Lengths are in the unit of the
/// shown step's view.
class ResultsPage : public QWidget
{
    Q_OBJECT

public:
    /// The session and the view outlive the page.
    ResultsPage(Session const & session, BoardView & view, QWidget * parent = nullptr);

    AnalysisRun const & run() const { return *m_run; }
    /// Takes the step to be checked next and the unit from another view.
    void setView(BoardView & view);
    /// Checks the shown step behind a progress dialog, which may be cancelled. False when there are no new
    /// results; the page says why, unless it was deleted meanwhile.
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
    QStackedWidget * m_stack = nullptr; ///< the tree, or why there is none
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
