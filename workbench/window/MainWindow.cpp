#include "window/MainWindow.h"

#include "board/BoardView.h"
#include "feature/FeatureDialog.h"
#include "layers/FilterBar.h"
#include "layers/LayerTable.h"
#include "layers/ReferencesPage.h"
#include "pages/AttributesPage.h"
#include "pages/EdaPage.h"
#include "pages/EnginePane.h"
#include "pages/SettingsPage.h"
#include "pages/SymbolsPage.h"
#include "pages/TemplatesPage.h"
#include "ui/LanguageChange.h"
#include "ui/LogPane.h"
#include "ui/Units.h"
#include "window/CheatSheet.h"
#include "window/HotkeyCommands.h"
#include "window/WindowState.h"

#include <QAction>
#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QSplitter>
#include <QStatusBar>
#include <QTabWidget>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <cmath>
#include <utility>

namespace Workbench {

namespace {

using namespace KVCAM::UIAPI;

} // namespace

MainWindow::MainWindow(Session & session, LogLines const & log, CommandLine const & commandLine)
    : m_session(session)
    , m_database(commandLine.output + "/uiapi-engine.sqlite")
    , m_formFile(commandLine.output + "/feature-form.json")
{
    resize(1440, 900);
    makeToolBar();
    m_saveFlag->setChecked(commandLine.saveFlag); // before the views, so that their registration is recorded
    makeViews(commandLine.unit);
    m_pages = new QTabWidget;
    setCentralWidget(m_pages);
    addPage(makeBoardPage(log), "board", QT_TR_NOOP("&Board"));
    addPages();
    makeMenus();

    m_pointer = new QLabel;
    m_zoom = new QLabel;
    statusBar()->addWidget(m_pointer, 1);
    statusBar()->addPermanentWidget(m_zoom);
    statusBar()->addPermanentWidget(new QLabel(session.directory()));

    connect(Ext::Notifier::instance(), &Ext::Notifier::viewChanged, this, &MainWindow::refreshUnit);
    connect(m_pages, &QTabWidget::currentChanged, m_engine, &EnginePane::refresh);
    connect(m_steps, &QTabWidget::currentChanged, this, &MainWindow::showStep);
    connect(m_layers, &LayerTable::layerSelected, this, &MainWindow::showLayer);
    connect(m_layers, &LayerTable::ticksChanged, this, &MainWindow::showTicked);
    showStep();
    addHotkeys();
    setTexts();
}

BoardView * MainWindow::currentView() const
{
    return m_views.at(static_cast<std::size_t>(m_steps->currentIndex()));
}

bool MainWindow::showPage(QString const & name)
{
    for (int i = 0; i < m_pages->count(); ++i) {
        if (m_pages->widget(i)->objectName() == name) {
            m_pages->setCurrentIndex(i);
            return true;
        }
    }
    return false;
}

void MainWindow::makeViews(int unit)
{
    for (Session::Step const & step : m_session.steps()) {
        auto * view = new BoardView(m_session.job(), step.name, unit, this);
        connect(view, &BoardView::pointerMoved, this, [this] {
            m_hasPointed = true;
            showPointer();
        });
        connect(view, &BoardView::padPicked, this, &MainWindow::openFeature);
        connect(view, &BoardView::portChanged, this, &MainWindow::showZoom);
        connect(view, &BoardView::selectionChanged, this, &MainWindow::tellSelection);
        connect(view, &BoardView::deleteAsked, this, &MainWindow::deleteSelected);
        m_views.push_back(view);
    }
}

QWidget * MainWindow::makeBoardPage(LogLines const & log)
{
    m_steps = new QTabWidget;
    for (BoardView * view : m_views) {
        m_steps->addTab(view, QString());
    }
    m_texts.emplace_back([this] {
        for (std::size_t i = 0; i < m_views.size(); ++i) {
            m_steps->setTabText(static_cast<int>(i),
                                tr("Step %1").arg(QString::fromStdString(m_views[i]->step())));
        }
    });
    m_outline = new QLabel;
    m_outline->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_engine = new EnginePane;

    auto * sides = new QSplitter(Qt::Horizontal);
    sides->setObjectName("sides");
    sides->setChildrenCollapsible(false);
    sides->addWidget(titled(QT_TR_NOOP("Layers"), makeLayerPane()));
    auto * middle = new QWidget;
    auto * layout = new QVBoxLayout(middle);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_outline);
    layout->addWidget(m_steps, 1);
    sides->addWidget(middle);
    sides->addWidget(titled(QT_TR_NOOP("What the engine was told"), m_engine));
    sides->setStretchFactor(1, 1);
    sides->setSizes({560, 640, 240});

    auto * page = new QSplitter(Qt::Vertical);
    page->setObjectName("board and log");
    page->setChildrenCollapsible(false);
    page->addWidget(sides);
    page->addWidget(titled(QT_TR_NOOP("Log"), new LogPane(log)));
    page->setStretchFactor(0, 1);
    page->setSizes({680, 140});
    return page;
}

void MainWindow::makeToolBar()
{
    m_bar = addToolBar(QString());
    m_bar->setObjectName("tools");
    m_bar->setMovable(false);
    m_bar->toggleViewAction()->setVisible(false);
    m_unit = m_bar->addAction(QString());
    m_unit->setShortcut(Qt::Key_F5);
    connect(m_unit, &QAction::triggered, this, &MainWindow::switchUnit);
    m_saveFlag = m_bar->addAction(QString());
    m_saveFlag->setCheckable(true);
    connect(m_saveFlag, &QAction::toggled, this, &MainWindow::switchSaveFlag);
    m_featureAction = m_bar->addAction(QString());
    m_featureAction->setShortcut(Qt::Key_F4);
    connect(m_featureAction, &QAction::triggered, this, &MainWindow::openFirstPad);
    m_language = new QComboBox;
    m_language->addItem("English", static_cast<int>(LANGUAGE_ENGLISH));
    m_language->addItem(QString::fromUtf8("简体中文"), static_cast<int>(LANGUAGE_CHINESE));
    connect(m_language, QOverload<int>::of(&QComboBox::activated), this,
            [this] { setLanguage(static_cast<LANGUAGE_MODE>(m_language->currentData().toInt())); });
    m_bar->addSeparator();
    m_bar->addWidget(m_language);
    for (auto * button : m_bar->findChildren<QToolButton *>()) {
        button->setAutoRaise(false);
    }
    m_texts.emplace_back([this] {
        m_bar->setWindowTitle(tr("View"));
        m_unit->setToolTip(tr("Switches the unit of the shown step's view"));
        m_saveFlag->setText(tr("&Save flag"));
        m_saveFlag->setToolTip(tr("Makes the engine write what it is told to %1 as well").arg(m_database));
        m_featureAction->setText(tr("&Feature"));
        m_featureAction->setToolTip(tr("Opens the dialog on a pad; a click on a pad does so, too"));
        m_language->setToolTip(tr("Language of all texts"));
    });
}

void MainWindow::addPages()
{
    addResults();
    m_symbols = new SymbolsPage(m_session.job(), m_views.front()->handle());
    addPage(m_symbols, "symbols", QT_TR_NOOP("S&ymbols"));
    m_references = new ReferencesPage(m_session);
    addPage(m_references, "references", QT_TR_NOOP("Refere&nces"));
    addPage(new SettingsPage, "settings", QT_TR_NOOP("Se&ttings"));
    addPage(new TemplatesPage, "templates", QT_TR_NOOP("Te&mplates"));
    addPage(new AttributesPage, "attributes", QT_TR_NOOP("&Attributes"));
    addPage(new EdaPage, "eda", QT_TR_NOOP("EDA lin&k"));
}

void MainWindow::addHotkeys()
{
    m_told = new QLabel;
    m_told->setObjectName("hot keys");
    m_told->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // a long text widens no window
    statusBar()->insertWidget(0, m_told, 20);                            // all but what the pointer needs
    m_commands = new HotkeyCommands(*this, *m_pages->widget(0), this);
    connect(m_commands, &HotkeyCommands::told, this, &MainWindow::tell);
}

CheatSheet * MainWindow::showKeys()
{
    if (m_keys == nullptr) {
        m_keys = new CheatSheet(this);
    }
    m_keys->refresh();
    m_keys->show();
    m_keys->raise();
    return m_keys;
}

FeatureDialog * MainWindow::openFeature(int feature)
{
    closeFeature();
    currentView()->markFeature(feature);
    m_feature = new FeatureDialog(*currentView(), feature, m_session.job(), m_formFile, this);
    m_feature->restoreForm();
    m_feature->show();
    return m_feature;
}

void MainWindow::closeFeature()
{
    if (m_feature != nullptr) {
        m_feature->close();
        m_feature->deleteLater();
        m_feature = nullptr;
    }
}

void MainWindow::closeEvent(QCloseEvent * event)
{
    closeFeature(); // which saves its form
    if (!m_stateFile.isEmpty()) {
        bool const chinese = m_language->currentData().toInt() == LANGUAGE_CHINESE;
        keepWindow(*this, {m_pages->currentWidget()->objectName(), getUnit(currentView()->handle()), chinese},
                   m_stateFile);
    }
    QMainWindow::closeEvent(event);
}

void MainWindow::openFirstPad()
{
    int const pad = firstPad();
    if (pad >= 0) {
        openFeature(pad);
    } else {
        Ext::showMessage(
            {Ext::MessageKind::Information, this, tr("Information"), tr("This layer has no pads.")});
    }
}

int MainWindow::firstPad() const
{
    for (auto const & feature : currentView()->features()) {
        PadSymbol const symbol(QString::fromStdString(feature.symbol), 0);
        if (feature.kind == 'P' && symbol.hasWidth()) {
            return feature.index;
        }
    }
    return -1;
}

void MainWindow::setLanguage(LANGUAGE_MODE language)
{
    m_language->setCurrentIndex(m_language->findData(static_cast<int>(language)));
    if (!showChinese(language == LANGUAGE_CHINESE)) {
        LOG(ERROR) << "workbench: there are no texts in this language";
    }
}

void MainWindow::useStateFile(QString const & file, bool keepsUnit)
{
    m_stateFile = file;
    auto const choices = restoreWindow(*this, file);
    if (!choices) {
        return;
    }
    showPage(choices->page);
    for (BoardView const * view : m_views) {
        if (!keepsUnit && getUnit(view->handle()) != choices->unit) {
            setUnit(view->handle(), choices->unit);
        }
    }
    setLanguage(choices->chinese ? LANGUAGE_CHINESE : LANGUAGE_ENGLISH);
}

void MainWindow::changeEvent(QEvent * event)
{
    if (event->type() == QEvent::LanguageChange) {
        setTexts();
    }
    QMainWindow::changeEvent(event);
}

void MainWindow::setTexts()
{
    setWindowTitle(tr("%1 - UIAPICommon workbench").arg(QString::fromStdString(m_session.job())));
    for (auto const & set : m_texts) {
        set();
    }
    m_layers->show(m_session, static_cast<std::size_t>(m_steps->currentIndex()));
    refreshUnit();
    showPointer();
    showZoom();
}

// A title is given untranslated; the mnemonic in it brings the page to the front.
void MainWindow::addPage(QWidget * page, QString const & name, QString const & title)
{
    page->setObjectName(name);
    int const index = m_pages->addTab(page, title);
    m_texts.emplace_back(
        [this, index, title] { m_pages->setTabText(index, tr(title.toUtf8().constData())); });
}

void MainWindow::showStep()
{
    m_layers->show(m_session, static_cast<std::size_t>(m_steps->currentIndex()));
    if (m_layers->selectedLayer() < 0) {
        m_layers->setCurrentCell(m_session.firstCopperLayer(currentView()->step()), 0);
    } else {
        showLayer(m_layers->selectedLayer());
    }
    showTicked();
    setStepConfigToAPI(currentView()->handle()); // the engine holds the state of the view in front
    m_engine->refresh();
    m_symbols->setView(currentView()->handle());
    m_filter->setStep(currentView()->step());
    m_references->setStep(currentView()->step());
    refreshUnit();
    showZoom();
}

void MainWindow::showLayer(int layer)
{
    closeFeature(); // its pad belongs to the layer that was shown
    m_filter->setLayer(layer);
    if (layer >= 0) {
        currentView()->showLayer(m_session.layers().at(static_cast<std::size_t>(layer)).info);
    }
}

void MainWindow::showTicked()
{
    std::vector<layer_info> layers;
    for (std::size_t const index : m_layers->tickedLayers()) {
        layers.push_back(m_session.layers().at(index).info);
    }
    currentView()->showBeside(std::move(layers));
}

void MainWindow::showPointer()
{
    BoardView const * view = currentView();
    coordinate const * place = getCoordinate(view->handle());
    bool const isKnown = place != nullptr && m_hasPointed;
    m_pointer->setText(isKnown ? view->positionText(place->x, place->y) + "   " +
                                     view->finePositionText(place->x, place->y)
                               : tr("Move the pointer over the board"));
}

void MainWindow::showZoom()
{
    m_zoom->setText(tr("Zoom %1 %").arg(std::lround(currentView()->zoom() * 100)));
}

void MainWindow::refreshUnit()
{
    BoardView const * view = currentView();
    m_unit->setText(tr("&Unit: %1").arg(QString::fromStdString(getUnitString(view->handle()))));
    auto const & outline = m_session.steps()[static_cast<std::size_t>(m_steps->currentIndex())].outline;
    m_outline->setText(
        outline ? tr("Board outline of step %1: %2")
                      .arg(QString::fromStdString(view->step()),
                           view->sizeText(outline->right - outline->left, outline->top - outline->bottom))
                : tr("Step %1 has no profile").arg(QString::fromStdString(view->step())));
    if (m_pointer != nullptr) {
        showPointer();
    }
}

void MainWindow::switchUnit()
{
    Workbench::switchUnit(currentView()->handle());
}

void MainWindow::switchSaveFlag(bool on)
{
    KVCAM::Embedded::setDatabaseFile(m_database.toStdString());
    if (!KVCAM::Embedded::setSaveFlag(on)) {
        LOG(ERROR) << "workbench: " << KVCAM::Embedded::lastError();
        m_saveFlag->setChecked(false);
    }
}

} // namespace Workbench
