#pragma once

#include "ui/Units.h"

#include <EmbeddedRecords.h>
#include <UIAPICommon.h>

#include <QString>
#include <QStringList>

#include <optional>

namespace Workbench {

/// The user's options. Paths are absolute, since the program changes its current directory later.
struct CommandLine
{
    QString job;      ///< the first job: a folder, or an archive of one; empty: the window starts without one
    QStringList jobs; ///< all of them
    QString config;   ///< configuration folder; empty: a copy of the samples
    QString output;   ///< for screenshots, the database and the saved form
    Unit unit = Unit::Inch;
    bool isUnitGiven = false;             ///< otherwise the unit of the latest run applies
    std::optional<bool> reportsInChinese; ///< otherwise they are in the language of the screen
    bool headless = false;
    bool checksOnly = false; ///< no window system at all
    bool json = false;       ///< print JSON instead of a table
    bool saveFlag = false;
    QString step;        ///< shown first; empty: the job's first
    QString summary;     ///< file for the summary of the checks; empty: none, or one in the output folder
    QStringList reports; ///< files for reports of the checks, each with the ending of a format
    QString waivers;     ///< file of accepted violations; empty: none
    QString baseline;    ///< an earlier report to compare with; empty: none
    QString comparison;  ///< file for the comparison; empty: none
    std::optional<KVCAM::UIAPI::Ext::Severity> failOn; ///< from which a violation fails the run
    bool failOnNew = false; ///< whether what the baseline does not have fails the run
    KVCAM::Embedded::JobLimits limits;

    /// Whether something that is found can fail the run.
    bool isGate() const { return failOn || failOnNew; }
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

/// Whether the arguments ask for the checks only, which need no QApplication.
bool runsChecksOnly(int argc, char ** argv);

} // namespace Workbench
