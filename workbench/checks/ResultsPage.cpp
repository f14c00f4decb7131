#include "checks/ResultsPage.h"

#include "board/BoardView.h"
#include "checks/LevelsBox.h"
#include "checks/MeasureTexts.h"
#include "checks/ResultsTree.h"
#include "checks/SeverityBar.h"
#include "checks/TrackWidthChart.h"
#include "checks/WaiveDialog.h"
#include "checks/WaiversBox.h"
#include "ui/CategoryNames.h"
#include "ui/Colours.h"
#include "ui/EnglishTexts.h"
#include "ui/FileDialogs.h"
#include "ui/LanguageChange.h"
#include "ui/TableTools.h"
#include "ui/ToolTips.h"

#include <QFrame>
#include <QGroupBox>
#include <QKeySequence>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QSplitter>
#include <QStackedWidget>
#include <QVBoxLayout>
#include <QWindow>

#include <utility>

namespace Workbench {

using namespace KVCAM::UIAPI;

ResultsPage::ResultsPage(Session const & session, BoardView & view, QWidget * parent)
    : QWidget(parent)
    , m_session(session)
    , m_run(std::make_shared<AnalysisRun>(session))
    , m_view(&view)
    , m_model(new Ext::ReportModel(this))
{
    m_model->setUnit(Ext::unitOf(view.handle()));
    auto * splitter = new QSplitter(Qt::Horizontal);
    splitter->setObjectName("results and levels");
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(makeResults());
    splitter->addWidget(makeSides());
    splitter->setSizes({1110, 370}); // parts of any width

    auto * layout = new QVBoxLayout(this);
    layout->addWidget(makeButtons());
    layout->addWidget(splitter, 1);
    layout->addWidget(makeFoot());

    connect(Ext::Notifier::instance(), &Ext::Notifier::viewChanged, this,
            [this](void const * changed, Ext::ViewAspects aspects) {
                if (changed == m_view->handle() && aspects.testFlag(Ext::ViewAspect::Unit)) {
                    setView(*m_view);
                }
            });
    setTextsNowAndLater(*this, [this] { setTexts(); });
}

void ResultsPage::setView(BoardView & view)
{
    m_view = &view;
    m_levels->setView(view);
    m_model->setUnit(Ext::unitOf(view.handle()));
    m_chart->setView(view.handle());
    setTexts();
    m_tree->fitColumns();
}

bool ResultsPage::runChecks()
{
    return measure(m_view->step());
}

bool ResultsPage::measure(std::string const & step)
{
    // No parent: it could delete the dialog while the dialog handles events in setValue().
    KVProgressDialog progress;
    progress.winId(); // creates the handle
    progress.windowHandle()->setTransientParent(window()->windowHandle());
    progress.setMinimumDuration(300); // milliseconds
    progress.setWindowTitle(tr("Checks"));
    progress.setLabelText(tr("Measuring step %1 (F1 stops)").arg(QString::fromStdString(step)));
    progress.setCancelButtonText(tr("Stop"));
    progress.setWindowModality(Qt::ApplicationModal);
    QPointer<ResultsPage> const alive(this);
    auto const * selected = m_tree->current().category;
    std::string const table = selected != nullptr ? selected->table : std::string();
    int const number = selected != nullptr ? selected->number : -1;
    std::shared_ptr<AnalysisRun> const run = m_run; // finishes even without the page
    AnalysisRun::Outcome const outcome = run->run(step, [&](int done, int total) {
        progress.setMaximum(total);
        progress.setValue(done);
        return alive && !progress.isDialogStop() && !progress.wasCanceled();
    });
    if (!alive) {
        return false;
    }
    m_outcome = outcome;
    bool const isNew = m_outcome == AnalysisRun::Outcome::Done;
    if (isNew) {
        emit marksOutdated(true);
        showReport();
        m_tree->showCategory(table, number);
        m_tree->fitColumns();
    }
    refresh();
    if (isNew) {
        m_tree->setFocus(); // for the arrow keys and to copy
    }
    return isNew;
}

void ResultsPage::showReport()
{
    std::vector<std::string> layers;
    layers.reserve(m_session.layers().size());
    for (Session::Layer const & layer : m_session.layers()) {
        layers.push_back(layer.info.name);
    }
    m_model->setLayerOrder(layers);
    m_model->setReport({m_run, &m_run->report()});
}

void ResultsPage::setWaivers(std::vector<Ext::Waiver> waivers, QString const & path)
{
    m_waiversPath = path;
    m_run->setWaivers(std::move(waivers));
    m_model->regrade();
    m_tree->filter().regrade();
    refresh();
}

void ResultsPage::waiveSelected()
{
    auto const row = m_tree->current();
    if (row.entry == nullptr || row.entry->severity == Ext::Severity::None || row.entry->waiver) {
        return;
    }
    auto const index = static_cast<std::size_t>(row.entry - row.category->entries.data());
    QString const violation = selectedText() + ", " + QString::fromStdString(*row.layer);
    auto * dialog = new WaiveDialog(violation, Ext::violationIds(*row.category).at(index), this);
    connect(dialog, &QDialog::accepted, this, [this, dialog] {
        Ext::Waiver const waiver = dialog->waiver();
        if (!m_waiversPath.isEmpty()) {
            waive(waiver, m_waiversPath);
            return;
        }
        askForFile(*this, tr("Waivers"), "waivers.json", tr("Waivers (*.json)"),
                   [this, waiver](QString const & path) { waive(waiver, path); });
    });
    dialog->open();
}

void ResultsPage::waive(Ext::Waiver const & waiver, QString const & path)
{
    Ext::Result const waived = m_run->waive(waiver, path);
    if (waived.ok) {
        m_waiversPath = path;
        m_model->regrade();
        m_tree->filter().regrade();
        refresh();
    } else {
        Ext::showMessage({Ext::MessageKind::Information, this, tr("Waivers"), waived.reason});
    }
}

bool ResultsPage::showCheck(std::string const & table, int number)
{
    m_severities->showAll();
    m_tree->filter().showAll();
    return m_tree->showWorst(table, number);
}

void ResultsPage::showViolation(int way)
{
    bool const isShown = m_tree->showViolation(way);
    if (isShown && isVisible()) {
        m_tree->setFocus();
    }
    emit status(isShown              ? selectedText()
                : m_run->hasResult() ? tr("There is no violation among the results shown.")
                                     : tr("The checks have not been run yet."));
}

void ResultsPage::noteChange()
{
    m_run->noteOperations();
    refresh();
}

void ResultsPage::setTexts()
{
    m_runButton->setText(tr("Run the &checks"));
    m_runButton->setToolTip(tr("Measures the step that the board page shows and files the results"));
    m_previous->setText(tr("Previous"));
    m_previous->setToolTip(withKeys(tr("Shows the violation before"), QKeySequence(previousKey)));
    m_next->setText(tr("Next"));
    m_next->setToolTip(withKeys(tr("Shows the next violation"), QKeySequence(nextKey)));
    m_again->setText(tr("Run aga&in"));
    m_boardButton->setText(tr("Sho&w on the board"));
    m_waiveButton->setText(tr("Wai&ve..."));
    m_waiveButton->setToolTip(tr("Accepts the selected violation: it is counted apart"));
    m_summaryButton->setText(tr("E&xport summary..."));
    m_reportButton->setText(tr("Ex&port report..."));
    m_tree->setAccessibleName(tr("Results by check and layer"));
    m_chart->setAccessibleName(tr("Smallest track width of each layer"));
    m_chartBox->setTitle(tr("Smallest track width of each layer (%1)").arg(smallUnitName(m_view->handle())));
    m_notCheckedBox->setTitle(tr("Not checked"));
    m_notChecked->setHorizontalHeaderLabels({tr("Check or layer"), tr("Reason")});
    m_model->refreshTexts();
    showWritten();
    refresh();
}

void ResultsPage::refresh()
{
    QString const step = QString::fromStdString(m_view->step());
    bool const hasRows = m_model->rowCount() > 0;
    m_stack->setCurrentIndex(hasRows ? 1 : 0);
    m_empty->setText(
        m_run->hasResult()
            ? tr("There was nothing to check in step %1.").arg(QString::fromStdString(m_run->report().step()))
            : tr("The checks have not been run yet. They measure step %1, the one on the board page.")
                  .arg(step));
    m_step->setText(m_run->hasResult() ? tr("Step %1").arg(QString::fromStdString(m_run->report().step()))
                                       : QString());
    m_severities->setCounts(m_run->report().counts());
    m_severities->setVisible(hasRows);
    showBanner();
    QString note;
    if (m_outcome == AnalysisRun::Outcome::Failed) {
        note = tr("The checks of step %1 failed: %2").arg(step, m_run->error());
    } else if (m_outcome == AnalysisRun::Outcome::Cancelled) {
        note = m_run->hasResult() ? tr("The checks were stopped; these are the results of the run before.")
                                  : tr("The checks were stopped.");
    } else if (hasRows && !m_run->hasLevels()) {
        note = tr("No levels: everything is shown without colour.");
    }
    m_note->setText(note);
    m_note->setVisible(!note.isEmpty());
    m_note->setStyleSheet(faultStyle(m_outcome == AnalysisRun::Outcome::Failed));
    m_summaryButton->setEnabled(m_run->hasResult());
    for (QPushButton * button : {m_reportButton, m_previous, m_next}) {
        button->setEnabled(m_run->hasResult());
    }
    m_chart->setWidths(m_run->trackWidths());
    showNotChecked();
    m_waivers->showReport(m_run->report(), m_view->handle());
    showLevels();
}

void ResultsPage::showWritten()
{
    m_written->setText(tr("Written: %1").arg(fileLinks(m_writtenPath)));
    m_written->setVisible(!m_writtenPath.isEmpty());
}

void ResultsPage::showBanner()
{
    AnalysisRun::State const state = m_run->state();
    m_banner->setVisible(state != AnalysisRun::State::Current);
    m_outdated->setText(state == AnalysisRun::State::Changed
                            ? tr("Out of date: step %1 has been changed since it was measured.")
                                  .arg(QString::fromStdString(m_run->report().step()))
                            : tr("Out of date: a level is now larger than the spacings that were listed."));
    if (state == AnalysisRun::State::Changed) {
        emit marksOutdated(false);
    }
}

void ResultsPage::showNotChecked()
{
    m_notChecked->setRowCount(0);
    for (Ext::NotChecked const & check : m_run->report().notChecked()) {
        addRow(*m_notChecked, {shownNames(QString::fromStdString(check.name)),
                               inScreenLanguage(QString::fromStdString(check.reason))});
    }
    m_notChecked->resizeRowsToContents();
}

void ResultsPage::showLevels()
{
    Ext::ReportModel::Row const row = m_tree->current();
    m_boardButton->setEnabled(row.entry != nullptr);
    m_waiveButton->setEnabled(row.entry != nullptr && row.entry->severity != Ext::Severity::None &&
                              !row.entry->waiver);
    m_levels->showCategory(row.category);
}

void ResultsPage::showSelected()
{
    showLevels();
    Ext::ReportModel::Row const row = m_tree->current();
    if (row.entry == nullptr || !row.entry->position) {
        return;
    }
    Ext::SeverityMark const & mark = Ext::markOf(row.entry->severity);
    emit measurementSelected(
        QString::fromStdString(m_run->report().step()), QString::fromStdString(*row.layer),
        {row.entry->position->x, row.entry->position->y, colourOf(mark.severity),
         QString(QLatin1Char(mark.letter)), selectedText(), m_run->state() == AnalysisRun::State::Changed});
}

QString ResultsPage::selectedText() const
{
    Ext::ReportModel::Row const row = m_tree->current();
    if (row.category == nullptr) {
        return {};
    }
    QString text = shownName(row.category->name);
    if (row.entry != nullptr && row.entry->measured) {
        text += ": " + measuredText(m_view->handle(), *row.entry->measured) + ' ' +
                smallUnitName(m_view->handle());
    }
    return text;
}

// Results that are out of date are exported only if the user insists.
bool ResultsPage::mayExport(QString const & title)
{
    QPointer<ResultsPage> const alive(this);
    return m_run->state() == AnalysisRun::State::Current ||
           (Ext::showMessage({Ext::MessageKind::Question, this, title,
                              m_outdated->text() + '\n' + tr("Export these results all the same?")}) ==
                Ext::MessageAnswer::Yes &&
            alive);
}

void ResultsPage::exportFile(QString const & title, QString const & name, QString const & filter,
                             std::function<Ext::Result(QString const &)> const & write)
{
    if (!mayExport(title)) {
        return;
    }
    askForFile(*this, title, name, filter, [this, title, write](QString const & path) {
        Ext::Result const result = write(path);
        m_writtenPath = result.ok ? path : QString();
        showWritten();
        if (!result.ok) {
            Ext::showMessage({Ext::MessageKind::Information, this, title, result.reason});
        }
    });
}

} // namespace Workbench
