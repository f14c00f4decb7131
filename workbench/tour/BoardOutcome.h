#pragma once

#include "job/CommandLine.h"
#include "job/ExitCode.h"

#include <UIAPICommon.h>

#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <cstddef>
#include <vector>

namespace Workbench {

class AnalysisRun;

/// What became of one board in a run without a window.
struct BoardOutcome
{
    QString board; ///< its name
    QString step;
    bool isChecked = false;                     ///< otherwise there is nothing to count
    KVCAM::UIAPI::Ext::SeverityCounts counts{}; ///< without what is waived
    std::size_t waived = 0;
    std::size_t notChecked = 0; ///< entries of the report
    double seconds = 0;         ///< reading and checking
    QStringList files;          ///< that were written
    QStringList errors;         ///< what went wrong
    QStringList notes;          ///< what should be known, but fails nothing
    ExitCode exit = ExitCode::Fine;
};

/// Notes what went wrong.
void fail(BoardOutcome & outcome, ExitCode exit, QString const & error);

/// Counts the results of a run, and decides by what the command line asks for.
void judge(BoardOutcome & outcome, AnalysisRun const & run, CommandLine const & board);

/// What must not be missing where something that is found may fail the run: without levels nothing would.
/// Returns what is missing; empty if it is there. Needs the configuration.
QString missingLevels();

/// The worst of all; Fine without any.
ExitCode worst(std::vector<BoardOutcome> const & outcomes);

/// A line for each board below a head, and the sum of several.
QString tableText(std::vector<BoardOutcome> const & outcomes);

/// The same and more for programs.
QJsonObject toJson(std::vector<BoardOutcome> const & outcomes);

/// Says on stderr what was written, what went wrong and what should be known.
void sayAll(BoardOutcome const & outcome, bool withBoard);

} // namespace Workbench
