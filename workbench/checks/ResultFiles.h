#pragma once

#include "job/CommandLine.h"

#include <QStringList>

namespace Workbench {

class ResultsPage;

/// What became of the files that hold the results of the checks.
struct WrittenResults
{
    QStringList files;  ///< that were written
    QStringList errors; ///< in sentences
};

/// Runs the checks of a page on its step and writes the summary and the reports that the command line asks
/// for. The page may be deleted meanwhile, which stops the checks.
WrittenResults writeResults(ResultsPage & page, CommandLine const & commandLine);

} // namespace Workbench
