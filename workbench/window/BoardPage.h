#pragma once

#include "board/BoardSigns.h"
#include "job/Session.h"
#include "ui/Units.h"
#include "window/WindowState.h"

#include <QList>
#include <QSplitter>
#include <QString>

#include <cstddef>
#include <vector>

class QAction;
class QLabel;
class QTabWidget;

namespace Workbench {

class BoardView;
class EnginePane;
class FeaturePane;
class FilterBar;
class LayerTable;
class LogLines;
class Pane;
struct SymbolChange;

/// The page of the board: a view for each step in tabs, the job's layers on the left, the selected features
/// on the right with, closed at first, what the engine was told, and the log below. Commands act on the step
/// in front.
class BoardPage : public QSplitter
{
    Q_OBJECT

public:
    /// Views start in `unit`. Session and log are not owned and outlive the page; the session's counts follow
    /// deletions.
    BoardPage(Session & session, LogLines const & log, Unit unit);

    /// The view of a step, made and registered when it is first needed: a job may have thousands of steps.
    BoardView & view(std::size_t step);
    BoardView * currentView() const;
    /// Shows lengths in a unit, also in views that are yet to be made.
    void setUnit(Unit unit);
    /// Divides a page that has no saved state.
    void arrange(FirstPanes const & panes);
    /// What can be closed and opened again, as checkable actions for a menu.
    QList<QAction *> paneActions() const;
    /// The session's step in front.
    Session::Step const & currentStep() const { return m_session.steps()[m_step]; }
    /// Brings a step to the front by its name in any case. False for an unknown one.
    bool showStep(QString const & name);

    FeaturePane & feature() const { return *m_feature; }
    /// Lets the user change the selected features, or says that nothing is selected.
    void openFeature();

    void tickAllLayers(bool on);
    /// Shows the colours of layers that are kept in a settings file, and keeps later ones there.
    void useColours(QString const & file);
    /// Reads the features of the step in front again and shows its state.
    void refresh();
    /// Shows again what the engine was told.
    void refreshEngine();
    /// Undoes the latest operation on the step in front. The library asks first.
    void undoLast();
    /// Deletes the selected features of the shown layer without asking, since it can be undone. The status
    /// tells how many were deleted, or why none were.
    void deleteSelected();
    /// Gives features another symbol and selects them again, likewise.
    void changeSymbol(SymbolChange const & change);
    /// Brings a measurement's step, layer and place to the front, and marks the place.
    void showMeasurement(QString const & step, QString const & layer, Workbench::Mark const & mark);
    /// Makes all marks faint, since the board may have changed, or removes them.
    void fadeMarks(bool remove);

signals:
    /// Another step is in front.
    void stepChanged();
    /// The features of the step in front were read again.
    void refreshed();
    /// The user has changed the selection of the view in front.
    void selectionChanged();
    /// The pointer has moved over a view.
    void pointerMoved();
    /// A view shows another part of its board.
    void portChanged();
    /// The shown layer is to be compared, with this one if it is another.
    void compareWanted(QString const & layer);
    /// What a command did, for the status bar.
    void status(QString const & text);

private:
    void makeSteps();
    void makeLayout(LogLines const & log);
    QWidget * makeLayerPane();
    QWidget * makeRightPanes();
    void setTexts();
    void showCurrentStep();
    void showLayer(int layer);
    void showTicked();
    void showOutline();
    void showRefusal(QString const & text);

    Session & m_session;
    Unit m_unit;
    std::vector<BoardView *> m_views; // by step; null until needed
    std::size_t m_step = 0;           // in front; its view exists
    QTabWidget * m_steps;
    QLabel * m_outline;
    LayerTable * m_layers;
    FilterBar * m_filter;
    EnginePane * m_engine;
    FeaturePane * m_feature;
    Pane * m_featurePane = nullptr;
    Pane * m_logPane = nullptr;
    QSplitter * m_sides = nullptr;
};

} // namespace Workbench
