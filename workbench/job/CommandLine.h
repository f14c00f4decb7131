#pragma once

#include "ui/Units.h"

#include <QString>
#include <QStringList>

namespace Workbench {

/// What the user asked for. Paths are absolute, since the program changes its current directory later.
struct CommandLine
{
    QString job;    ///< the job's folder
    QString config; ///< the configuration folder; empty: a copy of the samples
    QString output; ///< where screenshots, the database and the saved form go
    int unit = inchUnit;
    bool isUnitGiven = false; ///< else the unit of the latest run may be used
    bool headless = false;
    bool saveFlag = false;
    QString step;        ///< the one to show first; empty: the job's first
    QString summary;     ///< where the summary of the checks goes; empty: nowhere, or the output folder
    QStringList reports; ///< where reports of the checks go, ".json" or ".csv"
};

/// What became of the arguments: a command line, a text to print and to leave with success (help, version),
/// or an error.
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

/// Judges the arguments, the program's name first. Without a job the one that the environment variable
/// UIAPI_WORKBENCH_JOB names is taken. Touches no file.
ParsedArguments parseArguments(QStringList const & arguments);

/// Whether the program must run without a window: asked for, or there is no display. Called before the
/// QApplication, which needs to know.
bool runsHeadless(int argc, char ** argv);

} // namespace Workbench
