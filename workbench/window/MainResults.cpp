#include "board/BoardView.h"
#include "checks/ResultsPage.h"
#include "layers/LayerTable.h"
#include "window/MainWindow.h"

#include <QTabWidget>

#include <algorithm>

// The main window's page of results, and the way from a measurement to its place on the board.

namespace Workbench {

using namespace KVCAM::UIAPI;

void MainWindow::addResults()
{
    m_results = new ResultsPage(m_session, *m_views.front());
    addPage(m_results, "results", QT_TR_NOOP("&Results"));
    connect(m_steps, &QTabWidget::currentChanged, m_results, [this] { m_results->setView(*currentView()); });
    connect(m_results, &ResultsPage::measurementSelected, this, &MainWindow::markMeasurement);
    connect(m_results, &ResultsPage::boardWanted, this, [this] {
        showPage("board");
        currentView()->setFocus();
    });
}

bool MainWindow::showStepOf(QString const & name)
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

void MainWindow::markMeasurement(QString const & step, QString const & layer, Mark const & mark)
{
    if (!showStepOf(step)) {
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

WrittenResults MainWindow::writeResults(CommandLine const & commandLine)
{
    AnalysisRun const & run = m_results->run();
    if (!m_results->runChecks()) {
        return {{},
                {run.error().isEmpty() ? tr("the checks were stopped")
                                       : tr("the checks failed: %1").arg(run.error())}};
    }
    WrittenResults results;
    auto const note = [&results](QString const & file, Ext::SaveResult const & result) {
        (result.saved ? results.files : results.errors).append(result.saved ? file : result.reason);
    };
    if (!commandLine.summary.isEmpty()) {
        note(commandLine.summary, run.writeSummary(commandLine.summary));
    }
    for (QString const & report : commandLine.reports) {
        note(report, run.writeReport(report));
    }
    return results;
}

} // namespace Workbench
