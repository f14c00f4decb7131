#include "tour/Judging.h"

#include "checks/AnalysisRun.h"

#include <UIAPICommon.h>

#include <algorithm>
#include <numeric>

namespace Workbench {

using namespace KVCAM::UIAPI;

namespace {

constexpr int listedWaivers = 20;

bool isNewlyBad(Ext::ReportChange const & change)
{
    bool const isWorse = change.change == Ext::Change::Worse && change.severityAfter > change.severityBefore;
    return !change.waived && (change.change == Ext::Change::New || isWorse);
}

// A waiver that accepts nothing is a mistake, or can go.
void noteWaivers(BoardOutcome & outcome, Ext::AnalysisReport const & report)
{
    int idle = 0;
    for (Ext::Waiver const & waiver : report.waivers()) {
        if (waiver.state == Ext::WaiverState::Used || ++idle > listedWaivers) {
            continue;
        }
        QString const id = QString::fromStdString(waiver.id);
        outcome.notes.append(waiver.state == Ext::WaiverState::Expired
                                 ? QString("the waiver of \"%1\" has expired: its last day was %2")
                                       .arg(id, QString::fromStdString(waiver.expires))
                                 : QString("the waiver of \"%1\" accepts nothing").arg(id));
    }
    if (idle > listedWaivers) {
        outcome.notes.append(QString("%1 more waivers accept nothing").arg(idle - listedWaivers));
    }
}

void noteComparison(BoardOutcome & outcome, Ext::ReportComparison const & comparison)
{
    if (comparison.before.step != comparison.after.step) {
        outcome.notes.append(QString("the baseline is of the step \"%1\"")
                                 .arg(QString::fromStdString(comparison.before.step)));
    }
    if (!comparison.levels.empty()) {
        outcome.notes.append(
            QString("%1 check(s) had other levels in the baseline").arg(comparison.levels.size()));
    }
    if (std::size_t const lost = comparison.count(Ext::Change::NotChecked); lost != 0) {
        outcome.notes.append(QString("%1 violation(s) of the baseline were not checked again").arg(lost));
    }
}

void compare(BoardOutcome & outcome, Ext::AnalysisReport const & report, CommandLine const & board,
             Ext::AnalysisReport const & baseline)
{
    Ext::ReportComparison const comparison = Ext::compareReports(baseline, report);
    outcome.changes = comparison.counts;
    noteComparison(outcome, comparison);
    if (!board.comparison.isEmpty()) {
        if (Ext::Result const written = Ext::writeComparison(comparison, board.comparison); written.ok) {
            outcome.files.append(board.comparison);
        } else {
            fail(outcome, ExitCode::Incomplete, written.reason);
        }
    }
    if (board.failOnNew && std::any_of(comparison.changes.begin(), comparison.changes.end(), isNewlyBad)) {
        outcome.exit = worse(outcome.exit, ExitCode::Violation);
    }
}

} // namespace

QString readYardstick(CommandLine const & board, Yardstick & yardstick)
{
    if (!board.waivers.isEmpty()) {
        if (Ext::Result const read = Ext::readWaivers(board.waivers, yardstick.waivers); !read.ok) {
            return read.reason;
        }
    }
    if (!board.baseline.isEmpty()) {
        if (Ext::Result const read = Ext::readReport(board.baseline, yardstick.baseline.emplace());
            !read.ok) {
            return read.reason;
        }
    }
    return {};
}

void judge(BoardOutcome & outcome, Ext::AnalysisReport const & report, CommandLine const & board,
           Yardstick const & yardstick)
{
    Ext::SeverityCounts const waived = report.waivedCounts();
    outcome.isChecked = true;
    outcome.counts = report.counts();
    outcome.waived = std::accumulate(waived.begin(), waived.end(), std::size_t{0});
    outcome.notChecked = report.notChecked().size();
    if (board.failOn) {
        auto const first = static_cast<std::ptrdiff_t>(*board.failOn);
        if (std::any_of(outcome.counts.begin() + first, outcome.counts.end(),
                        [](std::size_t count) { return count != 0; })) {
            outcome.exit = worse(outcome.exit, ExitCode::Violation);
        }
    }
    noteWaivers(outcome, report);
    if (yardstick.baseline) {
        compare(outcome, report, board, *yardstick.baseline);
    }
}

QString missingLevels()
{
    for (char const * table : {drillTable, signalTable}) {
        std::vector<Analysis_Ranges_Record> records;
        getRanges(table, records);
        if (records.empty()) {
            return QString("the configuration has no levels in \"%1\", so that nothing could fail")
                .arg(table);
        }
    }
    return {};
}

} // namespace Workbench
