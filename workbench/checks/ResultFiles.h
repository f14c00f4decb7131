#pragma once

#include "job/CommandLine.h"

#include <UIAPICommonExt.h>

#include <QStringList>

namespace Workbench {

class AnalysisRun;
class ResultsPage;

/// The outcome of writing the results of the checks.
struct WrittenResults
{
    QStringList files;  ///< that have been written
    QStringList errors; ///< as sentences
};

/// Writes the summary and the reports that the command line asks for. HTML compares with the baseline, if
/// there is one.
WrittenResults writeFiles(AnalysisRun const & run, CommandLine const & commandLine,
                          KVCAM::UIAPI::Ext::AnalysisReport const * baseline);

/// Runs the checks of a page on its step, and writes the summary and the reports requested on the command
/// line. If the page is deleted meanwhile, the checks stop.
WrittenResults writeResults(ResultsPage & page, CommandLine const & commandLine,
                            KVCAM::UIAPI::Ext::AnalysisReport const * baseline = nullptr);

} // namespace Workbench
