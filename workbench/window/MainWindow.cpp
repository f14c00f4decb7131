#include "window/MainWindow.h"

#include "board/BoardTexts.h"
#include "board/BoardView.h"
#include "checks/ResultsPage.h"
#include "job/SaveAs.h"
#include "layers/ComparePage.h"
#include "layers/ReferencesPage.h"
#include "pages/AttributesPage.h"
#include "pages/EdaPage.h"
#include "pages/SettingsPage.h"
#include "pages/SymbolsPage.h"
#include "pages/TemplatesPage.h"
#include "ui/LanguageChange.h"
#include "ui/Units.h"
#include "window/BoardPage.h"
#include "window/Comparison.h"
#include "window/HotkeyCommands.h"
#include "window/KeysDialog.h"
#include "window/WindowState.h"

#include <EmbeddedEngine.h>
#include <UIAPICommonVersion.h>

#include <glog/logging.h>

#include <QAction>
#include <QCloseEvent>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QMenu>
#include <QScreen>
#include <QScrollArea>
#include <QTabBar>
#include <QTabWidget>

#include <cmath>

namespace Workbench {

using namespace KVCAM::UIAPI;

MainWindow::MainWindow(Session & session, LogLines const & log, CommandLine const & commandLine)
    : m_session(session), m_database(commandLine.output + "/uiapi-engine.sqlite")
{
    resize(firstWindowSize(screen()->availableSize()));
    makeToolBar();
    m_saveFlag->setChecked(commandLine.saveFlag); // before the views, to record their registration
    m_board = new BoardPage(session, log, commandLine.unit);
    m_pages = new QTabWidget;
    setCentralWidget(m_pages);
    addPage(m_board, "board", QT_TR_NOOP("&Board"));
    addPages();
    arrange();
    m_saveAs = new SaveAs(session, *this);
    connect(m_saveAs, &SaveAs::status, this, &MainWindow::showStatus);
    connect(m_board, &BoardPage::refreshed, m_saveAs, &SaveAs::showState);
    m_commands = new HotkeyCommands(*m_board, this);
    makeMenus();
    makeStatusBar();
    connect(Ext::Notifier::instance(), &Ext::Notifier::viewChanged, this, [this] {
        showUnit();
        showPointer();
    });
    connect(m_pages, &QTabWidget::currentChanged, m_board, &BoardPage::refreshEngine);
    connect(m_board, &BoardPage::stepChanged, this, [this] {
        showUnit();
        showPointer();
        showZoom();
    });
    setTextsNowAndLater(*this, [this] { setTexts(); });
}

void MainWindow::arrange()
{
    m_board->arrange(firstPanes(size(), {fontMetrics().averageCharWidth(), fontMetrics().lineSpacing()}));
}

// The title is given untranslated; the mnemonic in it brings the page to the front.
void MainWindow::addPage(QWidget * page, QString const & name, char const * title)
{
    page->setObjectName(name);
    QWidget * tab = page;
    if (page != m_board) { // a small screen shows a part of it
        auto * area = new QScrollArea;
        area->setFrameShape(QFrame::NoFrame);
        area->setWidgetResizable(true);
        area->setWidget(page);
        for (QWidget * plain : {area->viewport(), page}) {
            plain->setAutoFillBackground(false); // that of the tabs
        }
        tab = area;
    }
    int const index = m_pages->addTab(tab, QString());
    m_pages->tabBar()->setTabData(index, name);
    setTextsNowAndLater(*page, [this, tab, title] { m_pages->setTabText(m_pages->indexOf(tab), tr(title)); });
}

void MainWindow::addPages()
{
    addResults();
    auto * symbols = new SymbolsPage(m_session.job(), m_board->currentView()->handle());
    addPage(symbols, "symbols", QT_TR_NOOP("S&ymbols"));
    connect(m_board, &BoardPage::refreshed, symbols, &SymbolsPage::refresh);
    connect(m_board, &BoardPage::stepChanged, symbols,
            [this, symbols] { symbols->setView(m_board->currentView()->handle()); });
    auto * references = new ReferencesPage(m_session);
    addPage(references, "references", QT_TR_NOOP("Refere&nces"));
    connect(m_board, &BoardPage::stepChanged, references,
            [this, references] { references->setStep(m_board->currentView()->step()); });
    addPage(makeComparison(m_session, *m_board), "compare", QT_TR_NOOP("Compare"));
    connect(m_board, &BoardPage::compareWanted, this, [this] { showPage("compare"); });
    addPage(new SettingsPage, "settings", QT_TR_NOOP("Se&ttings"));
    addPage(new TemplatesPage, "templates", QT_TR_NOOP("Te&mplates"));
    addPage(new AttributesPage, "attributes", QT_TR_NOOP("&Attributes"));
    addPage(new EdaPage, "eda", QT_TR_NOOP("EDA lin&k"));
}

void MainWindow::addResults()
{
    m_results = new ResultsPage(m_session, *m_board->currentView());
    addPage(m_results, "results", QT_TR_NOOP("&Results"));
    connect(m_board, &BoardPage::stepChanged, m_results,
            [this] { m_results->setView(*m_board->currentView()); });
    connect(m_results, &ResultsPage::measurementSelected, m_board, &BoardPage::showMeasurement);
    connect(m_results, &ResultsPage::marksOutdated, m_board, &BoardPage::fadeMarks);
    connect(m_board, &BoardPage::refreshed, m_results, &ResultsPage::noteChange);
    connect(m_results, &ResultsPage::boardWanted, this, [this] {
        showPage("board");
        m_board->currentView()->setFocus();
    });
}

bool MainWindow::showPage(QString const & name)
{
    for (int i = 0; i < m_pages->count(); ++i) {
        if (m_pages->tabBar()->tabData(i) == name) {
            m_pages->setCurrentIndex(i);
            return true;
        }
    }
    return false;
}

void MainWindow::listPages()
{
    m_pageMenu->clear();
    for (int i = 0; i < m_pages->count(); ++i) {
        QAction * action =
            m_pageMenu->addAction(m_pages->tabText(i), this, [this, i] { m_pages->setCurrentIndex(i); });
        action->setCheckable(true);
        action->setChecked(i == m_pages->currentIndex());
    }
}

KeysDialog * MainWindow::showKeys()
{
    if (m_keys == nullptr) {
        m_keys = new KeysDialog(this);
    }
    m_keys->refresh();
    m_keys->show();
    m_keys->raise();
    return m_keys;
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
    m_board->useColours(file);
    auto const choices = restoreWindow(*this, file);
    if (!choices) {
        return;
    }
    showPage(choices->page);
    if (!keepsUnit) {
        m_board->setUnit(choices->unit);
    }
    setLanguage(choices->chinese ? LANGUAGE_CHINESE : LANGUAGE_ENGLISH);
}

void MainWindow::closeEvent(QCloseEvent * event)
{
    if (!m_leaves && m_saveAs->isChanged()) {
        m_saveAs->whenSettled([this] { leave(); });
        return event->ignore();
    }
    if (!m_stateFile.isEmpty()) {
        bool const chinese = m_language->currentData().toInt() == LANGUAGE_CHINESE;
        Unit const unit = Ext::unitOf(m_board->currentView()->handle());
        QString const page = m_pages->tabBar()->tabData(m_pages->currentIndex()).toString();
        keepWindow(*this, {page, unit, chinese}, m_stateFile);
    }
    QMainWindow::closeEvent(event);
}

void MainWindow::setTexts()
{
    setWindowTitle(
        tr("%1[*] (%2) - UIAPICommon workbench")
            .arg(QString::fromStdString(m_session.job()), QDir::toNativeSeparators(m_session.directory())));
    showUnit();
    showPointer();
    showZoom();
}

void MainWindow::showUnit()
{
    m_unit->setText(
        tr("&Unit: %1").arg(QString::fromStdString(getUnitString(m_board->currentView()->handle()))));
}

void MainWindow::showPointer()
{
    void const * view = m_board->currentView()->handle();
    coordinate const * place = getCoordinate(view);
    bool const isKnown = place != nullptr && m_hasPointed;
    m_pointer->setText(isKnown ? positionText(view, place->x, place->y) + "   " +
                                     finePositionText(view, place->x, place->y)
                               : tr("Move the pointer over the board"));
}

void MainWindow::showZoom()
{
    m_zoom->setText(tr("Zoom %1 %").arg(std::lround(m_board->currentView()->zoom() * 100)));
}

void MainWindow::showStatus(QString const & text)
{
    m_status->setText(text);
    m_status->setToolTip(text); // in case the window is too narrow
}

void MainWindow::showHelp()
{
    Ext::showMessage(
        {Ext::MessageKind::Information, this, tr("Using the board picture"),
         tr("The wheel zooms about the pointer, dragging moves the board, a click selects a feature or "
            "picks a mark.\nWith the picture in focus the arrow keys move the board, + and - zoom, Home "
            "shows the whole board.\nTicked layers are drawn beside the selected one; Space in the "
            "list of layers sets and clears the tick.\nCtrl with a click selects or deselects a feature; the "
            "Delete key deletes the selection.")});
}

void MainWindow::showAbout()
{
    Ext::showMessage(
        {Ext::MessageKind::Information, this, tr("About"),
         tr("The reference host of UIAPICommon %1: shows a board's job through the library and the "
            "default engine.")
             .arg(UIAPICOMMON_VERSION)});
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
