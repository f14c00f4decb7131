#include "checks/ResultFiles.h"

#include "checks/ResultsPage.h"
#include "job/ReportFormat.h"
#include "ui/LanguageChange.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QPointer>

#include <algorithm>

namespace Workbench {

using namespace KVCAM::UIAPI;

WrittenResults writeFiles(AnalysisRun const & run, CommandLine const & commandLine,
                          Ext::AnalysisReport const * baseline)
{
    WrittenResults results;
    auto const note = [&results](QString const & file, Ext::Result const & result) {
        (result.ok ? results.files : results.errors).append(result.ok ? file : result.reason);
    };
    if (!commandLine.summary.isEmpty()) {
        note(commandLine.summary, run.writeSummary(commandLine.summary));
    }
    ReportChoices choices;
    choices.failFrom = commandLine.failOn.value_or(Ext::Severity::Red);
    choices.firstUnit = commandLine.unit;
    auto const & reports = commandLine.reports;
    auto const isData = [](QString const & file) { return reportFormat(file) == Ext::ReportFormat::Json; };
    if (auto const data = std::find_if(reports.begin(), reports.end(), isData); data != reports.end()) {
        choices.dataFile = QFileInfo(*data).fileName();
    }
    choices.baseline = baseline;
    bool const isChinese = getCurrentLanguageMode() == LANGUAGE_CHINESE;
    bool const writesChinese = commandLine.reportsInChinese.value_or(isChinese);
    if (writesChinese != isChinese && !showChinese(writesChinese)) {
        results.errors.append("there are no texts in this language");
    }
    for (QString const & report : reports) {
        note(report, run.writeReport(report, choices));
    }
    if (writesChinese != isChinese) {
        showChinese(isChinese);
    }
    return results;
}

WrittenResults writeResults(ResultsPage & page, CommandLine const & commandLine,
                            Ext::AnalysisReport const * baseline)
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
    return writeFiles(page.run(), commandLine, baseline);
}

} // namespace Workbench
