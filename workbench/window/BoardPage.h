#pragma once

#include "board/BoardSigns.h"
#include "job/Session.h"
#include "ui/Units.h"

#include <QPointer>
#include <QSplitter>
#include <QString>

#include <cstddef>
#include <vector>

class QLabel;
class QTabWidget;

namespace Workbench {

class BoardView;
class EnginePane;
class FeatureDialog;
class FilterBar;
class LayerTable;
class LogLines;

/// The page of the board: a view for each step in tabs, the job's layers on the left, what the engine was
/// told on the right, and the log below. Commands act on the step in front.
class BoardPage : public QSplitter
{
    Q_OBJECT

public:
    /// Registers the views, which start in `unit`. Session and log are not owned and outlive the page; the
    /// session's counts follow deletions. `formFile` keeps the forms of the feature dialogs.
    BoardPage(Session & session, LogLines const & log, Unit unit, QString formFile);

    std::vector<BoardView *> const & views() const { return m_views; }
    BoardView * currentView() const;
    /// The session's step in front.
    Session::Step const & currentStep() const { return m_session.steps()[stepIndex()]; }
    /// Brings a step to the front by its name in any case. False for an unknown one.
    bool showStep(QString const & name);

    /// Opens the dialog on a pad of the shown layer. It replaces an open one and is owned by the page.
    FeatureDialog * openFeature(int feature);
    /// Opens the dialog on the first pad, or says that there is none.
    void openFirstPad();
    /// Closes the dialog, which saves its form.
    void closeFeature();
    /// The first pad of the shown layer whose symbol has sizes; -1 if there is none.
    int firstPad() const;

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
    /// Brings a measurement's step, layer and place to the front, and marks the place.
    void showMeasurement(QString const & step, QString const & layer, Workbench::Mark const & mark);

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
    void makeViews(Unit unit);
    void makeLayout(LogLines const & log);
    QWidget * makeLayerPane();
    std::size_t stepIndex() const;
    void setTexts();
    void showCurrentStep();
    void showLayer(int layer);
    void showTicked();
    void showOutline();

    Session & m_session;
    QString m_formFile;
    std::vector<BoardView *> m_views;
    QTabWidget * m_steps;
    QLabel * m_outline;
    LayerTable * m_layers;
    FilterBar * m_filter;
    EnginePane * m_engine;
    QPointer<FeatureDialog> m_feature;
};

} // namespace Workbench
