#pragma once

#include "board/BoardSigns.h"
#include "checks/AnalysisRun.h"

#include <QWidget>

#include <functional>
#include <memory>
#include <string>
#include <vector>

class QFrame;
class QGroupBox;
class QLabel;
class QPushButton;
class QStackedWidget;
class QTableWidget;

namespace Workbench {

class BoardView;
class LevelsBox;
class ResultsModel;
class ResultsTree;
class SeverityBar;
class TrackWidthChart;
class WaiversBox;

/// The results of the engine's checks on a step, by check and layer, coloured by the levels; the levels
/// themselves, the narrowest track of each layer, and what was not checked. Lengths are in the unit of the
/// step's view. Results that a new run might not find are marked as out of date, and never exported without a
/// question.
class ResultsPage : public QWidget
{
    Q_OBJECT

public:
    /// Show the next violation and the previous one, anywhere in the window.
    static constexpr int nextKey = Qt::Key_F12;
    static constexpr int previousKey = Qt::SHIFT + Qt::Key_F12;

    /// The session and the view outlive the page.
    ResultsPage(Session const & session, BoardView & view, QWidget * parent = nullptr);

    AnalysisRun const & run() const { return *m_run; }
    /// Takes the next step to check and the unit from another view.
    void setView(BoardView & view);
    /// Checks the step with a progress dialog, which can be cancelled. False when there are no new results;
    /// the page says why, unless it was deleted meanwhile.
    bool runChecks();
    /// Accepts violations, in the results that there are and in those of later runs. `path` is the file that
    /// they came from.
    void setWaivers(std::vector<KVCAM::UIAPI::Ext::Waiver> waivers, QString const & path = {});
    /// Asks for a reason and accepts the selected violation, in the file that the waivers came from, or in
    /// one that the user names.
    void waiveSelected();
    /// Selects the worst measurement of a check, or the check if it has none, and shows every severity. False
    /// if it has no row.
    bool showCheck(std::string const & table, int number);
    /// Selects the next violation (way 1) or the previous one (way -1), and says which.
    void showViolation(int way);
    /// Looks whether the results are out of date. Call it when the engine's features have changed.
    void noteChange();

signals:
    /// A measurement with a place was selected.
    void measurementSelected(QString step, QString layer, Workbench::Mark mark);
    /// The marks of earlier measurements are out of date, or, without results of their own, to be removed.
    void marksOutdated(bool remove);
    /// What a command did, for the status bar.
    void status(QString const & text);
    /// The user wants to see the board with the mark.
    void boardWanted();

private:
    QWidget * makeButtons();
    QWidget * makeBanner();
    QWidget * makeResults();
    QWidget * makeSides();
    QWidget * makeFoot();
    bool measure(std::string const & step);
    bool mayExport(QString const & title);
    void setTexts();
    void refresh();
    void showLevels();
    void showBanner();
    void showWritten();
    void showNotChecked();
    void waive(KVCAM::UIAPI::Ext::Waiver const & waiver, QString const & path);
    void showSelected();
    QString selectedText() const;
    void exportFile(QString const & title, QString const & name, QString const & filter,
                    std::function<KVCAM::UIAPI::Ext::Result(QString const &)> const & write);

    std::shared_ptr<AnalysisRun> m_run;
    BoardView * m_view;
    ResultsModel * m_model;
    ResultsTree * m_tree = nullptr;
    QStackedWidget * m_stack = nullptr; ///< the tree, or a text that says why it is empty
    QLabel * m_empty = nullptr;
    QLabel * m_step = nullptr;
    SeverityBar * m_severities = nullptr;
    QFrame * m_banner = nullptr; ///< that the results are out of date
    QLabel * m_outdated = nullptr;
    QPushButton * m_again = nullptr;
    QLabel * m_written = nullptr;
    QString m_writtenPath; ///< of the latest export; empty if it failed
    QLabel * m_note = nullptr;
    QPushButton * m_runButton = nullptr;
    QPushButton * m_previous = nullptr;
    QPushButton * m_next = nullptr;
    QPushButton * m_boardButton = nullptr;
    QPushButton * m_summaryButton = nullptr;
    QPushButton * m_reportButton = nullptr;
    LevelsBox * m_levels = nullptr;
    QGroupBox * m_chartBox = nullptr;
    TrackWidthChart * m_chart = nullptr;
    QGroupBox * m_notCheckedBox = nullptr;
    QTableWidget * m_notChecked = nullptr;
    QPushButton * m_waiveButton = nullptr;
    WaiversBox * m_waivers = nullptr;
    QString m_waiversPath;                                       ///< empty: none yet
    AnalysisRun::Outcome m_outcome = AnalysisRun::Outcome::Done; ///< of the latest run
};

} // namespace Workbench
