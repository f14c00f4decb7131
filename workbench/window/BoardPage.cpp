#include "window/BoardPage.h"

#include "board/BoardTexts.h"
#include "board/BoardView.h"
#include "feature/FeaturePane.h"
#include "layers/FilterBar.h"
#include "layers/LayerTable.h"
#include "pages/EnginePane.h"
#include "ui/LanguageChange.h"
#include "ui/LogPane.h"
#include "window/Pane.h"
#include "window/WindowTexts.h"

#include <EmbeddedEngine.h>
#include <UIAPICommon.h>

#include <glog/logging.h>

#include <QAction>
#include <QLabel>
#include <QPointer>
#include <QScrollArea>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace Workbench {

using namespace KVCAM;
using namespace KVCAM::UIAPI;

BoardPage::BoardPage(Session & session, LogLines const & log, Unit unit)
    : QSplitter(Qt::Vertical)
    , m_session(session)
    , m_unit(unit)
    , m_views(session.steps().size())
    , m_steps(new QTabWidget)
    , m_outline(new QLabel)
    , m_layers(new LayerTable)
    , m_filter(new FilterBar(session))
    , m_engine(new EnginePane)
{
    makeSteps();
    m_feature = new FeaturePane(view(m_step));
    connect(m_feature, &FeaturePane::changeWanted, this, &BoardPage::changeSymbol);
    makeLayout(log);
    connect(Ext::Notifier::instance(), &Ext::Notifier::viewChanged, this, &BoardPage::showOutline);
    connect(m_steps, &QTabWidget::currentChanged, this, [this] {
        view(static_cast<std::size_t>(m_steps->currentIndex()));
        m_step = static_cast<std::size_t>(m_steps->currentIndex()); // until then, all acts on the one before
        showCurrentStep();
        emit stepChanged();
    });
    connect(m_layers, &LayerTable::layerSelected, this, &BoardPage::showLayer);
    connect(m_layers, &LayerTable::ticksChanged, this, &BoardPage::showTicked);
    connect(m_layers, &LayerTable::coloursChanged, this, &BoardPage::showTicked);
    connect(m_layers, &LayerTable::compareWanted, this, &BoardPage::compareWanted);
    connect(m_layers, &LayerTable::left, this, [this] { currentView()->setFocus(); });
    connect(m_filter, &FilterBar::changed, this,
            [this] { m_layers->showMatches(m_filter->matches(), m_filter->hidesOthers()); });
    showCurrentStep();
    setTextsNowAndLater(*this, [this] { setTexts(); });
}

void BoardPage::makeSteps()
{
    m_steps->setObjectName("steps");
    for (std::size_t i = 0; i < m_views.size(); ++i) {
        m_steps->addTab(new QWidget, QString());
    }
    view(m_step);
}

BoardView & BoardPage::view(std::size_t step)
{
    BoardView *& view = m_views.at(step);
    if (view == nullptr) {
        QWidget * tab = m_steps->widget(static_cast<int>(step));
        view = new BoardView(m_session.job(), m_session.steps().at(step).name, m_unit, tab);
        auto * layout = new QVBoxLayout(tab);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(view);
        connect(view, &BoardView::pointerMoved, this, &BoardPage::pointerMoved);
        connect(view, &BoardView::selectionShown, this, [this] { m_feature->showSelection(*currentView()); });
        connect(view, &BoardView::portChanged, this, &BoardPage::portChanged);
        connect(view, &BoardView::selectionChanged, this, &BoardPage::selectionChanged);
        connect(view, &BoardView::deleteAsked, this, &BoardPage::deleteSelected);
    }
    return *view;
}

void BoardPage::setUnit(Unit unit)
{
    m_unit = unit;
    for (BoardView const * view : m_views) {
        if (view != nullptr && Ext::unitOf(view->handle()) != unit) {
            giveUnit(view->handle(), unit);
        }
    }
}

QList<QAction *> BoardPage::paneActions() const
{
    QList<QAction *> actions;
    for (Pane const * pane : findChildren<Pane *>()) {
        actions.append(pane->openAction());
    }
    return actions;
}

QWidget * BoardPage::makeRightPanes()
{
    auto * feature = new QScrollArea;
    feature->setFrameShape(QFrame::NoFrame);
    feature->setWidgetResizable(true);
    feature->setWidget(m_feature);
    for (QWidget * plain : {feature->viewport(), static_cast<QWidget *>(m_feature)}) {
        plain->setAutoFillBackground(false); // that of the pane
    }
    m_featurePane = new Pane("feature", QT_TRANSLATE_NOOP("Workbench::MainWindow", "Feature"), feature);
    auto * engine =
        new Pane("engine", QT_TRANSLATE_NOOP("Workbench::MainWindow", "What the engine was told"), m_engine);
    engine->setOpen(false);
    auto * right = new QSplitter(Qt::Vertical);
    right->setObjectName("right");
    for (Pane * pane : {m_featurePane, engine}) {
        right->addWidget(pane);
        connect(pane->openAction(), &QAction::toggled, right, // without a pane it would keep its room
                [this, right, engine] { right->setVisible(m_featurePane->isOpen() || engine->isOpen()); });
    }
    return right;
}

void BoardPage::makeLayout(LogLines const & log)
{
    m_outline->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_outline->setWordWrap(true); // must not widen the window
    auto * middle = new QWidget;
    auto * layout = new QVBoxLayout(middle);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_outline);
    layout->addWidget(m_steps, 1);

    m_sides = new QSplitter(Qt::Horizontal);
    m_sides->setObjectName("sides");
    m_sides->addWidget(
        new Pane("layers", QT_TRANSLATE_NOOP("Workbench::MainWindow", "Layers"), makeLayerPane()));
    m_sides->addWidget(middle);
    m_sides->addWidget(makeRightPanes());
    m_sides->setCollapsible(1, false); // the board
    m_sides->setStretchFactor(1, 1);

    addWidget(m_sides);
    auto * lines = new LogPane(log);
    m_logPane = new Pane("log", QT_TRANSLATE_NOOP("Workbench::MainWindow", "Log"), lines);
    addWidget(m_logPane);
    for (QWidget * list : {static_cast<QWidget *>(lines), static_cast<QWidget *>(m_layers)}) {
        list->setMinimumHeight(2 * fontMetrics().lineSpacing()); // on a small screen; both scroll
    }
    setCollapsible(0, false);
    setStretchFactor(0, 1);
    setSizes({760, 96});
}

void BoardPage::arrange(FirstPanes const & panes)
{
    m_featurePane->setOpen(panes.hasFeature);
    m_logPane->setOpen(panes.hasLog);
    int const right = m_sides->widget(2)->isVisibleTo(m_sides) ? panes.feature : 0;
    m_sides->setSizes({panes.layers, window()->width() - panes.layers - right, panes.feature});
}

QWidget * BoardPage::makeLayerPane()
{
    auto * pane = new QWidget;
    auto * layout = new QVBoxLayout(pane);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_filter);
    layout->addWidget(m_layers, 1);
    return pane;
}

void BoardPage::setTexts()
{
    for (std::size_t i = 0; i < m_views.size(); ++i) {
        m_steps->setTabText(static_cast<int>(i), WindowTexts::tr("Step %1").arg(
                                                     QString::fromStdString(m_session.steps()[i].name)));
        QStringList repeats;
        for (auto const & [name, count] : m_session.steps()[i].repeats) {
            repeats.append(WindowTexts::tr("Repeats the step %1: %2 times")
                               .arg(QString::fromStdString(name))
                               .arg(count));
        }
        m_steps->setTabToolTip(static_cast<int>(i), repeats.join('\n'));
    }
    m_layers->show(m_session, m_step);
    showOutline();
}

BoardView * BoardPage::currentView() const
{
    return m_views.at(m_step);
}

bool BoardPage::showStep(QString const & name)
{
    auto const & steps = m_session.steps();
    auto const found = std::find_if(steps.begin(), steps.end(), [&](Session::Step const & step) {
        return QString::fromStdString(step.name).compare(name, Qt::CaseInsensitive) == 0;
    });
    if (found == steps.end()) {
        return false;
    }
    m_steps->setCurrentIndex(static_cast<int>(found - steps.begin()));
    return true;
}

void BoardPage::showCurrentStep()
{
    m_layers->show(m_session, m_step);
    if (m_layers->selectedLayer() < 0) {
        m_layers->setCurrentCell(m_session.firstCopperLayer(currentView()->step()), 0);
    } else {
        showLayer(m_layers->selectedLayer());
    }
    showTicked();
    m_feature->showSelection(*currentView());
    setStepConfigToAPI(currentView()->handle()); // the engine holds the state of the view in front
    refreshEngine();
    m_filter->setStep(currentView()->step());
    showOutline();
}

void BoardPage::showLayer(int layer)
{
    m_filter->setLayer(layer);
    if (layer >= 0) {
        currentView()->showLayer(m_session.layers().at(static_cast<std::size_t>(layer)).info);
    }
}

void BoardPage::showTicked()
{
    std::vector<layer_info> layers;
    for (std::size_t const index : m_layers->tickedLayers()) {
        layers.push_back(m_session.layers().at(index).info);
    }
    currentView()->showBackgroundLayers(std::move(layers));
}

void BoardPage::showOutline()
{
    BoardView const & view = *currentView();
    QString const step = QString::fromStdString(view.step());
    auto const & outline = currentStep().outline;
    m_outline->setText(outline ? WindowTexts::tr("Board outline of step %1: %2")
                                     .arg(step, sizeText(view.handle(), outline->right - outline->left,
                                                         outline->top - outline->bottom))
                               : WindowTexts::tr("Step %1 has no profile").arg(step));
}

void BoardPage::tickAllLayers(bool on)
{
    m_layers->tickAll(on);
}

void BoardPage::useColours(QString const & file)
{
    m_layers->useColours(file);
}

void BoardPage::refreshEngine()
{
    m_engine->refresh();
}

void BoardPage::openFeature()
{
    m_featurePane->setOpen(true);
    if (!m_feature->beginEditing()) {
        emit status(WindowTexts::tr("Nothing with a symbol is selected. A click selects a feature."));
    }
}

void BoardPage::refresh()
{
    m_session.recount(m_step);
    currentView()->reload();
    showCurrentStep();
    emit refreshed();
}

void BoardPage::undoLast()
{
    QPointer<BoardPage> const alive(this); // the page may be deleted while the library asks
    undo(QString::fromStdString(m_session.job()), QString::fromStdString(currentView()->step()), window());
    if (alive) {
        refresh();
    }
}

void BoardPage::deleteSelected()
{
    BoardView const & view = *currentView();
    std::vector<int> const features(view.selected().begin(), view.selected().end());
    if (features.empty()) {
        emit status(WindowTexts::tr("Nothing is selected. Ctrl with a click selects a feature."));
        return;
    }
    if (!Embedded::deleteFeatures(m_session.job(), view.step(), view.layer(), features)) {
        showRefusal(WindowTexts::tr("Nothing was deleted: %1"));
        return;
    }
    refresh();
    emit status(WindowTexts::tr("Deleted features: %1").arg(features.size()));
}

void BoardPage::changeSymbol(SymbolChange const & change)
{
    if (!Embedded::changeSymbol(m_session.job(), change.step, change.layer, change.features,
                                change.symbol.name().toStdString(), unitCode(change.symbol.unit()))) {
        showRefusal(WindowTexts::tr("Nothing was changed: %1"));
        m_feature->showSelection(*currentView());
        return;
    }
    refresh();
    BoardView & view = *currentView();
    if (view.step() == change.step && view.layer() == change.layer) {
        view.select({change.features.begin(), change.features.end()});
    }
    emit status(
        WindowTexts::tr("Features changed to %1: %2").arg(change.symbol.name()).arg(change.features.size()));
}

// The text has a place for the engine's reason.
void BoardPage::showRefusal(QString const & text)
{
    QString const reason = QString::fromStdString(Embedded::lastError()).simplified();
    LOG(ERROR) << "workbench: cannot change features: " << reason.toStdString();
    emit status(text.arg(reason));
}

void BoardPage::showMeasurement(QString const & step, QString const & layer, Mark const & mark)
{
    if (!showStep(step)) {
        return;
    }
    auto const & layers = m_session.layers();
    auto const found = std::find_if(layers.begin(), layers.end(), [&](Session::Layer const & each) {
        return each.info.name == layer.toStdString();
    });
    if (found != layers.end()) {
        m_layers->setCurrentCell(static_cast<int>(found - layers.begin()), 0);
    }
    currentView()->setMarks({mark});
    currentView()->centreOn(mark.x, mark.y);
}

void BoardPage::fadeMarks(bool remove)
{
    for (BoardView * view : m_views) {
        if (view == nullptr) {
            continue;
        }
        std::vector<Mark> marks = remove ? std::vector<Mark>() : view->marks();
        for (Mark & mark : marks) {
            mark.isFaint = true;
        }
        view->setMarks(std::move(marks));
    }
}

} // namespace Workbench
