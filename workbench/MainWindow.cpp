#include "MainWindow.h"

#include "AttributesPage.h"
#include "BoardView.h"
#include "CheatSheet.h"
#include "EnginePane.h"
#include "FeatureDialog.h"
#include "HotkeyCommands.h"
#include "LayerTable.h"
#include "LogPane.h"
#include "SettingsPage.h"
#include "SymbolsPage.h"
#include "TemplatesPage.h"

#include <QAction>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QSplitter>
#include <QStatusBar>
#include <QTabWidget>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

namespace Workbench {

namespace {

using namespace KVCAM::UIAPI;

QWidget * titled(QString const & title, QWidget * content)
{
    auto * box = new QGroupBox(title);
    auto * layout = new QVBoxLayout(box);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->addWidget(content);
    return box;
}

} // namespace

MainWindow::MainWindow(Session const & session, LogLines const & log, CommandLine const & commandLine)
    : m_session(session)
    , m_database(commandLine.output + "/uiapi-engine.sqlite")
    , m_formFile(commandLine.output + "/feature-form.json")
{
    setWindowTitle(tr("%1 - UIAPICommon workbench").arg(QString::fromStdString(session.job())));
    resize(1440, 900);
    makeToolBar();
    m_saveFlag->setChecked(commandLine.saveFlag); // before the views, so that their registration is recorded
    makeViews(commandLine.unit);
    m_pages = new QTabWidget;
    setCentralWidget(m_pages);
    addPage(makeBoardPage(log), "board", tr("Board"));
    addPages();

    m_pointer = new QLabel(tr("Move the pointer over the board"));
    statusBar()->addWidget(m_pointer, 1);
    statusBar()->addPermanentWidget(new QLabel(session.directory()));

    connect(Ext::Notifier::instance(), &Ext::Notifier::viewChanged, this, &MainWindow::refreshUnit);
    connect(m_pages, &QTabWidget::currentChanged, m_engine, &EnginePane::refresh);
    connect(m_steps, &QTabWidget::currentChanged, this, &MainWindow::showStep);
    connect(m_layers, &LayerTable::layerSelected, this, &MainWindow::showLayer);
    showStep();
    addHotkeys();
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
        connect(view, &BoardView::pointerMoved, this, &MainWindow::showPointer);
        connect(view, &BoardView::padPicked, this, &MainWindow::openFeature);
        m_views.push_back(view);
    }
}

QWidget * MainWindow::makeBoardPage(LogLines const & log)
{
    m_steps = new QTabWidget;
    for (BoardView * view : m_views) {
        m_steps->addTab(view, tr("Step %1").arg(QString::fromStdString(view->step())));
    }
    m_outline = new QLabel;
    m_outline->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_layers = new LayerTable;
    m_engine = new EnginePane;

    auto * sides = new QSplitter(Qt::Horizontal);
    sides->addWidget(titled(tr("Layers"), m_layers));
    auto * middle = new QWidget;
    auto * layout = new QVBoxLayout(middle);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_outline);
    layout->addWidget(m_steps, 1);
    sides->addWidget(middle);
    sides->addWidget(titled(tr("What the engine was told"), m_engine));
    sides->setStretchFactor(1, 1);
    sides->setSizes({680, 490, 270});

    auto * page = new QSplitter(Qt::Vertical);
    page->addWidget(sides);
    page->addWidget(titled(tr("Log"), new LogPane(log)));
    page->setStretchFactor(0, 1);
    page->setSizes({680, 140});
    return page;
}

void MainWindow::makeToolBar()
{
    QToolBar * bar = addToolBar(tr("View"));
    bar->setMovable(false);
    m_unit = bar->addAction(QString());
    m_unit->setToolTip(tr("Switches the unit of the shown step's view"));
    connect(m_unit, &QAction::triggered, this,
            [this] { setUnit(currentView()->handle(), getUnit(currentView()->handle()) == 0 ? 1 : 0); });
    m_saveFlag = bar->addAction(tr("Save flag"));
    m_saveFlag->setCheckable(true);
    m_saveFlag->setToolTip(tr("Makes the engine write what it is told to %1 as well").arg(m_database));
    connect(m_saveFlag, &QAction::toggled, this, &MainWindow::switchSaveFlag);
    QAction * feature = bar->addAction(tr("Feature"));
    feature->setToolTip(tr("Opens the dialog on a pad; a click on a pad does so, too"));
    connect(feature, &QAction::triggered, this, &MainWindow::openFirstPad);
    auto * language = new QComboBox;
    language->addItem("English", static_cast<int>(LANGUAGE_ENGLISH));
    language->addItem(QString::fromUtf8("简体中文"), static_cast<int>(LANGUAGE_CHINESE));
    language->setToolTip(tr("Language of the library's texts"));
    connect(language, QOverload<int>::of(&QComboBox::activated), this,
            [this, language] { setLanguage(static_cast<LANGUAGE_MODE>(language->currentData().toInt())); });
    bar->addSeparator();
    bar->addWidget(language);
    for (auto * button : bar->findChildren<QToolButton *>()) {
        button->setAutoRaise(false);
    }
}

void MainWindow::addPages()
{
    m_symbols = new SymbolsPage(m_session.job(), m_views.front()->handle());
    addPage(m_symbols, "symbols", tr("Symbols"));
    addPage(new SettingsPage, "settings", tr("Settings"));
    addPage(new TemplatesPage, "templates", tr("Templates"));
    addPage(new AttributesPage, "attributes", tr("Attributes"));
}

void MainWindow::addHotkeys()
{
    auto * keys = findChild<QToolBar *>()->addAction(tr("Keys"), this, &MainWindow::showKeys);
    keys->setShortcut(Qt::Key_F1);
    keys->setToolTip(tr("Shows the hot keys and judges your own file of them"));
    auto * told = new QLabel;
    told->setObjectName("hot keys");
    told->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // a long text widens no window
    statusBar()->insertWidget(0, told, 3);
    auto * commands = new HotkeyCommands(*this, *m_pages->widget(0), this);
    connect(commands, &HotkeyCommands::told, told, &QLabel::setText);
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

void MainWindow::refresh()
{
    showStep();
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
    setCurrentLanguageMode(language); // for the modules that ask; the next call changes the texts
    Ext::installTranslation(language);
}

void MainWindow::addPage(QWidget * page, QString const & name, QString const & title)
{
    page->setObjectName(name);
    m_pages->addTab(page, title);
}

void MainWindow::showStep()
{
    m_layers->show(m_session, static_cast<std::size_t>(m_steps->currentIndex()));
    if (m_layers->selectedLayer() < 0) {
        m_layers->setCurrentCell(m_session.firstCopperLayer(currentView()->step()), 0);
    } else {
        showLayer(m_layers->selectedLayer());
    }
    setStepConfigToAPI(currentView()->handle()); // the engine holds the state of the view in front
    m_engine->refresh();
    m_symbols->setView(currentView()->handle());
    refreshUnit();
}

void MainWindow::showLayer(int layer)
{
    closeFeature(); // its pad belongs to the layer that was shown
    if (layer >= 0) {
        currentView()->showLayer(m_session.layers().at(static_cast<std::size_t>(layer)).info);
    }
}

void MainWindow::showPointer()
{
    BoardView const * view = currentView();
    if (coordinate const * place = getCoordinate(view->handle())) {
        m_pointer->setText(view->positionText(place->x, place->y));
    }
}

void MainWindow::refreshUnit()
{
    BoardView const * view = currentView();
    m_unit->setText(tr("Unit: %1").arg(QString::fromStdString(getUnitString(view->handle()))));
    auto const & outline = m_session.steps()[static_cast<std::size_t>(m_steps->currentIndex())].outline;
    m_outline->setText(
        outline ? tr("Board outline of step %1: %2")
                      .arg(QString::fromStdString(view->step()),
                           view->sizeText(outline->right - outline->left, outline->top - outline->bottom))
                : tr("Step %1 has no profile").arg(QString::fromStdString(view->step())));
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
