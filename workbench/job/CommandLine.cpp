#include "job/CommandLine.h"

#include "job/Limits.h"
#include "job/ReportFormat.h"

#include <UIAPICommonVersion.h>

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>

#include <cstring>

namespace Workbench {

namespace {

constexpr char const * jobVariable = "UIAPI_WORKBENCH_JOB";

QString absolute(QString const & path)
{
    return path.isEmpty() ? path : QDir::cleanPath(QDir::current().absoluteFilePath(path));
}

ParsedArguments failure(QString const & text)
{
    return {ParsedArguments::Outcome::Error, {}, text};
}

bool hasDisplay()
{
    if (!qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        QString const platform = qEnvironmentVariable("QT_QPA_PLATFORM");
        return platform != "offscreen" && platform != "minimal";
    }
#if defined(Q_OS_UNIX) && !defined(Q_OS_MACOS)
    return !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
#else
    return true;
#endif
}

} // namespace

QString defaultJob()
{
    return qEnvironmentVariable(jobVariable);
}

ParsedArguments parseArguments(QStringList const & arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription("Shows a board's job through UIAPICommon and the default engine.");
    QCommandLineOption const help = parser.addHelpOption();
    QCommandLineOption const version = parser.addVersionOption();
    QCommandLineOption const headless(
        "headless", "Open no window: print the facts of the job as JSON and write screenshots.");
    QCommandLineOption const config("config", "Start from this configuration directory.", "DIR");
    QCommandLineOption const output("output", "Where files are written (default: the current directory).",
                                    "DIR", ".");
    QCommandLineOption const unit("unit", "Unit in which the views start: inch or mm.", "inch|mm", "inch");
    QCommandLineOption const saveFlag("save-flag", "Start with the engine's save flag on.");
    parser.addOptions({headless, config, output, unit, saveFlag});
    QCommandLineOption const step("step", "Show this step first (default: the job's first).", "NAME");
    QCommandLineOption const summary("summary", "Run the checks on the step and write their summary.",
                                     "FILE");
    QCommandLineOption const report(
        "report", "Run the checks and write the graded report, as JSON, CSV or HTML; may be repeated.", "FILE");
    QCommandLineOption const limit(
        "limit", "Change a limit of what a job may hold; may be repeated. The limits: " + limitNames() + '.',
        "NAME=NUMBER");
    parser.addOptions({step, summary, report, limit});
    parser.addPositionalArgument("JOB",
                                 "The folder of the job, or an archive of it (.tgz, .tar.gz, .tar, .zip; "
                                 "default: the environment variable " +
                                     QString(jobVariable) + ").",
                                 "[JOB]");

    if (!parser.parse(arguments)) {
        return failure(parser.errorText());
    }
    if (parser.isSet(help) || parser.isSet("help-all")) {
        return {ParsedArguments::Outcome::Print, {}, parser.helpText().trimmed() + '\n'};
    }
    if (parser.isSet(version)) {
        return {ParsedArguments::Outcome::Print, {}, "uiapi-workbench " UIAPICOMMON_VERSION "\n"};
    }
    QStringList const positional = parser.positionalArguments();
    if (positional.size() > 1) {
        return failure("more than one job given");
    }
    QString const job = positional.isEmpty() ? defaultJob() : positional.first();
    if (job.isEmpty() && parser.isSet(headless)) {
        return failure("no job given, see --help");
    }
    CommandLine commandLine;
    commandLine.job = absolute(job);
    commandLine.config = absolute(parser.value(config));
    commandLine.output = absolute(parser.value(output));
    commandLine.unit = parser.value(unit) == "mm" ? Unit::Millimetre : Unit::Inch;
    commandLine.isUnitGiven = parser.isSet(unit);
    commandLine.headless = parser.isSet(headless);
    commandLine.saveFlag = parser.isSet(saveFlag);
    commandLine.step = parser.value(step);
    commandLine.summary = absolute(parser.value(summary));
    for (QString const & file : parser.values(report)) {
        if (!reportFormat(file)) {
            return failure("a report is a .json, .csv or .html file, not \"" + file + '"');
        }
        commandLine.reports.append(absolute(file));
    }
    for (QString const & text : parser.values(limit)) {
        if (QString const error = setLimit(commandLine.limits, text); !error.isEmpty()) {
            return failure(error);
        }
    }
    if (parser.value(unit) != "mm" && parser.value(unit) != "inch") {
        return failure("the unit is inch or mm, not \"" + parser.value(unit) + '"');
    }
    return {ParsedArguments::Outcome::Run, commandLine, {}};
}

bool runsHeadless(int argc, char ** argv)
{
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--headless") == 0) {
            return true;
        }
    }
    return !hasDisplay();
}

} // namespace Workbench
