#include "checks/ResultFiles.h"

#include "checks/ResultsPage.h"

#include <QCoreApplication>
#include <QPointer>

namespace Workbench {

using namespace KVCAM::UIAPI;

WrittenResults writeFiles(AnalysisRun const & run, CommandLine const & commandLine)
{
    WrittenResults results;
    auto const note = [&results](QString const & file, Ext::Result const & result) {
        (result.ok ? results.files : results.errors).append(result.ok ? file : result.reason);
    };
    if (!commandLine.summary.isEmpty()) {
        note(commandLine.summary, run.writeSummary(commandLine.summary));
    }
    for (QString const & report : commandLine.reports) {
        note(report, run.writeReport(report, commandLine.failOn.value_or(Ext::Severity::Red)));
    }
    return results;
}

WrittenResults writeResults(ResultsPage & page, CommandLine const & commandLine)
{
    QPointer<ResultsPage> const alive(&page);
    if (!page.runChecks()) {
        QString const reason = alive ? page.run().error() : QString();
        return {{},
                {reason.isEmpty()
                     ? QCoreApplication::translate("Workbench::MainWindow", "the checks were stopped")
                     : QCoreApplication::translate("Workbench::MainWindow", "the checks failed: %1")
                           .arg(reason)}};
    }
    return writeFiles(page.run(), commandLine);
}

} // namespace Workbench
