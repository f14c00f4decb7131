#include "window/BoardPage.h"
#include "feature/PadSymbol.h"

#include "board/BoardTexts.h"
#include "board/BoardView.h"
#include "feature/FeatureDialog.h"
#include "layers/FilterBar.h"
#include "layers/LayerTable.h"
#include "pages/EnginePane.h"
#include "ui/LanguageChange.h"
#include "ui/LogPane.h"
#include "window/WindowTexts.h"

#include <EmbeddedEngine.h>
#include <UIAPICommon.h>

#include <glog/logging.h>

#include <QGroupBox>
#include <QLabel>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace Workbench {

using namespace KVCAM;
using namespace KVCAM::UIAPI;

namespace {

// The content in a box with a title, which is given untranslated.
QGroupBox * titled(char const * title, QWidget * content)
{
    auto * box = new QGroupBox;
    auto * layout = new QVBoxLayout(box);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->addWidget(content);
    setTextsNowAndLater(*box, [box, title] { box->setTitle(WindowTexts::tr(title)); });
    return box;
}

} // namespace

BoardPage::BoardPage(Session & session, LogLines const & log, Unit unit, QString formFile)
    : QSplitter(Qt::Vertical)
    , m_session(session)
    , m_formFile(std::move(formFile))
    , m_steps(new QTabWidget)
    , m_outline(new QLabel)
    , m_layers(new LayerTable)
    , m_filter(new FilterBar(session))
    , m_engine(new EnginePane)
{
    makeViews(unit);
    makeLayout(log);
    connect(Ext::Notifier::instance(), &Ext::Notifier::viewChanged, this, &BoardPage::showOutline);
    connect(m_steps, &QTabWidget::currentChanged, this, [this] {
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

void BoardPage::makeViews(Unit unit)
{
    for (Session::Step const & step : m_session.steps()) {
        auto * view = new BoardView(m_session.job(), step.name, unit, this);
        connect(view, &BoardView::pointerMoved, this, &BoardPage::pointerMoved);
        connect(view, &BoardView::padPicked, this, &BoardPage::openFeature);
        connect(view, &BoardView::portChanged, this, &BoardPage::portChanged);
        connect(view, &BoardView::selectionChanged, this, &BoardPage::selectionChanged);
        connect(view, &BoardView::deleteAsked, this, &BoardPage::deleteSelected);
        m_views.push_back(view);
        m_steps->addTab(view, QString());
    }
}

void BoardPage::makeLayout(LogLines const & log)
{
    m_outline->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto * middle = new QWidget;
    auto * layout = new QVBoxLayout(middle);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_outline);
    layout->addWidget(m_steps, 1);

    auto * sides = new QSplitter(Qt::Horizontal);
    sides->setObjectName("sides");
    sides->setChildrenCollapsible(false);
    sides->addWidget(titled(QT_TRANSLATE_NOOP("Workbench::MainWindow", "Layers"), makeLayerPane()));
    sides->addWidget(middle);
    sides->addWidget(
        titled(QT_TRANSLATE_NOOP("Workbench::MainWindow", "What the engine was told"), m_engine));
    sides->setStretchFactor(1, 1);
    sides->setSizes({560, 640, 240});

    setChildrenCollapsible(false);
    addWidget(sides);
    addWidget(titled(QT_TRANSLATE_NOOP("Workbench::MainWindow", "Log"), new LogPane(log)));
    setStretchFactor(0, 1);
    setSizes({680, 140});
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
        m_steps->setTabText(static_cast<int>(i),
                            WindowTexts::tr("Step %1").arg(QString::fromStdString(m_views[i]->step())));
        QStringList repeats;
        for (auto const & [name, count] : m_session.steps()[i].repeats) {
            repeats.append(WindowTexts::tr("Repeats the step %1: %2 times")
                               .arg(QString::fromStdString(name))
                               .arg(count));
        }
        m_steps->setTabToolTip(static_cast<int>(i), repeats.join('\n'));
    }
    m_layers->show(m_session, stepIndex());
    showOutline();
}

std::size_t BoardPage::stepIndex() const
{
    return static_cast<std::size_t>(m_steps->currentIndex());
}

BoardView * BoardPage::currentView() const
{
    return m_views.at(stepIndex());
}

bool BoardPage::showStep(QString const & name)
{
    auto const found = std::find_if(m_views.begin(), m_views.end(), [&](BoardView const * view) {
        return QString::fromStdString(view->step()).compare(name, Qt::CaseInsensitive) == 0;
    });
    if (found == m_views.end()) {
        return false;
    }
    m_steps->setCurrentIndex(static_cast<int>(found - m_views.begin()));
    return true;
}

void BoardPage::showCurrentStep()
{
    m_layers->show(m_session, stepIndex());
    if (m_layers->selectedLayer() < 0) {
        m_layers->setCurrentCell(m_session.firstCopperLayer(currentView()->step()), 0);
    } else {
        showLayer(m_layers->selectedLayer());
    }
    showTicked();
    setStepConfigToAPI(currentView()->handle()); // the engine holds the state of the view in front
    refreshEngine();
    m_filter->setStep(currentView()->step());
    showOutline();
}

void BoardPage::showLayer(int layer)
{
    closeFeature(); // its pad belongs to the layer that was shown
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

FeatureDialog * BoardPage::openFeature(int feature)
{
    closeFeature();
    currentView()->markFeature(feature);
    m_feature = new FeatureDialog(*currentView(), feature, m_session.job(), m_formFile, this);
    m_feature->restoreForm();
    m_feature->show();
    return m_feature;
}

void BoardPage::openFirstPad()
{
    int const pad = firstPad();
    if (pad >= 0) {
        openFeature(pad);
    } else {
        Ext::showMessage({Ext::MessageKind::Information, window(), WindowTexts::tr("Information"),
                          WindowTexts::tr("This layer has no pads.")});
    }
}

void BoardPage::closeFeature()
{
    if (m_feature != nullptr) {
        m_feature->close();
        m_feature->deleteLater();
        m_feature = nullptr;
    }
}

int BoardPage::firstPad() const
{
    for (auto const & feature : currentView()->features()) {
        PadSymbol const symbol(QString::fromStdString(feature.symbol), Unit::Inch);
        if (feature.kind == 'P' && symbol.hasWidth()) {
            return feature.index;
        }
    }
    return -1;
}

void BoardPage::refresh()
{
    closeFeature(); // its pad may be gone
    m_session.recount(stepIndex());
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
        QString const reason = QString::fromStdString(Embedded::lastError()).simplified();
        LOG(ERROR) << "workbench: cannot delete features: " << reason.toStdString();
        emit status(WindowTexts::tr("Nothing was deleted: %1").arg(reason));
        return;
    }
    refresh();
    emit status(WindowTexts::tr("Deleted features: %1").arg(features.size()));
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

} // namespace Workbench
