#pragma once

#include "ui/Units.h"

#include <EmbeddedRecords.h>

#include <QString>
#include <QStringList>

namespace Workbench {

/// The user's options. Paths are absolute, since the program changes its current directory later.
struct CommandLine
{
    QString job;    ///< folder of the job, or an archive of it; empty: the window starts without one
    QString config; ///< configuration folder; empty: a copy of the samples
    QString output; ///< for screenshots, the database and the saved form
    Unit unit = Unit::Inch;
    bool isUnitGiven = false; ///< otherwise the unit of the latest run applies
    bool headless = false;
    bool saveFlag = false;
    QString step;        ///< shown first; empty: the job's first
    QString summary;     ///< file for the summary of the checks; empty: none, or one in the output folder
    QStringList reports; ///< files for reports of the checks, ".json", ".csv" or ".html"
    KVCAM::Embedded::JobLimits limits;
};

/// The outcome of parsing: a command line, a text to print before a successful exit (help, version), or an
/// error.
struct ParsedArguments
{
    enum class Outcome
    {
        Run,
        Print,
        Error
    };
    Outcome outcome = Outcome::Run;
    CommandLine commandLine;
    QString text; ///< for Print and Error
};

/// The job that the environment names for a start without one; may be empty.
QString defaultJob();

/// Parses the arguments, of which the first is the program's name. Without a job, defaultJob() is used.
/// Touches no file.
ParsedArguments parseArguments(QStringList const & arguments);

/// Whether the program has to run without a window: by request, or because there is no display. Call it
/// before the QApplication is made, which depends on it.
bool runsHeadless(int argc, char ** argv);

} // namespace Workbench
