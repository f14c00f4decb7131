#include "job/CommandLine.h"

#include "job/Limits.h"
#include "job/ReportFormat.h"

#include <UIAPICommonVersion.h>

#include <QCommandLineParser>
#include <QDir>

#include <algorithm>
#include <array>
#include <cstring>

namespace Workbench {

using namespace KVCAM::UIAPI;

namespace {

constexpr char const * jobVariable = "UIAPI_WORKBENCH_JOB";

struct Option
{
    char const * name;
    char const * text;
    char const * value = "";    ///< empty: the option takes none
    char const * standard = ""; ///< without the option
};
constexpr std::array<Option, 17> options{{
    {"headless", "Open no window: print the facts of the job as JSON and write screenshots."},
    {"checks-only", "Only run the checks, without any window system, and print a table of the boards."},
    {"config", "Start from this configuration directory.", "DIR"},
    {"output", "Where files are written (default: the current directory).", "DIR", "."},
    {"unit", "Unit in which the views start: inch or mm.", "inch|mm", "inch"},
    {"language", "Language of HTML reports (default: the window's; English without a window).", "en|zh"},
    {"save-flag", "Start with the engine's save flag on."},
    {"step", "Show this step first, and check it (default: the job's first).", "NAME"},
    {"summary", "Run the checks on the step and write their summary.", "FILE"},
    {"report",
     "Run the checks and write the graded report; may be repeated. The ending gives the format: %1. With "
     "--checks-only HTML has no pictures.",
     "FILE"},
    {"fail-on", "End with 3 if a violation that bad or worse is found.", "red|yellow|green"},
    {"waivers", "Accept the violations in this file: they are counted apart and fail nothing.", "FILE"},
    {"baseline", "Compare the checks with this earlier report (.json).", "FILE"},
    {"comparison", "Write the comparison with the baseline as JSON.", "FILE"},
    {"fail-on-new", "End with 3 if a violation is not in the baseline, or its severity was better there."},
    {"json", "With --checks-only, print JSON instead of a table."},
    {"limit", "Change a limit of what a job may hold; may be repeated. The limits: %1.", "NAME=NUMBER"},
}};

constexpr char const * notes = R"(
With --headless or --checks-only there may be several jobs. "%b" in the name of a file, or of the folder
of --output, stands for the name of the board, which is that of its folder, or of its archive without the
ending. Two boards must not write the same file.

Exit codes; of several reasons or boards the highest counts:
  0  all was read, checked and written, and nothing was found that fails
  1  something could not be read, checked or written
  2  wrong input: an option, or a job, step, baseline or file of waivers
  3  --fail-on or --fail-on-new found what it asks for
)";

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

bool contains(int argc, char ** argv, char const * option)
{
    for (int i = 1; i < argc && std::strcmp(argv[i], "--") != 0; ++i) {
        if (std::strcmp(argv[i], option) == 0) {
            return true;
        }
    }
    return false;
}

void describe(QCommandLineParser & parser)
{
    parser.setApplicationDescription("Shows a board's job through UIAPICommon and the default engine.");
    for (Option const & option : options) {
        QString text = option.text;
        if (text.contains("%1")) {
            text = text.arg(std::strcmp(option.name, "limit") == 0 ? limitNames() : reportEndings());
        }
        QCommandLineOption made(option.name, text, option.value);
        if (option.standard[0] != '\0') {
            made.setDefaultValue(option.standard);
        }
        parser.addOption(made);
    }
    parser.addPositionalArgument("JOB",
                                 "The folder of the job, or an archive of it (.tgz, .tar.gz, .tar, .zip; "
                                 "default: the environment variable " +
                                     QString(jobVariable) + ").",
                                 "[JOB...]");
}

// The functions below return why the options are refused; empty if they are fine.

QString readJobs(QCommandLineParser const & parser, CommandLine & commandLine)
{
    bool const isWindowless = commandLine.headless || commandLine.checksOnly;
    QStringList jobs = parser.positionalArguments();
    if (jobs.size() > 1 && !isWindowless) {
        return "more than one job given, which needs --checks-only or --headless";
    }
    if (jobs.isEmpty() && !defaultJob().isEmpty()) {
        jobs.append(defaultJob());
    }
    if (jobs.isEmpty() && isWindowless) {
        return "no job given, see --help";
    }
    for (QString const & job : jobs) {
        commandLine.jobs.append(absolute(job));
    }
    commandLine.job = commandLine.jobs.value(0);
    return {};
}

QString readFiles(QCommandLineParser const & parser, CommandLine & commandLine)
{
    commandLine.config = absolute(parser.value("config"));
    commandLine.output = absolute(parser.value("output"));
    commandLine.summary = absolute(parser.value("summary"));
    commandLine.waivers = absolute(parser.value("waivers"));
    commandLine.baseline = absolute(parser.value("baseline"));
    commandLine.comparison = absolute(parser.value("comparison"));
    for (QString const & file : parser.values("report")) {
        if (!reportFormat(file)) {
            return "a report is a file with one of the endings " + reportEndings() + ", not \"" + file + '"';
        }
        commandLine.reports.append(absolute(file));
    }
    return {};
}

QString readNumbers(QCommandLineParser const & parser, CommandLine & commandLine)
{
    for (QString const & text : parser.values("limit")) {
        if (QString error = setLimit(commandLine.limits, text); !error.isEmpty()) {
            return error;
        }
    }
    QString const unit = parser.value("unit");
    if (unit != "mm" && unit != "inch") {
        return "the unit is inch or mm, not \"" + unit + '"';
    }
    commandLine.unit = unit == "mm" ? Unit::Millimetre : Unit::Inch;
    commandLine.isUnitGiven = parser.isSet("unit");
    return {};
}

QString readLanguage(QCommandLineParser const & parser, CommandLine & commandLine)
{
    if (!parser.isSet("language")) {
        return {};
    }
    QString const language = parser.value("language");
    if (language != "en" && language != "zh") {
        return "the language is en or zh, not \"" + language + '"';
    }
    commandLine.reportsInChinese = language == "zh";
    return {};
}

QString readFailOn(QCommandLineParser const & parser, CommandLine & commandLine)
{
    commandLine.failOnNew = parser.isSet("fail-on-new");
    if (!parser.isSet("fail-on")) {
        return {};
    }
    QString const wanted = parser.value("fail-on");
    for (Ext::SeverityMark const & mark : Ext::severityPalette) {
        if (mark.severity != Ext::Severity::None && wanted == mark.name) {
            commandLine.failOn = mark.severity;
            return {};
        }
    }
    return "--fail-on takes red, yellow or green, not \"" + wanted + '"';
}

QString checkTogether(CommandLine const & commandLine)
{
    bool const isWindowless = commandLine.headless || commandLine.checksOnly;
    struct Rule
    {
        bool isBroken;
        char const * text;
    };
    std::array<Rule, 6> const rules{{
        {commandLine.headless && commandLine.checksOnly, "--checks-only and --headless exclude each other"},
        {commandLine.json && !commandLine.checksOnly, "--json needs --checks-only"},
        {commandLine.isGate() && !isWindowless,
         "--fail-on and --fail-on-new need --checks-only or --headless"},
        {!commandLine.baseline.isEmpty() && !isWindowless, "--baseline needs --checks-only or --headless"},
        {commandLine.failOnNew && commandLine.baseline.isEmpty(), "--fail-on-new needs --baseline"},
        {!commandLine.comparison.isEmpty() && commandLine.baseline.isEmpty(),
         "--comparison needs --baseline"},
    }};
    auto const * const broken =
        std::find_if(rules.begin(), rules.end(), [](Rule const & rule) { return rule.isBroken; });
    return broken == rules.end() ? QString() : QString(broken->text);
}

} // namespace

QString defaultJob()
{
    return qEnvironmentVariable(jobVariable);
}

ParsedArguments parseArguments(QStringList const & arguments)
{
    QCommandLineParser parser;
    QCommandLineOption const help = parser.addHelpOption();
    QCommandLineOption const version = parser.addVersionOption();
    describe(parser);
    if (!parser.parse(arguments)) {
        return failure(parser.errorText());
    }
    if (parser.isSet(help) || parser.isSet("help-all")) {
        return {ParsedArguments::Outcome::Print, {}, parser.helpText().trimmed() + '\n' + notes};
    }
    if (parser.isSet(version)) {
        return {ParsedArguments::Outcome::Print, {}, "uiapi-workbench " UIAPICOMMON_VERSION "\n"};
    }
    CommandLine commandLine;
    commandLine.headless = parser.isSet("headless");
    commandLine.checksOnly = parser.isSet("checks-only");
    commandLine.json = parser.isSet("json");
    commandLine.saveFlag = parser.isSet("save-flag");
    commandLine.step = parser.value("step");
    for (auto const read : {readJobs, readFiles, readNumbers, readLanguage, readFailOn}) {
        if (QString const error = read(parser, commandLine); !error.isEmpty()) {
            return failure(error);
        }
    }
    if (QString const error = checkTogether(commandLine); !error.isEmpty()) {
        return failure(error);
    }
    return {ParsedArguments::Outcome::Run, commandLine, {}};
}

bool runsHeadless(int argc, char ** argv)
{
    return contains(argc, argv, "--headless") || !hasDisplay();
}

bool runsChecksOnly(int argc, char ** argv)
{
    return contains(argc, argv, "--checks-only");
}

} // namespace Workbench
